#include "pictures/characters/character_store.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>

#include "pictures/book_loader.h"
#include "pictures/characters/character_file.h"
#include "pictures/characters/character_sets.h"
#include "pictures/drawstring.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/adventure.h"
#include "store/file/file_copy.h"
#include "text/encoding/windows1252.h"
#include "text/str_edit.h"

namespace fabula::pictures {
namespace {

constexpr std::string_view kErrorTitle = "Error";

std::string ReadText(const std::filesystem::path& file) {
    return text::FromWindows1252(platform::ReadWholeFile(file, kLargestCharacterFile,
                                                         "read the character sets of " + file.string()));
}

void WriteText(const std::filesystem::path& file, const std::string& text) {
    const text::Windows1252 converted = text::ToWindows1252(text);
    if (converted.unwritable) {
        throw Error("Could not write " + file.string() +
                    ": the name of a character set has a letter that such a file can't hold.");
    }
    store::WriteFile(file, converted.bytes);
}

/// The sets of a file; of one of another kind none, which the person is told.
CharacterFile ReadSets(const std::filesystem::path& file, platform::Person& person) {
    CharacterFile content = ReadCharacterFile(ReadText(file), file.string());
    if (!content.isCharacterFile) person.Tell(file.string() + " is not a Character Set File", kErrorTitle);
    return content;
}

/// The part of a list's line in front of the first "-".
std::string_view Key(std::string_view line) {
    return text::TrimBlanks(line.substr(0, line.find('-')));
}

std::string ListLine(std::string_view key, std::string_view name) {
    return std::string(key).append(" - ").append(name);
}

/// Writes the characters over those of the target, all of them or none.
void StoreSet(store::Adventure& adventure, const CharacterFileSet& set, int target,
              const std::filesystem::path& file) {
    store::Transaction transaction(adventure);
    for (const Character& character : set.characters) {
        store::Cursor& cursor = adventure.OpenTable(
            store::TableNum::Characters, "def",
            "charsetnum=" + std::to_string(target) + " and charnum=" + std::to_string(character.number));
        if (cursor.Eof()) {
            throw Error("Character set " + std::to_string(target) + " has no character " +
                        std::to_string(character.number) + ", which " + file.string() + " holds.");
        }
        cursor.SetField("charvals", FormatCharVals(character.glyph));
        cursor.SetField("charsetname", set.name);
        cursor.Update();
    }
    transaction.Commit();
}

/// The font and the block graphics of set 0 are the same in every adventure.
bool MayBecomeSetZero(const CharacterFileSet& set) {
    const auto isFixed = [](const Character& character) {
        return text::IsFixedCharacter(character.number);
    };
    return set.name == "Default" && std::none_of(set.characters.begin(), set.characters.end(), isFixed);
}

}  // namespace

std::vector<std::string> ListSets(store::Adventure& adventure) {
    const CharacterSets sets = LoadCharacterSets(adventure);
    std::vector<std::string> lines;
    for (const int set : sets.Sets()) {
        lines.push_back(ListLine(std::to_string(set), sets.OfSet(set).front()->setName));
    }
    return lines;
}

std::vector<std::string> ListSetsInFile(const std::filesystem::path& file, platform::Person& person) {
    const CharacterFile content = ReadSets(file, person);
    std::vector<std::string> lines;
    for (const CharacterFileSet& set : content.sets) {
        lines.push_back(ListLine(set.line, set.name));
    }
    return lines;
}

bool SaveSets(store::Adventure& adventure, const std::vector<std::string>& selected,
              const std::filesystem::path& file, platform::Person& person) {
    if (selected.empty()) {
        person.Tell("No Set is selected", kErrorTitle);
        return false;
    }
    std::vector<int> numbers;
    for (const std::string& line : selected) {
        const std::optional<int> number = ParameterValue(Key(line));
        if (!number) throw Error(NoSetMessage(line));
        numbers.push_back(*number);
    }
    WriteText(file, WriteCharacterFile(LoadCharacterSets(adventure), numbers));
    return true;
}

bool LoadSet(store::Adventure& adventure, const std::filesystem::path& file,
             const std::vector<std::string>& selected, int target, platform::Person& person) {
    if (selected.size() != 1) {
        person.Tell(selected.empty() ? "No Set is selected" : "Only one Set can be selected", kErrorTitle);
        return false;
    }
    const CharacterFile content = ReadSets(file, person);
    if (!content.isCharacterFile) return false;
    const std::string_view setLine = Key(selected.front());
    const auto set = std::find_if(content.sets.begin(), content.sets.end(),
                                  [setLine](const CharacterFileSet& s) { return s.line == setLine; });
    if (set == content.sets.end()) throw Error(file.string() + " holds no " + std::string(setLine) + ".");
    if (target == 0 && !MayBecomeSetZero(*set)) {
        person.Tell("This is not a valid saveset for Set 0", kErrorTitle);
        return false;
    }
    StoreSet(adventure, *set, target, file);
    person.Tell(set->name + " Loaded into Character Set " + std::to_string(target), "Load Character Set");
    return true;
}

}  // namespace fabula::pictures
