#pragma once

#include <string_view>

#include "store/adventure_kind.h"

// What the dialog of an adventure's type (store/setup.h) says.

namespace fabula::authoring {

inline constexpr std::string_view kSetupTitle = "Choose Type of Adventure";

/// The explanation of a choice.
std::string_view ExplainType(store::AdventureKind kind);
std::string_view ExplainGraphics(bool on);
std::string_view ExplainCharSets(bool on);

}  // namespace fabula::authoring
