#include "listings/pages/html_page.h"

#include <string>

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"

namespace fabula::listings {
namespace {

using store::TableNum;

Line TextLine(std::string text) {
    return {.text = std::move(text)};
}

Line PlacedLine(std::string text, int message) {
    Line line = TextLine(std::move(text));
    line.place = Place{TableNum::Messages, message};
    return line;
}

Line LinkedLine(std::string text, Link link) {
    Line line = TextLine(std::move(text));
    line.links.push_back(link);
    return line;
}

TEST(HtmlPage, TextOfTheGameIsEscaped) {
    HtmlPage page("<b>Mill</b>");
    page.BeginReport("A & B", std::nullopt);
    page.Put(TextLine("<script>alert(\"x\")</script>"));
    const std::string file = page.Finish();
    EXPECT_EQ(file.find("<script"), std::string::npos);
    EXPECT_NE(file.find("&lt;script&gt;alert(&quot;x&quot;)&lt;/script&gt;"), std::string::npos);
    EXPECT_NE(file.find("<h1>&lt;b&gt;Mill&lt;/b&gt;</h1>"), std::string::npos);
    EXPECT_NE(file.find(">A &amp; B</h2>"), std::string::npos);
    EXPECT_NE(file.find(">A &amp; B</a></li>"), std::string::npos);
}

TEST(HtmlPage, ContentsLeadToEachReport) {
    HtmlPage page("Mill");
    page.BeginReport("First", std::nullopt);
    page.BeginReport("Second", std::nullopt);
    const std::string file = page.Finish();
    EXPECT_NE(
        file.find("<li><a href=\"#report-1\">First</a></li>\n<li><a href=\"#report-2\">Second</a></li>"),
        std::string::npos);
    EXPECT_NE(file.find("<h2 id=\"report-1\">First</h2>"), std::string::npos);
    EXPECT_NE(file.find("<h2 id=\"report-2\">Second</h2>"), std::string::npos);
}

TEST(HtmlPage, NumberIsALinkToThePlaceOfItsRecord) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    page.Put(LinkedLine("see 12 there", {4, 2, {TableNum::Messages, 12}}));
    page.Put(PlacedLine("12 text", 12));
    const std::string file = page.Finish();
    EXPECT_NE(file.find("see <a href=\"#messages-12\">12</a> there"), std::string::npos);
    EXPECT_NE(file.find("<div class=\"line\" id=\"messages-12\">12 text</div>"), std::string::npos);
}

TEST(HtmlPage, NumberWhoseRecordIsNotListedIsNoLink) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    page.Put(LinkedLine("see 12", {4, 2, {TableNum::Messages, 12}}));
    EXPECT_NE(page.Finish().find("<div class=\"line\">see 12</div>"), std::string::npos);
}

TEST(HtmlPage, ColumnsOfLinksCountCharacters) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    Line line = PlacedLine("\u00E9\u00E9 7<", 7);
    line.links.push_back({3, 1, {TableNum::Messages, 7}});
    page.Put(line);
    EXPECT_NE(page.Finish().find("\u00E9\u00E9 <a href=\"#messages-7\">7</a>&lt;</div>"),
              std::string::npos);
}

TEST(HtmlPage, PlaceThatComesTwiceIsMarkedOnce) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    page.Put(PlacedLine("a", 1));
    page.Put(PlacedLine("b", 1));
    const std::string file = page.Finish();
    EXPECT_EQ(file.find("id=\"messages-1\""), file.rfind("id=\"messages-1\""));
}

TEST(HtmlPage, LineThatGoesOnStaysInItsBlock) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    page.Put(TextLine("1  one"));
    page.Put({.text = "   two", .continues = true});
    EXPECT_NE(page.Finish().find("<div class=\"line\">1  one\n   two</div>"), std::string::npos);
}

TEST(HtmlPage, PicturesArePartOfTheFile) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    Line line = TextLine("");
    line.pictures.push_back(
        {.column = 0,
         .columns = 4,
         .lines = 2,
         .image = std::make_shared<pictures::Image>(8, 8, pictures::MakeColour(0, 0, 0)),
         .description = "Character 65",
         .caption = "65"});
    page.Put(line);
    const std::string file = page.Finish();
    EXPECT_NE(file.find("<figure><img alt=\"Character 65\" width=\"32\" height=\"32\" "
                        "src=\"data:image/png;base64,iVBORw0KGgo"),
              std::string::npos);
    EXPECT_NE(file.find("<figcaption>65</figcaption></figure>"), std::string::npos);
}

TEST(HtmlPage, DescriptionOfAPictureDoesNotEndItsAttribute) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    Line line;
    line.pictures.push_back({.lines = 2,
                             .image = std::make_shared<pictures::Image>(1, 1, pictures::Colour{}),
                             .description = "a \" onload=\"x"});
    page.Put(line);
    EXPECT_NE(page.Finish().find("alt=\"a &quot; onload=&quot;x\""), std::string::npos);
}

TEST(HtmlPage, PictureInALineCoversItsColumns) {
    HtmlPage page("Mill");
    page.BeginReport("R", std::nullopt);
    Line line = TextLine("65 A  255");
    line.pictures.push_back(
        {.column = 3,
         .columns = 2,
         .image = std::make_shared<pictures::Image>(8, 8, pictures::MakeColour(0, 0, 0)),
         .description = "Character 65"});
    page.Put(line);
    const std::string file = page.Finish();
    EXPECT_NE(file.find("<div class=\"line\">65 <img alt=\"Character 65\""), std::string::npos);
    EXPECT_NE(file.find("/> 255</div>"), std::string::npos);
}

TEST(HtmlPage, ListingIsNotPartedIntoPages) {
    const test::OpenedAdventure adventure;
    HtmlPage page("Mill");
    WriteReport(*FindReport("flags"), {}, *adventure, page);
    const std::string file = page.Finish();
    EXPECT_EQ(file.find("Number  "), file.rfind("Number  "));
    EXPECT_EQ(file.find("Page "), std::string::npos);
}

}  // namespace
}  // namespace fabula::listings
