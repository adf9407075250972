#include "engine/game_texts.h"

#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

/// Three of them are more than is kept.
std::string LongText(char letter) {
    return std::string(engine::kMostTextKept * 2 / 5, letter);
}

TEST(GameTexts, BeyondWhatIsKeptAreLookedUpAnew) {
    GameBuilder game;
    game.Message(0, LongText('a')).Message(1, LongText('b')).Message(2, LongText('c'));
    const auto run = game.Do("MES 0 MES 1 MES 2 MES 0 MES 2");
    EXPECT_EQ(run->Said(), LongText('a') + LongText('b') + LongText('c') + LongText('a') + LongText('c'));
}

TEST(GameTexts, OneLongerThanWhatIsKeptIsShownWhole) {
    const std::string text(engine::kMostTextKept + 1, 'x');
    GameBuilder game;
    game.Message(0, text);
    EXPECT_EQ(game.Do("MES 0 MES 0")->Said(), text + text);
}

TEST(GameTexts, WordsStayKnownHoweverManyOthersAreTyped) {
    GameBuilder game;
    game.Message(0, "Done.").Entry(0, "DO", "_", "MES 0 DONE");
    const auto run = game.Start();
    for (int sentence = 0; sentence < 100; ++sentence) {
        std::string line;
        for (int word = 0; word < 100; ++word)
            line += "X" + std::to_string(sentence * 100 + word) + " ";
        run->Type(line);
    }
    EXPECT_EQ(run->Type("DO"), "Done.");
}

}  // namespace
}  // namespace fabula::test
