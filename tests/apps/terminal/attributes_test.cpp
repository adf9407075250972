#include "terminal/attributes.h"

#include <gtest/gtest.h>

namespace fabula::terminal {
namespace {

constexpr engine::TextStyle kBlackOnWhite{.paper = 7, .ink = 0};

std::string Ansi(const Attributes& attributes) {
    std::string text;
    AppendAnsi(attributes, text);
    return text;
}

TEST(Attributes, TheGamesOwnColoursAreTheTerminalsOwn) {
    EXPECT_EQ(AttributesOf(kBlackOnWhite, kBlackOnWhite), Attributes{});
}

TEST(Attributes, AnotherInkStandsOnTheTerminalsBackground) {
    engine::TextStyle style = kBlackOnWhite;
    style.ink = 2;
    EXPECT_EQ(AttributesOf(style, kBlackOnWhite), (Attributes{.ink = 2}));
}

TEST(Attributes, BlackAndWhiteInkBringTheirPaper) {
    engine::TextStyle style = kBlackOnWhite;
    style.ink = 15;
    EXPECT_EQ(AttributesOf(style, kBlackOnWhite), (Attributes{.ink = 15, .paper = 7}));
}

TEST(Attributes, AnotherPaperBringsItsInk) {
    engine::TextStyle style = kBlackOnWhite;
    style.paper = 1;
    EXPECT_EQ(AttributesOf(style, kBlackOnWhite), (Attributes{.ink = 0, .paper = 1}));
}

TEST(Attributes, AColourThatDoesNotExistIsTheTerminalsOwn) {
    engine::TextStyle style = kBlackOnWhite;
    style.ink = 31;
    EXPECT_EQ(AttributesOf(style, kBlackOnWhite), Attributes{});
}

TEST(Attributes, LooksAreTakenOver) {
    engine::TextStyle style = kBlackOnWhite;
    style.bright = style.flash = style.inverse = true;
    EXPECT_EQ(AttributesOf(style, kBlackOnWhite),
              (Attributes{.bold = true, .blinking = true, .inverse = true}));
}

TEST(Attributes, SequencesSwitchEverything) {
    EXPECT_EQ(Ansi({}), "\x1B[0m");
    EXPECT_EQ(Ansi({.bold = true, .blinking = true, .inverse = true}), "\x1B[0;1;5;7m");
}

TEST(Attributes, RedAndBlueHaveOtherNumbersInAnsi) {
    EXPECT_EQ(Ansi({.ink = 1, .paper = 2}), "\x1B[0;34;41m");
    EXPECT_EQ(Ansi({.ink = 3, .paper = 4}), "\x1B[0;35;42m");
    EXPECT_EQ(Ansi({.ink = 5, .paper = 6}), "\x1B[0;36;43m");
    EXPECT_EQ(Ansi({.ink = 7, .paper = 0}), "\x1B[0;37;40m");
}

TEST(Attributes, TheUpperEightAreTheBrightColours) {
    EXPECT_EQ(Ansi({.ink = 9, .paper = 10}), "\x1B[0;94;101m");
}

}  // namespace
}  // namespace fabula::terminal
