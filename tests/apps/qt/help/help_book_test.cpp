#include "qt/help/help_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/help_folder.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Lines(const std::vector<qt::HelpBook::Entry>& entries) {
    std::vector<std::string> lines;
    for (const auto& entry : entries)
        lines.push_back(std::to_string(entry.depth) + " " + qt::FromQt(entry.title) + " " +
                        qt::FromQt(entry.page));
    return lines;
}

std::vector<std::string> Titles(const std::vector<qt::HelpBook::Hit>& hits) {
    std::vector<std::string> titles;
    for (const auto& hit : hits)
        titles.push_back(qt::FromQt(hit.title));
    return titles;
}

TEST(HelpBook, ContentsAreTheLinksOfThePageAndOfItsInnerLists) {
    const HelpFolder folder;
    EXPECT_THAT(Lines(qt::HelpBook(folder.Contents()).Contents()),
                ElementsAre("0 A first game first.html", "0 Screens frmvelidemain.html",
                            "1 Location frmvellocation.html", "1 Word frmvelvocabulary.html",
                            "0 Flags flags.html", "1 Lamp flags.html#f10"));
}

TEST(HelpBook, HeadingsAreTheUpperLevelOfTheContents) {
    const HelpFolder folder;
    folder.Write("contents.html",
                 "<h1>Contents</h1><h2>Screens</h2><ul><li><a href='flags.html'>Flags</a></li></ul>"
                 "<h2>More</h2><p><a href='first.html'>First</a></p>");
    EXPECT_THAT(Lines(qt::HelpBook(folder.Contents()).Contents()),
                ElementsAre("0 Screens ", "1 Flags flags.html", "0 More ", "1 First first.html"));
}

TEST(HelpBook, FolderWithoutContentsIsNoHelp) {
    const TempFolder empty;
    const qt::HelpBook book(empty / "contents.html");
    EXPECT_FALSE(book.Exists());
    EXPECT_THAT(book.Contents(), IsEmpty());
}

TEST(HelpBook, SearchFindsWordsInTitlesFirstAndThenByTheirNumber) {
    const HelpFolder folder;
    qt::HelpBook book(folder.Contents());
    EXPECT_THAT(Titles(book.Search("lamp")), ElementsAre("Main window", "A first game", "Flags"));
    EXPECT_THAT(Titles(book.Search("WORD")), ElementsAre("Word"));
    EXPECT_THAT(Titles(book.Search("first")), ElementsAre("A first game"));
}

TEST(HelpBook, SearchWantsEveryWord) {
    const HelpFolder folder;
    qt::HelpBook book(folder.Contents());
    EXPECT_THAT(Titles(book.Search("light lamp")), ElementsAre("A first game"));
    EXPECT_THAT(Titles(book.Search("light exit")), IsEmpty());
    EXPECT_THAT(Titles(book.Search("  ")), IsEmpty());
}

TEST(HelpBook, HitShowsTheTextAroundTheFirstPlace) {
    const HelpFolder folder;
    folder.Write("long.html", "<title>Long</title><p>" + std::string(100, 'x') + " needle " +
                                  std::string(200, 'y') + "</p>");
    const auto hits = qt::HelpBook(folder.Contents()).Search("needle");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(qt::FromQt(hits[0].excerpt),
              "…" + std::string(39, 'x') + " needle " + std::string(93, 'y') + "…");
}

TEST(HelpBook, PageOutsideTheFolderIsNone) {
    const HelpFolder folder;
    const qt::HelpBook book(folder.Contents());
    EXPECT_EQ(book.FileOf("flags.html#f10").filename(), "flags.html");
    EXPECT_TRUE(book.FileOf("../flags.html").empty());
    EXPECT_TRUE(book.FileOf("/etc/passwd").empty());
    EXPECT_TRUE(book.FileOf("missing.html").empty());
    EXPECT_TRUE(book.FileOf("").empty());
}

TEST(HelpBook, AnchorIsTheFirstThatThePageHas) {
    const HelpFolder folder;
    const qt::HelpBook book(folder.Contents());
    EXPECT_EQ(book.AnchorIn("frmvellocation.html", {"nothing", "cmdadd", "txtexits"}), "cmdadd");
    EXPECT_EQ(book.AnchorIn("frmvellocation.html", {"txtexits"}), "txtexits");
    EXPECT_EQ(book.AnchorIn("frmvellocation.html", {"txtexit", ""}), "");
}

}  // namespace
}  // namespace fabula::test
