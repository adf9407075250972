#include "player/panes/character_screen.h"

#include <gtest/gtest.h>

namespace fabula::player {
namespace {

using engine::TextStyle;
using pictures::Glyph;

constexpr Glyph kA0{1, 2, 3, 4, 5, 6, 7, 8};
constexpr Glyph kA1{128, 0, 0, 0, 0, 0, 0, 0};
constexpr Glyph kB0{255, 0, 255, 0, 255, 0, 255, 0};

/// "A" in sets 0 and 1, "B" in set 0.
CharacterScreen Screen() {
    pictures::CharacterSets sets;
    sets.Add({0, 'A', "Default", kA0});
    sets.Add({0, 'B', "Default", kB0});
    sets.Add({1, 'A', "Runes", kA1});
    CharacterScreen screen(std::move(sets));
    screen.Clear(0, 7);
    return screen;
}

TEST(CharacterScreen, DrawsTheCharacterOfTheSet) {
    CharacterScreen screen = Screen();
    screen.Write("A", {.font = 1});
    EXPECT_EQ(screen.Rows()[0][0].glyph, kA1);
}

TEST(CharacterScreen, CharacterThatTheSetLacksComesFromTheDefaultSet) {
    CharacterScreen screen = Screen();
    screen.Write("B", {.font = 1});
    EXPECT_EQ(screen.Rows()[0][0].glyph, kB0);
}

TEST(CharacterScreen, CharacterThatIsNowhereIsABlank) {
    CharacterScreen screen = Screen();
    screen.Write("Z", {});
    EXPECT_EQ(screen.Rows()[0][0].glyph, Glyph{});
}

TEST(CharacterScreen, CellsHoldInkPaperAndFlash) {
    CharacterScreen screen = Screen();
    screen.Write("A", {.paper = 2, .ink = 14, .flash = true});
    EXPECT_EQ(screen.Rows()[0][0].ink, 14);
    EXPECT_EQ(screen.Rows()[0][0].paper, 2);
    EXPECT_TRUE(screen.Rows()[0][0].flash);
    EXPECT_FALSE(screen.Rows()[0][1].flash);
}

TEST(CharacterScreen, InverseChangesInkAndPaper) {
    CharacterScreen screen = Screen();
    screen.Write("A", {.paper = 2, .ink = 6, .inverse = true});
    EXPECT_EQ(screen.Rows()[0][0].ink, 2);
    EXPECT_EQ(screen.Rows()[0][0].paper, 6);
}

TEST(CharacterScreen, OverDrawsWithWhatIsThere) {
    CharacterScreen screen = Screen();
    screen.ShowInput("A", "");
    screen.EndInput("A");
    screen.Clear(0, 7);
    screen.Write("B", {.over = true});
    EXPECT_EQ(screen.Rows().back()[0].glyph, kB0);
}

TEST(CharacterScreen, GoesOnInTheNextRowAtTheEndOfOne) {
    CharacterScreen screen = Screen();
    screen.Write(std::string(33, 'A'), {});
    ASSERT_EQ(screen.Rows().size(), 2U);
    EXPECT_EQ(screen.Rows()[0][31].glyph, kA0);
    EXPECT_EQ(screen.Rows()[1][0].glyph, kA0);
    EXPECT_EQ(screen.Rows()[1][1].glyph, Glyph{});
}

TEST(CharacterScreen, FullRowAndALineEndMakeOneNewRow) {
    CharacterScreen screen = Screen();
    screen.Write(std::string(32, 'A'), {});
    screen.EndLine();
    screen.Write("B", {});
    ASSERT_EQ(screen.Rows().size(), 2U);
    EXPECT_EQ(screen.Rows()[1][0].glyph, kB0);
}

TEST(CharacterScreen, ClearStartsAFreshScreenBelowTheOldRows) {
    CharacterScreen screen = Screen();
    screen.Write("A", {});
    screen.EndLine();
    screen.Write("A", {});
    screen.Clear(4, 0);
    EXPECT_EQ(screen.ScreenTop(), 2U);
    ASSERT_EQ(screen.Rows().size(), 3U);
    EXPECT_EQ(screen.Paper(), 4);
    EXPECT_EQ(screen.Rows()[2][0].paper, 4);
    EXPECT_EQ(screen.Rows()[0][0].glyph, kA0);
}

TEST(CharacterScreen, ClearOfAnEmptyScreenAddsNoRow) {
    CharacterScreen screen = Screen();
    screen.Clear(1, 7);
    EXPECT_EQ(screen.Rows().size(), 1U);
    EXPECT_EQ(screen.ScreenTop(), 0U);
}

TEST(CharacterScreen, InputIsDrawnInPlaceOfWhatItWas) {
    CharacterScreen screen = Screen();
    screen.Write("B", {.paper = 1, .ink = 6});
    screen.ShowInput("AA", "B");
    screen.ShowInput("A", "B");
    EXPECT_EQ(screen.Rows()[0][1].glyph, kA0);
    EXPECT_EQ(screen.Rows()[0][1].ink, 6);
    EXPECT_EQ(screen.Rows()[0][2].glyph, kB0);
    EXPECT_EQ(screen.Rows()[0][3].glyph, Glyph{});
}

TEST(CharacterScreen, LongInputGrowsIntoNewRowsAndComesBack) {
    CharacterScreen screen = Screen();
    screen.Write("B", {});
    screen.ShowInput(std::string(40, 'A'), "");
    EXPECT_EQ(screen.Rows().size(), 2U);
    screen.ShowInput(std::string(30, 'A'), "");
    EXPECT_EQ(screen.Rows().size(), 1U);
}

TEST(CharacterScreen, EnteredLineStaysWithoutItsCursor) {
    CharacterScreen screen = Screen();
    screen.ShowInput("A", "B");
    screen.EndInput("A");
    EXPECT_EQ(screen.Text(), "A\n\n");
}

TEST(CharacterScreen, CaretStandsBehindWhatIsTypedWhileALineIsOpen) {
    CharacterScreen screen = Screen();
    screen.Write("B", {});
    EXPECT_EQ(screen.Caret(), std::nullopt);
    screen.ShowInput("AA", "B");
    EXPECT_EQ(screen.Caret(), (CharacterScreen::Place{0, 3}));
    screen.EndInput("AA");
    EXPECT_EQ(screen.Caret(), std::nullopt);
}

TEST(CharacterScreen, LineThatCameWholeIsWrittenToo) {
    CharacterScreen screen = Screen();
    screen.Write("B", {});
    screen.EndInput("A");
    EXPECT_EQ(screen.Text(), "BA\n\n");
}

}  // namespace
}  // namespace fabula::player
