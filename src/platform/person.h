#pragma once

#include <string_view>

namespace fabula::platform {

/// The person at the screen. Everything that the program tells or asks in a box goes through here; the
/// windowed programs show real boxes, the command line writes to the terminal, tests use ScriptedPerson.
class Person {
  public:
    virtual ~Person() = default;

    /// Shows `text` in a box with `title` and an OK button.
    virtual void Tell(std::string_view text, std::string_view title) = 0;

    /// Asks `text` with Yes and No; true for Yes.
    virtual bool Confirm(std::string_view text, std::string_view title) = 0;
};

}  // namespace fabula::platform
