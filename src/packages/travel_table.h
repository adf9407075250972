#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "interchange/shared/job_status.h"

namespace fabula::packages {

/// One row of a classic travel table: where a room leads by some verbs.
struct TravelRow {
    int room = 0;
    int condition = 0;    ///< M: the row's value divided by 1000
    int destination = 0;  ///< N: the remainder
    std::vector<int> verbs;
};

/// An object of such a game.
struct TravelObject {
    int number = 0;
    std::string name;
    std::vector<std::string> messages;  ///< behind the marks 000, 100, ... 500
};

/// What Fabula takes of the data file of a classic cave game.
struct TravelTable {
    std::vector<TravelRow> rows;       ///< in the order of the file
    std::map<int, std::string> words;  ///< the first word of each number
    std::vector<TravelObject> objects;
};

/// Reads a data file: sections that begin with a line of their number and end with a line "-1", up to a
/// section 0. Of these 3 holds the travel rows, 4 the words and 5 the objects. Numbers are parted by blanks
/// or tabs; a text begins behind the first of them, and what stands behind a word is a comment. Lines that
/// are not as they must be are told as faults.
///
/// Throws fabula::Error when the file can't be read or has more than kMostTravelRows rows.
TravelTable ReadTravelTable(const std::filesystem::path& file, interchange::JobStatus& status);

inline constexpr int kHighestRoom = 1000;
inline constexpr std::size_t kMostTravelRows = 20'000;

/// What the report says of M and of N: " if carrying object 3", " To Location 7".
std::string ConditionText(int condition);
std::string DestinationText(int destination);

}  // namespace fabula::packages
