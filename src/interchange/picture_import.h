#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "interchange/file_kinds.h"
#include "interchange/shared/job_status.h"
#include "platform/person.h"
#include "store/adventure.h"

namespace fabula::interchange {

// Single pictures out of the listings of older games, into the records of an adventure.

/// The records of a list such as "3,7-9", in its order, each once; or what is wrong with it.
struct RecordList {
    std::vector<int> numbers;
    std::string fault;
};
RecordList ParseRecordList(std::string_view list);

/// A picture that was loaded: its number in the listing, and the record that it is in now.
struct LoadedPicture {
    int source = 0;
    int record = 0;
};

/// What came out of a listing.
struct LoadedPictures {
    std::vector<LoadedPicture> pictures;
    /// The numbers that their GOSUBs name, as in the listing: these pictures are not loaded with them.
    std::set<int> subroutines;
};

/// Which pictures are taken out of a listing, and where they go.
struct PictureImport {
    const FileKind& kind;  ///< one that can load pictures
    std::filesystem::path listing;
    std::string records;  ///< a record list
    int target = 0;       ///< the record of the first; the others go into the records behind it
};

/// Loads pictures into `adventure`, over what was in their records, as one step. What happens is told in
/// the status; a list or listing that can't be taken is refused with its own message, and nothing is
/// changed. Throws fabula::Error when the listing can't be read.
LoadedPictures LoadGraphics(const PictureImport& import, store::Adventure& adventure,
                            platform::Person& person, JobStatus& status);

/// Where pictures of a listing are to go: by their number in the listing, what was typed for it.
using NewLocations = std::map<int, std::string>;

/// The numbers that need a place: those of the pictures, and those that their GOSUBs name.
std::set<int> NumbersToPlace(const LoadedPictures& loaded);

/// What is wrong with the places; "" when nothing is.
std::string CheckNewLocations(const LoadedPictures& loaded, const NewLocations& places,
                              store::Adventure& adventure);

/// Moves the loaded pictures to their places, which must have passed the check, and makes their GOSUBs
/// follow, as one step.
void MoveToNewLocations(const LoadedPictures& loaded, const NewLocations& places,
                        store::Adventure& adventure);

}  // namespace fabula::interchange
