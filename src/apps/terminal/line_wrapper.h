#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/attributes.h"
#include "terminal/output.h"

namespace fabula::terminal {

/// Breaks the text of a game into lines of the width of a terminal, and gives each line to the output when
/// it is complete. A line breaks behind a blank, and blanks at a break are left away; a word that is wider
/// than a line is cut. A no-break space is shown as a blank and keeps its neighbours together. Widths are
/// columns: a character takes 0 to 2.
///
/// Texts must be safe (text/encoding/safe_text.h) and hold no line ends.
class LineWrapper {
  public:
    /// Without `attributes` every character looks the same, and no sequence is written.
    LineWrapper(Output& output, bool attributes) : output_(output), attributes_(attributes) {}

    /// The columns of a line from here on; 0 for lines that are never broken, whose text goes straight on.
    void SetWidth(int width) { width_ = width; }

    void Write(std::string_view text, const Attributes& look);
    void EndLine();

    /// Gives what the unfinished line holds to the output. It can then not be broken there any more.
    void Show();
    /// The unfinished line for someone who writes it himself, from the start of the line; here it is then
    /// empty. Each sequence stands between two `mark` characters, and none stands behind the last
    /// character.
    std::string TakeLine(char mark);
    /// Someone else ended the line, or cleared the screen.
    void Forget();

    bool AtLineStart() const { return line_.empty() && !passing_; }
    /// Whether the output has a part of the unfinished line.
    bool PartlyShown() const { return shown_ > 0; }

  private:
    struct Glyph {
        char32_t point;
        int width;
        Attributes look;
    };

    void Pass(std::string_view text);
    void Add(const Glyph& glyph);
    bool Fits(const Glyph& glyph) const;
    void Break();
    void Emit();
    void SwitchTo(const Attributes& look);

    Output& output_;
    bool attributes_;
    int width_ = 0;
    bool passing_ = false;  ///< a line without a width has begun
    std::vector<Glyph> line_;
    std::size_t shown_ = 0;  ///< how many of `line_` the output has
    int column_ = 0;         ///< the width of `line_`
    Attributes switched_;    ///< the look that the terminal is switched to
    std::string text_;
};

}  // namespace fabula::terminal
