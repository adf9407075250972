#include <filesystem>

#include "authoring/jobs/verify.h"
#include "cli/encoding_option.h"
#include "cli/file_kind_option.h"
#include "cli/host/console.h"
#include "cli/host/fault_report.h"
#include "cli/installation.h"
#include "cli/source_adventure.h"
#include "cli/verbs.h"
#include "terminal/scratch_folder.h"
#include "text/str_edit.h"

namespace fabula::cli {
namespace {

struct CheckOptions {
    std::string source;
    std::string kind;
    interchange::Encoding encoding = interchange::Encoding::Detect;
    bool json = false;
};

/// Hands a job's status on without the folder in which the adventure is made, which nobody is to look for.
class WithoutFolder final : public interchange::JobObserver {
  public:
    WithoutFolder(interchange::JobObserver& shown, const std::filesystem::path& folder)
        : shown_(shown), folder_(folder.string() + "/") {}

    void StatusAdded(std::string_view text) override {
        shown_.StatusAdded(text::ReplaceAll(text, folder_, ""));
    }
    void StatusCleared() override { shown_.StatusCleared(); }
    void ProgressLine(std::string_view text) override { shown_.ProgressLine(text); }
    void Progress(std::int64_t value, std::int64_t maximum) override { shown_.Progress(value, maximum); }
    bool CancelWanted() override { return shown_.CancelWanted(); }

  private:
    interchange::JobObserver& shown_;
    std::string folder_;
};

int Check(const CheckOptions& options) {
    const interchange::FileKind& kind = KindOfSource(options.source, options.kind);
    const terminal::ScratchFolder folder;
    const std::filesystem::path file = folder.Path() / "check.fbd";
    Console console(options.json ? std::cerr : std::cout);
    WithoutFolder observer(console.Observer(), folder.Path());
    const interchange::JobHost host{console.Person(), console.Clock(),   console.Events(),
                                    observer,         DefaultDataFile(), options.encoding};
    const interchange::JobResult imported = interchange::ImportIt(kind, options.source, file, host);
    interchange::JobStatus status(console.Observer());
    status.Continue(imported.allFaults);
    if (imported.done) {
        const auto adventure = OpenToRead(file.string());
        authoring::VerifyAdventure(*adventure, authoring::kForPlay, status, &imported.places);
    }
    if (options.json) PrintAsJson(status.AllFaults());
    if (status.Faults() > 0) status.AddToStatusCR(CountOf(status.AllFaults()));
    return imported.done && status.Faults() == 0 ? kDone : kFailed;
}

}  // namespace

void AddCheckVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<CheckOptions>();
    verb.add_option("source", options->source, "The file that is read")->required();
    verb.add_option("--kind", options->kind, "What it is, where its name doesn't tell: " + ReadableKinds());
    AddJsonFlag(verb, options->json);
    AddEncodingOption(verb, options->encoding);
    Runs(verb, chosen, options, Check);
}

}  // namespace fabula::cli
