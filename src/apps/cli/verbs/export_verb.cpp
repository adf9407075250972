#include "authoring/jobs/verify.h"
#include "cli/file_kind_option.h"
#include "cli/host/console.h"
#include "cli/target.h"
#include "cli/verbs.h"

namespace fabula::cli {
namespace {

struct ExportOptions {
    std::string kind;
    std::string file;
    std::string target;
    bool force = false;
    std::string version;
};

bool VerifyFirst(store::Adventure& adventure, const interchange::FileKind& kind,
                 interchange::JobStatus& status) {
    return authoring::VerifyAdventure(adventure, &kind, status);
}

int Export(const ExportOptions& options) {
    const interchange::FileKind& kind = WritableKind(options.kind);
    if (!options.version.empty() && !kind.hasVersions)
        throw UsageError("only UnVel extracts have a --version");
    Console console(std::cerr);
    CheckTarget({options.target, store::Content::Text, kind.extension, options.file, options.force},
                console.Person());
    const auto adventure = OpenToRead(options.file);
    const interchange::JobResult result = interchange::ExportIt(
        kind, *adventure, options.target, VerifyFirst, console.JobHost(), options.version);
    return result.done ? kDone : kFailed;
}

}  // namespace

void AddExportVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<ExportOptions>();
    verb.add_option("kind", options->kind, "What is written: " + WritableKinds())->required();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("target", options->target, "The file that is written; - is standard output")
        ->required();
    AddForceFlag(verb, options->force);
    verb.add_option("--version", options->version,
                    "The form of an UnVel extract: 2.0.0, 2.1.0, 2.2.0, 4.0.0 or 5.0.0");
    Runs(verb, chosen, options, Export);
}

}  // namespace fabula::cli
