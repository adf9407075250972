#pragma once

#include <cstddef>
#include <string_view>

#include "condacts/limits.h"

namespace fabula::interchange {

/// What sets the two kinds of source apart.
struct PcDialect {
    std::string_view kind;  ///< in status lines
    char comment;
    std::size_t letters;      ///< how many letters of a word count
    bool hasTags;             ///< texts hold the tags of ACE sources
    bool getsScriptCommands;  ///< the game gets the words and entries that control scripts
};

inline constexpr PcDialect kPcSource{"PCVEL", ';', condacts::SignificantLetters(store::AdventureKind::Vel),
                                     false, true};
inline constexpr PcDialect kAceSource{
    "ACE", '#', condacts::SignificantLetters(store::AdventureKind::Fabula), true, false};

}  // namespace fabula::interchange
