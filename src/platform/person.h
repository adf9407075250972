#pragma once

#include <string_view>

#include "platform/teller.h"

namespace fabula::platform {

/// The person at the screen. Everything that the program tells or asks in a box goes through here; the
/// windowed programs show real boxes, the command line writes to the terminal, tests use ScriptedPerson.
class Person : public Teller {
  public:
    /// Asks `text` with Yes and No; true for Yes.
    virtual bool Confirm(std::string_view text, std::string_view title) = 0;
};

}  // namespace fabula::platform
