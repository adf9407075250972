#pragma once

#include "interchange/listing/listing_job.h"

namespace fabula::interchange {

/// Reads the general data of an UnVel listing, up to its line of dashes, into the settings: colours as
/// numbers, the font as a code, how much can be carried, and whether the game has pictures and sets of
/// characters. Counts of records are not needed and not believed.
void ReadGeneralData(ListingJob& job, bool isMarlo);

/// The labels of the general data, for reader and writer.
inline constexpr std::string_view kInkLabel = "Default ink color";
inline constexpr std::string_view kPaperLabel = "Default paper color";
inline constexpr std::string_view kFontLabel = "Default character set";
inline constexpr std::string_view kSetsLabel = "Character sets";
inline constexpr std::string_view kConveyableLabel = "Conveyable objects";
inline constexpr std::string_view kPicturesLabel = "Graphics Count";

/// The general data ends at a line of so many dashes.
inline constexpr std::size_t kGeneralDashes = 74;

/// The colour of a listing: 0 to 15. A number with a fraction counts as 7 above 6, else as 0. Nothing for
/// any other.
std::optional<int> GetColor(std::string_view token);

}  // namespace fabula::interchange
