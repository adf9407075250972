#include "engine/actions/condact_table.h"

#include <set>

#include <gtest/gtest.h>

#include "condacts/language/load.h"
#include "support/games/template_adventure.h"
#include "text/encoding/utf8.h"

namespace fabula::test {
namespace {

using engine::AllCondActs;
using engine::CondActRoutine;

TEST(CondActTable, HoldsTheConditionsAndActionsOfTheCatalogueAndNoOthers) {
    const OpenedAdventure adventure;
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(*adventure);
    ASSERT_EQ(AllCondActs().size(), 123U);
    ASSERT_EQ(catalogue.All().size(), 123U);
    for (const CondActRoutine& routine : AllCondActs()) {
        const condacts::CondAct* row = catalogue.Find(routine.number);
        ASSERT_TRUE(row) << routine.number;
        EXPECT_EQ(row->name, routine.name);
        EXPECT_EQ(row->isAction, routine.IsAction()) << routine.name;
    }
}

TEST(CondActTable, StandsInTheOrderOfItsNumbers) {
    int before = 0;
    for (const CondActRoutine& routine : AllCondActs()) {
        EXPECT_GT(routine.number, before);
        before = routine.number;
    }
    EXPECT_EQ(AllCondActs().front().number, engine::kFirstCondAct);
    EXPECT_EQ(AllCondActs().back().number, engine::kLastCondAct);
}

TEST(CondActTable, TracesNamesInLowerCaseWithAParenthesisForConditions) {
    for (const CondActRoutine& routine : AllCondActs()) {
        std::string expected = text::LowerCase(routine.name);
        if (routine.name == "AT") expected = "at ";       // the one with a blank
        if (routine.name == "YESNO") expected = "Yesno";  // the one with a capital
        if (!routine.IsAction()) expected += "(";
        EXPECT_EQ(routine.trace, expected);
    }
}

TEST(CondActTable, KnowsTheFourThatWaitForThePlayer) {
    std::set<std::string_view> asking;
    for (const CondActRoutine& routine : AllCondActs()) {
        if (routine.asks) asking.insert(routine.name);
    }
    EXPECT_EQ(asking, (std::set<std::string_view>{"YESNO", "QUIT", "END", "ANYKEY"}));
}

}  // namespace
}  // namespace fabula::test
