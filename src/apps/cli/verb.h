#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>

#include "store/adventure.h"

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

/// Where the verb that was chosen leaves what is to be run. The program runs it after the line has been
/// parsed; it returns the status to end with. A failure is thrown: UsageError, or fabula::Error with one
/// sentence.
///
/// Data goes to standard output, everything else to standard error.
struct Chosen {
    std::function<int()> body;
};

/// What stands behind the name of a verb or of a part of it: `run` with `options`.
template <typename Options>
void Runs(CLI::App& verb, Chosen& chosen, const std::shared_ptr<Options>& options,
          int (*run)(const Options&)) {
    verb.callback([options, run, &chosen] { chosen.body = [options, run] { return run(*options); }; });
}

/// The options that verbs have in common.
CLI::Option* AddAdventureOption(CLI::App& verb, std::string& file);
CLI::Option* AddForceFlag(CLI::App& verb, bool& force);

/// The adventure that a verb looks into, or changes. One of an older version is upgraded: in memory for
/// reading, after a sentence about it, else in its file. They throw fabula::Error when it can't be opened.
std::unique_ptr<store::Adventure> OpenToRead(const std::string& file);
std::unique_ptr<store::Adventure> OpenToChange(const std::string& file);

}  // namespace fabula::cli
