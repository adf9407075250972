#include "references/place_text.h"

#include <algorithm>
#include <vector>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "pictures/drawstring.h"
#include "references/extract.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::references {
namespace {

using store::TableNum;

/// The fields that are shown of a table's records; the number first.
struct ShownTable {
    TableNum table;
    std::string_view one;
    std::string_view number;
    std::vector<std::string_view> fields;
};

const std::vector<ShownTable>& ShownTables() {
    static const std::vector<ShownTable> tables = {
        {TableNum::Locations, "location", "locnum", {"exits", "locshortdesc", "locdesc"}},
        {TableNum::Messages, "message", "msgnum", {"msgmsg"}},
        {TableNum::Objects,
         "object",
         "objnum",
         {"objnoun", "objadject", "objlocdesc", "objattr", "objdesc"}},
        {TableNum::ProcessTables, "entry", "canum", {"condacts", "w1", "w2"}},
        {TableNum::SystemMessages, "system message", "smsgnum", {"smsgmsg"}},
        {TableNum::Vocabulary, "word", "vocindex", {"word", "voctype"}},
        {TableNum::Flags, "flag", "flgnum", {"flgdesc"}},
        {TableNum::ProcDesc, "process table", "pmsgnum", {"pmsgmsg"}},
        {TableNum::Characters, "character", "charkey", {"charvals"}},
        {TableNum::Pictures, "picture", "locnum", {"drawstring"}},
    };
    return tables;
}

const ShownTable* FindShown(TableNum table) {
    const auto& tables = ShownTables();
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const ShownTable& shown) { return shown.table == table; });
    return found == tables.end() ? nullptr : &*found;
}

std::string Joined(const std::vector<std::string>& words, std::size_t first, std::size_t count) {
    std::string line;
    for (std::size_t i = first; i < std::min(words.size(), first + count); ++i) {
        if (!line.empty()) line += ' ';
        line += words[i];
    }
    return line;
}

/// The names of what takes parameters in condacts and drawstrings are not numbers.
bool IsName(const std::string& word) {
    return !word.empty() && (word.front() < '0' || word.front() > '9') && word.front() != '-' &&
           word.find('=') == std::string::npos;
}

}  // namespace

void PlaceText::Read(TableNum table) {
    auto& records = records_[table];
    const ShownTable* shown = FindShown(table);
    if (shown == nullptr) return;
    std::string fields(shown->number);
    for (const std::string_view field : shown->fields)
        fields.append(", ").append(field);
    if (table == TableNum::ProcessTables) fields += ", estype";
    store::PreparedQuery rows = adventure_.Prepare(table, fields, "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        Record record;
        int column = 1;
        for (const std::string_view field : shown->fields)
            record.texts.emplace(field, rows.Text(column++));
        const std::string number = std::to_string(rows.Number(0));
        if (table == TableNum::ProcessTables) {
            record.name = "process table " + std::to_string(rows.Number(column));
            record.name.append(", entry ").append(number).append(" (");
            record.name.append(record.texts["w1"]).append(" ").append(record.texts["w2"]).append(")");
        } else if (table == TableNum::Vocabulary) {
            record.name = "word " + record.texts["word"];
        } else {
            record.name = std::string(shown->one) + " " + number;
        }
        records.try_emplace(rows.Number(0), std::move(record));
    }
}

const PlaceText::Record* PlaceText::Find(TableNum table, std::int64_t record) {
    if (!records_.contains(table)) Read(table);
    const auto& records = records_[table];
    const auto found = records.find(record);
    return found == records.end() ? nullptr : &found->second;
}

std::string PlaceText::RecordName(TableNum table, std::int64_t record) {
    if (table == TableNum::Adventure) return "the settings";
    if (const Record* found = Find(table, record)) return found->name;
    const ShownTable* shown = FindShown(table);
    return std::string(shown == nullptr ? "record" : shown->one) + " " + std::to_string(record);
}

std::string PlaceText::Around(const Use& use) {
    const Record* record = Find(use.table, use.record);
    if (record == nullptr) return use.table == TableNum::Adventure ? "start" : std::string(use.field);
    if (use.field == "estype") return "an entry of it";
    if (use.field == "roompicnum") return "the room's picture";
    const auto text = record->texts.find(use.field == "objloc" ? "objlocdesc" : use.field);
    if (text == record->texts.end()) return std::string(use.field);
    const auto words = pictures::DrawstringWords(text->second);
    if (use.field == "exits") return Joined(words, use.token - use.token % 2, 2);
    if (use.field != "condacts" && use.field != "drawstring")
        return use.table == TableNum::Objects || use.field == "w1" || use.field == "w2"
                   ? text->second
                   : std::string(use.field);
    if (use.token >= words.size()) return std::string(use.field);
    std::size_t first = use.token;
    while (first > 0 && !IsName(words[first]))
        --first;
    // The word that a condition asks for looks like a name.
    if (first > 0 && first == use.token && condacts::FindWordCondition(words[first - 1]) != nullptr)
        --first;
    std::size_t last = use.token + 1;
    while (last < words.size() && !IsName(words[last]))
        ++last;
    return Joined(words, first, last - first);
}

std::string PlaceText::FieldOf(const Use& use, std::size_t most) {
    const Record* record = Find(use.table, use.record);
    if (record == nullptr) return {};
    const auto text = record->texts.find(use.field);
    const bool entryWord = use.table == TableNum::ProcessTables && text == record->texts.end();
    const std::string& whole = entryWord || use.field == "w1" || use.field == "w2"
                                   ? record->texts.at("condacts")
                                   : (text == record->texts.end() ? record->name : text->second);
    const std::string line =
        text::NormalizeLineEnds(text::ReplaceAll(whole, text::kLineEndMarker, " "), " ");
    if (text::Length(line) <= most) return line;
    return std::string(text::Left(line, most - 3)) + "...";
}

}  // namespace fabula::references
