#include "pictures/book_loader.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

#include "store/adventure.h"
#include "text/encoding/utf8.h"

namespace fabula::pictures {
namespace {

using store::Cursor;
using store::TableNum;

int Number(const Cursor& cursor, std::string_view field) {
    constexpr std::int64_t kLowest = std::numeric_limits<int>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(cursor.Number(field), kLowest, kHighest));
}

std::map<int, Picture> LoadPictures(store::Adventure& adventure) {
    std::map<int, Picture> pictures;
    Cursor& cursor = adventure.OpenTable(TableNum::Pictures, "def");
    for (; !cursor.Eof(); cursor.MoveNext()) {
        Picture picture;
        picture.number = Number(cursor, "locnum");
        if (text::EqualsNoCase(cursor.Text("loctype"), "Subroutine"))
            picture.kind = PictureKind::Subroutine;
        picture.paper = Number(cursor, "locpaper");
        picture.ink = Number(cursor, "locink");
        picture.drawstring = cursor.Text("drawstring");
        pictures.try_emplace(picture.number, std::move(picture));
    }
    return pictures;
}

std::set<int> LoadLocations(store::Adventure& adventure) {
    std::set<int> locations;
    Cursor& cursor = adventure.OpenTable(TableNum::Locations, "locnum");
    for (; !cursor.Eof(); cursor.MoveNext()) {
        locations.insert(Number(cursor, "locnum"));
    }
    return locations;
}

}  // namespace

PictureBook LoadPictureBook(store::Adventure& adventure) {
    PictureBook book;
    book.commands = LoadCommands(adventure);
    book.characters = LoadCharacterSets(adventure);
    book.pictures = LoadPictures(adventure);
    book.locations = LoadLocations(adventure);
    if (const std::optional<GameColours> colours = LoadColours(adventure)) {
        book.backColour = IndexToColour(colours->paper);
        book.textColour = IndexToColour(colours->ink);
    }
    return book;
}

std::optional<GameColours> LoadColours(store::Adventure& adventure) {
    const Cursor& settings = adventure.OpenTable(TableNum::Adventure, "BackColor, textcolor");
    if (settings.Eof()) return std::nullopt;
    return GameColours{Number(settings, "BackColor"), Number(settings, "textcolor")};
}

CommandCatalogue LoadCommands(store::Adventure& adventure) {
    CommandCatalogue commands;
    Cursor& cursor = adventure.OpenTable(TableNum::Commands, "def");
    for (; !cursor.Eof(); cursor.MoveNext()) {
        Command command;
        command.number = Number(cursor, "conum");
        command.name = cursor.Text("coname");
        command.typedParameters = Number(cursor, "cocmdparam");
        command.drawnParameters = Number(cursor, "codrwparam");
        for (std::size_t i = 0; i < command.typedCodes.size(); ++i) {
            command.typedCodes[i] = cursor.Text("cval" + std::to_string(i + 1));
        }
        for (std::size_t i = 0; i < command.drawnCodes.size(); ++i) {
            command.drawnCodes[i] = cursor.Text("dval" + std::to_string(i + 1));
        }
        commands.Add(std::move(command));
    }
    return commands;
}

CharacterSets LoadCharacterSets(store::Adventure& adventure) {
    CharacterSets sets;
    Cursor& cursor = adventure.OpenTable(TableNum::Characters, "def");
    const std::size_t set = cursor.Column("charsetnum");
    const std::size_t number = cursor.Column("charnum");
    const std::size_t name = cursor.Column("charsetname");
    const std::size_t values = cursor.Column("charvals");
    for (; !cursor.Eof(); cursor.MoveNext()) {
        sets.Add({static_cast<int>(cursor.Number(set)), static_cast<int>(cursor.Number(number)),
                  std::string(cursor.Text(name)), ParseCharVals(cursor.Text(values))});
    }
    return sets;
}

}  // namespace fabula::pictures
