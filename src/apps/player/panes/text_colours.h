#pragma once

#include <optional>

#include "engine/game_window.h"
#include "text/colours.h"

namespace fabula::player {

/// What the text pane is coloured by: the game's own colours as they are, or a light or dark page of the
/// player's choice.
enum class Page { OfTheGame, Light, Dark };

/// The colours of the text pane. On a page of the player's choice the game's ordinary text and paper become
/// those of the page; every other colour keeps its hue and is moved towards black or white until it can be
/// read.
class TextColours {
  public:
    TextColours() = default;
    /// `paper` and `ink` are the game's own, numbers 0 to 15.
    TextColours(int paper, int ink, Page page) : paper_(paper), ink_(ink), page_(page) {}

    text::Rgb Base() const;
    text::Rgb Text() const;

    struct Run {
        text::Rgb ink;
        std::optional<text::Rgb> paper;  ///< nullopt: the base shows through
    };
    Run Of(const engine::TextStyle& style) const;

    friend bool operator==(const TextColours&, const TextColours&) = default;

  private:
    int paper_ = 15;
    int ink_ = 0;
    Page page_ = Page::OfTheGame;
};

/// How far two colours stand apart in brightness, from 1 to 21, as the guidelines for accessible pages
/// measure it.
double Contrast(text::Rgb a, text::Rgb b);

/// The least contrast of a text on a page of the player's choice.
inline constexpr double kReadable = 4.5;

}  // namespace fabula::player
