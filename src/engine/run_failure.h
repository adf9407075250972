#pragma once

#include <stdexcept>
#include <string>

namespace fabula::engine {

/// The game did what can't be done: a number out of its range, a text that does not exist, a run without an
/// end. It ends the game, not the program. `what()` says what with its numbers ("flag 1200 does not
/// exist"); where it happened is added by whoever catches it.
class RunFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A value that is stored must be a 16-bit signed number. `what` names the store: "flag 5".
[[noreturn]] void FailRange(const std::string& what, long long value);

/// "flag 1200 does not exist".
[[noreturn]] void FailMissing(const char* kind, int number);

}  // namespace fabula::engine
