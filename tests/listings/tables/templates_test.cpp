#include "listings/tables/templates.h"

#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"
#include "platform/error.h"
#include "support/places.h"

namespace fabula::listings {
namespace {

using Lines = std::vector<std::string>;

TEST(Template, CountAndSignBuildALineThatACountOfZeroPrints) {
    EXPECT_EQ(DrawTemplate("1 + 3 - 1 + 0 2 2 x 0 1", "t"), (Lines{"+---+", "+---+", "xx"}));
}

TEST(Template, OneDigitIsItselfAndTwoAreACode) {
    EXPECT_EQ(DrawTemplate("2 7 1 32 1 65 0 1", "t"), (Lines{"77 A"}));
}

TEST(Template, LineThatIsNeverPrintedIsNotThere) {
    EXPECT_EQ(DrawTemplate("3 x", "t"), Lines{});
}

TEST(Template, CommentPrintsNothingAlsoInTheMiddleOfTheFile) {
    EXPECT_EQ(TemplateWords("! first\n1 a\n! 5 z 0 9\r\n 0   1 \n"), "1 a 0 1");
}

TEST(Template, ThatIsNoneIsRefusedWithItsName) {
    for (const char* words : {"x a", "1", "-1 a", "0", "0 x", "1 xyz", "201 a", "0 1001", "1 99999999"}) {
        try {
            DrawTemplate(words, "overlay");
            ADD_FAILURE() << words;
        } catch (const Error& error) {
            EXPECT_NE(std::string(error.what()).find("overlay"), std::string::npos) << error.what();
        }
    }
}

TEST(Template, DrawsNoMoreThanItsBounds) {
    EXPECT_THROW(DrawTemplate("1 a 0 600 1 a 0 600", "t"), Error);
    EXPECT_THROW(DrawTemplate("150 a 150 a 0 1", "t"), Error);
}

TEST(Template, DrawsUpToItsBounds) {
    EXPECT_EQ(DrawTemplate("200 a 0 1000", "t"), Lines(1000, std::string(200, 'a')));
}

TEST(Template, CodeThatNoSignHasIsRefused) {
    for (const char* words : {"1 1114112 0 1", "1 55296 0 1", "1 57343 0 1"})
        EXPECT_THROW(DrawTemplate(words, "t"), Error) << words;
    EXPECT_EQ(DrawTemplate("1 57344 0 1", "t"), Lines{"\uE000"});
}

TEST(Template, RecordThatIsTooLargeIsRefusedThoughItPrintsNothing) {
    const test::OpenedAdventure adventure;
    std::string commands;
    while (commands.size() <= kLargestTemplate)
        commands += "1 a 0 0 ";
    AddRecord(*adventure, store::TableNum::Templates,
              {{"tempname", std::string("large")}, {"commands", commands}});
    try {
        DrawTemplateRecord(*adventure, "large");
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "The template large can't be printed: it is too large.");
    }
}

TEST(Template, FileAndRecordDrawTheSame) {
    const test::OpenedAdventure adventure;
    const auto folder = test::SourceFolder() / "data/templates";
    for (const char* name : {"keypad_small", "keypad_large"}) {
        const Lines drawn = DrawTemplateFile(folder, name);
        EXPECT_GT(drawn.size(), 5u);
        Empty(*adventure, store::TableNum::Templates);
        std::ifstream file(folder / (std::string(name) + ".tpl"));
        const std::string text((std::istreambuf_iterator<char>(file)), {});
        AddRecord(*adventure, store::TableNum::Templates,
                  {{"tempname", std::string(name)}, {"commands", TemplateWords(text)}});
        EXPECT_EQ(DrawTemplateRecord(*adventure, name), drawn);
    }
}

TEST(Template, ThatIsNotThereIsNotAvailable) {
    const test::OpenedAdventure adventure;
    try {
        DrawTemplateRecord(*adventure, "keypad' or ''='");
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "keypad' or ''=' is not available");
    }
    EXPECT_THROW(DrawTemplateFile(test::SourceFolder() / "data/templates", "keypad"), Error);
}

TEST(TemplatesReport, PrintsAFileByItsName) {
    const test::OpenedAdventure adventure;
    const std::string file = (test::SourceFolder() / "data/templates/keypad_small.tpl").string();
    EXPECT_NE(Listed(*adventure, "templates", {.names = {file}}).find("|INS|HOM|PUP|"), std::string::npos);
}

TEST(TemplatesReport, PrintsTheNamedOneUnderItsHeader) {
    const test::OpenedAdventure adventure;
    Empty(*adventure, store::TableNum::Templates);
    AddRecord(*adventure, store::TableNum::Templates,
              {{"tempname", std::string("pad")}, {"commands", std::string("3 # 0 2")}});
    const std::string listed = Listed(*adventure, "templates", {.names = {"pad"}});
    EXPECT_TRUE(listed.ends_with("\n\n###\n###\n")) << listed;
}

}  // namespace
}  // namespace fabula::listings
