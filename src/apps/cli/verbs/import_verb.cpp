#include "cli/encoding_option.h"
#include "cli/file_kind_option.h"
#include "cli/host/console.h"
#include "cli/host/fault_report.h"
#include "cli/target.h"
#include "cli/verbs.h"

namespace fabula::cli {
namespace {

struct ImportOptions {
    std::string kind;
    std::string source;
    std::string file;
    bool force = false;
    interchange::Encoding encoding = interchange::Encoding::Detect;
    bool json = false;
};

int Import(const ImportOptions& options) {
    const interchange::FileKind& kind = ReadableKind(options.kind);
    Console console(std::cerr);
    CheckTarget({options.file, store::Content::Adventure, {}, options.source, options.force},
                console.Person());
    interchange::JobHost host = console.JobHost();
    host.encoding = options.encoding;
    const interchange::JobResult result = interchange::ImportIt(kind, options.source, options.file, host);
    if (options.json) PrintAsJson(result.allFaults);
    if (result.faults > 0) std::cerr << CountOf(result.allFaults) << "\n";
    return result.done && result.faults == 0 ? kDone : kFailed;
}

}  // namespace

void AddImportVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<ImportOptions>();
    verb.add_option("kind", options->kind, "What is read: " + ReadableKinds())->required();
    verb.add_option("source", options->source, "The file that is read")->required();
    AddAdventureOption(verb, options->file)->required();
    AddForceFlag(verb, options->force);
    AddJsonFlag(verb, options->json);
    AddEncodingOption(verb, options->encoding);
    verb.footer(
        "What can't be read is left out and told. The status is 1 then, though the file was made of the "
        "rest.");
    Runs(verb, chosen, options, Import);
}

}  // namespace fabula::cli
