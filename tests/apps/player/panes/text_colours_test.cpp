#include "player/panes/text_colours.h"

#include <gtest/gtest.h>

namespace fabula::player {
namespace {

using engine::TextStyle;
using text::Rgb;

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_NEAR(Contrast(kBlack, kWhite), 21.0, 0.001);
    EXPECT_NEAR(Contrast(kWhite, kWhite), 1.0, 0.001);
    EXPECT_NEAR(Contrast({119, 119, 119}, kWhite), 4.478, 0.001);
}

TEST(TextColours, OfTheGameAreShownAsTheyAre) {
    const TextColours colours(1, 6, Page::OfTheGame);
    EXPECT_EQ(colours.Base(), (Rgb{0, 0, 230}));
    EXPECT_EQ(colours.Text(), (Rgb{230, 230, 0}));
    const auto run = colours.Of({.paper = 2, .ink = 3});
    EXPECT_EQ(run.ink, (Rgb{230, 0, 230}));
    EXPECT_EQ(run.paper, (Rgb{230, 0, 0}));
}

TEST(TextColours, PaperOfTheGameLetsTheBaseThrough) {
    EXPECT_EQ(TextColours(15, 0, Page::Dark).Of({.paper = 15, .ink = 2}).paper, std::nullopt);
}

TEST(TextColours, InverseChangesInkAndPaper) {
    const auto run = TextColours(15, 0, Page::OfTheGame).Of({.paper = 15, .ink = 0, .inverse = true});
    EXPECT_EQ(run.ink, kWhite);
    EXPECT_EQ(run.paper, kBlack);
}

TEST(TextColours, OrdinaryTextTakesTheColourOfThePage) {
    const TextColours dark(15, 0, Page::Dark);
    EXPECT_EQ(dark.Of({.paper = 15, .ink = 0}).ink, dark.Text());
}

TEST(TextColours, EveryTextOnAPageOfThePlayersChoiceCanBeRead) {
    for (const Page page : {Page::Light, Page::Dark}) {
        for (int paper = 0; paper < 16; ++paper) {
            for (int ink = 0; ink < 16; ++ink) {
                const TextColours colours(15, 0, page);
                const auto run = colours.Of({.paper = paper, .ink = ink});
                ASSERT_GE(Contrast(run.ink, run.paper.value_or(colours.Base())), kReadable)
                    << paper << " " << ink;
            }
        }
    }
}

TEST(TextColours, InkThatCanBeReadStaysAsItIs) {
    EXPECT_EQ(TextColours(15, 0, Page::Dark).Of({.paper = 15, .ink = 6}).ink, (Rgb{230, 230, 0}));
}

}  // namespace
}  // namespace fabula::player
