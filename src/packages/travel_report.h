#pragma once

#include <filesystem>

#include "authoring/document/document.h"
#include "interchange/shared/job_status.h"

namespace fabula::packages {

/// The data file of a classic game and the report on it, in the current folder.
inline constexpr const char* kTravelData = "advent-comm.dat";
inline constexpr const char* kTravelReport = "Advent.lis";

/// What the conversion of a travel table came to: whether it was done, and what the table held.
struct TravelResult {
    bool done = false;
    int rooms = 0;
    int rows = 0;
    int objects = 0;
    int wordsAdded = 0;
};

/// Converts a classic travel table: writes the report, adds the verbs of the travel rows that the
/// vocabulary has neither as a verb nor as a noun, and brings the exits of the adventure's locations into
/// their usual form. What changes in the adventure is one change and one step of Undo.
///
/// With a fault in the data, which was told, nothing is written and nothing changes. Throws fabula::Error
/// when a file can't be read or written; nothing has changed then either.
TravelResult Analyze_advent(authoring::Document& document, const std::filesystem::path& data,
                            const std::filesystem::path& report, interchange::JobStatus& status);

}  // namespace fabula::packages
