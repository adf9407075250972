#include "player/panes/history.h"

#include <gtest/gtest.h>

namespace fabula::player {
namespace {

TEST(History, WalksBackAndForth) {
    History history;
    history.Add("ONE");
    history.Add("TWO");
    EXPECT_EQ(history.Older(""), "TWO");
    EXPECT_EQ(history.Older("TWO"), "ONE");
    EXPECT_EQ(history.Newer(), "TWO");
}

TEST(History, EndsAtTheOldestLine) {
    History history;
    history.Add("ONE");
    history.Older("");
    EXPECT_EQ(history.Older("ONE"), std::nullopt);
}

TEST(History, FindsTheLineBeingTypedAgain) {
    History history;
    history.Add("ONE");
    history.Older("HALF A L");
    EXPECT_EQ(history.Newer(), "HALF A L");
    EXPECT_EQ(history.Newer(), std::nullopt);
}

TEST(History, LeavesOutEmptyAndRepeatedLines) {
    History history;
    history.Add("ONE");
    history.Add("");
    history.Add("ONE");
    EXPECT_EQ(history.Older(""), "ONE");
    EXPECT_EQ(history.Older("ONE"), std::nullopt);
}

TEST(History, ForgetsTheOldestOfTooManyLines) {
    History history;
    for (std::size_t i = 0; i <= History::kMostLines; ++i)
        history.Add(std::to_string(i));
    for (std::size_t i = 0; i < History::kMostLines - 1; ++i)
        history.Older("");
    EXPECT_EQ(history.Older(""), "1");
    EXPECT_EQ(history.Older(""), std::nullopt);
}

}  // namespace
}  // namespace fabula::player
