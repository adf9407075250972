#include <exception>
#include <iostream>

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

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Makes and plays text adventures.", "fabula");
    app.set_version_flag("--version", "fabula " FABULA_VERSION);
    app.require_subcommand(1);
    cli::Chosen chosen;
    for (const auto add : cli::kVerbs)
        add(app, chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const int status = app.exit(error) == 0 ? cli::kDone : cli::kWrongUsage;
        std::cout.flush();
        if (std::cout) return status;
        std::cerr << "fabula: Could not write the output.\n";
        return cli::kFailed;
    }
    return RunChosen(chosen);
}
