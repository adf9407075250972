#include "authoring/entries/add_records.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/limits.h"
#include "pictures/book_loader.h"
#include "pictures/characters/character_sets.h"
#include "pictures/picture_book.h"
#include "store/character_key.h"
#include "store/new_flag.h"
#include "text/encoding/utf8.h"
#include "text/format.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::Cursor;
using store::TableNum;

constexpr int kFlagsAtATime = 25;
constexpr int kMostAddedFlags = 999;

/// The filter of the characters that a new set begins with.
std::string FontOfSetZero() {
    return "charsetnum=0 and charnum>=" + std::to_string(pictures::kFirstCharacter) +
           " and charnum<=" + std::to_string(pictures::kLastOfFont);
}

/// The highest value of a number field; -1 in a table without a record from 0 on.
int Highest(store::Adventure& adventure, TableNum table, const std::string& field) {
    store::PreparedQuery query = adventure.Prepare(table, field, "", field + " desc");
    return query.First({}) ? std::max(static_cast<int>(query.Number(0)), -1) : -1;
}

/// Asks until the name will do; nullopt when the author gives up.
std::optional<std::string> AskSetName(platform::Dialogs& dialogs, int set) {
    while (true) {
        const std::optional<std::string> name =
            dialogs.AskText({.prompt = "Enter a name for your Set:",
                             .title = "Set Name",
                             .proposal = "My Set " + std::to_string(set)});
        if (!name) return std::nullopt;
        std::string trimmed(text::TrimBlanks(*name));
        if (!trimmed.empty() && text::Length(trimmed) <= pictures::kLongestSetName) return trimmed;
        Refuse(dialogs, "Set name cannot be blank or more than " +
                            std::to_string(pictures::kLongestSetName) + " characters");
    }
}

struct ModelCharacter {
    std::int64_t number;
    std::string values;
};

std::vector<ModelCharacter> ReadFontOfSetZero(store::Adventure& adventure) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Characters, "charnum, charvals", FontOfSetZero(), "charnum");
    std::vector<ModelCharacter> characters;
    for (bool more = row.First({}); more; more = row.Next())
        characters.push_back({row.Number(0), std::string(row.Text(1))});
    return characters;
}

}  // namespace

void AddFlags(ScreenContext& context) {
    store::Adventure& adventure = context.document.Adventure();
    if (adventure.Kind() != store::AdventureKind::Fabula) {
        Refuse(context.dialogs,
               "Extended flags cannot be used in a " + adventure.AdventureType() + " type Adventure");
        return;
    }
    const int highest = Highest(adventure, TableNum::Flags, "flgnum");
    if (highest - condacts::limit::kHighestSystemFlag > kMostAddedFlags) {
        Refuse(context.dialogs, "There are over " + std::to_string(kMostAddedFlags) +
                                    " flags.\nNo more flags can be added.");
        return;
    }
    const std::string range =
        "flags " + std::to_string(highest + 1) + " to " + std::to_string(highest + kFlagsAtATime);
    if (!context.dialogs.Confirm("Confirm add of " + range, "Confirm")) return;
    Change change(context.document, "add " + range);
    // Asked again, since the question may have stood for long.
    const int last = Highest(adventure, TableNum::Flags, "flgnum");
    Cursor& flags = adventure.OpenTable(TableNum::Free22, "* from flags", "flgnum<0");
    for (int n = 1; n <= kFlagsAtATime; ++n) {
        flags.AddNew();
        store::FillNewFlag(flags, last + n, " ");
        flags.Update();
    }
    change.Commit();
}

void AddCharacterSet(ScreenContext& context) {
    store::Adventure& adventure = context.document.Adventure();
    const int highest = Highest(adventure, TableNum::Characters, "charsetnum");
    if (highest >= store::kHighestNewCharacterSet) {
        Refuse(context.dialogs,
               "There is a limit of " + std::to_string(store::kHighestNewCharacterSet) + " character sets");
        return;
    }
    const int set = highest + 1;
    const std::optional<std::string> name = AskSetName(context.dialogs, set);
    if (!name) return;
    const std::vector<ModelCharacter> font = ReadFontOfSetZero(adventure);
    Change change(context.document, "add character set " + std::to_string(set));
    Cursor& characters = adventure.OpenTable(TableNum::Free22, "* from characters", "charkey<0");
    for (const ModelCharacter& model : font) {
        characters.AddNew();
        characters.SetField("charkey", std::int64_t{set} * store::kCharactersOfASet + model.number);
        characters.SetField("CharSet", text::FormatText("SET !%z4", {std::int64_t{set}}));
        characters.SetField("charsetnum", std::int64_t{set});
        characters.SetField("charsetname", *name);
        characters.SetField("charnum", model.number);
        characters.SetField("charvals", model.values);
        characters.Update();
    }
    change.Commit();
    context.dialogs.Tell("Character Set " + std::to_string(set) + " added.", "Character Sets");
}

void AddPictureOf(ScreenContext& context, condacts::PlaceNumber location) {
    store::Adventure& adventure = context.document.Adventure();
    if (!adventure.GraphicsOn()) return;
    const std::string key = "locnum=" + std::to_string(location.value);
    if (adventure.OpenTable(TableNum::Free22, "locnum from locations", key).Eof()) return;
    const auto colours = pictures::LoadColours(adventure);
    if (!colours) return;
    Cursor& pictures = adventure.OpenTable(TableNum::Free22, "* from pictures", key);
    if (!pictures.Eof()) return;
    Change change(context.document, Change::WithLatest{});
    pictures.AddNew();
    pictures.SetField("locnum", std::int64_t{location.value});
    pictures.SetField("locpaper", std::int64_t{colours->paper});
    pictures.SetField("locink", std::int64_t{colours->ink});
    pictures.SetField("loctype", std::string("Subroutine"));
    pictures.SetField("drawstring", std::string("END"));
    pictures.SetField("picname", std::string());
    pictures.SetField("roompicnum", std::int64_t{pictures::kNoRoom});
    pictures.Update();
    change.Commit();
}

}  // namespace fabula::authoring
