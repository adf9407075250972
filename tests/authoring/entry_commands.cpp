#include "authoring/entry_commands.h"

#include <gtest/gtest.h>

namespace fabula::test {

using authoring::Entries;
using authoring::ScreenRequest;
using store::TableNum;

void StandOn(Desk& desk, TableNum table, int key) {
    desk.context.currentTable = table;
    desk.context.currentEntry = key;
}

std::optional<int> KeyOfNew(Desk& desk, TableNum table) {
    desk.context.currentTable = table;
    const std::optional<ScreenRequest> request = Entries(desk.context).AddEntry();
    if (!request) return std::nullopt;
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(request->table, table);
    return request->key.key;
}

std::optional<ScreenRequest> Edit(Desk& desk, TableNum table, int key) {
    StandOn(desk, table, key);
    return Entries(desk.context).EditEntry();
}

bool Delete(Desk& desk, TableNum table, int key) {
    StandOn(desk, table, key);
    return Entries(desk.context).DeleteEntry();
}

void Store(Desk& desk, const ScreenRequest& request, const std::string& name) {
    authoring::Change change(desk.document, name);
    desk.Add(request.table, {{store::FindTable(request.table)->key, std::int64_t{request.key.key}}});
    change.Commit();
}

}  // namespace fabula::test
