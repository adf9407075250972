#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/host/standard_output.h"
#include "cli/verbs.h"
#include "platform/error.h"
#include "store/filter/filter.h"
#include "text/encoding/safe_text.h"

namespace {

using namespace fabula;

int Fail(const std::string& sentence, int status) {
    std::string line;
    text::AppendSafe(sentence, line);
    std::cerr << "fabula: " << line << "\n";
    return status;
}

/// What the parser refuses, in one line. What it does not know comes before what it misses: that may be
/// meant by it.
int FailUsage(const CLI::App& app, const CLI::ParseError& error) {
    constexpr std::string_view kNoValue = "Could not convert: ";
    const std::vector<std::string> unknown = app.remaining(true);
    std::string sentence = error.what();
    const auto option = std::ranges::find_if(unknown, [](const std::string& word) {
        return word.starts_with('-') && word != "-" && word != "--";
    });
    if (option != unknown.end()) sentence = "There is no option '" + *option + "'";
    if (sentence.starts_with(kNoValue)) sentence = sentence.substr(kNoValue.size()) + " is no value for it";
    return Fail(sentence + "; --help tells more.", cli::kWrongUsage);
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
        return Fail(failed + "there is not enough memory.", cli::kFailed);
    } catch (const std::exception& error) {
        return Fail(failed + error.what(), cli::kFailed);
    } catch (...) {
        return Fail(failed + "a fault without a name.", cli::kFailed);
    }
}

int RunChosen(const cli::Chosen& chosen, const std::string& verb, cli::StandardOutput& output) {
    try {
        const int status = chosen.body();
        output.Finish();
        return status;
    } catch (...) {
        return FailWithCaught("'fabula " + verb + "' ran");
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

/// Whether the first word is meant as a verb, and is none.
bool IsNoVerb(std::string_view first) {
    return !first.starts_with('-') &&
           std::ranges::find(cli::kVerbs, first, &cli::Verb::name) == std::end(cli::kVerbs);
}

}  // namespace

int main(int argc, char** argv) try {
    cli::StandardOutput output;
    CLI::App app("Makes and plays text adventures.", "fabula");
    app.set_version_flag("--version", "fabula " FABULA_VERSION);
    app.require_subcommand(1);
    const std::string verbs = "; fabula --help names them.";
    if (argc < 2) return Fail("What is to be done is named by a verb" + verbs, cli::kWrongUsage);
    if (IsNoVerb(argv[1]))
        return Fail("There is no verb '" + std::string(argv[1]) + "'" + verbs, cli::kWrongUsage);
    cli::Chosen chosen;
    AddVerbs(app, argv[1], chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) return FailUsage(app, error);
        app.exit(error);
        output.Finish();
        return cli::kDone;
    }
    return RunChosen(chosen, app.get_subcommands().front()->get_name(), output);
} catch (...) {
    return FailWithCaught("the command line was read");
}
