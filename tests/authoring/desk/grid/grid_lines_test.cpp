#include "authoring/desk/grid/grid_lines.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

/// What stands on the lines: "[GET]" for a heading, the number of a row else.
std::string Shown(const GridLines& lines) {
    std::string shown;
    for (int line = 0; line < lines.Count(); ++line) {
        const GridLine& at = lines.At(line);
        shown += line > 0 ? " " : "";
        shown += at.IsHeading() ? "[" + lines.Groups()[static_cast<std::size_t>(at.group)].title + "]"
                                : std::to_string(at.row);
    }
    return shown;
}

GridLines TwoGroups() {
    GridLines lines;
    lines.Set(3, {{"DROP", 0, 1}, {"GET", 1, 2}});
    return lines;
}

TEST(GridLines, WithoutGroupsAreTheRows) {
    GridLines lines;
    lines.Set(3, {});
    EXPECT_EQ(Shown(lines), "0 1 2");
    EXPECT_EQ(lines.OfRow(2), 2);
    EXPECT_EQ(lines.GroupOf(2), -1);
}

TEST(GridLines, OfGroupsHaveAHeadingAboveTheirRows) {
    const GridLines lines = TwoGroups();
    EXPECT_EQ(Shown(lines), "[DROP] 0 [GET] 1 2");
    EXPECT_EQ(lines.OfRow(1), 3);
    EXPECT_EQ(lines.OfGroup(1), 2);
    EXPECT_EQ(lines.GroupOf(2), 1);
}

TEST(GridLines, OfAFoldedGroupAreItsHeadingAlone) {
    GridLines lines = TwoGroups();
    lines.Fold(1, true);
    EXPECT_EQ(Shown(lines), "[DROP] 0 [GET]");
    EXPECT_EQ(lines.OfRow(2), 2);
    lines.Fold(1, false);
    EXPECT_EQ(Shown(lines), "[DROP] 0 [GET] 1 2");
}

TEST(GridLines, FoldAllTogether) {
    GridLines lines = TwoGroups();
    lines.FoldAll(true);
    EXPECT_EQ(Shown(lines), "[DROP] [GET]");
    lines.FoldAll(false);
    EXPECT_EQ(Shown(lines), "[DROP] 0 [GET] 1 2");
}

TEST(GridLines, OfAGroupThatComesBackAreStillFolded) {
    GridLines lines = TwoGroups();
    lines.Fold(1, true);
    lines.Set(1, {{"DROP", 0, 1}});
    EXPECT_EQ(Shown(lines), "[DROP] 0");
    lines.Set(2, {{"DROP", 0, 1}, {"GET", 1, 1}});
    EXPECT_EQ(Shown(lines), "[DROP] 0 [GET]");
}

TEST(GridLines, AreReadAloudWithTheirCount) {
    GridLines lines = TwoGroups();
    lines.Fold(1, true);
    EXPECT_EQ(lines.Spoken(0), "DROP, 1 entry, unfolded");
    EXPECT_EQ(lines.Spoken(1), "GET, 2 entries, folded");
}

TEST(GridLines, OfWhatIsNotThereAreNone) {
    const GridLines lines = TwoGroups();
    EXPECT_EQ(lines.OfRow(3), -1);
    EXPECT_EQ(lines.OfRow(-1), -1);
    EXPECT_EQ(lines.OfGroup(2), -1);
    EXPECT_EQ(lines.OfGroup(-1), -1);
}

}  // namespace
}  // namespace fabula::authoring
