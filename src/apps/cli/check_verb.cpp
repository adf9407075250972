#include <cstdlib>
#include <filesystem>

#include "authoring/jobs/verify.h"
#include "cli/console.h"
#include "cli/encoding_option.h"
#include "cli/fault_report.h"
#include "cli/file_kind_option.h"
#include "cli/verbs.h"
#include "platform/error.h"
#include "text/utf8.h"

namespace fabula::cli {
namespace {

struct Options {
    std::string source;
    std::string kind;
    interchange::Encoding encoding = interchange::Encoding::Detect;
    bool json = false;
};

/// A folder for one run, deleted with what it holds.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "fabula-check-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw Error("Could not make a folder for temporary files.");
        path_ = name;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// The kind that was named, or else the one whose files have the source's extension.
const interchange::FileKind& KindOf(const Options& options) {
    if (!options.kind.empty()) return ReadableKind(options.kind);
    const std::string extension = std::filesystem::path(options.source).extension().string();
    for (const interchange::FileKind& kind : interchange::FileKinds()) {
        if (kind.CanRead() && text::EqualsNoCase(kind.extension, extension)) return kind;
    }
    throw UsageError("what kind of source " + options.source +
                     " is can't be told from its name; use --kind");
}

int Check(const Options& options) {
    const interchange::FileKind& kind = KindOf(options);
    const ScratchFolder folder;
    const std::filesystem::path file = folder.Path() / "check.fbd";
    Console console(options.json ? std::cerr : std::cout);
    interchange::JobHost host = console.JobHost();
    host.encoding = options.encoding;
    const interchange::JobResult imported = interchange::ImportIt(kind, options.source, file, true, host);
    interchange::JobStatus status(console.Observer());
    status.Continue(imported.allFaults);
    if (imported.done) {
        const auto adventure = OpenToRead(file.string());
        authoring::VerifyAdventure(*adventure, authoring::VerifyTarget::Play, status, &imported.places);
    }
    if (options.json) PrintAsJson(status.AllFaults());
    if (status.Faults() > 0) status.AddToStatusCR(CountOf(status.AllFaults()));
    return imported.done && status.Faults() == 0 ? kDone : kFailed;
}

}  // namespace

void AddCheckVerb(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb =
        app.add_subcommand("check", "Reads a source into a temporary adventure and verifies it");
    verb->add_option("source", options->source, "The file that is read")->required();
    verb->add_option("--kind", options->kind,
                     "What it is, where its name doesn't tell: " + ReadableKinds());
    AddJsonFlag(*verb, options->json);
    AddEncodingOption(*verb, options->encoding);
    Runs(*verb, chosen, options, Check);
}

}  // namespace fabula::cli
