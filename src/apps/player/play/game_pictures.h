#pragma once

#include <QImage>
#include <functional>
#include <set>
#include <string>

#include "engine/game_window.h"

namespace fabula::store {
class Adventure;
}

namespace fabula::player {

/// Finds the pictures of one adventure: in files below its folder, or in the adventure file when the author
/// keeps them there (`graphicsindb`).
class GamePictures {
  public:
    using Tell = std::function<void(const std::string& sentence)>;

    /// `tell` is called once for each picture that can't be shown.
    GamePictures(store::Adventure& adventure, Tell tell);

    /// The image, or a null one when there is none or it is broken.
    QImage Load(const engine::Picture& picture);

  private:
    QImage FromFile(const std::string& path);
    QImage FromStore(engine::PlaceNumber location);
    void Fail(const std::string& path, const std::string& sentence);

    store::Adventure& adventure_;
    Tell tell_;
    bool kept_ = false;  ///< pictures are kept in the adventure file
    std::set<std::string> told_;
};

}  // namespace fabula::player
