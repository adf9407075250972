#pragma once

#include <cstdint>
#include <string>

#include "engine/game_window.h"

namespace fabula::terminal {

/// How a character looks in a terminal. Colours are numbered as in text/colours.h, 0 to 15.
struct Attributes {
    static constexpr std::int8_t kOwn = -1;  ///< the colour that the terminal has of its own

    std::int8_t ink = kOwn;
    std::int8_t paper = kOwn;
    bool bold = false;
    bool blinking = false;
    bool inverse = false;

    friend bool operator==(const Attributes&, const Attributes&) = default;
};

/// The look of a run of text. Ink and paper that are the game's own at its start become the terminal's own,
/// so that most of a game is as readable as everything else there. An ink that may be the colour of the
/// terminal's background, black or white, brings the paper that the game gave it.
Attributes AttributesOf(const engine::TextStyle& style, const engine::TextStyle& atStart);

/// Appends the ANSI sequence that switches to a look, whatever was before.
void AppendAnsi(const Attributes& attributes, std::string& text);

}  // namespace fabula::terminal
