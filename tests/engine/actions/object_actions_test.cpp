#include "engine/actions/object_actions.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using store::AdventureKind;

// An object is put to a place and weighed into a flag, and not the other way round.
using PlaceAction = decltype(&engine::Place);
static_assert(std::is_invocable_v<PlaceAction, engine::Game&, engine::ObjectNumber, engine::PlaceNumber>);
static_assert(!std::is_invocable_v<PlaceAction, engine::Game&, engine::PlaceNumber, engine::ObjectNumber>);
static_assert(!std::is_invocable_v<PlaceAction, engine::Game&, engine::ObjectNumber, engine::FlagNumber>);

constexpr int kNotCreated = 252;
constexpr int kWornPlace = 253;
constexpr int kCarriedPlace = 254;

/// A game with object 1 as given; object 0 is nowhere.
GameBuilder With(ObjectSpec object, AdventureKind kind = AdventureKind::Fabula) {
    GameBuilder game(kind);
    game.Object(0, {.description = "a light", .place = kNotCreated});
    object.description = "a lamp";
    game.Object(1, object);
    return game;
}

// GET

TEST(Get, CarriesAnObjectThatIsHere) {
    const auto run = With({.place = 0}).Do("GET 1");
    EXPECT_EQ(run->Said(), "(36)");
    EXPECT_EQ(run->PlaceOf(1), kCarriedPlace);
    EXPECT_EQ(run->Flag(1), 1);
}

TEST(Get, TellsOfTheObjectInFlags51To57) {
    const auto run = With({.place = 0, .weight = 3, .container = true}).Do("GET 1");
    EXPECT_EQ(run->Flag(51), 1);
    EXPECT_EQ(run->Flag(54), 0);  // where it lay
    EXPECT_EQ(run->Flag(55), 3);
    EXPECT_EQ(run->Flag(56), 128);
    EXPECT_EQ(run->Flag(57), 0);
}

TEST(Get, RefusesAnObjectInHand) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("GET 1")->Said(), "(25)");
    EXPECT_EQ(With({.place = kWornPlace}).Do("GET 1")->Said(), "(25)");
}

TEST(Get, RefusesAnObjectElsewhere) {
    EXPECT_EQ(With({.place = 2}).Do("GET 1")->Said(), "(26)");
}

TEST(Get, RefusesWhatIsTooHeavyWithWhatIsCarriedAndWorn) {
    GameBuilder game = With({.place = 0, .weight = 5});
    game.Object(2, {.place = kCarriedPlace, .weight = 3})
        .Object(3, {.place = kWornPlace, .weight = 3})
        .Setting("maxweight", 10);
    EXPECT_EQ(game.Do("GET 1")->Said(), "(43)");
}

TEST(Get, CarriesWhatIsJustNotTooHeavy) {
    GameBuilder game = With({.place = 0, .weight = 5});
    game.Object(2, {.place = kCarriedPlace, .weight = 5}).Setting("maxweight", 10);
    EXPECT_EQ(game.Do("GET 1")->Said(), "(36)");
}

TEST(Get, RefusesWhenTheHandsAreFull) {
    GameBuilder game = With({.place = 0});
    game.Object(2, {.place = kCarriedPlace}).Setting("maxobj", 1);
    const auto run = game.Do("GET 1");
    EXPECT_EQ(run->Said(), "(27)");
    EXPECT_EQ(run->PlaceOf(1), 0);
}

TEST(Get, ARefusalEndsTheTableAndThrowsTheRestOfTheLineAway) {
    GameBuilder game = With({.place = 2});
    game.Entry(0, "DO", "_", "GET 1 SET 200").Entry(0, "DO", "_", "SET 201").Word("GO", 101, 0);
    game.Entry(0, "GO", "_", "SET 202");
    const auto run = game.Start();
    run->Type("DO. GO");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 0);
    EXPECT_EQ(run->Flag(202), 0);
}

TEST(Get, OfAMarloGameSaysNothingAndKnowsNoWeight) {
    const auto run =
        With({.place = 0, .weight = 60}, AdventureKind::Marlo).Setting("maxweight", 0).Do("GET 1");
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->PlaceOf(1), kCarriedPlace);
}

TEST(Get, OfAMarloGameStillCountsWhatTheHandsHold) {
    GameBuilder game = With({.place = 0}, AdventureKind::Marlo);
    game.Object(2, {.place = kCarriedPlace}).Setting("maxobj", 1);
    EXPECT_EQ(game.Do("GET 1")->Said(), "(27)");
}

TEST(Get, OfTheObjectThatFillsTheHandsInsideDoallStopsTheWalkWithOneMessage) {
    GameBuilder game;
    game.Word("ALL", 60, 2).Word("THING", 61, 2).Setting("maxobj", 1);
    for (int object = 0; object < 4; ++object)
        game.Object(object, {.place = 0, .noun = "THING"});
    game.Entry(0, "DO", "ALL", "DOALL HERE DONE").Entry(0, "DO", "THING", "AUTOG DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO ALL"), "(36)(27)");
    EXPECT_EQ(run->Flag(1), 1);
}

// DROP

TEST(Drop, LeavesACarriedObjectHere) {
    const auto run = With({.place = kCarriedPlace}).Setting("startloc", 2).Do("DROP 1");
    EXPECT_EQ(run->Said(), "(39)");
    EXPECT_EQ(run->PlaceOf(1), 2);
    EXPECT_EQ(run->Flag(1), 0);
}

TEST(Drop, RefusesAWornObject) {
    EXPECT_EQ(With({.place = kWornPlace}).Do("DROP 1")->Said(), "(24)");
}

TEST(Drop, RefusesAnObjectThatLiesHere) {
    EXPECT_EQ(With({.place = 0}).Do("DROP 1")->Said(), "(49)");
}

TEST(Drop, RefusesAnObjectElsewhere) {
    EXPECT_EQ(With({.place = 2}).Do("DROP 1")->Said(), "(28)");
}

TEST(Drop, OfAMarloGameRefusesWhatLiesHereWithAnotherMessage) {
    EXPECT_EQ(With({.place = 0}, AdventureKind::Marlo).Do("DROP 1")->Said(), "(28)");
}

TEST(Drop, OfAMarloGameDropsAWornObjectWhileTheHandsAreNotFull) {
    const auto run = With({.place = kWornPlace}, AdventureKind::Marlo).Setting("maxobj", 1).Do("DROP 1");
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->PlaceOf(1), 0);
}

TEST(Drop, OfAMarloGameRefusesAWornObjectWhenTheHandsAreFull) {
    GameBuilder game = With({.place = kWornPlace}, AdventureKind::Marlo);
    game.Object(2, {.place = kCarriedPlace}).Setting("maxobj", 1);
    EXPECT_EQ(game.Do("DROP 1")->Said(), "(24)");
}

// WEAR

TEST(Wear, PutsACarriedWearableObjectOn) {
    const auto run = With({.place = kCarriedPlace, .wearable = true}).Do("WEAR 1");
    EXPECT_EQ(run->Said(), "(37)");
    EXPECT_EQ(run->PlaceOf(1), kWornPlace);
    EXPECT_EQ(run->Flag(1), 0);
}

TEST(Wear, RefusesAnObjectThatLiesHere) {
    EXPECT_EQ(With({.place = 0, .wearable = true}).Do("WEAR 1")->Said(), "(49)");
}

TEST(Wear, RefusesAWornObject) {
    EXPECT_EQ(With({.place = kWornPlace, .wearable = true}).Do("WEAR 1")->Said(), "(29)");
}

TEST(Wear, RefusesAnObjectElsewhere) {
    EXPECT_EQ(With({.place = 2, .wearable = true}).Do("WEAR 1")->Said(), "(28)");
}

TEST(Wear, RefusesAnObjectThatIsNotWearable) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("WEAR 1")->Said(), "(40)");
}

TEST(Wear, OfAMarloGameAsksOnlyThatTheObjectIsCarried) {
    const auto run = With({.place = kCarriedPlace}, AdventureKind::Marlo).Do("WEAR 1");
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->PlaceOf(1), kWornPlace);
}

TEST(Wear, OfAMarloGameSaysOfWhatLiesHereThatItIsNotCarried) {
    EXPECT_EQ(With({.place = 0}, AdventureKind::Marlo).Do("WEAR 1")->Said(), "(28)");
}

// REMOVE

TEST(Remove, CarriesAWornObject) {
    const auto run = With({.place = kWornPlace, .wearable = true}).Do("REMOVE 1");
    EXPECT_EQ(run->Said(), "(38)");
    EXPECT_EQ(run->PlaceOf(1), kCarriedPlace);
    EXPECT_EQ(run->Flag(1), 1);
}

TEST(Remove, RefusesAnObjectCarriedOrHere) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("REMOVE 1")->Said(), "(50)");
    EXPECT_EQ(With({.place = 0}).Do("REMOVE 1")->Said(), "(50)");
}

TEST(Remove, RefusesAnObjectElsewhere) {
    EXPECT_EQ(With({.place = 2}).Do("REMOVE 1")->Said(), "(23)");
}

TEST(Remove, RefusesAnObjectThatIsNotWearable) {
    EXPECT_EQ(With({.place = kWornPlace}).Do("REMOVE 1")->Said(), "(41)");
}

TEST(Remove, RefusesWhenTheHandsAreFull) {
    GameBuilder game = With({.place = kWornPlace, .wearable = true});
    game.Object(2, {.place = kCarriedPlace}).Setting("maxobj", 1);
    EXPECT_EQ(game.Do("REMOVE 1")->Said(), "(42)");
}

TEST(Remove, OfAMarloGameMindsNoFullHands) {
    GameBuilder game = With({.place = kWornPlace}, AdventureKind::Marlo);
    game.Object(2, {.place = kCarriedPlace}).Setting("maxobj", 1);
    const auto run = game.Do("REMOVE 1");
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->Flag(1), 2);
}

// CREATE, DESTROY, PLACE, PUTO, SWAP

TEST(Create, PutsAnObjectHere) {
    const auto run = With({.place = kNotCreated}).Setting("startloc", 2).Do("CREATE 1");
    EXPECT_EQ(run->PlaceOf(1), 2);
}

TEST(Create, OfACarriedObjectTakesItOffTheCount) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("CREATE 1")->Flag(1), 0);
}

TEST(Destroy, PutsAnObjectNowhere) {
    EXPECT_EQ(With({.place = 0}).Do("DESTROY 1")->PlaceOf(1), kNotCreated);
}

TEST(Destroy, OfACarriedObjectTakesItOffTheCount) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("DESTROY 1")->Flag(1), 0);
}

TEST(Place, PutsAnObjectAtALocation) {
    EXPECT_EQ(With({.place = 0}).Do("PLACE 1 2")->PlaceOf(1), 2);
}

TEST(Place, HereIsThePlayersLocation) {
    EXPECT_EQ(With({.place = 2}).Setting("startloc", 1).Do("PLACE 1 HERE")->PlaceOf(1), 1);
}

TEST(Place, CountsCarriedObjectsAndNotWornOnes) {
    EXPECT_EQ(With({.place = 0}).Do("PLACE 1 CARRIED")->Flag(1), 1);
    EXPECT_EQ(With({.place = 0}).Do("PLACE 1 WORN")->Flag(1), 0);
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("PLACE 1 CARRIED")->Flag(1), 1);
}

TEST(PutO, PlacesTheObjectOfFlag51) {
    EXPECT_EQ(With({.place = 0}).Do("LET 51 1 PUTO 2")->PlaceOf(1), 2);
}

TEST(PutO, WithoutSuchAnObjectIsARunTimeFailure) {
    const auto run = With({.place = 0}).Do("LET 51 9 PUTO 2");
    EXPECT_EQ(run->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), PUTO 2: object 9 does not "
              "exist.");
}

TEST(Swap, ExchangesTwoPlacesAndTellsOfTheSecondObject) {
    const auto run = With({.place = 0}).Object(2, {.place = 2}).Do("SWAP 1 2");
    EXPECT_EQ(run->PlaceOf(1), 2);
    EXPECT_EQ(run->PlaceOf(2), 0);
    EXPECT_EQ(run->Flag(51), 2);
}

TEST(Swap, LeavesTheCountOfCarriedObjectsAlone) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Object(2, {.place = 2}).Do("SWAP 1 2")->Flag(1), 1);
}

// PUTIN, TAKEOUT

/// Object 1 as given, and object 2, a bag that has location 2 inside it, at `bag`.
GameBuilder WithObjectAndBag(ObjectSpec object, int bag = 0) {
    GameBuilder game = With(std::move(object));
    game.Object(2, {.description = "a bag", .place = bag, .weight = 1, .container = true});
    return game;
}

TEST(PutIn, PutsACarriedObjectIntoTheContainer) {
    const auto run = WithObjectAndBag({.place = kCarriedPlace}).Do("PUTIN 1 2");
    EXPECT_EQ(run->Said(), "(44)a bag(51)");
    EXPECT_EQ(run->PlaceOf(1), 2);
    EXPECT_EQ(run->Flag(1), 0);
}

TEST(PutIn, RefusesAWornObject) {
    EXPECT_EQ(WithObjectAndBag({.place = kWornPlace}).Do("PUTIN 1 2")->Said(), "(24)");
}

TEST(PutIn, RefusesAnObjectThatLiesHere) {
    EXPECT_EQ(WithObjectAndBag({.place = 0}).Do("PUTIN 1 2")->Said(), "(49)");
}

TEST(PutIn, RefusesAnObjectElsewhere) {
    EXPECT_EQ(WithObjectAndBag({.place = 1}).Do("PUTIN 1 2")->Said(), "(28)");
}

TEST(TakeOut, CarriesAnObjectOfTheContainer) {
    const auto run = WithObjectAndBag({.place = 2}).Do("TAKEOUT 1 2");
    EXPECT_EQ(run->Said(), "(36)");
    EXPECT_EQ(run->PlaceOf(1), kCarriedPlace);
}

TEST(TakeOut, RefusesAnObjectInHand) {
    EXPECT_EQ(WithObjectAndBag({.place = kWornPlace}).Do("TAKEOUT 1 2")->Said(), "(25)");
    EXPECT_EQ(WithObjectAndBag({.place = kCarriedPlace}).Do("TAKEOUT 1 2")->Said(), "(25)");
}

TEST(TakeOut, SaysOfAnObjectThatLiesHereThatItIsNotInside) {
    const auto run = WithObjectAndBag({.place = 0}).Do("TAKEOUT 1 2 SET 200");
    EXPECT_EQ(run->Said(), "(45)a bag(51)");
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(TakeOut, SaysOfAnObjectElsewhereThatTheContainerHoldsNoSuchThing) {
    EXPECT_EQ(WithObjectAndBag({.place = 1}).Do("TAKEOUT 1 2 SET 200")->Said(), "(52)a bag(51)");
}

TEST(TakeOut, RefusesWhatIsTooHeavyUnlessTheContainerIsInHand) {
    EXPECT_EQ(WithObjectAndBag({.place = 2, .weight = 5}).Setting("maxweight", 4).Do("TAKEOUT 1 2")->Said(),
              "(43)");
    EXPECT_EQ(WithObjectAndBag({.place = 2, .weight = 5}, kCarriedPlace)
                  .Setting("maxweight", 4)
                  .Do("TAKEOUT 1 2")
                  ->Said(),
              "(36)");
}

TEST(TakeOut, RefusesWhenTheHandsAreFull) {
    GameBuilder game = WithObjectAndBag({.place = 2});
    game.Object(3, {.place = kCarriedPlace}).Setting("maxobj", 1);
    EXPECT_EQ(game.Do("TAKEOUT 1 2")->Said(), "(27)");
}

TEST(DropAll, DropsWhatIsCarriedAndWorn) {
    const auto run = With({.place = kCarriedPlace})
                         .Object(2, {.place = kWornPlace})
                         .Object(3, {.place = 2})
                         .Do("DROPALL");
    EXPECT_EQ(run->PlaceOf(1), 0);
    EXPECT_EQ(run->PlaceOf(2), 0);
    EXPECT_EQ(run->Flag(1), 0);
}

TEST(DropAll, LeavesEverythingElseWhereItIs) {
    const auto run = With({.place = 2}).Do("DROPALL");
    EXPECT_EQ(run->PlaceOf(1), 2);
    EXPECT_EQ(run->PlaceOf(0), kNotCreated);
}

// COPYOO, COPYOF, COPYFO

TEST(CopyOO, PutsTheSecondObjectWhereTheFirstIs) {
    const auto run = With({.place = kCarriedPlace}).Object(2, {.place = 2}).Do("COPYOO 1 2");
    EXPECT_EQ(run->PlaceOf(2), kCarriedPlace);
    EXPECT_EQ(run->Flag(1), 2);
    EXPECT_EQ(run->Flag(51), 2);
}

TEST(CopyOO, LeavesTheFirstObjectWhereItIs) {
    EXPECT_EQ(With({.place = 1}).Object(2, {.place = 2}).Do("COPYOO 1 2")->PlaceOf(1), 1);
}

TEST(CopyOF, CopiesTheLocationIntoAFlag) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("COPYOF 1 100")->Flag(100), 254);
}

TEST(CopyOF, OfAnObjectThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(With({}).Numbers(0, 100, 255, "220 7 100").Do("DONE")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), COPYOF 7 100: object 7 "
              "does not exist.");
}

TEST(CopyFO, CopiesAFlagIntoTheLocation) {
    EXPECT_EQ(With({.place = 0}).Do("LET 100 2 COPYFO 100 1")->PlaceOf(1), 2);
}

TEST(CopyFO, OfACarriedObjectLeavesTheCountTooHigh) {
    EXPECT_EQ(With({.place = kCarriedPlace}).Do("LET 100 2 COPYFO 100 1")->Flag(1), 1);
}

// WEIGH, WEIGHT

TEST(Weigh, IsTheWeightOfAThing) {
    EXPECT_EQ(With({.weight = 7}).Do("WEIGH 1 100")->Flag(100), 7);
}

TEST(Weigh, OfAContainerAddsWhatIsInItAndInContainersInIt) {
    GameBuilder game = With({.weight = 7, .container = true});
    game.Object(2, {.place = 1, .weight = 5, .container = true}).Object(3, {.place = 2, .weight = 60});
    EXPECT_EQ(game.Do("WEIGH 1 100")->Flag(100), 72);
}

TEST(Weigh, OfAContainerWithoutWeightIsNothingWhateverItHolds) {
    GameBuilder game = With({.weight = 0, .container = true});
    EXPECT_EQ(game.Object(2, {.place = 1, .weight = 60}).Do("WEIGH 1 100")->Flag(100), 0);
}

TEST(Weigh, OfAContainerGoesOnBehindTheContainersInIt) {
    GameBuilder game = With({.weight = 1, .container = true});
    game.Object(2, {.place = 1, .weight = 2, .container = true})
        .Object(3, {.place = 2, .weight = 4, .container = true})
        .Object(4, {.place = 3, .weight = 8})
        .Object(5, {.place = 2, .weight = 16})
        .Object(6, {.place = 1, .weight = 32, .container = true});
    EXPECT_EQ(game.Do("WEIGH 1 100")->Flag(100), 63);
}

TEST(Weigh, HasNoCap) {
    GameBuilder game = With({.weight = 63, .container = true});
    for (int object = 2; object < 8; ++object)
        game.Object(object, {.place = 1, .weight = 63});
    EXPECT_EQ(game.Do("WEIGH 1 100")->Flag(100), 441);
}

TEST(Weigh, OfAMarloGameIsNothing) {
    EXPECT_EQ(With({.weight = 7}, AdventureKind::Marlo).Do("LET 30 9 WEIGH 1 30")->Flag(30), 0);
}

TEST(Weigh, OfAMarloGameIsNothingForAContainerInsideItselfToo) {
    const auto run =
        With({.place = 1, .weight = 5, .container = true}, AdventureKind::Marlo).Do("LET 30 9 WEIGH 1 30");
    EXPECT_EQ(run->Flag(30), 0);
    EXPECT_EQ(run->Waits(), engine::Waiting::Sentence);
}

TEST(Weigh, OfAContainerThatLiesInsideItselfIsARunTimeFailure) {
    EXPECT_EQ(With({.place = 1, .weight = 5, .container = true}).Do("WEIGH 1 100")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), WEIGH 1 100: object 1 lies "
              "inside itself.");
}

TEST(Weigh, OfTwoContainersThatLieInsideEachOtherNamesTheOneThatIsMetAgain) {
    GameBuilder game = With({.place = 2, .weight = 5, .container = true});
    game.Object(2, {.place = 1, .weight = 5, .container = true});
    EXPECT_EQ(game.Do("WEIGH 1 100")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), WEIGH 1 100: object 2 lies "
              "inside itself.");
}

TEST(Weight, SumsWhatIsCarriedAndWorn) {
    GameBuilder game = With({.place = kCarriedPlace, .weight = 7});
    game.Object(2, {.place = kWornPlace, .weight = 5}).Object(3, {.place = 0, .weight = 60});
    EXPECT_EQ(game.Do("WEIGHT 100")->Flag(100), 12);
}

TEST(Weight, IsAtMost255) {
    GameBuilder game = With({.place = kCarriedPlace, .weight = 63});
    for (int object = 2; object < 8; ++object)
        game.Object(object, {.place = kCarriedPlace, .weight = 63});
    EXPECT_EQ(game.Do("WEIGHT 100")->Flag(100), 255);
}

TEST(Weight, OfAMarloGameIsNothing) {
    EXPECT_EQ(With({.place = kCarriedPlace, .weight = 7}, AdventureKind::Marlo).Do("WEIGHT 30")->Flag(30),
              0);
}

// What flags 51 to 57 tell

TEST(ObjectFlags, AWearableObjectHasFlag57AtExactly128) {
    EXPECT_EQ(With({.place = 0, .wearable = true}).Do("GET 1")->Flag(57), 128);
}

TEST(ObjectFlags, OfAMarloGameAnObjectIsWearableWhenItsNounIs200OrMore) {
    GameBuilder coat(AdventureKind::Marlo);
    coat.Word("COAT", 200, 2).Object(0, {.place = 0, .noun = "COAT"});
    EXPECT_EQ(coat.Do("GET 0")->Flag(57), 128);
    GameBuilder lamp(AdventureKind::Marlo);
    lamp.Word("LAMP", 199, 2).Object(0, {.place = 0, .noun = "LAMP"});
    EXPECT_EQ(lamp.Do("GET 0")->Flag(57), 0);
}

TEST(ObjectFlags, OfAnObjectNumber255OrMorePlaceAndWeightAre0) {
    GameBuilder game;
    game.Object(300, {.place = 0, .weight = 9});
    const auto run = game.Do("GET 300");
    EXPECT_EQ(run->Flag(51), 300);
    EXPECT_EQ(run->Flag(55), 0);
    EXPECT_EQ(run->PlaceOf(300), kCarriedPlace);
}

}  // namespace
}  // namespace fabula::test
