#pragma once

#include <QImage>
#include <string>
#include <vector>

class QWidget;

namespace fabula::store {
class Adventure;
}

namespace fabula::player {

/// What the screen "About this Adventure" shows.
struct AboutAdventure {
    std::string name;
    std::vector<std::string> lines;  ///< version, author
    std::string description;
    std::string contact;
    QImage picture;  ///< null when there is none

    /// Of the open adventure; nullptr when nothing is open.
    static AboutAdventure Of(store::Adventure* adventure);
};

/// Shows it in a box of its own until the person closes it.
void ShowAbout(const AboutAdventure& about, QWidget* parent);

}  // namespace fabula::player
