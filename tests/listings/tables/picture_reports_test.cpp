#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"
#include "listings/tables/gosub.h"
#include "pictures/book_loader.h"

namespace fabula::listings {
namespace {

using store::TableNum;
using Numbers = std::vector<int>;

class PictureReports : public testing::Test {
  protected:
    PictureReports() { Empty(*adventure_, TableNum::Pictures); }

    void Picture(int number, std::string drawstring, int paper = 7, int ink = 0,
                 std::string name = "mill") {
        AddRecord(*adventure_, TableNum::Pictures,
                  {{"locnum", std::int64_t{number}},
                   {"loctype", std::string("Picture")},
                   {"locpaper", std::int64_t{paper}},
                   {"locink", std::int64_t{ink}},
                   {"picname", std::move(name)},
                   {"roompicnum", std::int64_t{number}},
                   {"drawstring", std::move(drawstring)}});
    }
    Numbers Needed(const Numbers& wanted) {
        return PicturesNeeded(pictures::LoadPictureBook(*adventure_), wanted);
    }

    test::OpenedAdventure adventure_;
};

TEST_F(PictureReports, CommandsStandOneToALineBelowThePicture) {
    Picture(5, "INK 2 PLOT 0 10 20 END");
    const std::string listed = Listed(*adventure_, "graphics");
    EXPECT_NE(listed.find("  5  Picture      7    0  mill                     5\n"), std::string::npos)
        << listed;
    EXPECT_TRUE(
        listed.ends_with("Graphics Picture Commands\n"
                         "INK       2\n"
                         "PLOT      0      10     20\n"
                         "END\n"))
        << listed;
}

TEST_F(PictureReports, PaperOfTwoDigitsKeepsTheColumns) {
    Picture(5, "END", 15, 10);
    EXPECT_NE(
        Listed(*adventure_, "graphics").find("  5  Picture     15   10  mill                     5\n"),
        std::string::npos);
}

TEST_F(PictureReports, ColumnOfNamesIsAsWideAsTheLongest) {
    Picture(5, "END", 7, 0, "pictures/windmill/Room005.bmp");
    EXPECT_NE(Listed(*adventure_, "graphics").find("pictures/windmill/Room005.bmp     5\n"),
              std::string::npos);
}

TEST_F(PictureReports, ColumnOfNumbersIsAsWideAsTheLongest) {
    Picture(5, "END");
    Picture(1000, "END");
    const std::string listed = Listed(*adventure_, "graphics");
    EXPECT_NE(listed.find("\nNum   Type       Paper"), std::string::npos) << listed;
    EXPECT_NE(listed.find("\n   5  Picture "), std::string::npos) << listed;
    EXPECT_NE(listed.find("\n1000  Picture "), std::string::npos) << listed;
}

TEST_F(PictureReports, APictureThatDoesNotFitBeginsOnANewPage) {
    std::string commands;
    for (int i = 0; i < 60; ++i)
        commands += "INK 2 ";
    Picture(5, "INK 2 END");
    Picture(6, commands + "END");
    const std::string listed = Listed(*adventure_, "graphics", {}, 60);
    const std::size_t second = listed.find("  6  Picture");
    ASSERT_NE(second, std::string::npos);
    const std::size_t heading = listed.rfind("--- ----------", second);
    ASSERT_NE(heading, std::string::npos) << listed;
    EXPECT_GT(heading, listed.find("  5  Picture"));
}

TEST_F(PictureReports, PictureThatCannotBeDrawnTellsWhyAndListsItsCommands) {
    Picture(5, "GOSUB sc=0 99 END");
    const std::string listed = Listed(*adventure_, "graphics");
    EXPECT_NE(listed.find("\nPicture 5 can't be drawn: there is no picture 99 for its GOSUB.\n"),
              std::string::npos);
    EXPECT_TRUE(listed.ends_with("GOSUB     sc=0   99\nEND\n")) << listed;
}

TEST_F(PictureReports, ParametersThatAreMissingAreNotMadeUp) {
    Picture(5, "BOGUS PLOT 0");
    EXPECT_TRUE(Listed(*adventure_, "graphics").ends_with("BOGUS\nPLOT      0\n"));
}

TEST_F(PictureReports, OnlyTheAskedPicturesAreListed) {
    Picture(5, "END");
    Picture(6, "END");
    const std::string listed = Listed(*adventure_, "graphics", {.numbers = Numbers{6}});
    EXPECT_EQ(listed.find("  5  Picture"), std::string::npos);
    EXPECT_NE(listed.find("  6  Picture"), std::string::npos);
}

TEST_F(PictureReports, GosubListClosesOverNestedSubroutines) {
    Picture(1, "GOSUB 0 7 GOSUB 0 8 END");
    Picture(7, "GOSUB 0 9 END");
    Picture(8, "GOSUB 0 7 END");
    Picture(9, "END");
    EXPECT_EQ(Needed({1}), (Numbers{1, 7, 8, 9}));
}

TEST_F(PictureReports, PictureThatIsCalledAndDoesNotExistIsAmongThoseNeeded) {
    Picture(1, "GOSUB 0 7 GOSUB 0 8 END");
    Picture(8, "END");
    EXPECT_EQ(Needed({1}), (Numbers{1, 7, 8}));
}

TEST_F(PictureReports, CallWithoutItsNumberCallsNothing) {
    Picture(1, "GOSUB 0 7 GOSUB 0");
    EXPECT_EQ(Needed({1}), (Numbers{1, 7}));
}

TEST_F(PictureReports, PictureThatCallsItselfAppearsOnce) {
    Picture(3, "GOSUB 0 3 END");
    EXPECT_EQ(Needed({3}), Numbers{3});
}

TEST_F(PictureReports, ParameterThatReadsLikeGosubIsNoCall) {
    Picture(1, "INK GOSUB 5 END");
    EXPECT_EQ(Needed({1}), Numbers{1});
}

TEST_F(PictureReports, GosubReportHasSixNumbersALineInCellsOfTenColumns) {
    for (int number = 1; number <= 7; ++number)
        Picture(number, "END");
    EXPECT_TRUE(Listed(*adventure_, "gosub")
                    .ends_with("Graphics Records which must be extracted\n"
                               "1         2         3         4         5         6\n"
                               "7\n"
                               "                  to get all the applicable GOSUBS for records\n"
                               "                                 1,2,3,4,5,6,7\n"));
}

}  // namespace
}  // namespace fabula::listings
