#include "authoring/desk/open_tabs.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

using store::TableNum;

OpenTab TabOf(TableNum table, int key) {
    return {.place = {.view = {table, 0}, .key = key}};
}

/// The keys of the tabs, the one that is shown in brackets.
std::string ShownTabs(const OpenTabs& tabs) {
    std::string shown;
    for (int tab = 0; tab < tabs.Count(); ++tab) {
        const std::string key =
            std::to_string(tabs.All()[static_cast<std::size_t>(tab)].place.key.value_or(0));
        shown += (tab > 0 ? " " : "") + (tab == tabs.Current() ? "[" + key + "]" : key);
    }
    return shown;
}

/// The tabs 0 to 3, of which 1 is shown.
OpenTabs FourTabs() {
    OpenTabs tabs;
    for (const int key : {1, 2, 3})
        tabs.Open(TabOf(TableNum::Messages, key));
    tabs.GoTo(1);
    return tabs;
}

TEST(OpenTabs, BeginWithOne) {
    EXPECT_EQ(ShownTabs(OpenTabs()), "[0]");
}

TEST(OpenTabs, OpenBehindTheOneThatIsShown) {
    OpenTabs tabs = FourTabs();
    EXPECT_TRUE(tabs.Open(TabOf(TableNum::Flags, 9)));
    EXPECT_EQ(ShownTabs(tabs), "0 1 [9] 2 3");
}

TEST(OpenTabs, AreAtMostThirty) {
    OpenTabs tabs;
    for (int tab = 1; tab < 30; ++tab)
        EXPECT_TRUE(tabs.Open(TabOf(TableNum::Flags, tab)));
    EXPECT_FALSE(tabs.Open(TabOf(TableNum::Flags, 30)));
    EXPECT_EQ(tabs.Count(), 30);
}

TEST(OpenTabs, FollowEachOtherRoundAndRound) {
    OpenTabs tabs = FourTabs();
    EXPECT_EQ(tabs.Beside(1), 2);
    EXPECT_EQ(tabs.Beside(3), 0);
    EXPECT_EQ(tabs.Beside(-2), 3);
}

TEST(OpenTabs, ShowTheRightNeighbourOfOneThatIsClosed) {
    OpenTabs tabs = FourTabs();
    EXPECT_TRUE(tabs.Close(1));
    EXPECT_EQ(ShownTabs(tabs), "0 [2] 3");
    tabs.GoTo(2);
    EXPECT_TRUE(tabs.Close(2));
    EXPECT_EQ(ShownTabs(tabs), "0 [2]");
}

TEST(OpenTabs, ShowTheSameWhenAnotherIsClosed) {
    OpenTabs tabs = FourTabs();
    tabs.Close(0);
    EXPECT_EQ(ShownTabs(tabs), "[1] 2 3");
    tabs.Close(2);
    EXPECT_EQ(ShownTabs(tabs), "[1] 2");
}

TEST(OpenTabs, KeepTheLastOne) {
    OpenTabs tabs;
    EXPECT_FALSE(tabs.Close(0));
    EXPECT_EQ(tabs.Count(), 1);
}

TEST(OpenTabs, ShowTheSameWhenTheyAreMoved) {
    OpenTabs tabs = FourTabs();
    tabs.Move(1, 3);
    EXPECT_EQ(ShownTabs(tabs), "0 2 3 [1]");
    tabs.Move(0, 3);
    EXPECT_EQ(ShownTabs(tabs), "2 3 [1] 0");
    tabs.Move(3, 0);
    EXPECT_EQ(ShownTabs(tabs), "0 2 3 [1]");
}

TEST(OpenTabs, AreTheSameAfterStoring) {
    OpenTabs tabs = FourTabs();
    tabs.Open({.place = {.view = {TableNum::ProcessTables, 2},
                         .filter = "a\ttab, a line\nend and a \\",
                         .sortField = "w1",
                         .sortsDown = true,
                         .grouping = Grouping::Place,
                         .folded = {"7 The Yard", "Any\nwhere"}},
               .record = true});
    tabs.GoTo(3);
    EXPECT_EQ(OpenTabs::From(tabs.Stored()), tabs);
}

TEST(OpenTabs, OfNonsenseAreTheOneAtFirst) {
    for (const char* stored : {"", "\n\n", "hello", "1\t99999\t0\t\t0\t0\t0\t\t", "1\t2\t7\t\t0\t0\t0\t\t",
                               "1\t2\t0\t\t0\t0\t9\t\t", "1\t2\t0"}) {
        EXPECT_EQ(OpenTabs::From(stored), OpenTabs()) << stored;
    }
}

TEST(OpenTabs, LeaveOutLinesWithoutSense) {
    const OpenTabs tabs = OpenTabs::From("0\t2\t0\t4\t0\t0\t0\t\t\nhello\n1\t2\t0\t5\t0\t0\t0\t\t");
    EXPECT_EQ(ShownTabs(tabs), "4 [5]");
}

}  // namespace
}  // namespace fabula::authoring
