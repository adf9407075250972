#include "authoring/fields/texts/short_desc.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;
using store::TableNum;

class ShortDescTest : public testing::Test {
  protected:
    ShortDescTest() : document_(Made(folder_ / "game.fbd")) {
        store::Cursor& locations = document_.Adventure().OpenTable(TableNum::Locations, "def");
        for (int number = 1; number <= 3; ++number) {
            locations.AddNew();
            locations.SetField("locnum", std::int64_t{number});
            locations.SetField("locshortdesc", std::string("Old."));
            locations.Update();
        }
    }
    static path Made(const path& file) {
        test::MakeAdventure(file);
        return file;
    }
    void Write(const std::string& content) const { std::ofstream(folder_ / "ShortDesc.lis") << content; }
    std::string Of(int number) {
        return std::string(document_.Adventure()
                               .OpenTable(TableNum::Locations, "def", "locnum=" + std::to_string(number))
                               .Text("locshortdesc"));
    }

    test::TempFolder folder_;
    Document document_;
    platform::ScriptedDialogs dialogs_;
    ScreenContext context_{document_, dialogs_};
};

TEST_F(ShortDescTest, OfEachLineIsSetAsOneChange) {
    Write("1: A wide hall.\r\n\n 2 :The kitchen: warm.\n");
    EXPECT_TRUE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "A wide hall.");
    EXPECT_EQ(Of(2), "The kitchen: warm.");
    EXPECT_EQ(Of(3), "Old.");
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "2 short descriptions loaded");
    EXPECT_EQ(document_.UndoName(), "load short descriptions");
    document_.Undo();
    EXPECT_EQ(Of(1), "Old.");
    EXPECT_EQ(Of(2), "Old.");
}

TEST_F(ShortDescTest, WithoutATextIsABlank) {
    Write("1:\n");
    EXPECT_TRUE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), " ");
}

TEST_F(ShortDescTest, FileThatIsMissingIsToldAndNothingChanges) {
    EXPECT_FALSE(LoadShortDesc(context_));
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Cannot find ShortDesc.lis in " + folder_.Path().string());
    EXPECT_EQ(dialogs_.Boxes().at(0).title, "Error");
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(ShortDescTest, LinkInPlaceOfTheFileIsNotFollowed) {
    std::ofstream(folder_ / "other.txt") << "1: New.\n";
    std::filesystem::create_symlink(folder_ / "other.txt", folder_ / "ShortDesc.lis");
    EXPECT_FALSE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "Old.");
}

TEST_F(ShortDescTest, LinesThatAreWrongAreLeftOutAndTold) {
    Write("1 no colon\nx: A.\n9: A.\n2: <b>Bold</b>\n3: New.\n");
    EXPECT_TRUE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "Old.");
    EXPECT_EQ(Of(2), "Old.");
    EXPECT_EQ(Of(3), "New.");
    ASSERT_EQ(dialogs_.Reports().size(), 1U);
    EXPECT_EQ(dialogs_.Reports()[0].text,
              "ShortDesc.lis:1:1: fault: There is no \":\" behind a location number\n"
              "ShortDesc.lis:2:1: fault: The location number is not numeric\n"
              "ShortDesc.lis:3:1: fault: There is not a location with a number of 9\n"
              "ShortDesc.lis:4:1: fault: Word: 1 Tags not allowed in this Description\n"
              "1 short descriptions loaded");
}

TEST_F(ShortDescTest, LongerThanItsFieldIsLeftOut) {
    std::string text;
    for (int word = 0; word < 52; ++word)
        text += "word ";
    Write("1: " + text + "\n");
    EXPECT_TRUE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "Old.");
    EXPECT_TRUE(dialogs_.Reports().at(0).text.starts_with(
        "ShortDesc.lis:1:1: fault: A short description has at most 255 letters\n"));
}

TEST_F(ShortDescTest, FileThatIsNoListChangesNothing) {
    std::string content = "1: New.\n";
    for (int line = 0; line < 1000; ++line)
        content += "nonsense\n";
    Write(content);
    EXPECT_FALSE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "Old.");
    EXPECT_EQ(document_.UndoName(), std::nullopt);
    EXPECT_TRUE(dialogs_.Reports().at(0).text.ends_with("Too many errors. No short descriptions loaded."));
}

TEST_F(ShortDescTest, FileThatIsTooLargeIsToldAndNothingChanges) {
    Write("1: New.\n");
    std::filesystem::resize_file(folder_ / "ShortDesc.lis", kLargestShortDescFile + 1);
    EXPECT_FALSE(LoadShortDesc(context_));
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "ShortDesc.lis is too large. No short descriptions loaded.");
    EXPECT_EQ(Of(1), "Old.");
}

TEST_F(ShortDescTest, NumberThatIsNoLocationNumberIsNoFilter) {
    Write("1 or 1=1: New.\n99999999999999999999: New.\n-1: New.\n");
    EXPECT_TRUE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "Old.");
    EXPECT_EQ(Of(2), "Old.");
}

TEST_F(ShortDescTest, BytesThatAreNoLettersAreHarmless) {
    Write(
        std::string("\xEF\xBB\xBF"
                    "1: Caf\xC3\xA9\0 \xFF\n",
                    15));
    EXPECT_TRUE(LoadShortDesc(context_));
    EXPECT_EQ(Of(1), "Caf\xC3\xA9  \xEF\xBF\xBD");
}

}  // namespace
}  // namespace fabula::authoring
