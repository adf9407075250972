#include "ide/window/grid/column_widths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fabula::test {
namespace {

using ide::FitColumns;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FitColumns, GivesAllWhatTheyNeedWhereThereIsRoom) {
    EXPECT_THAT(FitColumns({{40, 20}, {100, 50}, {60, 50}}, 300), ElementsAre(40, 100, 60));
}

TEST(FitColumns, NarrowsTheWidestFirst) {
    EXPECT_THAT(FitColumns({{40, 20}, {500, 50}, {100, 50}}, 240), ElementsAre(40, 100, 100));
    EXPECT_THAT(FitColumns({{40, 20}, {500, 50}, {100, 50}}, 300), ElementsAre(40, 160, 100));
}

TEST(FitColumns, NarrowsNoneBelowItsLeast) {
    EXPECT_THAT(FitColumns({{40, 20}, {500, 80}, {100, 50}}, 150), ElementsAre(20, 80, 50));
    EXPECT_THAT(FitColumns({{40, 20}, {500, 80}, {100, 50}}, 155), ElementsAre(25, 80, 50));
}

TEST(FitColumns, GivesAtMostHalfTheRoomWhereTheyCouldNotFitAnyway) {
    EXPECT_THAT(FitColumns({{40, 20}, {500, 80}, {60, 50}}, 148), ElementsAre(40, 80, 60));
    EXPECT_THAT(FitColumns({{400, 300}, {1000, 300}, {350, 300}}, 840), ElementsAre(400, 420, 350));
}

TEST(FitColumns, LeavesWhatTheAuthorGave) {
    EXPECT_THAT(FitColumns({{40, 20}, {500, 80, true}, {100, 50}}, 600), ElementsAre(40, 500, 60));
}

TEST(FitColumns, WithoutColumnsAreNone) {
    EXPECT_THAT(FitColumns({}, 100), IsEmpty());
}

}  // namespace
}  // namespace fabula::test
