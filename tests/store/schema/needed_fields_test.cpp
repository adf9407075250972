#include "store/schema/needed_fields.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::store {
namespace {

/// The fields of a new adventure without which a table is refused, and those it can do without.
struct Fields {
    int needed = 0;
    std::vector<std::string> others;
};

Fields TryWithoutEach(const test::OpenedAdventure& adventure) {
    Fields fields;
    for (const TableEntry& table : AllTables()) {
        const TableSchema& whole = adventure->Schema(table.number);
        for (std::size_t i = 0; i < whole.fields.size(); ++i) {
            TableSchema schema = whole;
            schema.fields.erase(schema.fields.begin() + static_cast<std::ptrdiff_t>(i));
            if (FaultsOfFields(table.number, schema).empty()) {
                fields.others.push_back(whole.fields[i].name);
            } else {
                ++fields.needed;
            }
        }
    }
    return fields;
}

TEST(NeededFields, AreThereInANewAdventure) {
    const test::OpenedAdventure adventure;
    for (const TableEntry& table : AllTables())
        EXPECT_TRUE(FaultsOfFields(table.number, adventure->Schema(table.number)).empty()) << table.name;
}

TEST(NeededFields, AreAllFieldsOfTheDefaultDataButThoseOfLaterPrograms) {
    const test::OpenedAdventure adventure;
    const Fields fields = TryWithoutEach(adventure);
    EXPECT_EQ(fields.others, (std::vector<std::string>{"allowexp", "advdesc", "advpicloc", "advcontactinfo",
                                                       "advpicgraphic", "oldadvpicloc", "ideversion",
                                                       "engversion", "ifid"}));
    EXPECT_GT(fields.needed, 100);
}

TEST(NeededFields, HaveTheirClass) {
    const test::OpenedAdventure adventure;
    TableSchema schema = adventure->Schema(TableNum::Messages);
    schema.fields[schema.Find("msgnum").value()].type = FieldType::VarWChar;
    EXPECT_FALSE(FaultsOfFields(TableNum::Messages, schema).empty());
}

TEST(NeededFields, OfNumbersAreWhole) {
    const test::OpenedAdventure adventure;
    TableSchema schema = adventure->Schema(TableNum::Messages);
    schema.fields[schema.Find("msgnum").value()].type = FieldType::Double;
    EXPECT_FALSE(FaultsOfFields(TableNum::Messages, schema).empty());
}

TEST(NeededFields, MayBeJoinedByOthers) {
    const test::OpenedAdventure adventure;
    TableSchema schema = adventure->Schema(TableNum::Messages);
    schema.fields.push_back({"later", FieldType::VarWChar, 255});
    EXPECT_TRUE(FaultsOfFields(TableNum::Messages, schema).empty());
}

}  // namespace
}  // namespace fabula::store
