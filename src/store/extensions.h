#pragma once

#include <string_view>

namespace fabula::store {

/// The extensions of the files that this program makes and knows again by their names.
namespace extension {

inline constexpr std::string_view kAdventure = ".fbd";
inline constexpr std::string_view kSavedGame = ".sav";
inline constexpr std::string_view kScript = ".scr";
inline constexpr std::string_view kTrace = ".trc";
inline constexpr std::string_view kCharacterSets = ".chr";
inline constexpr std::string_view kExport = ".ext";
inline constexpr std::string_view kPcSource = ".sce";
inline constexpr std::string_view kBatch = ".fbb";

inline constexpr std::string_view kAll[] = {kAdventure,     kSavedGame, kScript,   kTrace,
                                            kCharacterSets, kExport,    kPcSource, kBatch};

}  // namespace extension

}  // namespace fabula::store
