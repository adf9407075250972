#pragma once

#include <optional>
#include <string_view>

#include "references/use.h"

namespace fabula::references {

/// What a condition or action does with the flags and objects that its parameters name.
struct CondActAccess {
    std::string_view name;
    Access first;
    Access second = Access::Names;
    /// What the value of its flag is taken for, or comes from.
    std::optional<Kind> carries = std::nullopt;
    /// Which of its parameters, from 1, is a flag that gets a number that does not stand there; 0 none.
    int computes = 0;
};

/// For all that is not what goes without saying: conditions read, actions set.
const CondActAccess* FindCondActAccess(std::string_view name);

}  // namespace fabula::references
