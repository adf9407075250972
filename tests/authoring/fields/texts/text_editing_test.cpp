#include "authoring/fields/texts/text_editing.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class TextEditingTest : public testing::Test {
  protected:
    void Set(std::string_view field, text::Value value) {
        store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
        settings.SetField(field, std::move(value));
        settings.Update();
        adventure_->ReadSettings();
    }
    void SetNumber(std::string_view field, int value) { Set(field, std::int64_t{value}); }

    /// The shown lines, each with "|" at its end.
    std::string Lines(std::string_view text) const {
        std::string lines;
        for (const ShownLine& line : TextEditing(*adventure_).Show(text).lines) {
            for (const ShownRun& run : line)
                lines += run.text;
            lines += "|";
        }
        return lines;
    }
    TextCounts Count(std::string_view text) const { return TextEditing(*adventure_).Count(text); }

    test::OpenedAdventure adventure_;
};

TEST_F(TextEditingTest, LooksAsTheSettingsSay) {
    SetNumber("Font", 4);
    SetNumber("FontSize", 14);
    SetNumber("BackColor", 1);
    SetNumber("textcolor", 6);
    const TextEditing editing(*adventure_);
    EXPECT_EQ(editing.FontName(), "Georgia");
    EXPECT_EQ(editing.FontPoints(), 14);
    EXPECT_EQ(editing.Paper(), 1);
    EXPECT_EQ(editing.Ink(), 6);
}

TEST_F(TextEditingTest, AFontAndASizeThatTheCodesLackAreTheProgramsOwn) {
    SetNumber("Font", 40);
    SetNumber("FontSize", 4000);
    const TextEditing editing(*adventure_);
    EXPECT_EQ(editing.FontName(), "");
    EXPECT_EQ(editing.FontPoints(), 12);
}

TEST_F(TextEditingTest, WithCharacterSetsThereIsNoFontAndNoPreview) {
    Set("charsets", true);
    const TextEditing editing(*adventure_);
    EXPECT_EQ(editing.FontName(), "");
    EXPECT_EQ(editing.PreviewColumns(), 0);
}

TEST_F(TextEditingTest, ThePreviewIsAsWideAsTheGameUpTo80Columns) {
    SetNumber("defprintwidth", 35);
    EXPECT_EQ(TextEditing(*adventure_).PreviewColumns(), 35);
    SetNumber("defprintwidth", 80);
    EXPECT_EQ(TextEditing(*adventure_).PreviewColumns(), 80);
    SetNumber("defprintwidth", 132);
    EXPECT_EQ(TextEditing(*adventure_).PreviewColumns(), 80);
    SetNumber("defprintwidth", 0);
    EXPECT_EQ(TextEditing(*adventure_).PreviewColumns(), 80);
}

TEST_F(TextEditingTest, ShowsATextWrappedAtTheWidth) {
    SetNumber("defprintwidth", 20);
    EXPECT_EQ(Lines("You are in a dark and dusty room."), "You are in a dark |and dusty room.|");
}

TEST_F(TextEditingTest, ShowsEveryFormOfLineEnd) {
    EXPECT_EQ(Lines("a\u008C"
                    "b\nc\r\nd<br>e"),
              "a|b|c|d|e|");
}

TEST_F(TextEditingTest, ShowsTagsByWhatTheyDo) {
    SetNumber("textcolor", 7);
    SetNumber("BackColor", 0);
    const ShownText shown = TextEditing(*adventure_).Show("a<ink=2>b</bright><bright>c");
    ASSERT_EQ(shown.lines.size(), 1U);
    ASSERT_EQ(shown.lines[0].size(), 3U);
    EXPECT_EQ(shown.lines[0][0].style.ink, 7);
    EXPECT_EQ(shown.lines[0][1].style.ink, 2);
    EXPECT_EQ(shown.lines[0][1].text, "b");
    EXPECT_EQ(shown.lines[0][2].style.ink, 10);
    EXPECT_TRUE(shown.lines[0][2].style.bright);
}

TEST_F(TextEditingTest, NamesTheFontOfEachRun) {
    SetNumber("Font", 0);
    const ShownText shown = TextEditing(*adventure_).Show("a<charset=2>b");
    ASSERT_EQ(shown.lines[0].size(), 2U);
    EXPECT_EQ(shown.lines[0][0].fontName, "Arial");
    EXPECT_EQ(shown.lines[0][1].fontName, "Courier New");
}

TEST_F(TextEditingTest, EntitiesAreShownAsTheirCharacters) {
    EXPECT_EQ(Lines("Fish &amp; chips &lt;3"), "Fish & chips <3|");
    EXPECT_EQ(Lines("&amp;lt;"), "<|");
}

TEST_F(TextEditingTest, ATextIsCentredInThePreviewHoweverWideTheGameIs) {
    SetNumber("defprintwidth", 2'000'000'000);
    EXPECT_EQ(Lines("<center>mm"), std::string(39, ' ') + "mm|");
}

TEST_F(TextEditingTest, AnEmptyTextIsOneEmptyLine) {
    EXPECT_EQ(Lines(""), "|");
}

TEST_F(TextEditingTest, FaultyMarkupIsShownAsTheGameWouldShowIt) {
    EXPECT_EQ(Lines("a<b c>d <bold>e"), "a<b c>d e|");
}

TEST_F(TextEditingTest, ATextBeyondTheLimitIsShownInPart) {
    const TextEditing editing(*adventure_);
    EXPECT_TRUE(editing.Show(std::string(TextEditing::kLongestPreview, 'a')).complete);
    EXPECT_FALSE(editing.Show(std::string(TextEditing::kLongestPreview + 1, 'a')).complete);
}

TEST_F(TextEditingTest, ATextOfNothingButTheWidestTagIsShown) {
    std::string text;
    while (text.size() < TextEditing::kLongestPreview)
        text += "<center>";
    EXPECT_EQ(Lines(text).size(), 4096U * 40U + 1U);
}

TEST_F(TextEditingTest, CountsWordsAndLettersAsTheyAreShown) {
    EXPECT_EQ(Count("You see <ink=2>a red</ink> door."), (TextCounts{5, 15}));
    EXPECT_EQ(Count("Fish &amp; chips"), (TextCounts{3, 10}));
    EXPECT_EQ(Count("\u00C4pfel"), (TextCounts{1, 5}));
    EXPECT_EQ(Count(""), (TextCounts{0, 0}));
    EXPECT_EQ(Count("   \n "), (TextCounts{0, 0}));
}

TEST_F(TextEditingTest, CountsAWordOverATagOnceAndOneAtALineEndTwice) {
    EXPECT_EQ(Count("re<bright>mem</bright>ber"), (TextCounts{1, 8}));
    EXPECT_EQ(Count("one<br>two"), (TextCounts{2, 6}));
}

TEST_F(TextEditingTest, SaysThatALongTextIsNotCountedToItsEnd) {
    std::string text;
    for (int word = 0; word < 20'000; ++word)
        text += "word ";
    const TextCounts counts = Count(text);
    EXPECT_FALSE(counts.complete);
    EXPECT_GT(counts.words, 1'000);
    EXPECT_LT(counts.words, 20'000);
}

TEST_F(TextEditingTest, CountsNoHardBlank) {
    EXPECT_EQ(Count("a&sp;b"), (TextCounts{2, 2}));
}

TEST_F(TextEditingTest, CountsAlikeHoweverNarrowTheGameIs) {
    SetNumber("defprintwidth", 3);
    EXPECT_EQ(Count("remember me"), (TextCounts{2, 10}));
}

TEST(CountsLine, TellsThatALongTextIsNotCountedToItsEnd) {
    EXPECT_EQ(CountsLine({7562, 25206, false}), "more than 7562 words, 25206 letters");
}

TEST(CountsLine, HasSingularAndPlural) {
    EXPECT_EQ(CountsLine({12, 64}), "12 words, 64 letters");
    EXPECT_EQ(CountsLine({1, 1}), "1 word, 1 letter");
    EXPECT_EQ(CountsLine({0, 0}), "0 words, 0 letters");
}

}  // namespace
}  // namespace fabula::authoring
