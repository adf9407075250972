#include "authoring/entries/entries.h"

#include <algorithm>
#include <string>

#include "authoring/entries/add_records.h"
#include "authoring/entries/delete_word.h"
#include "authoring/entries/record_keys.h"
#include "condacts/language/catalogue.h"
#include "condacts/limits.h"
#include "condacts/words.h"
#include "pictures/characters/character_sets.h"
#include "store/character_key.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::TableNum;

/// What the commands do on a table. Tables that are not among these can't be changed by hand.
struct EntryTable {
    TableNum table;
    std::string_view one;  ///< in the name of a change: "delete message 7"
    std::optional<Screen> editor;
    std::string_view plural;  ///< of tables that number their records without gaps: in the limit's message
    bool deletable;
};

constexpr EntryTable kEntryTables[] = {
    {TableNum::Locations, "location", Screen::Location, "locations", true},
    {TableNum::Messages, "message", Screen::Text, "messages", true},
    {TableNum::Objects, "object", Screen::Object, "objects", true},
    {TableNum::Vocabulary, "word", Screen::Word, "", false},
    {TableNum::Adventure, "", Screen::Settings, "", false},
    {TableNum::ProcessTables, "process entry", Screen::ProcessEntry, "", true},
    {TableNum::SystemMessages, "system message", Screen::Text, "system messages", true},
    {TableNum::Flags, "", Screen::Flag, "", false},
    {TableNum::ProcDesc, "process description", Screen::Text, "", true},
    {TableNum::Characters, "character", Screen::Character, "", false},
    {TableNum::Pictures, "picture", Screen::Picture, "", true},
};

constexpr int kUntouchableFlag = 0;  ///< `flgmod` of a flag that the author may not edit

const EntryTable* FindEntryTable(TableNum table) {
    const auto* found = std::find_if(std::begin(kEntryTables), std::end(kEntryTables),
                                     [&](const EntryTable& entry) { return entry.table == table; });
    return found == std::end(kEntryTables) ? nullptr : found;
}

bool IsFabula(const Adventure& adventure) {
    return adventure.Kind() == store::AdventureKind::Fabula;
}

std::string KeyIs(TableNum table, int key) {
    return std::string(store::FindTable(table)->key) + "=" + std::to_string(key);
}

bool IsFull(Adventure& adventure, TableNum table, int key) {
    const int wanted = table == TableNum::Locations ? key : CountRecords(adventure, table);
    return wanted > (table == TableNum::Objects ? condacts::HighestObject(adventure.Kind())
                                                : condacts::HighestRecord(adventure.Kind()));
}

/// The message for objects names 999 in every type.
std::string LimitMessage(const Adventure& adventure, const EntryTable& numbered) {
    const bool of999 = IsFabula(adventure) || numbered.table == TableNum::Objects;
    return "You have reached the maximum of " +
           std::to_string(of999 ? condacts::limit::kHighestRecord
                                : condacts::limit::kHighestRecordOfOthers) +
           " " + std::string(numbered.plural);
}

std::optional<ScreenRequest> AddNumbered(ScreenContext& context, const EntryTable& numbered) {
    Adventure& adventure = context.document.Adventure();
    const int key = *NextKey(adventure, numbered.table);
    if (IsFull(adventure, numbered.table, key)) {
        Refuse(context.dialogs, LimitMessage(adventure, numbered));
        return std::nullopt;
    }
    return ScreenRequest{
        .screen = *numbered.editor, .key = {.key = key, .isNew = true}, .table = numbered.table};
}

ScreenRequest AddProcessEntry(ScreenContext& context) {
    Adventure& adventure = context.document.Adventure();
    ReadNextKeys(context);
    if (HighestKey(adventure, TableNum::ProcessTables) < 0) {
        context.currentEntry = 0;
        // Games of type Marlo have the first two tables only.
        if (adventure.Kind() != store::AdventureKind::Marlo)
            context.currentESNum = condacts::limit::kLastFixedProcess.value;
    }
    return {.screen = Screen::ProcessEntry,
            .key = {.key = context.nextEntry, .isNew = true},
            .table = TableNum::ProcessTables};
}

/// Gives the entries of the same process and words, from the one that `request.before` names on, new keys
/// above that of the new entry, so that it stands before them.
void MoveBehindNewEntry(ScreenContext& context, const ScreenRequest& request) {
    Adventure& adventure = context.document.Adventure();
    if (!HasRecord(adventure, TableNum::ProcessTables, request.key.key)) return;
    store::PreparedQuery current =
        adventure.Prepare(TableNum::ProcessTables, "estype, w1num, w2num", "canum=?");
    if (!current.First({std::int64_t{*request.before}})) return;
    const std::string where =
        "estype=" + std::to_string(current.Number(0)) + " and w1num=" + std::to_string(current.Number(1)) +
        " and w2num=" + std::to_string(current.Number(2)) +
        " and canum>=" + std::to_string(*request.before) + " and canum<>" + std::to_string(request.key.key);
    current.Reset();
    ReadNextKeys(context);
    Change change(context.document, Change::WithLatest{});
    store::Cursor& moved =
        adventure.OpenTable(TableNum::Free22, "* from processtables where " + where + " order by canum");
    for (; !moved.Eof(); moved.MoveNext()) {
        moved.SetField("canum", std::int64_t{context.nextEntry});
        moved.Update();
        ++context.nextEntry;
    }
    change.Commit();
}

/// nullopt for a flag that is not there.
std::optional<bool> IsEditableFlag(ScreenContext& context) {
    store::PreparedQuery flag = context.document.Adventure().Prepare(TableNum::Flags, "flgmod", "flgnum=?");
    if (!flag.First({std::int64_t{context.currentEntry}})) return std::nullopt;
    return flag.Number(0) != kUntouchableFlag;
}

bool MayEditFlag(ScreenContext& context) {
    const std::optional<bool> editable = IsEditableFlag(context);
    if (!editable || *editable) return editable.has_value();
    context.dialogs.Tell("That Flag cannot be edited", "Flag Information");
    return false;
}

/// What the game itself asks for by its spelling stays as it is. nullopt for a word that is not there.
std::optional<bool> IsEditableWord(ScreenContext& context) {
    store::PreparedQuery word =
        context.document.Adventure().Prepare(TableNum::Vocabulary, "voctypen", "vocindex=?");
    if (!word.First({std::int64_t{context.currentEntry}})) return std::nullopt;
    return word.Number(0) != condacts::kReserved;
}

bool MayEditWord(ScreenContext& context) {
    const auto editable = IsEditableWord(context);
    if (!editable) return false;
    if (*editable) return true;
    return Refuse(context.dialogs, "Words of type RESERVED cannot be edited");
}

/// The first three tables are there in every game, and `deed` ("edited") can't be done to them.
bool MayChangeProcess(ScreenContext& context, std::string_view deed) {
    if (context.currentEntry > condacts::limit::kLastFixedProcess.value) return true;
    context.dialogs.Tell("That Process table Description cannot be " + std::string(deed),
                         "Process Description Information");
    return false;
}

bool StandsBeside(ScreenContext& context) {
    switch (context.currentTable) {
        case TableNum::Adventure:
        case TableNum::Characters:
        case TableNum::Pictures:
            return false;
        case TableNum::Vocabulary:
            return IsEditableWord(context).value_or(false);
        case TableNum::Flags:
            return IsEditableFlag(context).value_or(false);
        case TableNum::ProcDesc:
            return context.currentEntry > condacts::limit::kLastFixedProcess.value;
        default:
            return true;
    }
}

bool MayEdit(ScreenContext& context) {
    const int key = context.currentEntry;
    switch (context.currentTable) {
        case TableNum::Vocabulary:
            return MayEditWord(context);
        case TableNum::Flags:
            return MayEditFlag(context);
        case TableNum::ProcDesc:
            return MayChangeProcess(context, "edited");
        case TableNum::Characters:
            if (pictures::IsEditableCharacter(key / store::kCharactersOfASet,
                                              key % store::kCharactersOfASet))
                return true;
            return Refuse(context.dialogs, "Character " + std::to_string(key % store::kCharactersOfASet) +
                                               " cannot be edited");
        default:
            return true;
    }
}

/// The caption of the table's own node, which stands in the tree behind that of a group it opens.
std::string CaptionOf(Adventure& adventure, TableNum table) {
    store::PreparedQuery node =
        adventure.Prepare(TableNum::DataBases, "dbtreename", "dbnum=?", "dbtreesort desc");
    return node.First({std::int64_t{static_cast<int>(table)}}) ? std::string(node.Text(0)) : std::string();
}

std::string QuestionForEntry(Adventure& adventure, int canum) {
    store::PreparedQuery entry = adventure.Prepare(TableNum::ProcessTables, "w1, w2, condacts", "canum=?");
    entry.First({std::int64_t{canum}});
    return "Are you sure you want to delete Process Record " + std::to_string(canum) + " ?\n" +
           std::string(entry.Text(0)) + " " + std::string(entry.Text(1)) + "\n" +
           std::string(entry.Text(2));
}

bool DeleteRecord(ScreenContext& context, std::string_view one, const std::string& question) {
    if (!context.dialogs.Confirm(question, "Confirm")) return false;
    const TableNum table = context.currentTable;
    const int key = context.currentEntry;
    Change change(context.document, "delete " + std::string(one) + " " + std::to_string(key));
    context.document.Adventure().DeleteFrom(table, KeyIs(table, key));
    change.Commit();
    ReadNextKeys(context);
    return true;
}

}  // namespace

std::optional<ScreenRequest> Entries::AddEntry() {
    const TableNum table = context_.currentTable;
    const EntryTable* entry = FindEntryTable(table);
    if (entry != nullptr && !entry->plural.empty()) return AddNumbered(context_, *entry);
    switch (table) {
        case TableNum::ProcessTables:
            return AddProcessEntry(context_);
        case TableNum::Vocabulary:
            ReadNextKeys(context_);
            return ScreenRequest{
                .screen = Screen::Word, .key = {.key = context_.nextWord, .isNew = true}, .table = table};
        case TableNum::Flags:
            AddFlags(context_);
            return std::nullopt;
        case TableNum::Characters:
            AddCharacterSet(context_);
            return std::nullopt;
        case TableNum::Pictures:
            return ScreenRequest{
                .screen = Screen::Picture,
                .key = {.key = *NextKey(context_.document.Adventure(), table), .isNew = true},
                .table = table};
        default:
            return std::nullopt;
    }
}

std::optional<ScreenRequest> Entries::AddEntryBefore() {
    if (context_.currentTable != TableNum::ProcessTables) return std::nullopt;
    const int current = context_.currentEntry;
    const bool exists = HasRecord(context_.document.Adventure(), TableNum::ProcessTables, current);
    ScreenRequest request = AddProcessEntry(context_);
    if (exists) request.before = current;
    return request;
}

std::optional<ScreenRequest> Entries::EditEntry() {
    const TableNum table = context_.currentTable;
    Adventure& adventure = context_.document.Adventure();
    if (!MayEdit(context_)) return std::nullopt;
    const EntryTable* entry = FindEntryTable(table);
    if (entry == nullptr) {
        Refuse(context_.dialogs, std::string(store::FindTable(table)->name) + " cannot be edited");
        return std::nullopt;
    }
    ScreenRequest request{.screen = *entry->editor, .key = {.key = context_.currentEntry}, .table = table};
    if (table == TableNum::Adventure) {
        request.settings = ReadSettingsBefore(context_.document);
        return request;
    }
    if (!HasRecord(adventure, table, context_.currentEntry)) return std::nullopt;
    return request;
}

std::optional<ScreenRequest> Entries::RecordBeside() {
    const TableNum table = context_.currentTable;
    const EntryTable* entry = FindEntryTable(table);
    if (entry == nullptr || !StandsBeside(context_)) return std::nullopt;
    if (!HasRecord(context_.document.Adventure(), table, context_.currentEntry)) return std::nullopt;
    return ScreenRequest{.screen = *entry->editor, .key = {.key = context_.currentEntry}, .table = table};
}

bool Entries::AfterScreen(const ScreenRequest& request) {
    if (request.screen == Screen::Location && request.key.isNew)
        AddPictureOf(context_, condacts::PlaceNumber(request.key.key));
    if (request.before) MoveBehindNewEntry(context_, request);
    return request.screen != Screen::Settings || FollowSettings(context_, request.settings);
}

bool Entries::DeleteEntry(const BeforeDelete& before) {
    const TableNum table = context_.currentTable;
    const int key = context_.currentEntry;
    Adventure& adventure = context_.document.Adventure();
    if (table == TableNum::Vocabulary) return DeleteWord(context_, key, before);
    const EntryTable* entry = FindEntryTable(table);
    if (entry == nullptr || !entry->deletable)
        return Refuse(context_.dialogs, std::string(store::FindTable(table)->name) + " cannot be deleted");
    if (!HasRecord(adventure, table, key)) return false;
    if (table == TableNum::ProcDesc && !MayChangeProcess(context_, "deleted")) return false;
    if (!before({.table = table, .key = key})) return false;
    const std::string question = table == TableNum::ProcessTables
                                     ? QuestionForEntry(adventure, key)
                                     : "Are you sure you want to delete " + CaptionOf(adventure, table) +
                                           " " + std::to_string(key) + " ?";
    return DeleteRecord(context_, entry->one, question);
}

}  // namespace fabula::authoring
