#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/game_window.h"
#include "engine/output/origin.h"
#include "engine/output/text_settings.h"

namespace fabula::engine {

class CondActRunner;
class Script;

/// The one output of a game: takes texts in the markup and gives the window runs of one look, with line
/// ends where the text or the print width asks for them. Texts go to the script too while it is written.
///
/// A line is split into words at single blanks. A word (or a piece of one, between tags) that does not fit
/// goes to the next line. A line that begins with a single blank loses it there: the blank goes behind the
/// first piece in the text pane and is drawn over in the character pane.
///
/// Tags work by the code that the adventure's catalogue gives them:
///
///     0, 1    paper, ink: "=n" sets the colour, the bare tag the one in force when the text began
///     2       below column 16 blanks up to it, otherwise a line end
///     3 to 8  over, flash, bright; each on and off (18 and 19 are flash too)
///     9, 10   character set or font, font size: as the colours
///     11, 12  inverse on and off
///     13      the character of a number
///     14      blanks in front of the rest of the word, to centre it
///     15      blanks to the next multiple of 8
///     16, 17  a line end
///
/// A tag that the catalogue lacks is left away.
class Printer {
  public:
    Printer(GameWindow& window, const PaneMeasures& measures, const TextSettings& settings, Script& script);

    /// From here on `sink` learns where each run of text comes from; nullptr: no one does. `runner` knows
    /// where the game stands.
    void TellOrigins(OriginSink* sink, const CondActRunner& runner);

    /// Prints a text. With `freshStart` it begins a line of its own in the game's colours. With
    /// `restoreAttributes` bright, font, size and ink are afterwards what they were. `record` is the one
    /// that holds the text.
    void PrintText(std::string_view text, bool freshStart, bool restoreAttributes,
                   TextRole role = TextRole::Game, TextRecord record = {});
    /// NEWLINE: the game's colours, then a line end.
    void NewLine();
    void EndLine(LineEnd kind = LineEnd::Hard);
    /// Hands everything on to the window; before it waits or the screen changes otherwise.
    void Flush();
    /// The window ended the line by itself: the player pressed Enter, or it was cleared.
    void AtLineStart();

    void Clear();
    void Paper(int colour);
    void Ink(int colour);
    void Bright(bool on);
    void Flash(bool on);
    void Inverse(bool on);
    void Over(bool on);
    void CharSet(int font);
    void FontSize(int code);
    /// Ink and paper as the settings have them.
    void ResetColours();
    const TextStyle& Style() const { return style_; }

    /// Text may again be printed up to the limit. Called whenever the player had a turn.
    void ResetBudget() { spent_ = 0; }
    /// Bytes printed since then.
    std::int64_t Spent() const { return spent_; }

    /// A text without its tags, entities shown as characters, line-end markers as blanks.
    std::string WithoutMarkup(std::string_view text) const;

  private:
    void PrintLine(std::string_view line);
    void PrintWord(std::string_view word);
    void RunTag(std::string_view tag, std::string_view rest);
    void RunValueTag(int code, std::string_view value);
    void SendPiece(std::string_view piece);
    void Send(std::string_view text, int length);
    void SendBlanks(int count);
    void SendCharacter(int number);
    void Centre(std::string_view word);
    void Append(std::string_view text);
    void ReleaseBlank();
    bool CharacterPane() const { return settings_.characterSets; }
    /// The column in characters, whatever the column counts.
    int TextColumn() const { return column_ / advance_; }

    GameWindow& window_;
    const PaneMeasures& measures_;
    const TextSettings& settings_;
    Script& script_;
    OriginSink* origins_ = nullptr;
    const CondActRunner* runner_ = nullptr;
    TextStyle style_;
    int sizeCode_;
    TextStyle noted_;  ///< as the text in print began
    int notedSizeCode_ = 0;
    TextRole role_ = TextRole::Game;
    TextRecord record_;  ///< of the text in print

    int column_ = 0;  ///< columns in the text pane, pixels in the character pane
    int width_ = 0;
    int advance_ = 1;         ///< what one character adds to the column
    bool blankHeld_ = false;  ///< the line's first piece was a single blank; it counts but is not sent yet
    std::string run_;         ///< sent, not yet given to the window
    std::string decoded_;
    std::int64_t spent_ = 0;  ///< bytes since the last ResetBudget
};

/// How many bytes of text a game may print before the player must have had a turn.
inline constexpr std::int64_t kPrintLimit = 16 * 1024 * 1024;

}  // namespace fabula::engine
