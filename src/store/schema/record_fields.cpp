#include "store/schema/record_fields.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace fabula::store {
namespace {

struct TextOfTable {
    TableNum table;
    std::string_view field;
};

constexpr TextOfTable kTextFields[] = {
    {TableNum::Locations, "locdesc"},      {TableNum::Messages, "msgmsg"},
    {TableNum::Objects, "objdesc"},        {TableNum::ProcessTables, "condacts"},
    {TableNum::SystemMessages, "smsgmsg"}, {TableNum::Flags, "flgdesc"},
    {TableNum::ProcDesc, "pmsgmsg"},       {TableNum::Characters, "charvals"},
    {TableNum::Pictures, "drawstring"},
};

}  // namespace

std::string KeyField(TableNum table) {
    const TableEntry* const entry = FindTable(table);
    if (!entry) throw std::logic_error("a table number without a table has no key");
    return std::string(entry->key);
}

std::string_view TextField(TableNum table) {
    const auto* const found = std::ranges::find(kTextFields, table, &TextOfTable::table);
    return found == std::end(kTextFields) ? std::string_view() : found->field;
}

std::string KeyAndText(TableNum table) {
    return KeyField(table).append(", ").append(TextField(table));
}

}  // namespace fabula::store
