#include "authoring/verify.h"
#include "cli/file_kind_option.h"
#include "cli/installation.h"
#include "cli/job_terminal.h"
#include "cli/terminal_operator.h"
#include "cli/verb.h"
#include "interchange/jobs.h"

namespace fabula::cli {
namespace {

struct Options {
    std::string kind;
    std::string file;
    std::string target;
};

bool Verify(store::Adventure& adventure, const interchange::FileKind& kind,
            interchange::JobStatus& status) {
    return authoring::VerifyAdventure(
        adventure, authoring::VerifyTargetFrom(kind.word).value_or(authoring::VerifyTarget::Play), status);
}

int Export(const Options& options) {
    const interchange::FileKind& kind = WritableKind(options.kind);
    const auto adventure = store::Adventure::Open(options.file, store::OpenMode::ReadOnly);
    TerminalOperator person;
    const platform::SystemClock clock;
    platform::NoEvents events;
    JobTerminal observer(std::cerr, ErrorsGoToTerminal());
    const interchange::JobResult result = interchange::ExportIt(
        kind, *adventure, options.target, Verify, {person, clock, events, observer, DefaultDataFile()});
    return result.done ? kDone : kFailed;
}

}  // namespace

void AddExportVerb(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = app.add_subcommand("export", "Writes an adventure as a source or an export file");
    verb->add_option("kind", options->kind, "What is written: " + WritableKinds())->required();
    verb->add_option("file", options->file, "The adventure file, FILE.fbd")->required();
    verb->add_option("target", options->target, "The file that is written; an existing one is replaced")
        ->required();
    verb->callback([options, &chosen] { chosen.body = [options] { return Export(*options); }; });
}

}  // namespace fabula::cli
