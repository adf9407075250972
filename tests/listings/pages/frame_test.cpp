#include "listings/pages/frame.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "listings/pages/text_page.h"

namespace fabula::listings {
namespace {

std::vector<Line> RecordOf(int lines, const std::string& text) {
    return std::vector<Line>(static_cast<std::size_t>(lines), {.text = text});
}

TEST(Frame, HeaderHasTitleInTheMiddlePageNumberNameAndHeadings) {
    TextPage page;
    Frame frame(page, "The Mill");
    frame.Begin("Object Listing", {"Num Description", "--- -----------"});
    EXPECT_EQ(page.Text(),
              "                                 Object Listing                      Page    1\n"
              "The Mill\n"
              "\n"
              "Num Description\n"
              "--- -----------\n");
}

TEST(Frame, NameOfTheAdventureAndTitleAreSafeToShow) {
    TextPage page;
    Frame frame(page, "The\x1B[2JMill");
    frame.Begin("Keypad\x1B[2J", {});
    EXPECT_EQ(page.Text().find('\x1B'), std::string::npos);
    EXPECT_NE(page.Text().find("The\uFFFD[2JMill\n"), std::string::npos);
}

TEST(Frame, BlanksBeforeTheTitleAreRoundedDown) {
    TextPage page;
    Frame frame(page, "");
    frame.Begin("12345", {});
    EXPECT_EQ(page.Text().find("12345"), 37u);
}

TEST(Frame, TitleLongerThan80ColumnsStartsAtColumn0) {
    TextPage page;
    Frame frame(page, "The Mill");
    const std::string title(83, 'x');
    frame.Begin(title, {});
    EXPECT_EQ(page.Text(), title + "\n" + std::string(69, ' ') + "Page    1\nThe Mill\n\n");
}

TEST(Frame, HeadingsThatAreEmptyAreNotWritten) {
    TextPage page;
    Frame frame(page, "The Mill");
    frame.Begin("A", {"", "Heading"});
    EXPECT_TRUE(page.Text().ends_with("The Mill\n\nHeading\n"));
}

TEST(Frame, RecordThatWouldNotFitBeginsOnTheNextPage) {
    TextPage page(7);
    Frame frame(page, "N");
    frame.Begin("T", {});
    frame.Add(RecordOf(3, "first"));
    frame.Add(RecordOf(2, "second"));
    const std::string text = page.Text();
    EXPECT_LT(text.find("first\n\f"), text.find("second"));
    EXPECT_NE(text.find("Page    2"), std::string::npos);
}

TEST(Frame, RecordThatJustFitsStaysOnThePage) {
    TextPage page(7);
    Frame frame(page, "N");
    frame.Begin("T", {});
    frame.Add(RecordOf(2, "first"));
    frame.Add(RecordOf(2, "second"));
    EXPECT_EQ(page.Text().find('\f'), std::string::npos);
}

TEST(Frame, RecordLongerThanAPageStartsOnANewOneAndGoesOn) {
    TextPage page(6);
    Frame frame(page, "N");
    frame.Begin("T", {});
    frame.Add(RecordOf(1, "short"));
    frame.Add(RecordOf(5, "long"));
    const std::string& text = page.Text();
    std::vector<int> linesOnPages{0};
    for (const char c : text) {
        if (c == '\n') ++linesOnPages.back();
        if (c == '\f') linesOnPages.push_back(0);
    }
    EXPECT_EQ(linesOnPages, (std::vector<int>{4, 6, 5}));
}

TEST(Frame, PageNumberCountsOnOverTheReportsOfAListing) {
    TextPage page(10);
    Frame frame(page, "N");
    frame.Begin("First", {});
    frame.Begin("Second", {});
    const std::string text = page.Text();
    EXPECT_NE(text.find("Second"), std::string::npos);
    EXPECT_NE(text.find("Page    2", text.find("Second")), std::string::npos);
    EXPECT_NE(text.find('\f'), std::string::npos);
}

TEST(Frame, LineCountStartsAnewOnEachPage) {
    TextPage page(5);
    Frame frame(page, "N");
    frame.Begin("T", {});
    for (int i = 0; i < 4; ++i)
        frame.Add(RecordOf(1, "x"));
    EXPECT_EQ(std::count(page.Text().begin(), page.Text().end(), '\f'), 1);
}

TEST(Frame, NothingIsPartedOnAPageWithoutEnd) {
    TextPage page(0);
    Frame frame(page, "N");
    frame.Begin("T", {});
    frame.Add(RecordOf(500, "x"));
    EXPECT_EQ(page.Text().find('\f'), std::string::npos);
}

}  // namespace
}  // namespace fabula::listings
