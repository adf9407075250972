#pragma once

#include <QByteArray>
#include <filesystem>

#include "platform/recent_files.h"
#include "player/panes/game_screen.h"
#include "player/play/preferred_sound.h"
#include "qt/look/theme.h"

class QSettings;

namespace fabula::player {

/// What the text of games is coloured by. ByTheme: the game's own colours with the theme of the system,
/// else those of the theme.
enum class Colours { ByTheme, OfTheGame, Light, Dark };

/// What the player's window remembers from one start to the next: section "Startup", and "PlayedFiles"
/// for the recent games.
struct PlayerSettings {
    QByteArray geometry;  ///< of the window; empty for the default
    qt::Theme theme = qt::Theme::System;
    int zoom = 100;
    int characterZoom = 0;
    bool flashing = true;
    bool plainText = false;
    TextChoice text{};
    Colours colours = Colours::ByTheme;
    SoundChoice sound{};
    platform::RecentFiles recent;

    static constexpr int kLeastPoints = 6;
    static constexpr int kMostPoints = 72;
    static constexpr int kLeastColumns = 20;
    static constexpr int kMostColumns = 200;
    static constexpr int kLeastLines = 100;
    static constexpr int kMostLines = 100'000;

    ScreenLook Look() const;

    /// Values out of their range count as not set.
    static PlayerSettings Load(const QSettings& store);
    /// Writes what differs from `kept`, which is what was read or written the last time, and makes it the
    /// same: what another window has written since stays. The games that are recent there become so here.
    void KeepChanges(QSettings& store, PlayerSettings& kept);
};

/// The next larger (`direction` 1) or smaller (-1) size of text; at the ends the same.
int NextZoom(int percent, int direction);
inline constexpr int kSmallestZoom = 50;
inline constexpr int kLargestZoom = 400;
inline constexpr int kMostCharacterZoom = 8;

}  // namespace fabula::player
