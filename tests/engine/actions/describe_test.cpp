#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Picture;
using engine::PlaceNumber;
using store::AdventureKind;
using Pictures = std::vector<std::optional<Picture>>;

/// A place with both texts; DO describes it again.
GameBuilder Place(AdventureKind kind = AdventureKind::Fabula) {
    GameBuilder game(kind);
    game.Location(0, "A long hall.", "A hall.").Entry(0, "DO", "_", "DESC");
    return game;
}

TEST(Describe, IsLongAtTheFirstVisitAndShortFromThenOn) {
    const auto run = Place().Start();
    EXPECT_EQ(run->Said(), "A long hall.");
    EXPECT_TRUE(run->Visited(0));
    EXPECT_EQ(run->Type("DO"), "A hall.");
}

TEST(Describe, IsLongWhenBit7OfFlag29AsksForIt) {
    const auto run = Place().Start();
    run->Said();
    run->SetFlag(29, 128);
    EXPECT_EQ(run->Type("DO"), "A long hall.");
}

TEST(Describe, IsLongWhenFlag1003AsksForIt) {
    const auto run = Place().Start();
    run->Said();
    run->SetFlag(1003, 1);
    EXPECT_EQ(run->Type("DO"), "A long hall.");
}

TEST(Describe, IsLongWhereThereIsNoShortText) {
    for (const char* none : {"", " "}) {
        const auto run = Place().Location(0, "A long hall.", none).Start();
        run->Said();
        EXPECT_EQ(run->Type("DO"), "A long hall.");
    }
}

TEST(Describe, OfTheTypesWithTextsInMemoryDoesTheSame) {
    const auto run = Place(AdventureKind::Vel).Start();
    EXPECT_EQ(run->Said(), "A long hall.");
    EXPECT_EQ(run->Type("DO"), "A hall.");
}

TEST(Describe, InTheDarkSaysMessage0AndMarksNoVisit) {
    GameBuilder game = Place();
    game.Object(0, {.place = 252}).Entry(1, "_", "_", "ZERO 200 SET 200 SET 0 GOTO 1 DESC");
    const auto run = game.Start();
    EXPECT_EQ(run->Said(), "A long hall.\n(0)");
    EXPECT_FALSE(run->Visited(1));
}

TEST(Describe, Object0LightsTheDark) {
    for (const int place : {253, 254, 0}) {
        GameBuilder game = Place();
        game.Object(0, {.place = place}).Entry(0, "DO", "_", "SET 0 DESC");
        const auto run = game.Start();
        run->Said();
        EXPECT_EQ(run->Type("DO"), "A hall.") << place;
    }
}

TEST(Describe, ClearsTheWindowWhenFlag40AsksForIt) {
    const auto run = Place().Start();
    run->SetFlag(40, 1);
    run->Type("DO");
    EXPECT_EQ(run->window.Screen(), "A hall.?\n>");
}

TEST(Describe, StandsOnALineOfItsOwnInTheColoursOfTheGame) {
    GameBuilder game = Place();
    game.Setting("textcolor", 7).Message(1, "Look:").Word("SEE", 101, 0);
    const auto run = game.Entry(0, "SEE", "_", "INK 2 MES 1 DESC").Start();
    run->Said();
    EXPECT_EQ(run->Type("SEE"), "Look:\nA hall.");
    EXPECT_EQ(run->window.StyleOf("Look").ink, 2);
    EXPECT_EQ(run->window.StyleOf("A hall").ink, 7);
}

TEST(Describe, HasItsLinesEnded) {
    EXPECT_EQ(GameBuilder().Location(0, "A hall.\u008CCold.\u008C").Start()->Said(), "A hall.\nCold.\n");
}

// Pictures

/// Pictures at 0 and 1, none at 2, and the default picture "any.bmp".
GameBuilder Pictured() {
    GameBuilder game;
    game.Graphics().PictureOf(0, "hall.bmp").PictureOf(1, "cave.bmp");
    game.SettingText("defpickey", "Default").SettingText("defpicloc", "any.bmp").Location(3, "Room 3");
    game.Entry(0, "DO", "_", "DESC");
    return game;
}

TEST(ShowRoomPicture, ShowsTheLocationsPictureAtTheFirstVisit) {
    EXPECT_EQ(Pictured().Start()->window.pictures, (Pictures{Picture{"hall.bmp", PlaceNumber(0)}}));
}

TEST(ShowRoomPicture, ShowsTheDefaultPictureWhereThereIsNone) {
    EXPECT_EQ(Pictured().Setting("startloc", 2).Start()->window.pictures,
              (Pictures{Picture{"any.bmp", Picture::kOfTheGame}}));
}

TEST(ShowRoomPicture, ShowsNoneWhereThereIsNoneAndNoDefault) {
    GameBuilder game;
    EXPECT_EQ(game.Graphics().Start()->window.pictures, (Pictures{std::nullopt}));
}

TEST(ShowRoomPicture, DoesNothingInAGameWithoutPictures) {
    GameBuilder game;
    EXPECT_TRUE(game.PictureOf(0, "hall.bmp").Start()->window.pictures.empty());
}

TEST(ShowRoomPicture, APathWithoutAPictureKeyIsNoPicture) {
    GameBuilder game = Pictured();
    const TempFolder folder;
    game.Write(folder / "game.fbd");
    const auto adventure = store::Adventure::Open(folder / "game.fbd");
    store::Cursor& row = adventure->OpenTable(store::TableNum::Locations, "def", "locnum=0");
    row.SetField("pickey", std::string(" "));
    row.Update();
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    QueuedRandom random;
    engine::SilentPlayer sound;
    engine::Engine engine(*adventure, {window, person, random, sound, nullptr, window.Parts()});
    engine.Initialize();
    EXPECT_EQ(window.pictures, (Pictures{Picture{"any.bmp", Picture::kOfTheGame}}));
}

/// The pictures of a second description, with a graphics mode in flag 29.
Pictures SecondTime(int mode) {
    const auto run = Pictured().Start();
    run->SetFlag(29, mode);
    run->window.pictures.clear();
    run->Type("DO");
    return run->window.pictures;
}

TEST(ShowRoomPicture, IsHeldBackAtLaterVisits) {
    EXPECT_EQ(SecondTime(0), (Pictures{std::nullopt}));
}

TEST(ShowRoomPicture, IsShownAtEveryVisitWithGraphic1) {
    EXPECT_EQ(SecondTime(32), (Pictures{Picture{"hall.bmp", PlaceNumber(0)}}));
}

TEST(ShowRoomPicture, IsShownWithTheLongTextThatBit7AsksFor) {
    EXPECT_EQ(SecondTime(128), (Pictures{Picture{"hall.bmp", PlaceNumber(0)}}));
}

TEST(ShowRoomPicture, IsNeverShownWithGraphic2Or3) {
    EXPECT_EQ(SecondTime(64), (Pictures{std::nullopt}));
    EXPECT_EQ(SecondTime(96), (Pictures{std::nullopt}));
    GameBuilder game = Pictured();
    game.Entry(1, "_", "_", "ZERO 200 SET 200 GRAPHIC 2 GOTO 1 DESC");
    EXPECT_EQ(game.Start()->window.pictures.back(), std::nullopt);
}

TEST(ShowRoomPicture, InTheDarkShowsThatOfTheLastLocation) {
    GameBuilder game = Pictured();
    game.Object(0, {.place = 252}).Entry(1, "_", "_", "ZERO 200 SET 200 SET 0 GOTO 1 DESC");
    EXPECT_EQ(game.Start()->window.pictures.back(), (Picture{"any.bmp", Picture::kOfTheGame}));
}

TEST(ShowRoomPicture, OfAMarloGameGoesByFlag1013) {
    GameBuilder game(AdventureKind::Marlo);
    game.Graphics().PictureOf(0, "hall.bmp").Entry(0, "DO", "_", "DESC");
    const auto run = game.Start();
    run->SetFlag(1013, 32);
    run->Type("DO");
    EXPECT_EQ(run->window.pictures.back(), (Picture{"hall.bmp", PlaceNumber(0)}));
}

}  // namespace
}  // namespace fabula::test
