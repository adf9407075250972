#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/game_window.h"
#include "engine/output/text_settings.h"
#include "store/adventure.h"
#include "text/tag_catalogue.h"

namespace fabula::authoring {

/// A text as a game shows it.
struct ShownRun {
    std::string text;  ///< without markup and line ends
    engine::TextStyle style;
    std::string fontName;  ///< "" when the codes have no font of the style's number
};
using ShownLine = std::vector<ShownRun>;  ///< one without runs is an empty line

/// A text as the game will show it.
struct ShownText {
    std::vector<ShownLine> lines;  ///< at least one
    bool complete = true;          ///< false when the text was longer than kLongestPreview
};

/// Of a text as it is shown: words are what stands between blanks and line ends, letters all characters of
/// the words.
struct TextCounts {
    int words = 0;
    int letters = 0;
    bool complete = true;  ///< false when the text is longer than kLongestPreview, and so not all counted

    friend bool operator==(const TextCounts&, const TextCounts&) = default;
};

/// "12 words, 64 letters"; "1 word, 1 letter"; "more than 7562 words, 25206 letters".
std::string CountsLine(const TextCounts& counts);

/// What the editors of texts know of an adventure, as of their opening: its tags, and the look of its game.
/// Texts are given with their line ends in any form.
class TextEditing {
  public:
    explicit TextEditing(store::Adventure& adventure);

    const text::TagCatalogue& Tags() const { return tags_; }

    /// The look of the game before any tag changes it, in which editors show the text too. The font's name
    /// is "" where the game writes through character sets, or the codes don't know the font.
    std::string FontName() const { return NameOfFont(settings_.font); }
    int FontPoints() const;  ///< as it is shown (text::ShownPoints)
    int Paper() const { return settings_.backColour; }
    int Ink() const { return settings_.textColour; }

    /// The width of a preview in columns: the game's, but at most kWidestPreview. 0 where there is none,
    /// since the game writes through character sets.
    int PreviewColumns() const;

    /// The text as the game prints it in a window of `PreviewColumns`, or of fewer where there is no room
    /// for them.
    ShownText Show(std::string_view text, int most = kWidestPreview) const;

    TextCounts Count(std::string_view text) const;

    static constexpr int kWidestPreview = 80;
    /// The characters of a text that are shown and counted.
    static constexpr std::size_t kLongestPreview = 32'768;

  private:
    std::string NameOfFont(int font) const;
    ShownText Print(std::string_view text, int width) const;

    text::TagCatalogue tags_;
    engine::TextSettings settings_;
};

}  // namespace fabula::authoring
