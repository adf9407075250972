#include "authoring/jobs/verify.h"
#include "cli/file_kind_option.h"
#include "cli/host/fault_report.h"
#include "cli/host/job_terminal.h"
#include "cli/verbs.h"

namespace fabula::cli {
namespace {

struct VerifyOptions {
    std::string file;
    std::string target;
    bool json = false;
};

int Verify(const VerifyOptions& options) {
    const authoring::VerifyTarget target =
        options.target.empty() ? authoring::kForPlay : &WritableKind(options.target, "--for");
    const auto adventure = OpenToRead(options.file);
    JobTerminal observer(options.json ? std::cerr : std::cout, ErrorsGoToTerminal());
    interchange::JobStatus status(observer);
    const bool verified = authoring::VerifyAdventure(*adventure, target, status);
    if (options.json) PrintAsJson(status.AllFaults());
    return verified ? kDone : kFailed;
}

}  // namespace

void AddVerifyVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<VerifyOptions>();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("--for", options->target, "For an export: " + WritableKinds());
    AddJsonFlag(verb, options->json);
    Runs(verb, chosen, options, Verify);
}

}  // namespace fabula::cli
