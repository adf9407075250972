#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/game_window.h"
#include "pictures/canvas.h"
#include "pictures/characters/character_sets.h"
#include "player/panes/kept_lines.h"

namespace fabula::player {

/// What the character pane shows, without the pane: a sheet of 32 columns of 8 by 8 pixels that grows
/// downwards as the game writes. The newest rows are the screen; what went before is kept for looking back.
class CharacterScreen {
  public:
    static constexpr int kColumns = pictures::kCellColumns;
    static constexpr int kCharacterSize = pictures::kGlyphSide;
    static constexpr int kWidth = kColumns * kCharacterSize;

    /// One character as it was drawn. Inverse and over are already in it.
    struct Cell {
        pictures::Glyph glyph{};
        char32_t code = ' ';  ///< what was written last, as a code of the character set
        std::uint8_t ink = 7;
        std::uint8_t paper = 0;
        bool flash = false;

        friend bool operator==(const Cell&, const Cell&) = default;
    };
    using Row = std::array<Cell, kColumns>;

    CharacterScreen() = default;
    explicit CharacterScreen(pictures::CharacterSets sets) : sets_(std::move(sets)) {}

    /// Draws at the cursor, at the end of a row going on in the next. A character that its set lacks is
    /// drawn from the default set, and one that is in neither is a blank.
    void Write(std::string_view run, const engine::TextStyle& style);
    void EndLine();
    /// A fresh screen below everything, in these colours, with the cursor at its head.
    void Clear(int paper, int ink);

    /// Draws the line being typed and the cursor behind it in place of the last call's, in the colours of
    /// the text before it.
    void ShowInput(std::string_view typed, std::string_view cursor);
    void EndInput(std::string_view typed);

    /// How many rows are kept, at least; the oldest go, many at once.
    void Keep(std::size_t rows);

    struct Place {
        std::size_t row = 0;
        int column = 0;  ///< kColumns behind the last one

        friend bool operator==(const Place&, const Place&) = default;
    };

    /// Where the next typed character goes; nullopt while nothing is being typed.
    std::optional<Place> Caret() const { return inputShown_ ? std::optional(caret_) : std::nullopt; }

    /// The row of the cursor is full.
    bool RowIsFull() const { return cursor_.column == kColumns; }

    const std::vector<Row>& Rows() const { return rows_; }
    /// The row at which the screen began when it was cleared last.
    std::size_t ScreenTop() const { return top_; }
    /// The colour beside and below the rows.
    int Paper() const { return paper_; }
    /// The colour of the latest text.
    int Ink() const { return style_.ink; }

    /// The rows from `first` on as ordinary text, one line each, without blanks at their ends.
    std::string Text(std::size_t first = 0) const;

  private:
    void Draw(char32_t code);
    void EraseInput();
    Row BlankRow() const;
    void Trim();

    pictures::CharacterSets sets_;
    std::vector<Row> rows_{1};
    std::size_t top_ = 0;
    std::size_t kept_ = kDefaultKeptLines;
    int paper_ = 0;
    Place cursor_;
    engine::TextStyle style_;
    bool inputShown_ = false;
    Place input_;  ///< where the line being typed begins
    Place caret_;
};

}  // namespace fabula::player
