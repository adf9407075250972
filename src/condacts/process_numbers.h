#pragma once

#include "condacts/numbers.h"

namespace fabula::condacts {

// The tables that the turn cycle itself runs.
inline constexpr ProcessNumber kResponses{0};  ///< for each sentence
inline constexpr ProcessNumber kDescribed{1};  ///< behind each description
inline constexpr ProcessNumber kEachTurn{2};   ///< before each sentence; not in "marlo"

}  // namespace fabula::condacts
