#include "authoring/verify.h"
#include "cli/job_terminal.h"
#include "cli/verb.h"

namespace fabula::cli {
namespace {

struct Options {
    std::string file;
    std::string target;
};

int Verify(const Options& options) {
    authoring::VerifyTarget target = authoring::VerifyTarget::Play;
    if (!options.target.empty()) {
        const auto named = authoring::VerifyTargetFrom(options.target);
        if (!named)
            throw UsageError("--for must be unvel, pcvel, fabula or ace, not '" + options.target + "'");
        target = *named;
    }
    const auto adventure = store::Adventure::Open(options.file, store::OpenMode::ReadOnly);
    JobTerminal observer(std::cout, ErrorsGoToTerminal());
    interchange::JobStatus status(observer);
    return authoring::VerifyAdventure(*adventure, target, status) ? kDone : kFailed;
}

}  // namespace

void AddVerifyVerb(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = app.add_subcommand("verify", "Checks an adventure against the rules of its type");
    verb->add_option("file", options->file, "The adventure file, FILE.fbd")->required();
    verb->add_option("--for", options->target, "For an export: unvel, pcvel, fabula or ace");
    verb->callback([options, &chosen] { chosen.body = [options] { return Verify(*options); }; });
}

}  // namespace fabula::cli
