#include <map>

#include "interchange/listing/bit_arrays.h"
#include "interchange/listing/listing_lines.h"
#include "interchange/listing/listing_numbers.h"
#include "interchange/unvel/unvel_file.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "text/format.h"

namespace fabula::interchange {
namespace {

using pictures::Command;

/// What stands behind the name of a command: its parameters by the kind of layout. "f" is the pair of over
/// and inverse, "d" a distance with its sign, "n" a plain number, "s" the scale of a subroutine.
struct Layout {
    int number;
    std::string_view name;
    std::string_view kinds;
    const char* format;
};
constexpr Layout kLayouts[] = {
    {pictures::kAbsMove, "ABS MOVE", "nn", "    !%z3!  !%z3"},
    {pictures::kRelMove, "REL MOVE", "dd", "   !%a4! !%a"},
    {pictures::kFill, "FILL", "dd", "   !%a4! !%a"},
    {pictures::kQFill, "QFILL", "dd", "   !%a4! !%a"},
    {pictures::kPlot, "PLOT", "fdd", "%a2! !%a4! !%a4"},
    {pictures::kLine, "LINE", "fdd", "%a2! !%a4! !%a4"},
    {pictures::kRPlot, "RPLOT", "fdd", "%a2! !%a4! !%a4"},
    {pictures::kShade, "SHADE", "fddn", "%a2! !%a4! !%a4!  !%z3"},
    {pictures::kQShade, "QSHADE", "fddn", "%a2! !%a4! !%a4!  !%z3"},
    {pictures::kBShade, "BSHADE", "fddn", "%a2! !%a4! !%a4!  !%z3"},
    {pictures::kText, "TEXT", "fnnnn", "%a2!  !%z3!  !%z3!  !%z3!  !%z3"},
    {pictures::kBlock, "BLOCK", "nnnn", "    !%z3!  !%z3!  !%z3!  !%z3"},
    {pictures::kGoSub, "GOSUB", "sn", " !%a!  !%z3"},
    {pictures::kInk, "INK", "n", "%t5!%z3"},
    {pictures::kPaper, "PAPER", "n", "%t5!%z3"},
    {pictures::kBright, "BRIGHT", "n", "%t5!%z3"},
    {pictures::kFlash, "FLASH", "n", "%t5!%z3"},
    {pictures::kEnd, "END", "", ""},
};
constexpr int kNameWidth = 9;
constexpr int kHighestShown = 999;

const Layout* LayoutOf(int number) {
    for (const Layout& layout : kLayouts) {
        if (layout.number == number) return &layout;
    }
    return nullptr;
}

/// A parameter as its layout writes it; nothing when it does not fit.
std::optional<text::Value> Parameter(std::string_view word, char kind) {
    if (kind == 's') return text::Value(std::string(word));
    const auto number = pictures::ParameterValue(word);
    if (!number || *number < (kind == 'd' ? -kHighestShown : 0) || *number > kHighestShown)
        return std::nullopt;
    if (kind == 'd') return text::Value(ConvRel(*number));
    if (kind == 'f') {
        const auto flags = OIConvert(text::FormatText("%z2", {std::int64_t{*number}}));
        return flags.empty() ? std::nullopt : std::optional(text::Value(std::string(flags)));
    }
    return text::Value(std::int64_t{*number});
}

class PictureWriter {
  public:
    PictureWriter(UnVelFile& file, const pictures::CommandCatalogue& commands)
        : file_(file), commands_(commands) {}

    void Write(std::string_view drawstring) {
        const auto words = pictures::DrawstringWords(drawstring);
        std::size_t next = 0;
        while (next < words.size()) {
            const Command* command = commands_.FindPictureCommand(words[next]);
            const Layout* layout = command == nullptr ? nullptr : LayoutOf(command->number);
            if (layout == nullptr) {
                file_.Loss("the word " + words[next] + " of the drawing is no command.");
                ++next;
                continue;
            }
            WriteCommand(*layout, words, next);
            next += 1 + static_cast<std::size_t>(command->drawnParameters);
        }
        if (words.empty() || words.back() != "END") file_.Line("END");
    }

  private:
    void WriteCommand(const Layout& layout, const std::vector<std::string>& words, std::size_t at) {
        std::vector<text::Value> values;
        for (std::size_t i = 0; i < layout.kinds.size(); ++i) {
            const std::size_t word = at + 1 + i;
            const auto value = word < words.size() ? Parameter(words[word], layout.kinds[i]) : std::nullopt;
            if (!value) {
                file_.Loss("the command " + words[at] + " of the drawing can't be written.");
                return;
            }
            values.push_back(*value);
        }
        if (values.empty()) return file_.Line(layout.name);
        file_.Line(text::FormatText("%a" + std::to_string(kNameWidth), {std::string(layout.name)}) +
                   text::FormatText(layout.format, values));
    }

    UnVelFile& file_;
    const pictures::CommandCatalogue& commands_;
};

constexpr std::size_t kSixInALine = 6;

/// One array: the characters of a set from `first` to `last`, eight mirrored rows to a line.
void WriteArray(UnVelFile& file, const std::string& name, const std::vector<std::vector<int>>& characters) {
    file.Line("static char " + name + "[] = {");
    for (std::size_t c = 0; c < characters.size(); ++c) {
        std::vector<text::Value> six;
        std::vector<text::Value> two;
        for (std::size_t row = 0; row < characters[c].size(); ++row) {
            constexpr char kDigits[] = "0123456789abcdef";
            const auto mirrored = ReverseFont(static_cast<std::uint8_t>(characters[c][row]));
            const std::string hex{kDigits[mirrored >> 4U], kDigits[mirrored & 15U]};
            (row < kSixInALine ? six : two).emplace_back(hex);
        }
        const bool last = c + 1 == characters.size();
        file.Line(text::FormatText(" 0x!%a!, !0x!%a!, !0x!%a!, !0x!%a!, !0x!%a!, !0x!%a!, ", six) +
                  text::FormatText(last ? "0x!%a!, !0x!%a!};" : "0x!%a!, !0x!%a!,", two));
    }
    if (characters.empty()) file.Line("};");
}

/// The characters of a set in a row of numbers; one that is missing is blank.
std::vector<std::vector<int>> Range(const pictures::CharacterSets& sets, int set, int first, int last) {
    std::vector<std::vector<int>> characters;
    for (int number = first; number <= last; ++number) {
        const pictures::Character* character = sets.Find(set, number);
        std::vector<int> rows(8, 0);
        if (character != nullptr) rows.assign(character->glyph.begin(), character->glyph.end());
        characters.push_back(rows);
    }
    return characters;
}

}  // namespace

void WriteUnVelPictures(ExportContext& context, UnVelFile& file) {
    const pictures::PictureBook book = pictures::LoadPictureBook(context.adventure);
    file.UnVelHdr("GRAPHICS DATA", true);
    PictureWriter writer(file, book.commands);
    for (const auto& [number, picture] : book.pictures) {
        file.Record("Pictures " + std::to_string(number));
        if (!book.locations.contains(number)) file.Loss("a picture without a location will not come back.");
        const bool isRoom = picture.kind == pictures::PictureKind::Room;
        file.Line(text::FormatText("Location !%s3! graphics flags: !%a11! Ink=!%n! Paper=!%n! Bit6=0",
                                   {std::int64_t{number}, std::string(isRoom ? "Picture" : "Not Picture"),
                                    std::int64_t{picture.ink}, std::int64_t{picture.paper}}));
        writer.Write(picture.drawstring);
    }
}

void WriteUnVelCharacters(ExportContext& context, UnVelFile& file) {
    const pictures::CharacterSets sets = pictures::LoadCharacterSets(context.adventure);
    file.Record("Characters");
    file.UnVelHdr("Charset 0", true);
    WriteArray(file, "font_bits", Range(sets, 0, pictures::kFirstCharacter, pictures::kLastOfFont));
    file.UnVelHdr("UDG data", true);
    WriteArray(file, "udg_bits",
               Range(sets, 0, pictures::kFirstUserGraphic,
                     pictures::kFirstUserGraphic + kWrittenUserGraphics - 1));
    file.UnVelHdr("Shade data", true);
    WriteArray(file, "shade_bits", Range(sets, 0, 0, pictures::kLastShade));
    for (const int set : sets.Sets()) {
        if (set == 0) continue;
        file.UnVelHdr("CharSet " + std::to_string(set), true);
        WriteArray(file, "font_bits", Range(sets, set, pictures::kFirstCharacter, pictures::kLastOfFont));
    }
}

}  // namespace fabula::interchange
