#pragma once

#include <optional>
#include <string_view>

#include "references/use.h"

namespace fabula::references {

/// How a condition or action makes or compares the numbers of its flags.
enum class Flow {
    None,
    Counts,    ///< reckons or draws a number
    Measures,  ///< takes a number of the game: a place, a weight
    Walks,     ///< takes the place that an exit leads to
    Copies,    ///< takes the number of its other flag
    Compares   ///< holds the numbers of its two flags against each other
};

/// What a condition or action does with the flags and objects that its parameters name.
struct CondActAccess {
    std::string_view name;
    Access first;
    Access second = Access::Names;
    /// What the value of its flag is taken for, or comes from.
    std::optional<Kind> carries = std::nullopt;
    /// Which of its parameters, from 1, is a flag that gets a number that does not stand there; 0 none.
    int computes = 0;
    Flow flow = Flow::None;
};

/// For all that is not what goes without saying: conditions read, actions set.
const CondActAccess* FindCondActAccess(std::string_view name);
/// Flow::None for all that is not there.
Flow FlowOf(std::string_view name);

/// Whether it is an action that ends its process table, so that nothing behind it in its entry runs.
bool EndsTable(std::string_view name);

}  // namespace fabula::references
