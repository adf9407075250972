#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Picture;
using engine::PlaceNumber;
using store::AdventureKind;

GameBuilder Texts() {
    GameBuilder game;
    game.Message(0, "nought").Message(1, "one").Message(2, "I see _.");
    game.Object(0, {.description = "a light", .place = 252});
    game.Object(1, {.description = "the old\u008C  lamp", .place = 0});
    return game;
}

std::string SaidBy(const std::string& condacts) {
    return Texts().Do(condacts)->Said();
}

std::string FailureOfPrinting(const std::string& condacts) {
    return Texts().Do(condacts)->Box();
}

// Messages

TEST(Mes, PrintsAMessage) {
    EXPECT_EQ(SaidBy("MES 1 MES 0"), "onenought");
}

TEST(Mes, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("MES 412"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), MES 412: message 412 does "
              "not exist.");
}

TEST(Mes, OfAMessageThatDoesNotExistIsARunTimeFailureInTheTypesWithTextsInMemoryToo) {
    EXPECT_EQ(GameBuilder(AdventureKind::Vel).Do("MES 412")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), MES 412: message 412 does "
              "not exist.");
}

TEST(Message, PrintsAMessageAndALineEnd) {
    EXPECT_EQ(SaidBy("MESSAGE 1 MESSAGE 0"), "one\nnought\n");
}

TEST(Message, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("MESSAGE -1"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), MESSAGE -1: message -1 "
              "does not exist.");
}

TEST(SysMess, PrintsASystemMessage) {
    EXPECT_EQ(SaidBy("SYSMESS 25"), "(25)");
}

TEST(SysMess, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("SYSMESS 99"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), SYSMESS 99: system message "
              "99 does not "
              "exist.");
}

TEST(MesF, PrintsTheMessageThatAFlagNames) {
    EXPECT_EQ(SaidBy("LET 100 1 MESF 100"), "one");
}

TEST(MesF, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("LET 100 9 MESF 100"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), MESF 100: message 9 does "
              "not exist.");
}

TEST(MessgF, PrintsTheMessageThatAFlagNamesAndALineEnd) {
    EXPECT_EQ(SaidBy("LET 100 1 MESSGF 100"), "one\n");
}

TEST(MessgF, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("LET 100 9 MESSGF 100"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), MESSGF 100: message 9 does "
              "not exist.");
}

TEST(SysMsgF, PrintsTheSystemMessageThatAFlagNames) {
    EXPECT_EQ(SaidBy("LET 100 25 SYSMSGF 100"), "(25)");
}

TEST(SysMsgF, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("LET 100 99 SYSMSGF 100"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), SYSMSGF 100: system "
              "message 99 does not "
              "exist.");
}

TEST(Underscore, BecomesTheDescriptionOfTheObjectOfFlag51OnOneLine) {
    EXPECT_EQ(SaidBy("LET 51 1 MES 2"), "I see the old lamp.");
}

TEST(Underscore, StaysWhenFlag51NamesNoObject) {
    EXPECT_EQ(SaidBy("LET 51 255 MES 2"), "I see _.");
    EXPECT_EQ(SaidBy("LET 51 2 MES 2"), "I see _.");
}

TEST(Underscore, IsReplacedInRefusalsAndSuccessMessages) {
    EXPECT_EQ(Texts().SystemMessage(36, "Got _.").Do("GET 1")->Said(), "Got the old lamp.");
    EXPECT_EQ(Texts().SystemMessage(28, "No _.").Do("DROP 0")->Said(), "No a light.");
}

TEST(Underscore, IsReplacedInQuestions) {
    EXPECT_EQ(Texts().Message(3, "Eat _?").Do("LET 51 1 YESNO 3")->window.TakeText(),
              "\nEat the old lamp?");
}

TEST(Underscore, StaysInThePromptAndTheCursor) {
    const auto run = Texts().SystemMessage(3, "_ now").Do("LET 51 1");
    EXPECT_EQ(run->window.TakeText(), "_ now\n");
    EXPECT_EQ(run->window.cursor, "_");
}

// Numbers

TEST(Print, WritesTheValueWithoutABlank) {
    EXPECT_EQ(SaidBy("LET 100 -42 PRINT 100 MES 1"), "-42one");
}

TEST(Print, OfAFlagThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOfPrinting("PRINT 5000"),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), PRINT 5000: flag 5000 does "
              "not exist.");
}

TEST(Turns, TellsTheNumberOfSentences) {
    EXPECT_EQ(SaidBy("LET 32 1 LET 31 44 TURNS"), "(17)300 (18)(19)(20)");
}

TEST(Turns, LeavesThePluralAwayForOne) {
    EXPECT_EQ(SaidBy("TURNS"), "(17)1 (18)(20)");
}

TEST(Score, TellsFlag30) {
    EXPECT_EQ(SaidBy("LET 30 70 SCORE"), "(21)70(22)(20)");
}

TEST(Score, OfNothingIs0) {
    EXPECT_EQ(SaidBy("SCORE"), "(21)0(22)(20)");
}

TEST(NewLine, EndsTheLineAndGoesBackToTheColoursOfTheGame) {
    GameBuilder game = Texts();
    game.Setting("textcolor", 6).Setting("BackColor", 1);
    const auto run = game.Do("INK 2 PAPER 3 MES 1 NEWLINE MES 0");
    EXPECT_EQ(run->Said(), "one\nnought");
    EXPECT_EQ(run->window.StyleOf("one").ink, 2);
    EXPECT_EQ(run->window.StyleOf("one").paper, 3);
    EXPECT_EQ(run->window.StyleOf("nought").ink, 6);
    EXPECT_EQ(run->window.StyleOf("nought").paper, 1);
}

TEST(NewLine, KeepsEverythingElseOfTheStyle) {
    const auto run = Texts().Do("FLASH 1 INVERSE 1 NEWLINE MES 1");
    EXPECT_TRUE(run->window.StyleOf("one").flash);
    EXPECT_TRUE(run->window.StyleOf("one").inverse);
}

TEST(Cls, ClearsTheWindow) {
    const auto run = Texts().Do("MES 1 CLS MES 0");
    EXPECT_EQ(run->window.clears, 2);  // and once at the start
    EXPECT_EQ(run->window.Screen(), "nought?\n>");
}

TEST(Cls, WithoutItTheTextStays) {
    EXPECT_EQ(Texts().Do("MES 1")->window.clears, 1);
}

// Lists

GameBuilder PrintedThings() {
    GameBuilder game;
    game.Object(0, {.description = "a light", .place = 252});
    return game;
}

TEST(Inven, ListsWhatIsCarriedAndWornOneToALine) {
    GameBuilder game = PrintedThings();
    game.Object(1, {.description = "a hat", .place = 253})
        .Object(2, {.description = "a pie", .place = 254});
    EXPECT_EQ(game.Do("INVEN")->Said(), "(9)\na hat(10)\na pie\n");
}

TEST(Inven, SaysMessage11WithEmptyHands) {
    EXPECT_EQ(PrintedThings().Do("INVEN")->Said(), "(9)\n(11)");
}

TEST(ListObj, ListsWhatIsHereOneToALine) {
    GameBuilder game = PrintedThings();
    game.Object(1, {.description = "a hat", .place = 0}).Object(2, {.description = "a pie", .place = 0});
    const auto run = game.Do("LISTOBJ");
    EXPECT_EQ(run->Said(), "(1)\na hat\na pie\n");
    EXPECT_EQ(run->Flag(53), 128);
}

TEST(ListObj, SaysNothingWhereNothingIs) {
    const auto run = PrintedThings().Do("LET 53 128 LISTOBJ");
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->Flag(53), 0);
}

TEST(ListObj, WithBit6OfFlag53RunsOnWithTheFirstOfTwoBeforeMessage47AndTheSecondBefore48) {
    GameBuilder game = PrintedThings();
    game.Object(1, {.description = "a hat", .place = 0}).Object(2, {.description = "a pie", .place = 0});
    const auto run = game.Do("LET 53 64 LISTOBJ");
    EXPECT_EQ(run->Said(), "(1)a hat(47)a pie(48)");
    EXPECT_EQ(run->Flag(53), 192);
}

TEST(ListObj, WithBit6OfFlag53PutsMessage46BehindAllButTheLastTwo) {
    GameBuilder game = PrintedThings();
    game.Object(1, {.description = "a", .place = 0}).Object(2, {.description = "b", .place = 0});
    game.Object(3, {.description = "c", .place = 0});
    EXPECT_EQ(game.Do("LET 53 64 LISTOBJ")->Said(), "(1)a(46)b(47)c(48)");
}

TEST(ListObj, WithBit6OfFlag53EndsOneObjectWithMessage48) {
    EXPECT_EQ(
        PrintedThings().Object(1, {.description = "a hat", .place = 0}).Do("LET 53 64 LISTOBJ")->Said(),
        "(1)a hat(48)");
}

TEST(ListAt, ListsWhatIsAtALocation) {
    GameBuilder game = PrintedThings();
    game.Object(1, {.description = "a hat", .place = 2});
    const auto run = game.Do("LISTAT 2");
    EXPECT_EQ(run->Said(), "\na hat\n");
    EXPECT_EQ(run->Flag(53), 128);
}

TEST(ListAt, SaysMessage53WhereNothingIs) {
    const auto run = PrintedThings().Do("LISTAT 2");
    EXPECT_EQ(run->Said(), "(53)");
    EXPECT_EQ(run->Flag(53), 0);
}

TEST(ListAt, HereIsThePlayersLocation) {
    EXPECT_EQ(PrintedThings().Object(1, {.description = "a hat", .place = 0}).Do("LISTAT HERE")->Said(),
              "\na hat\n");
}

TEST(ListAt, Above255IsALocationWhereThereIsOne) {
    GameBuilder game = PrintedThings();
    game.Location(300, "Room 300").Object(1, {.description = "a hat", .place = 300});
    EXPECT_EQ(game.Do("LISTAT 300")->Said(), "\na hat\n");
}

TEST(ListAt, Above255IsHereWhereThereIsNoSuchLocation) {
    EXPECT_EQ(PrintedThings().Object(1, {.description = "a hat", .place = 0}).Do("LISTAT 300")->Said(),
              "\na hat\n");
}

// Pictures

TEST(PictureAction, ShowsThePictureOfALocation) {
    GameBuilder game;
    const auto run = game.Graphics().PictureOf(1, "cave.bmp").Do("PICTURE 1");
    EXPECT_EQ(run->window.pictures.back(), (Picture{"cave.bmp", PlaceNumber(1)}));
}

TEST(PictureAction, DoesNothingInAGameWithoutPictures) {
    GameBuilder game;
    EXPECT_TRUE(game.PictureOf(1, "cave.bmp").Do("PICTURE 1")->window.pictures.empty());
}

TEST(PictureAction, OfALocationThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(GameBuilder().Do("PICTURE 9")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), PICTURE 9: location 9 does "
              "not exist.");
}

// Looks

/// The style of message 1 behind some condacts.
engine::TextStyle StyleAfter(const std::string& condacts) {
    return Texts()
        .Setting("textcolor", 7)
        .Setting("BackColor", 0)
        .Do(condacts + " MES 1")
        ->window.StyleOf("one");
}

TEST(Paper, SetsTheColourBehindTheText) {
    EXPECT_EQ(StyleAfter("PAPER 4").paper, 4);
}

TEST(Paper, IsAtMost8) {
    EXPECT_EQ(StyleAfter("PAPER 12").paper, 8);
}

TEST(Ink, SetsTheColourOfTheText) {
    EXPECT_EQ(StyleAfter("INK 4").ink, 4);
}

TEST(Ink, Of8OrMoreLeavesTheInkAlone) {
    EXPECT_EQ(StyleAfter("INK 4 INK 8").ink, 4);
    EXPECT_EQ(StyleAfter("INK 4 INK 12").ink, 4);
}

TEST(CharSet, ChoosesAFont) {
    EXPECT_EQ(StyleAfter("CHARSET 3").font, 3);
}

TEST(CharSet, StaysUntilTheNext) {
    EXPECT_EQ(StyleAfter("CHARSET 3 CLS NEWLINE").font, 3);
}

TEST(FntSize, ChoosesTheSizeOfACode) {
    EXPECT_EQ(StyleAfter("FNTSIZE 20").fontSize, 20);
}

TEST(FntSize, OfACodeThatDoesNotExistChangesNothing) {
    EXPECT_EQ(StyleAfter("FNTSIZE 20 FNTSIZE 9999").fontSize, 20);
}

TEST(Bright, RaisesADarkInk) {
    const engine::TextStyle style = StyleAfter("INK 2 BRIGHT 1");
    EXPECT_TRUE(style.bright);
    EXPECT_EQ(style.ink, 10);
}

TEST(Bright, RaisesABrightInkNoFurther) {
    EXPECT_EQ(StyleAfter("INK 2 BRIGHT 1 BRIGHT 1").ink, 10);
}

TEST(Bright, Of0LowersABrightInk) {
    const engine::TextStyle style = StyleAfter("INK 2 BRIGHT 1 BRIGHT 0");
    EXPECT_FALSE(style.bright);
    EXPECT_EQ(style.ink, 2);
}

TEST(Flash, IsSwitchedOnAndOff) {
    EXPECT_TRUE(StyleAfter("FLASH 1").flash);
    EXPECT_FALSE(StyleAfter("FLASH 1 FLASH 0").flash);
}

TEST(Inverse, IsSwitchedOnAndOff) {
    EXPECT_TRUE(StyleAfter("INVERSE 1").inverse);
    EXPECT_FALSE(StyleAfter("INVERSE 1 INVERSE 0").inverse);
}

TEST(Over, IsSwitchedOnAndOff) {
    EXPECT_TRUE(StyleAfter("OVER 1").over);
    EXPECT_FALSE(StyleAfter("OVER 1 OVER 0").over);
}

}  // namespace
}  // namespace fabula::test
