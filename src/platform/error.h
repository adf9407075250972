#pragma once

#include <stdexcept>
#include <string>

namespace fabula {

/// A failure of the machine or of a file: disk full, file locked, damaged data. `what()` is one sentence
/// for the user, in plain words, that says what was being done. Wrong input by the user is no Error: it
/// gets its message through the Person and changes nothing.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace fabula
