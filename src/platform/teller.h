#pragma once

#include <string_view>

namespace fabula::platform {

/// What tells the person at the screen something.
class Teller {
  public:
    virtual ~Teller() = default;

    /// Shows `text` in a box with `title` and an OK button.
    virtual void Tell(std::string_view text, std::string_view title) = 0;
};

}  // namespace fabula::platform
