#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "listings/record.h"
#include "listings/reports.h"
#include "pictures/book_loader.h"
#include "pictures/characters/glyph.h"

namespace fabula::listings {
namespace {

using pictures::Character;
using pictures::CharacterSets;
using pictures::Glyph;

/// Characters stand side by side, each four columns wide and two lines high, with its number below.
constexpr std::size_t kAcross = 16;
constexpr std::size_t kColumnsOfOne = 5;
constexpr int kGlyphColumns = 4;
constexpr int kGlyphLines = 2;

/// The characters of set 0, which come under headings of their own.
struct Group {
    std::string_view heading;
    int first = 0;
    int last = 0;
};
constexpr Group kGroups[] = {
    {"SHADES (0-15)", 0, pictures::kLastShade},
    {"DEFAULT CHARACTER SET (32-127) NOT MODIFIABLE", pictures::kFirstCharacter, pictures::kLastOfFont},
    {"DEFAULT SPECIAL CHARACTERS (128-143) NOT MODIFIABLE", pictures::kFirstBlock,
     pictures::kSolidCharacter},
    {"UDGs (144 to 164)", pictures::kFirstUserGraphic, pictures::kLastCharacter},
};
constexpr std::string_view kPatternsHeading = "QSHADE Characters (1-255)";
constexpr int kLastPattern = 255;

/// A character and the number that stands below it.
struct Numbered {
    int number = 0;
    Glyph glyph{};
};

std::shared_ptr<const pictures::Image> ImageOf(const Glyph& glyph) {
    using pictures::kGlyphSide;
    auto image =
        std::make_shared<pictures::Image>(kGlyphSide, kGlyphSide, pictures::MakeColour(255, 255, 255));
    for (int row = 0; row < kGlyphSide; ++row) {
        for (int column = 0; column < kGlyphSide; ++column) {
            if (pictures::HasBit(glyph, column, row))
                image->At(column, row) = pictures::MakeColour(0, 0, 0);
        }
    }
    return image;
}

std::string CaptionOf(int number) {
    return "Character " + std::to_string(number);
}

void AddLine(const Listing& listing, const std::string& text) {
    Record record;
    record.Row("%a", {text});
    listing.frame.Add(record.Take());
}

/// Adds characters in rows, an empty line behind them. The heading stays with the first row.
void AddGroup(const Listing& listing, const std::string& heading, const std::vector<Numbered>& characters) {
    if (characters.empty()) return;
    Record record;
    record.Row("%a", {heading});
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const std::size_t column = i % kAcross;
        if (column == 0) {
            if (i > 0) listing.frame.Add(record.Take());
            record.Row("", {});
        }
        const Numbered& each = characters[i];
        record.AddPicture({.column = column * kColumnsOfOne,
                           .columns = kGlyphColumns,
                           .lines = kGlyphLines,
                           .image = ImageOf(each.glyph),
                           .description = CaptionOf(each.number),
                           .caption = std::to_string(each.number)});
    }
    record.Row("", {});
    listing.frame.Add(record.Take());
}

std::vector<Numbered> Range(const CharacterSets& sets, int set, int first, int last) {
    std::vector<Numbered> found;
    for (int number = first; number <= last; ++number) {
        if (const Character* const character = sets.Find(set, number))
            found.push_back({number, character->glyph});
    }
    return found;
}

std::vector<Numbered> Patterns() {
    std::vector<Numbered> patterns;
    for (int shade = 1; shade <= kLastPattern; ++shade)
        patterns.push_back({shade, pictures::MarloShadePattern(shade)});
    return patterns;
}

void WriteDefaultSet(const Listing& listing, const CharacterSets& sets) {
    for (const Group& group : kGroups)
        AddGroup(listing, std::string(group.heading), Range(sets, 0, group.first, group.last));
    AddGroup(listing, std::string(kPatternsHeading), Patterns());
}

std::string NameOf(const CharacterSets& sets, int set) {
    const std::vector<const Character*> characters = sets.OfSet(set);
    return characters.empty() ? "" : characters.front()->setName;
}

/// What a character is in the fonts of the system, in two columns; blanks where it is none.
std::string InLetters(int number) {
    constexpr int kLastLetter = 126;
    const bool shows = number > pictures::kFirstCharacter && number <= kLastLetter;
    return {shows ? static_cast<char>(number) : ' ', ' '};
}

}  // namespace

void WriteCharacterSets(const Listing& listing, const ReportRequest&) {
    const CharacterSets sets = pictures::LoadCharacterSets(listing.adventure);
    listing.frame.Begin("Listing of Character Sets", {});
    for (const int set : sets.Sets()) {
        const text::Value number{std::int64_t{set}};
        Record name;
        name.Row(set == 0 ? "SET !%z4!, Name: !%a" : "SET !%z4! (32-127), Name: !%a",
                 {number, NameOf(sets, set)});
        if (set == 0) {
            listing.frame.Add(name.Take());
            AddLine(listing, "");
            WriteDefaultSet(listing, sets);
        } else {
            const std::vector<Line> heading = name.Take();
            AddGroup(listing, heading.front().text,
                     Range(sets, set, pictures::kFirstCharacter, pictures::kLastCharacter));
        }
    }
}

void WriteCharacterSetsInFull(const Listing& listing, const ReportRequest&) {
    const CharacterSets sets = pictures::LoadCharacterSets(listing.adventure);
    listing.frame.Begin(
        "Full Listing of Character Sets",
        {Heading("Char!%t27!Char"), Heading(" Set Char Set Name!%t28!Num Char Character Values"),
         Heading("---- !%c20-! ---- ---- !%c32-")});
    constexpr std::size_t kGlyphColumn = 33;
    for (const int set : sets.Sets()) {
        for (const Character* const character : sets.OfSet(set)) {
            Record record;
            record.Row(" !%s3! !%a20!  !%s3!   !%a! !%a",
                       {std::int64_t{set}, character->setName, std::int64_t{character->number},
                        InLetters(character->number), pictures::FormatCharVals(character->glyph)});
            record.AddPicture({.column = kGlyphColumn,
                               .columns = 2,
                               .lines = 1,
                               .image = ImageOf(character->glyph),
                               .description = CaptionOf(character->number)});
            listing.frame.Add(record.Take());
        }
    }
}

}  // namespace fabula::listings
