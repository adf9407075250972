#include "interchange/shared/keyed_table.h"

#include <utility>

#include "store/schema/record_fields.h"

namespace fabula::interchange {

KeyedTable::KeyedTable(store::Adventure& adventure, store::TableNum table)
    : KeyedTable(adventure, table, store::KeyField(table)) {}

KeyedTable::KeyedTable(store::Adventure& adventure, store::TableNum table, std::string keyField)
    : cursor_(adventure.OpenTable(table, "def")), keyField_(std::move(keyField)) {
    const std::size_t column = cursor_.Column(keyField_);
    for (; !cursor_.Eof(); cursor_.MoveNext()) {
        positions_.try_emplace(cursor_.Number(column), cursor_.AbsolutePosition());
    }
}

store::Cursor& KeyedTable::GoTo(std::int64_t key) {
    key_ = key;
    cursor_.SetAbsolutePosition(positions_.at(key));
    return cursor_;
}

store::Cursor& KeyedTable::GoToOrAdd(std::int64_t key) {
    return Has(key) ? GoTo(key) : Add(key);
}

store::Cursor& KeyedTable::Add(std::int64_t key) {
    key_ = key;
    cursor_.AddNew();
    cursor_.SetField(keyField_, key);
    return cursor_;
}

void KeyedTable::Update() {
    cursor_.Update();
    positions_.try_emplace(key_, cursor_.AbsolutePosition());
}

}  // namespace fabula::interchange
