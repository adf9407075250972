#include "pictures/characters/bdf_font.h"

#include <optional>
#include <string>
#include <vector>

#include "pictures/drawstring.h"
#include "platform/error.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/numbers.h"

namespace fabula::pictures {
namespace {

constexpr int kHighestEncoding = kLargestNumber;
/// Sizes and places beyond this are nonsense.
constexpr int kFarthest = 64;

constexpr const char* kNoNumber = "a number is missing or is none.";

/// A rectangle of pixels in the font's own coordinates: y goes up, from the base line.
struct Box {
    int width = 0;
    int height = 0;
    int left = 0;
    int bottom = 0;
};

class Reader {
  public:
    Reader(std::string_view text, std::string_view fileName)
        : text_(text::NormalizeLineEnds(text, "\n")),
          lines_(text::Split(text_, "\n")),
          fileName_(fileName) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    std::map<int, Glyph> Read() {
        if (Word(Next()) != "STARTFONT") Fail("this is no font in the Bitmap Distribution Format.");
        for (std::string_view line = Next(); Word(line) != "ENDFONT"; line = Next()) {
            if (Word(line) == "FONTBOUNDINGBOX") ReadCell(line);
            if (Word(line) == "STARTCHAR") ReadCharacter();
        }
        return std::move(characters_);
    }

  private:
    /// The next line without blanks at its end.
    std::string_view Next() {
        if (next_ >= lines_.size()) throw Error(std::string(fileName_) + " ends too early.");
        std::string_view line = lines_[next_++];
        while (!line.empty() && (line.back() == ' ' || line.back() == '\t'))
            line.remove_suffix(1);
        return line;
    }

    static std::string_view Word(std::string_view line) { return line.substr(0, line.find(' ')); }

    [[noreturn]] void Fail(const std::string& why) const {
        throw Error(std::string(fileName_) + ", line " + std::to_string(next_) + ": " + why);
    }

    int Number(std::string_view line, std::size_t place, int lowest, int highest) const {
        const std::vector<std::string> words = DrawstringWords(line);
        const auto value = place < words.size() ? ParameterValue(words[place]) : std::nullopt;
        if (!value || *value < lowest || *value > highest) Fail(kNoNumber);
        return *value;
    }

    Box ReadBox(std::string_view line) const {
        return {Number(line, 1, 0, kFarthest), Number(line, 2, 0, kFarthest),
                Number(line, 3, -kFarthest, kFarthest), Number(line, 4, -kFarthest, kFarthest)};
    }

    void ReadCell(std::string_view line) {
        cell_ = ReadBox(line);
        if (cell_->width == kGlyphSide && cell_->height == kGlyphSide) return;
        Fail("the font is " + std::to_string(cell_->width) + " by " + std::to_string(cell_->height) +
             " pixels; a character set takes one of 8 by 8.");
    }

    void ReadCharacter() {
        if (!cell_) Fail("the font does not tell its size.");
        int number = -1;
        Box box = *cell_;
        for (std::string_view line = Next(); Word(line) != "ENDCHAR"; line = Next()) {
            if (Word(line) == "ENCODING") number = EncodingOf(line);
            if (Word(line) == "BBX") box = ReadBox(line);
            if (Word(line) != "BITMAP") continue;
            const Glyph glyph = ReadBitmap(box);
            if (number >= 0) characters_.try_emplace(number, glyph);
        }
    }

    int EncodingOf(std::string_view line) const {
        const std::vector<std::string> words = DrawstringWords(line);
        const auto value = words.size() > 1 ? ParameterValue(words[1]) : std::nullopt;
        if (!value || *value < -1 || *value > kHighestEncoding) Fail(kNoNumber);
        return *value;
    }

    Glyph ReadBitmap(const Box& box) {
        const int left = box.left - cell_->left;
        const int top = cell_->bottom + cell_->height - box.bottom - box.height;
        if (left < 0 || top < 0 || left + box.width > kGlyphSide || top + box.height > kGlyphSide)
            Fail("a character stands out of its cell of 8 by 8.");
        Glyph glyph{};
        for (int row = 0; row < box.height; ++row) {
            const unsigned bits = RowBits(Next()) & (0xFF00U >> box.width);
            glyph[static_cast<std::size_t>(top + row)] = static_cast<std::uint8_t>(bits >> left);
        }
        return glyph;
    }

    /// Two hexadecimal digits; a row of at most eight pixels has no more.
    unsigned RowBits(std::string_view line) const {
        const auto bits = text::HexNumber(line);
        if (line.size() != 2 || !bits) Fail("expected a row of eight pixels as two hexadecimal digits.");
        return *bits;
    }

    std::string text_;
    std::vector<std::string_view> lines_;
    std::string_view fileName_;
    std::size_t next_ = 0;
    std::optional<Box> cell_;
    std::map<int, Glyph> characters_;
};

}  // namespace

std::map<int, Glyph> ReadBdfFont(std::string_view text, std::string_view fileName) {
    return Reader(text, fileName).Read();
}

}  // namespace fabula::pictures
