#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using store::AdventureKind;

constexpr int kWorn = 253;
constexpr int kCarried = 254;

/// Words for two lamps, a rock that is an object nowhere, and a sky that is no object.
GameBuilder World(AdventureKind kind = AdventureKind::Fabula) {
    GameBuilder game(kind);
    game.Word("LAMP", 60, 2).Word("ROCK", 61, 2).Word("SKY", 62, 2).Word("BAG", 63, 2);
    game.Word("RED", 30, 3).Word("BLUE", 31, 3);
    game.Object(0, {.description = "a light", .place = 252});
    return game;
}

/// What the game answers to a sentence when the entry "DO *" holds `action`.
std::unique_ptr<GameRun> Answer(GameBuilder game, const std::string& action, std::string_view sentence) {
    auto run = game.Entry(0, "DO", "*", action).Start();
    run->Said();
    run->engine.EnterLine(sentence);
    return run;
}

std::string Said(GameBuilder game, const std::string& action, std::string_view sentence) {
    return Answer(std::move(game), action, sentence)->Said();
}

TEST(AutoG, GetsTheObjectThatTheWordsName) {
    const auto run = Answer(World().Object(1, {.place = 0, .noun = "LAMP"}), "AUTOG", "DO LAMP");
    EXPECT_EQ(run->Said(), "(36)");
    EXPECT_EQ(run->PlaceOf(1), kCarried);
}

TEST(AutoG, SearchesHereBeforeWhatIsCarried) {
    GameBuilder game = World();
    game.Object(1, {.place = kCarried, .noun = "LAMP"}).Object(2, {.place = 0, .noun = "LAMP"});
    EXPECT_EQ(Answer(game, "AUTOG", "DO LAMP")->Flag(51), 2);
}

TEST(AutoG, FindsWhatIsCarriedSoThatGetCanRefuseIt) {
    EXPECT_EQ(Said(World().Object(1, {.place = kCarried, .noun = "LAMP"}), "AUTOG", "DO LAMP"), "(25)");
}

TEST(AutoG, TellsAnObjectByItsAdjective) {
    GameBuilder game = World();
    game.Object(1, {.place = 0, .noun = "LAMP", .adjective = "RED"});
    game.Object(2, {.place = 0, .noun = "LAMP", .adjective = "BLUE"});
    EXPECT_EQ(Answer(game, "AUTOG", "DO BLUE LAMP")->Flag(51), 2);
}

TEST(AutoG, TakesTheFirstWhenTheSentenceHasNoAdjective) {
    GameBuilder game = World();
    game.Object(1, {.place = 0, .noun = "LAMP", .adjective = "RED"});
    game.Object(2, {.place = 0, .noun = "LAMP", .adjective = "BLUE"});
    EXPECT_EQ(Answer(game, "AUTOG", "DO LAMP")->Flag(51), 1);
}

TEST(AutoG, TakesAnObjectWithoutAnAdjectiveForAnyAdjective) {
    EXPECT_EQ(Said(World().Object(1, {.place = 0, .noun = "LAMP"}), "AUTOG", "DO BLUE LAMP"), "(36)");
}

TEST(AutoG, SaysThatTheObjectIsNotHereWhenItIsElsewhere) {
    EXPECT_EQ(Said(World().Object(1, {.place = 2, .noun = "LAMP"}), "AUTOG", "DO LAMP"), "(26)");
}

TEST(AutoG, SaysAnotherThingOfANounThatIsNoObjectAnywhere) {
    EXPECT_EQ(Said(World(), "AUTOG", "DO SKY"), "(8)");
}

TEST(AutoG, SaysThatNothingIsHereWhenThereIsNoNoun) {
    EXPECT_EQ(Said(World(), "AUTOG", "DO"), "(26)");
}

TEST(AutoG, OfAMarloGameLooksAtNoAdjective) {
    GameBuilder game = World(AdventureKind::Marlo);
    game.Object(1, {.place = 0, .noun = "LAMP", .adjective = "RED"});
    const auto run = game.Numbers(0, 100, 255, "213").Start();
    run->Type("DO LAMP");
    EXPECT_EQ(run->PlaceOf(1), kCarried);
}

TEST(AutoG, SearchesInsideObject0LastWhenThatIsAContainer) {
    GameBuilder game;
    game.Word("LAMP", 60, 2).Object(0, {.description = "a box", .place = 1, .container = true});
    game.Object(1, {.place = 0, .noun = "LAMP"}).Setting("startloc", 2);
    EXPECT_EQ(Said(game, "AUTOG", "DO LAMP"), "(26)");  // found, but GET does not reach it
    EXPECT_EQ(Answer(game, "AUTOG", "DO LAMP")->Flag(51), 1);
}

TEST(AutoD, DropsTheObjectThatTheWordsName) {
    const auto run = Answer(World().Object(1, {.place = kCarried, .noun = "LAMP"}), "AUTOD", "DO LAMP");
    EXPECT_EQ(run->Said(), "(39)");
    EXPECT_EQ(run->PlaceOf(1), 0);
}

TEST(AutoD, SearchesWhatIsCarriedBeforeHere) {
    GameBuilder game = World();
    game.Object(1, {.place = 0, .noun = "LAMP"}).Object(2, {.place = kCarried, .noun = "LAMP"});
    EXPECT_EQ(Answer(game, "AUTOD", "DO LAMP")->Flag(51), 2);
}

TEST(AutoD, RefusesWhatIsElsewhere) {
    EXPECT_EQ(Said(World().Object(1, {.place = 2, .noun = "LAMP"}), "AUTOD", "DO LAMP"), "(28)");
}

TEST(AutoD, SaysAnotherThingOfANounThatIsNoObjectAnywhere) {
    EXPECT_EQ(Said(World(), "AUTOD", "DO SKY"), "(8)");
}

TEST(AutoW, WearsTheObjectThatTheWordsName) {
    GameBuilder game = World();
    game.Object(1, {.place = kCarried, .noun = "LAMP", .wearable = true});
    EXPECT_EQ(Answer(game, "AUTOW", "DO LAMP")->PlaceOf(1), kWorn);
}

TEST(AutoW, RefusesWhatIsElsewhere) {
    EXPECT_EQ(Said(World().Object(1, {.place = 2, .noun = "LAMP"}), "AUTOW", "DO LAMP"), "(28)");
}

TEST(AutoR, RemovesTheObjectThatTheWordsName) {
    GameBuilder game = World();
    game.Object(1, {.place = kWorn, .noun = "LAMP", .wearable = true});
    EXPECT_EQ(Answer(game, "AUTOR", "DO LAMP")->PlaceOf(1), kCarried);
}

TEST(AutoR, SearchesWhatIsWornFirst) {
    GameBuilder game = World();
    game.Object(1, {.place = kCarried, .noun = "LAMP"});
    game.Object(2, {.place = kWorn, .noun = "LAMP", .wearable = true});
    EXPECT_EQ(Answer(game, "AUTOR", "DO LAMP")->Flag(51), 2);
}

TEST(AutoR, RefusesWhatIsElsewhere) {
    EXPECT_EQ(Said(World().Object(1, {.place = 2, .noun = "LAMP"}), "AUTOR", "DO LAMP"), "(23)");
}

GameBuilder WithBag() {
    return World().Object(1, {.description = "a bag", .place = 0, .noun = "BAG", .container = true});
}

TEST(AutoP, PutsTheObjectThatTheWordsNameIntoTheContainer) {
    const auto run = Answer(WithBag().Object(2, {.place = kCarried, .noun = "LAMP"}), "AUTOP 1", "DO LAMP");
    EXPECT_EQ(run->Said(), "(44)a bag(51)");
    EXPECT_EQ(run->PlaceOf(2), 1);
}

TEST(AutoP, DoesNotSearchInsideTheContainer) {
    EXPECT_EQ(Said(WithBag().Object(2, {.place = 1, .noun = "LAMP"}), "AUTOP 1", "DO LAMP"), "(28)");
}

TEST(AutoT, TakesTheObjectThatTheWordsNameOutOfTheContainer) {
    const auto run = Answer(WithBag().Object(2, {.place = 1, .noun = "LAMP"}), "AUTOT 1", "DO LAMP");
    EXPECT_EQ(run->Said(), "(36)");
    EXPECT_EQ(run->PlaceOf(2), kCarried);
}

TEST(AutoT, SearchesTheContainerFirst) {
    GameBuilder game = WithBag();
    game.Object(2, {.place = kCarried, .noun = "LAMP"}).Object(3, {.place = 1, .noun = "LAMP"});
    EXPECT_EQ(Answer(game, "AUTOT 1", "DO LAMP")->Flag(51), 3);
}

TEST(AutoT, SaysThatTheContainerHoldsNoSuchThing) {
    EXPECT_EQ(Said(WithBag().Object(2, {.place = 2, .noun = "LAMP"}), "AUTOT 1", "DO LAMP"),
              "(52)a bag(51)");
}

TEST(AutoT, SaysAnotherThingOfANounThatIsNoObjectAnywhere) {
    EXPECT_EQ(Said(WithBag(), "AUTOT 1", "DO SKY"), "(8)");
}

TEST(WhatO, TellsOfTheObjectThatTheWordsName) {
    GameBuilder game = World();
    game.Object(1, {.place = 0, .noun = "LAMP"})
        .Object(2, {.place = kCarried, .noun = "LAMP", .weight = 5});
    const auto run = Answer(game, "WHATO", "DO LAMP");
    EXPECT_EQ(run->Flag(51), 2);
    EXPECT_EQ(run->Flag(54), 254);
    EXPECT_EQ(run->Flag(55), 5);
}

TEST(WhatO, TellsOfObject255WhenNothingIsFound) {
    const auto run = Answer(World(), "WHATO", "DO SKY");
    EXPECT_EQ(run->Flag(51), 255);
    EXPECT_EQ(run->Flag(54), 0);
    EXPECT_EQ(run->Flag(55), 0);
    EXPECT_EQ(run->Flag(56), 0);
    EXPECT_EQ(run->Flag(57), 0);
}

}  // namespace
}  // namespace fabula::test
