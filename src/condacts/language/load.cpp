#include "condacts/language/load.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "store/each_row.h"
#include "store/new_flag.h"
#include "text/encoding/utf8.h"

namespace fabula::condacts {
namespace {

using store::Adventure;
using store::ForEachRow;
using store::PreparedQuery;
using store::SmallNumber;
using store::TableNum;

template <typename Number>
std::set<Number> Numbers(Adventure& adventure, TableNum table, std::string_view key) {
    std::set<Number> numbers;
    ForEachRow(adventure, table, key,
               [&](const PreparedQuery& row) { numbers.insert(Number(SmallNumber(row, 0))); });
    return numbers;
}

CondAct ReadCondAct(const PreparedQuery& row) {
    CondAct condAct;
    condAct.number = SmallNumber(row, 0);
    condAct.isAction = text::EqualsNoCase(row.Text(1), "action");
    condAct.name = row.Text(2);
    condAct.paramCount = std::clamp(SmallNumber(row, 3), 0, static_cast<int>(condAct.params.size()));
    condAct.params[0] = {static_cast<ParamKind>(SmallNumber(row, 4)), SmallNumber(row, 5)};
    condAct.params[1] = {static_cast<ParamKind>(SmallNumber(row, 6)), SmallNumber(row, 7)};
    return condAct;
}

void ReadDialects(const PreparedQuery& row, CondAct& condAct) {
    condAct.fabula = SmallNumber(row, 8) != 0;
    condAct.vel = SmallNumber(row, 9) != 0;
    condAct.marlo = SmallNumber(row, 10) != 0;
}

void LoadObjects(Adventure& adventure, Facts& facts) {
    ForEachRow(adventure, TableNum::Objects, "objnum, objattrn", [&](const PreparedQuery& row) {
        facts.objects.try_emplace(ObjectNumber(SmallNumber(row, 0)), SmallNumber(row, 1));
    });
}

void LoadLocations(Adventure& adventure, Facts& facts) {
    ForEachRow(adventure, TableNum::Locations, "locnum, numexits", [&](const PreparedQuery& row) {
        const PlaceNumber location(SmallNumber(row, 0));
        facts.locations.insert(location);
        if (SmallNumber(row, 1) > 0) facts.locationsWithExits.insert(location);
    });
}

void LoadFlags(Adventure& adventure, Facts& facts) {
    ForEachRow(adventure, TableNum::Flags, "flgnum, flgtype, flgchg", [&](const PreparedQuery& row) {
        const bool system = text::EqualsNoCase(row.Text(1), store::kSystemFlagType);
        facts.flags.try_emplace(FlagNumber(SmallNumber(row, 0)),
                                Facts::Flag{system, SmallNumber(row, 2) != 0});
    });
}

}  // namespace

Catalogue LoadCatalogue(Adventure& adventure) {
    // A catalogue of an older program may not tell of dialects; its conditions are then in all of them.
    const store::TableSchema& schema = adventure.Schema(TableNum::CondActs);
    const bool hasDialects = schema.Find("fabula") && schema.Find("vel") && schema.Find("marlo");
    const bool hasPCVel = hasDialects && schema.Find("pcvel");
    std::string fields = "canum, catype, caname, canumparam, caparam1, camaxval1, caparam2, camaxval2";
    if (hasDialects) fields += ", fabula, vel, marlo";
    if (hasPCVel) fields += ", pcvel";
    std::vector<CondAct> condActs;
    ForEachRow(adventure, TableNum::CondActs, fields, [&](const PreparedQuery& row) {
        CondAct condAct = ReadCondAct(row);
        if (hasDialects) ReadDialects(row, condAct);
        if (hasPCVel) condAct.pcVel = SmallNumber(row, 11) != 0;
        condActs.push_back(std::move(condAct));
    });
    return Catalogue(std::move(condActs));
}

WordIndex LoadWords(Adventure& adventure) {
    std::vector<Word> words;
    ForEachRow(adventure, TableNum::Vocabulary, "word, vocnum, voctypen", [&](const PreparedQuery& row) {
        words.push_back({std::string(row.Text(0)), WordNumber(SmallNumber(row, 1)),
                         static_cast<WordType>(SmallNumber(row, 2))});
    });
    return WordIndex(std::move(words));
}

Facts LoadFacts(Adventure& adventure) {
    const store::ReadTransaction reading(adventure);
    Facts facts;
    facts.dialect = DialectOf(adventure.Kind());
    facts.messages = Numbers<MessageNumber>(adventure, TableNum::Messages, "msgnum");
    facts.systemMessages = Numbers<SystemMessageNumber>(adventure, TableNum::SystemMessages, "smsgnum");
    facts.processes = Numbers<ProcessNumber>(adventure, TableNum::ProcDesc, "pmsgnum");
    LoadLocations(adventure, facts);
    LoadObjects(adventure, facts);
    LoadFlags(adventure, facts);
    facts.words = LoadWords(adventure);
    return facts;
}

}  // namespace fabula::condacts
