#include "listings/pages/print_preview.h"

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"

namespace fabula::listings {
namespace {

class Preview : public testing::Test {
  protected:
    test::OpenedAdventure adventure_;
    PrintPreview preview_{{FindReport("flags"), {}, "Flag Descriptions Table"}, *adventure_};
};

TEST_F(Preview, HasNoPagesBeforeItRuns) {
    EXPECT_EQ(preview_.PageCount(), 1);
    EXPECT_TRUE(preview_.ShownSheet().lines.empty());
    EXPECT_FALSE(preview_.CanGoOn());
    EXPECT_EQ(preview_.Title(), "Print Preview for Flag Descriptions Table");
}

TEST_F(Preview, MovesEndAtTheFirstAndTheLastPage) {
    preview_.Run();
    ASSERT_GT(preview_.PageCount(), 3);
    preview_.Previous();
    EXPECT_EQ(preview_.Page(), 1);
    preview_.Next();
    EXPECT_EQ(preview_.Page(), 2);
    preview_.Last();
    EXPECT_EQ(preview_.Page(), preview_.PageCount());
    preview_.Next();
    EXPECT_EQ(preview_.Page(), preview_.PageCount());
    EXPECT_FALSE(preview_.CanGoOn());
    preview_.First();
    EXPECT_EQ(preview_.Page(), 1);
    EXPECT_FALSE(preview_.CanGoBack());
}

TEST_F(Preview, SheetsAreThePagesOfTheText) {
    preview_.Run();
    preview_.Next();
    const std::string text = Listed(*adventure_, "flags", {}, kTextPageLines);
    std::string sheet;
    for (const Line& line : preview_.ShownSheet().lines)
        sheet += line.text + "\n";
    const std::size_t second = text.find('\f') + 1;
    EXPECT_EQ(sheet, text.substr(second, text.find('\f', second) - second));
}

TEST_F(Preview, GrowsAndShrinksToItsBounds) {
    EXPECT_EQ(preview_.Percent(), 100);
    preview_.Plus();
    EXPECT_EQ(preview_.Percent(), 125);
    for (int i = 0; i < 20; ++i)
        preview_.Plus();
    EXPECT_FALSE(preview_.CanGrow());
    for (int i = 0; i < 20; ++i)
        preview_.Minus();
    EXPECT_EQ(preview_.Percent(), 25);
    EXPECT_FALSE(preview_.CanShrink());
}

TEST_F(Preview, SheetsOfWideListingsHaveTheirColumns) {
    PrintPreview objects({FindReport("objects"), {.detail = Detail::Verbose}, "Object Table"}, *adventure_);
    objects.Run();
    EXPECT_GT(objects.Pages().Columns(), 100u);
}

TEST(Paper, SheetHasNoMoreColumnsThanItsBound) {
    Paper paper;
    paper.Put({.text = std::string(kMostSheetColumns + 600, 'x')});
    EXPECT_EQ(paper.Columns(), kMostSheetColumns);
}

}  // namespace
}  // namespace fabula::listings
