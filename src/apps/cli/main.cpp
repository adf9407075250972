#include <exception>
#include <iostream>

#include <CLI/CLI.hpp>

#include "cli/verb.h"
#include "platform/error.h"
#include "store/filter.h"

namespace {

using namespace fabula;

int RunChosen(const cli::Chosen& chosen) {
    try {
        const int status = chosen.body();
        std::cout.flush();
        if (!std::cout) throw Error("Could not write the output.");
        return status;
    } catch (const cli::UsageError& error) {
        std::cerr << "fabula: " << error.what() << "\n";
        return cli::kWrongUsage;
    } catch (const store::FilterError& error) {
        std::cerr << "fabula: " << error.what() << "\n";
        return cli::kWrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "fabula: " << error.what() << "\n";
        return cli::kFailed;
    }
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Makes and plays text adventures.", "fabula");
    app.set_version_flag("--version", "fabula " FABULA_VERSION);
    app.require_subcommand(1);
    cli::Chosen chosen;
    cli::AddCheckVerb(app, chosen);
    cli::AddExportVerb(app, chosen);
    cli::AddImportVerb(app, chosen);
    cli::AddVerifyVerb(app, chosen);
    cli::AddNewVerb(app, chosen);
    cli::AddTablesVerb(app, chosen);
    cli::AddDumpVerb(app, chosen);
    cli::AddDrawVerb(app, chosen);
    cli::AddCharsetVerb(app, chosen);
    cli::AddPlayVerb(app, chosen);
    cli::AddTestVerb(app, chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::kDone : cli::kWrongUsage;
    }
    return RunChosen(chosen);
}
