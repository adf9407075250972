#pragma once

#include <map>
#include <set>

#include "interchange/listing/listing_job.h"
#include "interchange/listing/picture_listing.h"

namespace fabula::interchange {

/// The section of the pictures of a listing. Commands that can't be understood are reported and left out.
/// Of two pictures of one number the later counts, and of those of the listing each whose location exists.
class ListedPictures : public ListingSection {
  public:
    /// `loaded` is told when all is stored. With `turnsOn` a listing that has pictures turns them on in the
    /// settings; where it is not given, the settings follow what stands elsewhere in the listing.
    ListedPictures(ListingJob& job, const char* loaded, bool turnsOn = false);

    void Line(std::string_view line) final;
    void Finish() final;

  private:
    /// False, with the reason in the status, for a head without ink or paper: no further line counts.
    bool TakeLine(std::string_view line);
    void EndPicture();
    void Store();

    ListingJob& job_;
    const char* loaded_;
    bool turnsOn_;
    bool goesOn_ = true;
    pictures::CommandCatalogue commands_;
    std::map<int, ListedPicture> read_;
    std::optional<ListedPicture> picture_;  ///< the one that is being read
};

}  // namespace fabula::interchange
