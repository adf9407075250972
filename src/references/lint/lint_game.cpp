#include "references/lint/lint_game.h"

#include <tuple>

#include "condacts/language/load.h"
#include "condacts/object_attributes.h"
#include "pictures/drawstring.h"
#include "store/each_row.h"
#include "store/new_flag.h"
#include "store/query/keyed_rows.h"
#include "store/schema/record_fields.h"
#include "text/encoding/utf8.h"

namespace fabula::references {
namespace {

using condacts::ObjectNumber;
using condacts::PlaceNumber;
using condacts::WordNumber;
using store::ForEachRow;
using store::PreparedQuery;
using store::SmallNumber;
using store::TableNum;

template <class Number>
std::vector<LintText<Number>> Texts(store::Adventure& adventure, TableNum table) {
    std::vector<LintText<Number>> texts;
    ForEachRow(adventure, table, store::KeyAndText(table), store::KeyField(table),
               [&](const PreparedQuery& row) {
                   texts.push_back({Number(SmallNumber(row, 0)), std::string(row.Text(1))});
               });
    return texts;
}

}  // namespace

LintGame::LintGame(store::Adventure& adventure)
    : index(adventure),
      uses(index.AllUses()),
      catalogue(condacts::LoadCatalogue(adventure)),
      facts(condacts::LoadFacts(adventure)) {
    const store::ReadTransaction reading(adventure);
    Read(adventure);
    ReadEntries(adventure);
}

void LintGame::ReadEntries(store::Adventure& adventure) {
    store::KeyedRows rows(adventure, TableNum::ProcessTables,
                          {"canum", "estype", "w1num", "w2num", "condacts", "numericcondacts"});
    for (bool more = rows.First(); more; more = rows.Next()) {
        auto entry = std::make_unique<LintEntry>();
        entry->storeKey = rows.Key();
        entry->key = rows.Number(0);
        entry->process = condacts::ProcessNumber(static_cast<int>(rows.Number(1)));
        entry->verb = WordNumber(static_cast<int>(rows.Number(2)));
        entry->noun = WordNumber(static_cast<int>(rows.Number(3)));
        entry->text = rows.Text(4);
        entry->numbers = rows.Text(5);
        entry->line = condacts::ParseLine(entry->text, catalogue);
        if (entry->line.tokens.empty())
            entry->compiled = condacts::ParseNumericLine(entry->numbers, catalogue);
        byStoreKey_.emplace(entry->storeKey, entry.get());
        entries.push_back(std::move(entry));
    }
    const auto place = [](const LintEntry& entry) {
        return std::tuple(entry.process, entry.verb, entry.noun, entry.key, entry.storeKey);
    };
    std::sort(entries.begin(), entries.end(),
              [&](const auto& a, const auto& b) { return place(*a) < place(*b); });
}

void LintGame::Read(store::Adventure& adventure) {
    characterSets = adventure.CharSetsOn();
    draws = adventure.GraphicsOn() || characterSets;
    ForEachRow(adventure, TableNum::Adventure, "startloc", "",
               [&](const PreparedQuery& row) { start = PlaceNumber(SmallNumber(row, 0)); });
    ForEachRow(
        adventure, TableNum::Locations, "locnum, exits, numericexits", "locnum",
        [&](const PreparedQuery& row) {
            locations.push_back({PlaceNumber(SmallNumber(row, 0)), pictures::DrawstringWords(row.Text(1)),
                                 pictures::DrawstringWords(row.Text(2))});
        });
    ForEachRow(adventure, TableNum::Objects, "objnum, objloc, objnumnoun, objnumadject, objattrn", "objnum",
               [&](const PreparedQuery& row) {
                   objects.push_back({ObjectNumber(SmallNumber(row, 0)), PlaceNumber(SmallNumber(row, 1)),
                                      WordNumber(SmallNumber(row, 2)), WordNumber(SmallNumber(row, 3)),
                                      (row.Number(4) & condacts::attribute::kContainer) != 0});
               });
    messages = Texts<condacts::MessageNumber>(adventure, TableNum::Messages);
    systemMessages = Texts<condacts::SystemMessageNumber>(adventure, TableNum::SystemMessages);
    processes = Texts<condacts::ProcessNumber>(adventure, TableNum::ProcDesc);
    ForEachRow(adventure, TableNum::Flags, "flgnum, flgtype, flgdesc", "flgnum",
               [&](const PreparedQuery& row) {
                   flags.push_back({condacts::FlagNumber(SmallNumber(row, 0)),
                                    text::EqualsNoCase(row.Text(1), store::kSystemFlagType),
                                    std::string(row.Text(2))});
               });
    ForEachRow(adventure, TableNum::Vocabulary, "vocindex, word, vocnum, voctypen", "vocindex",
               [&](const PreparedQuery& row) {
                   words.push_back({row.Number(0),
                                    {std::string(row.Text(1)), WordNumber(SmallNumber(row, 2)),
                                     static_cast<condacts::WordType>(SmallNumber(row, 3))}});
               });
    ForEachRow(adventure, TableNum::Pictures, "locnum, loctype", "locnum", [&](const PreparedQuery& row) {
        pictures.push_back({row.Number(0), text::EqualsNoCase(row.Text(1), "subroutine")});
    });
    ForEachRow(adventure, TableNum::Characters, "charkey, charsetnum", "charkey",
               [&](const PreparedQuery& row) {
                   characters.insert(SmallNumber(row, 0));
                   characterSetNumbers.insert(SmallNumber(row, 1));
               });
}

const LintEntry& LintGame::EntryOf(const KeptUse& kept) const {
    return *byStoreKey_.at(kept.storeKey);
}

std::string_view LintEntry::CondActBefore(std::size_t token) const {
    for (const condacts::Statement& statement : UsedLine().statements) {
        if (statement.name + 1 == token) return statement.condAct->name;
    }
    return {};
}

const std::vector<KeptUse>& LintGame::UsesOf(const Target& target) const {
    static const std::vector<KeptUse> none;
    const auto found = uses.find(target);
    return found == uses.end() ? none : found->second;
}

std::string NameOf(const LintEntry& entry) {
    return "process table " + std::to_string(entry.process.value) + ", entry " + std::to_string(entry.key);
}

}  // namespace fabula::references
