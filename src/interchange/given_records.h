#pragma once

#include <string>
#include <string_view>

#include "store/adventure.h"

namespace fabula::interchange {

/// The last system messages of every game that is imported, which tell of the record of a game being on or
/// off. Sources of the older engines lack them.
inline constexpr std::string_view kScriptMessages[] = {"Script IS on.", "Script IS off."};

/// Gives the game the name that its source tells, as far as the field has room; "" changes nothing.
void NameGame(store::Adventure& adventure, std::string_view name);

}  // namespace fabula::interchange
