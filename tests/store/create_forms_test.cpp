#include <gtest/gtest.h>

#include "platform/random_source.h"
#include "store/create_fixture.h"
#include "text/str_edit.h"

namespace fabula::store {
namespace {

using LinesOfForms = std::vector<std::string>;

/// Every value of every table, one a line.
LinesOfForms Everything(Adventure& adventure) {
    LinesOfForms values;
    for (const TableEntry& table : AllTables()) {
        for (Cursor& cursor = adventure.OpenTable(table.number, "*"); !cursor.Eof(); cursor.MoveNext()) {
            for (const Field& field : cursor.Fields())
                values.push_back(std::string(table.name) + "." + field.name + "=" +
                                 text::ToText(cursor.Field(field.name)));
        }
    }
    return values;
}

TEST_F(Create, LinesMayEndInTheWayOfOtherSystems) {
    Make();
    const LinesOfForms plain = Everything(*Open());
    for (std::string& line : lines_)
        line += '\r';
    Make();
    EXPECT_EQ(Everything(*Open()), plain);
}

struct Marker {
    const char* marker;
    const char* edit;
};

class StoredLines : public Create, public testing::WithParamInterface<Marker> {};

TEST_P(StoredLines, GiveTheSameAdventureAsThePlainFile) {
    Make();
    const LinesOfForms plain = Everything(*Open());
    platform::SeededRandom random(1);
    const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
    lines_[0] = GetParam().marker;
    for (std::size_t i = 1; i < lines_.size(); ++i)
        lines_[i] = text::StrEdit(lines_[i], GetParam().edit, random, clock);
    ASSERT_NE(lines_[1], "::INFO");
    Make();
    EXPECT_EQ(Everything(*Open()), plain);
}

INSTANTIATE_TEST_SUITE_P(Markers, StoredLines,
                         testing::Values(Marker{"SCRAMBLED", "scramble"},
                                         Marker{"SCRAMBLECED", "scramblec"}, Marker{"ENCODED", "encode"},
                                         Marker{"  CRYPTED  ", "crypt"}));

TEST_F(Create, AnyOtherFirstLineMeansPlainText) {
    Make();
    const LinesOfForms plain = Everything(*Open());
    lines_[0] = "Default data of the system";
    Make();
    EXPECT_EQ(Everything(*Open()), plain);
}

}  // namespace
}  // namespace fabula::store
