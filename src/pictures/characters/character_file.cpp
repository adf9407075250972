#include "pictures/characters/character_file.h"

#include <cstdint>
#include <optional>

#include "pictures/drawstring.h"
#include "platform/error.h"
#include "store/character_key.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/line_ends.h"
#include "text/numbers.h"

namespace fabula::pictures {
namespace {

constexpr std::string_view kFirstLine = "CHARSETS";
constexpr std::string_view kDelimiterKey = "Delim";
constexpr std::string_view kDelimiter = "|";
constexpr std::string_view kSetLine = "SET";
constexpr std::string_view kEndOfSet = "ENDSET";
constexpr std::int64_t kHighestCharacter = store::kCharactersOfASet - 1;

/// Walks the lines of a file and tells faults with the line's number.
class Lines {
  public:
    Lines(std::string_view text, std::string_view fileName)
        : text_(text::NormalizeLineEnds(text, "\n")),
          lines_(text::Split(text_, "\n")),
          fileName_(fileName) {
        if (lines_.back().empty()) lines_.pop_back();
    }
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;

    bool AtEnd() const { return next_ >= lines_.size(); }

    std::string_view Next() {
        if (AtEnd()) throw Error(std::string(fileName_) + " ends too early.");
        return lines_[next_++];
    }

    /// About the line that came last.
    [[noreturn]] void Fail(const std::string& why) const {
        throw Error(std::string(fileName_) + ", line " + std::to_string(next_) + ": " + why);
    }

  private:
    std::string text_;
    std::vector<std::string_view> lines_;
    std::string_view fileName_;
    std::size_t next_ = 0;
};

std::string_view ReadDelimiter(Lines& lines) {
    const std::string_view line = lines.Next();
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || equals + 1 == line.size()) {
        lines.Fail("expected the delimiter, as in \"Delim=|\".");
    }
    return line.substr(equals + 1);
}

Character ReadCharacter(std::string_view line, std::string_view delimiter, const Lines& lines) {
    const std::vector<std::string_view> pieces = text::Split(line, delimiter);
    Character character;
    if (pieces.size() != character.glyph.size() + 1) lines.Fail("expected a character and its eight rows.");
    const std::optional<std::int64_t> number = text::WholeNumber(pieces.front());
    if (!number || *number < 0 || *number > kHighestCharacter)
        lines.Fail("expected the number of a character.");
    character.number = static_cast<int>(*number);
    for (std::size_t row = 0; row < character.glyph.size(); ++row) {
        const std::optional<std::int64_t> value = text::WholeNumber(pieces[row + 1]);
        if (!value || *value < 0 || *value > 255) lines.Fail("expected numbers from 0 to 255.");
        character.glyph[row] = static_cast<std::uint8_t>(*value);
    }
    return character;
}

CharacterFileSet ReadSet(std::string_view setLine, std::string_view delimiter, Lines& lines) {
    CharacterFileSet set;
    set.line = setLine;
    set.name = lines.Next();
    if (text::Length(set.name) > kLongestSetName)
        lines.Fail("the name of a set has at most " + std::to_string(kLongestSetName) + " characters.");
    for (std::string_view line = lines.Next(); line != kEndOfSet; line = lines.Next()) {
        set.characters.push_back(ReadCharacter(line, delimiter, lines));
    }
    return set;
}

}  // namespace

CharacterFile ReadCharacterFile(std::string_view text, std::string_view fileName) {
    Lines lines(text, fileName);
    CharacterFile file;
    if (lines.AtEnd() || lines.Next() != kFirstLine) {
        file.isCharacterFile = false;
        return file;
    }
    const std::string_view delimiter = ReadDelimiter(lines);
    while (!lines.AtEnd()) {
        const std::string_view line = lines.Next();
        if (line.empty()) continue;
        if (!line.starts_with(kSetLine)) lines.Fail("expected a set, as in \"SET0003\".");
        file.sets.push_back(ReadSet(line, delimiter, lines));
    }
    return file;
}

std::string NoSetMessage(std::string_view set) {
    return "There is no character set " + std::string(set) + ".";
}

std::string WriteCharacterFile(const CharacterSets& sets, const std::vector<int>& numbers) {
    std::string text;
    const auto add = [&text](std::string_view line) { text.append(line).append(text::kLineEnd); };
    add(kFirstLine);
    add(std::string(kDelimiterKey).append("=").append(kDelimiter));
    for (const int number : numbers) {
        if (!sets.HasSet(number)) throw Error(NoSetMessage(std::to_string(number)));
        add(text::FormatText("SET!%z4", {std::int64_t{number}}));
        bool named = false;
        for (const Character* character : sets.OfSet(number)) {
            if (!IsEditableCharacter(character->set, character->number)) continue;
            if (!named) add(character->setName);
            named = true;
            std::string line = std::to_string(character->number);
            for (const std::uint8_t row : character->glyph) {
                line.append(kDelimiter).append(std::to_string(row));
            }
            add(line);
        }
        if (!named) add("");
        add(kEndOfSet);
    }
    return text;
}

}  // namespace fabula::pictures
