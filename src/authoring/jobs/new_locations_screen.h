#pragma once

#include <string>
#include <vector>

#include "authoring/document/document.h"
#include "interchange/picture_import.h"
#include "platform/dialogs.h"

namespace fabula::authoring {

/// Where pictures of a listing are to go for good, asked for when one of them draws others by GOSUB.
class NewLocationsScreen {
  public:
    static constexpr std::string_view kTitle = "New Locations of the Pictures";

    /// A number of the listing, and what was typed for it.
    struct Line {
        int number = 0;
        bool loaded = false;  ///< else only a GOSUB names it
        std::string goesTo;
    };

    /// Right after the load, whose step of Undo the move becomes a part of. A picture that was loaded
    /// proposes the record that it is in.
    NewLocationsScreen(Document& document, interchange::LoadedPictures loaded, platform::Person& person);

    std::vector<Line> lines;

    /// Moves the pictures and makes their GOSUBs follow; the window closes then. False, after a box, when a
    /// place can't be used: nothing has moved.
    bool Update();

  private:
    Document& document_;
    interchange::LoadedPictures loaded_;
    platform::Person& person_;
};

}  // namespace fabula::authoring
