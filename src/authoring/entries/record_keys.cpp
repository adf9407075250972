#include "authoring/entries/record_keys.h"

#include <string>

#include "authoring/document/screen_context.h"
#include "condacts/places.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::TableNum;

/// The lowest number from `from` up without a record.
int FirstGap(Adventure& adventure, TableNum table, int from = 0) {
    const std::string key(store::FindTable(table)->key);
    store::PreparedQuery row = adventure.Prepare(table, key, key + ">=" + std::to_string(from), key);
    int number = from;
    for (bool more = row.First({}); more && row.Number(0) <= number; more = row.Next())
        number = NumberAfter(row.Number(0));
    return number;
}

int NextLocation(Adventure& adventure) {
    const int next = FirstGap(adventure, TableNum::Locations);
    if (!condacts::IsSpecialPlace(next)) return next;
    return FirstGap(adventure, TableNum::Locations, condacts::place::kLastSpecial.value + 1);
}

/// That of the first location without a picture; where all have one, the number behind the highest.
int NextPicture(Adventure& adventure) {
    store::PreparedQuery row = adventure.Prepare(TableNum::Locations, "locnum", "locnum>=0", "locnum");
    for (bool more = row.First({}); more; more = row.Next()) {
        const int location = static_cast<int>(row.Number(0));
        if (!HasRecord(adventure, TableNum::Pictures, location)) return location;
    }
    return NumberAfter(HighestKey(adventure, TableNum::Pictures));
}

/// The number of the records. Where one was deleted from their midst that number may be taken, and the
/// gap is filled: texts and objects must be numbered without one.
int NextOfCount(Adventure& adventure, TableNum table) {
    const int count = CountRecords(adventure, table);
    return HasRecord(adventure, table, count) ? FirstGap(adventure, table) : count;
}

}  // namespace

bool HasRecord(Adventure& adventure, TableNum table, int key) {
    const std::string field(store::FindTable(table)->key);
    return adventure.Prepare(table, field, field + "=" + std::to_string(key)).First({});
}

int CountRecords(Adventure& adventure, TableNum table) {
    const std::string select =
        std::string(store::FindTable(table)->key) + " from " + std::string(store::FindTable(table)->name);
    return adventure.OpenTable(TableNum::Free22, select).RecordCount();
}

int HighestKey(Adventure& adventure, TableNum table) {
    const std::string key(store::FindTable(table)->key);
    store::PreparedQuery highest = adventure.Prepare(table, key, "", key + " desc");
    return highest.First({}) ? static_cast<int>(highest.Number(0)) : -1;
}

std::optional<int> NextKey(Adventure& adventure, TableNum table) {
    switch (table) {
        case TableNum::Locations:
            return NextLocation(adventure);
        case TableNum::Messages:
        case TableNum::Objects:
        case TableNum::SystemMessages:
            return NextOfCount(adventure, table);
        case TableNum::Vocabulary:
        case TableNum::ProcessTables:
        case TableNum::ProcDesc:
            return NumberAfter(HighestKey(adventure, table));
        case TableNum::Pictures:
            return NextPicture(adventure);
        default:
            return std::nullopt;
    }
}

}  // namespace fabula::authoring
