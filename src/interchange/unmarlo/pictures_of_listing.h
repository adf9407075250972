#pragma once

#include <map>
#include <set>

#include "interchange/unmarlo/listing_job.h"
#include "interchange/unmarlo/picture_listing.h"

namespace fabula::interchange {

/// The section of the pictures of a listing, line by line. Commands that can't be understood are reported
/// and left out. Of two pictures of one number the later counts.
class ListedPictures {
  public:
    explicit ListedPictures(ListingJob& job);

    /// False, with the reason in the status, for a head without ink or paper: no further line counts.
    bool TakeLine(std::string_view line);
    /// Stores what was read, each picture whose location exists.
    void Finish();

    /// How many pictures were read.
    std::size_t Count() const { return read_.size(); }

  private:
    void EndPicture();

    ListingJob& job_;
    pictures::CommandCatalogue commands_;
    std::map<int, ListedPicture> read_;
    std::optional<ListedPicture> picture_;  ///< the one that is being read
};

}  // namespace fabula::interchange
