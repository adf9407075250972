#include <exception>
#include <iostream>
#include <new>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/verbs.h"
#include "platform/error.h"
#include "store/filter.h"
#include "text/safe_text.h"

namespace {

using namespace fabula;

int Fail(const std::string& sentence, int status) {
    std::cerr << "fabula: " << text::SafeLines(sentence) << "\n";
    return status;
}

/// Tells in one sentence what is being caught. What has no sentence of its own is told with what was being
/// done ("'fabula uses' ran").
int FailWithCaught(const std::string& doing) {
    const std::string failed = "Something failed while " + doing + ": ";
    try {
        throw;
    } catch (const cli::UsageError& error) {
        return Fail(error.what(), cli::kWrongUsage);
    } catch (const store::FilterError& error) {
        return Fail(error.what(), cli::kWrongUsage);
    } catch (const Error& error) {
        return Fail(error.what(), cli::kFailed);
    } catch (const std::bad_alloc&) {
        return Fail("There is not enough memory for this.", cli::kFailed);
    } catch (const std::exception& error) {
        return Fail(failed + error.what(), cli::kFailed);
    } catch (...) {
        return Fail(failed + "a fault without a name.", cli::kFailed);
    }
}

int RunChosen(const cli::Chosen& chosen, const std::string& verb) {
    try {
        const int status = chosen.body();
        std::cout.flush();
        if (!std::cout) throw Error("Could not write the output.");
        return status;
    } catch (...) {
        return FailWithCaught("'fabula " + verb + "' ran");
    }
}

}  // namespace

int main(int argc, char** argv) try {
    CLI::App app("Makes and plays text adventures.", "fabula");
    app.set_version_flag("--version", "fabula " FABULA_VERSION);
    app.require_subcommand(1);
    cli::Chosen chosen;
    for (const auto add : cli::kVerbs)
        add(app, chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::kDone : cli::kWrongUsage;
    }
    return RunChosen(chosen, app.get_subcommands().front()->get_name());
} catch (...) {
    return FailWithCaught("the command line was read");
}
