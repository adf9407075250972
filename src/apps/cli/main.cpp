#include <algorithm>
#include <exception>
#include <iostream>
#include <span>
#include <string_view>

#include <CLI/CLI.hpp>

#include "cli/verbs.h"
#include "platform/error.h"
#include "store/filter.h"
#include "text/safe_text.h"

namespace {

using namespace fabula;

int Fail(const std::exception& error, int status) {
    std::cerr << "fabula: " << text::SafeLines(error.what()) << "\n";
    return status;
}

int RunChosen(const cli::Chosen& chosen) {
    try {
        const int status = chosen.body();
        std::cout.flush();
        if (!std::cout) throw Error("Could not write the output.");
        return status;
    } catch (const cli::UsageError& error) {
        return Fail(error, cli::kWrongUsage);
    } catch (const store::FilterError& error) {
        return Fail(error, cli::kWrongUsage);
    } catch (const std::bad_alloc&) {
        return Fail(Error("There is not enough memory for this."), cli::kFailed);
    } catch (const std::exception& error) {
        return Fail(error, cli::kFailed);
    }
}

/// Adds the verb that the first word of the command line names, or all of them when it names none: making
/// the options of all takes longer than many a verb.
void AddVerbs(CLI::App& app, std::string_view first, cli::Chosen& chosen) {
    const auto named = std::ranges::find(cli::kVerbs, first, &cli::Verb::name);
    std::span<const cli::Verb> added = cli::kVerbs;
    if (named != std::end(cli::kVerbs)) added = {named, 1};
    for (const cli::Verb& verb : added)
        verb.add(*app.add_subcommand(verb.name, verb.does), chosen);
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Makes and plays text adventures.", "fabula");
    app.set_version_flag("--version", "fabula " FABULA_VERSION);
    app.require_subcommand(1);
    cli::Chosen chosen;
    AddVerbs(app, argc > 1 ? argv[1] : "", chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::kDone : cli::kWrongUsage;
    }
    return RunChosen(chosen);
}
