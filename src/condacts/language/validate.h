#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/language/facts.h"

namespace fabula::condacts {

/// Why a line was refused, and at which of its tokens, counted from 0. Of a parameter that is missing it is
/// the token of the name.
struct Fault {
    std::string message;
    std::size_t token = 0;

    friend bool operator==(const Fault&, const Fault&) = default;
};

/// What is told of a record whose line holds no condition and no action.
inline constexpr std::string_view kNoCondActs = "Cannot have a record with no Condition/Actions";

/// Checks a whole line in text form against the catalogue and the adventure as it is. A line that passes
/// compiles (CondActsToNumeric, once its location words are numbers). Names of another
/// dialect than the adventure's are unknown. Gives the first fault, or nullopt for a line that is valid; an
/// empty line is valid.
std::optional<Fault> ValidateCondActs(std::string_view line, const Catalogue& catalogue,
                                      const Facts& facts);

/// All faults of such a line, in its order, one to a parameter. What stands behind a name that is unknown
/// is not looked at.
std::vector<Fault> AllFaults(std::string_view line, const Catalogue& catalogue, const Facts& facts);

/// Checks one condition or action with its parameters, "NAME P1 P2". What stands behind its last parameter
/// is not read.
std::optional<Fault> ValidateCondAct(std::string_view text, const Catalogue& catalogue, const Facts& facts);

}  // namespace fabula::condacts
