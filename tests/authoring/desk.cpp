#include "authoring/desk.h"

#include <ostream>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "store/schema/table_catalogue.h"
#include "support/games/template_adventure.h"

namespace fabula::test {
namespace {

using store::TableNum;

std::filesystem::path Made(const std::filesystem::path& file, store::AdventureKind kind, bool graphics) {
    store::AdventureSetup setup;
    setup.ChooseType(kind);
    setup.ChooseGraphics(graphics);
    MakeAdventure(file, setup);
    return file;
}

std::string RowText(const store::Cursor& cursor) {
    std::string row;
    for (std::size_t column = 0; column < cursor.Fields().size(); ++column) {
        if (column > 0) row += '|';
        row += text::ToText(cursor.Field(column));
    }
    return row;
}

}  // namespace

Desk::Desk(store::AdventureKind kind, bool graphics)
    : document(Made(folder_ / "game.fbd", kind, graphics)) {
    authoring::ReadNextKeys(context);
}

void Desk::Add(TableNum table, std::initializer_list<std::pair<std::string_view, text::Value>> fields) {
    store::Cursor& cursor = Adventure().OpenTable(table, "def");
    cursor.AddNew();
    for (const auto& [name, value] : fields)
        cursor.SetField(name, value);
    cursor.Update();
}

void Desk::AddWord(int vocindex, std::string_view word, int number, int type) {
    Add(TableNum::Vocabulary, {{"vocindex", std::int64_t{vocindex}},
                               {"word", std::string(word)},
                               {"vocnum", std::int64_t{number}},
                               {"voctypen", std::int64_t{type}},
                               {"voctype", std::string(condacts::WordTypeName(type))}});
}

void Desk::AddEntry(int canum, int process, std::pair<std::string, int> verb,
                    std::pair<std::string, int> noun, std::string_view condacts) {
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(Adventure());
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    Add(TableNum::ProcessTables,
        {{"canum", std::int64_t{canum}},
         {"estype", std::int64_t{process}},
         {"w1", verb.first},
         {"w1num", std::int64_t{verb.second}},
         {"w2", noun.first},
         {"w2num", std::int64_t{noun.second}},
         {"condacts", std::string(condacts)},
         {"numericcondacts", condacts::CondActsToNumeric(condacts, catalogue, words).line},
         {"numcas", std::int64_t{condacts::CountTokens(condacts)}}});
}

void Desk::Clear(TableNum table) {
    Adventure().DeleteFrom(table);
}

void Desk::FillUp(TableNum table, int count) {
    store::Transaction transaction(Adventure());
    Clear(table);
    const std::string_view key = store::FindTable(table)->key;
    store::Cursor& cursor = Adventure().OpenTable(table, "def");
    for (int number = 0; number < count; ++number) {
        cursor.AddNew();
        cursor.SetField(key, std::int64_t{number});
        cursor.Update();
    }
    transaction.Commit();
}

std::vector<std::string> Desk::Rows(TableNum table, std::string_view fields, std::string_view where,
                                    std::string_view order) {
    std::string select = std::string(fields) + " from " + std::string(store::FindTable(table)->name);
    if (!where.empty()) select.append(" where ").append(where);
    if (!order.empty()) select.append(" order by ").append(order);
    std::vector<std::string> rows;
    for (store::Cursor& cursor = Adventure().OpenTable(TableNum::Free25, select); !cursor.Eof();
         cursor.MoveNext())
        rows.push_back(RowText(cursor));
    return rows;
}

Snapshot Desk::Everything() {
    Snapshot all;
    for (const store::TableEntry& table : store::AllTables())
        all.tables[std::string(table.name)] = Rows(table.number, "*");
    return all;
}

void PrintTo(const Snapshot& snapshot, std::ostream* out) {
    for (const auto& [name, rows] : snapshot.tables)
        *out << name << ' ' << rows.size() << "; ";
}

std::vector<std::string> Desk::Boxes() const {
    std::vector<std::string> texts;
    for (const auto& box : dialogs.Boxes())
        texts.push_back(box.text);
    return texts;
}

}  // namespace fabula::test
