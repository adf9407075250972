#pragma once

#include <functional>
#include <string>

class QKeyEvent;

namespace fabula::player {

/// What a key means in a pane that the player types into.
enum class PaneKey {
    Text,  ///< the characters that it brings
    Enter,
    Backspace,
    EraseLine,  ///< Escape
    Older,      ///< Up: the line before in the history
    Newer,      ///< Down
    Copy,
    Paste,
    SelectAll,
    Move,   ///< caret and scrolling
    Other,  ///< not for the pane
};

PaneKey MeaningOf(const QKeyEvent& event);

/// Where a pane sends what the player does in it.
struct PaneHandlers {
    std::function<void(const std::string& text)> type;
    std::function<void(PaneKey key)> press;  ///< Enter, Backspace, EraseLine, Older and Newer
};

}  // namespace fabula::player
