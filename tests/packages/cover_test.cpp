#include "packages/cover.h"

#include <gtest/gtest.h>

#include "packed_game.h"

namespace fabula::packages {
namespace {

CoverSearch Search(PackedGame& game) {
    return FindCover(game.Adventure(), ReadFacts(game.Adventure()));
}

TEST(FindCover, TakesThePictureOfAboutThisAdventure) {
    PackedGame game;
    game.Draw("about.png", 120, 1200);
    game.Set("advpicloc", std::string("about.png"));
    const CoverSearch search = Search(game);
    ASSERT_TRUE(search.cover);
    EXPECT_EQ(search.cover->FileName(), "Cover.png");
    EXPECT_EQ(search.cover->width, 120);
    EXPECT_EQ(search.cover->height, 1200);
}

TEST(FindCover, MakesAPngOfABitmap) {
    PackedGame game;
    game.Draw("about.bmp", 256, 176);
    game.Set("advpicloc", std::string("about.bmp"));
    const CoverSearch search = Search(game);
    ASSERT_TRUE(search.cover);
    EXPECT_EQ(search.cover->FileName(), "Cover.png");
    EXPECT_EQ(search.cover->bytes.substr(1, 3), "PNG");
}

TEST(FindCover, RefusesSidesBelow120AndAbove1200Points) {
    for (const auto& [width, height] : {std::pair(119, 500), {500, 119}, {1201, 500}, {500, 1201}}) {
        PackedGame game;
        game.Draw("about.png", width, height);
        game.Set("advpicloc", std::string("about.png"));
        const CoverSearch search = Search(game);
        EXPECT_FALSE(search.cover);
        EXPECT_EQ(search.why, "The picture about.png is " + std::to_string(width) + " by " +
                                  std::to_string(height) + " points; a cover has 120 to 1200 a side.");
    }
}

TEST(FindCover, SaysWhyThereIsNone) {
    PackedGame game;
    EXPECT_EQ(Search(game).why, "The game has no picture for About this Adventure, so it has no cover.");
    game.Set("advpicloc", std::string("gone.png"));
    EXPECT_EQ(Search(game).why, "There is no cover: The picture gone.png is not in the game's folder.");
    game.Set("advpicloc", std::string("../out.png"));
    EXPECT_FALSE(Search(game).cover);
}

}  // namespace
}  // namespace fabula::packages
