#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "packages/game_facts.h"

namespace fabula::packages {

/// A picture that libraries of games show for a game.
struct Cover {
    std::string bytes;
    std::string_view format;  ///< "png" or "jpg"
    int width = 0;            ///< in points
    int height = 0;

    std::string FileName() const { return "Cover." + std::string(format); }
};

/// The picture of About this Adventure as a cover; what is no JPEG becomes a PNG.
struct CoverSearch {
    std::optional<Cover> cover;
    std::string why;  ///< without a cover: why there is none, a sentence
};
CoverSearch FindCover(store::Adventure& adventure, const GameFacts& facts);

/// The fewest and the most points of a side that libraries take.
inline constexpr int kSmallestCover = 120;
inline constexpr int kLargestCover = 1200;

}  // namespace fabula::packages
