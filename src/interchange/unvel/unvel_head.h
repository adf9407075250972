#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "interchange/listing/listing_lines.h"
#include "platform/person.h"
#include "store/setup.h"

namespace fabula::interchange {

/// What the head of an UnVel listing tells.
struct UnVelHead {
    bool isMarlo = false;  ///< a game of the older engine
    std::string name;      ///< of the database; may be empty
};

/// Reads the head, the version lines included. Nothing when the listing is none, or of a version that can't
/// be read; `person` is then told why.
std::optional<UnVelHead> ReadUnVelHead(ListingLines& lines, platform::Person& person);

/// The adventure of an UnVel listing: type VEL or Marlo, as its head says.
store::AdventureSetup SetupOfUnVel(const std::filesystem::path& listing);

/// The heads of the first two lines, as the writer puts them.
inline constexpr std::string_view kVelDatabase = "VEL Database";
inline constexpr std::string_view kMarloDatabase = "Marlo Database";
inline constexpr std::string_view kExtracted = "Extracted ";
inline constexpr std::string_view kOwnExtract = "Extracted in UnVels format by Fabula Extract Version ";

/// The forms of the listing that the writer knows, each named in a line of its own behind the head.
inline constexpr std::string_view kUnVelVersions[] = {"2.0.0", "2.1.0", "2.2.0", "4.0.0", "5.0.0"};
inline constexpr std::string_view kNewestUnVelVersion = "5.0.0";
/// The oldest form writes some words as the oldest decompiler did: "Ojects", "INITIALY AT".
inline constexpr std::string_view kOldestUnVelVersion = "2.0.0";

}  // namespace fabula::interchange
