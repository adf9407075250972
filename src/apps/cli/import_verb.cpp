#include "cli/file_kind_option.h"
#include "cli/installation.h"
#include "cli/job_terminal.h"
#include "cli/terminal_operator.h"
#include "cli/verb.h"
#include "interchange/jobs.h"
#include "platform/error.h"

namespace fabula::cli {
namespace {

struct Options {
    std::string kind;
    std::string source;
    std::string file;
    bool force = false;
};

int Import(const Options& options) {
    const interchange::FileKind& kind = ReadableKind(options.kind);
    if (!options.force && std::filesystem::exists(options.file)) {
        throw Error("Could not create " + options.file + ": it exists already; --force replaces it.");
    }
    TerminalOperator person;
    const platform::SystemClock clock;
    platform::NoEvents events;
    JobTerminal observer(std::cerr, ErrorsGoToTerminal());
    const interchange::JobResult result =
        interchange::ImportIt(kind, options.source, options.file, options.force,
                              {person, clock, events, observer, DefaultDataFile()});
    return result.done ? kDone : kFailed;
}

}  // namespace

void AddImportVerb(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb =
        app.add_subcommand("import", "Makes an adventure file from a source or an export file");
    verb->add_option("kind", options->kind, "What is read: " + ReadableKinds())->required();
    verb->add_option("source", options->source, "The file that is read")->required();
    verb->add_option("file", options->file, "The adventure file, FILE.fbd")->required();
    verb->add_flag("--force", options->force, "Replace a file that exists");
    verb->callback([options, &chosen] { chosen.body = [options] { return Import(*options); }; });
}

}  // namespace fabula::cli
