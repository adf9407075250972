#pragma once

#include <string>
#include <vector>

#include "packages/game_facts.h"

namespace fabula::packages {

/// What the ReadMe of a game says besides what its settings say.
struct ReadMeParts {
    std::string version;
    std::string more;                ///< what the author adds
    std::string productPage;         ///< where the engine is found
    std::vector<std::string> names;  ///< of the files of the zip
};

/// Where the engine is found when nobody has said it.
inline constexpr std::string_view kUsualProductPage = "Fabula web page.";

/// The ReadMe: its seven parts in their order, in lines that end as on every system ("\r\n").
std::string ReadMeText(const GameFacts& facts, const ReadMeParts& parts);

}  // namespace fabula::packages
