#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>

namespace fabula::cli {

/// What a verb was asked for, or told, that makes no sense. Ends the program with kWrongUsage.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// How the program ends.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

/// Adds one verb to the command line. `main` runs the verb that was chosen after the line has been parsed;
/// it returns the status to end with. A failure is thrown: UsageError, or fabula::Error with one sentence.
///
/// Data goes to standard output, everything else to standard error.
using VerbBody = std::function<int()>;

/// Where a verb leaves what is to be run.
struct Chosen {
    VerbBody body;
};

void AddCheckVerb(CLI::App& app, Chosen& chosen);
void AddExportVerb(CLI::App& app, Chosen& chosen);
void AddImportVerb(CLI::App& app, Chosen& chosen);
void AddVerifyVerb(CLI::App& app, Chosen& chosen);
void AddNewVerb(CLI::App& app, Chosen& chosen);
void AddTablesVerb(CLI::App& app, Chosen& chosen);
void AddDumpVerb(CLI::App& app, Chosen& chosen);
void AddDrawVerb(CLI::App& app, Chosen& chosen);
void AddCharsetVerb(CLI::App& app, Chosen& chosen);
void AddPlayVerb(CLI::App& app, Chosen& chosen);
void AddTestVerb(CLI::App& app, Chosen& chosen);

}  // namespace fabula::cli
