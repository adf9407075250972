#include "engine/cycle/parser.h"

#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::SplitSentences;
using store::AdventureKind;

// Sentences

TEST(SplitSentences, SplitsAtPunctuation) {
    EXPECT_EQ(SplitSentences("A,B;C.D!E?F", {}), "A\rB\rC\rD\rE\rF");
}

TEST(SplitSentences, SplitsAtAConjunctionBetweenBlanks) {
    EXPECT_EQ(SplitSentences("GET LAMP AND LOOK", {"AND"}), "GET LAMP\rLOOK");
}

TEST(SplitSentences, DoesNotSplitAtAConjunctionAtEitherEnd) {
    EXPECT_EQ(SplitSentences("AND LOOK AND", {"AND"}), "AND LOOK AND");
}

TEST(SplitSentences, DoesNotSplitInsideAWord) {
    EXPECT_EQ(SplitSentences("GET SAND", {"AND"}), "GET SAND");
}

TEST(SplitSentences, TakesLineEndsForBlanks) {
    EXPECT_EQ(SplitSentences("GET\r\nTHE\rRED\nLAMP", {}), "GET THE RED LAMP");
}

TEST(SplitSentences, DropsPunctuationAtTheEnd) {
    EXPECT_EQ(SplitSentences("LOOK...", {}), "LOOK");
    EXPECT_EQ(SplitSentences("?!", {}), "");
}

// Words

GameBuilder ParsedWorld(AdventureKind kind = AdventureKind::Fabula) {
    GameBuilder game(kind);
    game.Word("GET", 20, 0).Word("PUT", 21, 0).Word("EXAMINE", 22, 0);
    game.Word("SLOWLY", 40, 1).Word("SOFTLY", 41, 1);
    game.Word("NORTH", 5, 2)
        .Word("COIN", 49, 2)
        .Word("LAMP", 60, 2)
        .Word("BOX", 61, 2)
        .Word("TABLE", 62, 2);
    game.Word("RED", 30, 3).Word("BLUE", 31, 3).Word("IN", 50, 4).Word("ON", 51, 4);
    game.Word("AND", 2, 5).Word("IT", 3, 6);
    game.Entry(0, "*", "*", "DONE");
    return game;
}

/// The words of a sentence: verb, noun, adjective, adverb, preposition, second noun and its adjective.
std::vector<int> WordsOf(GameRun& run) {
    std::vector<int> words;
    for (const int flag : {33, 34, 35, 36, 43, 44, 45})
        words.push_back(run.Flag(flag));
    return words;
}

/// The words of the last of some lines, typed one after the other.
std::vector<int> Parsed(const GameBuilder& game, const std::vector<std::string>& lines) {
    const auto run = game.Start();
    for (const std::string& line : lines)
        run->Type(line);
    return WordsOf(*run);
}

std::vector<int> Parsed(const std::string& line) {
    return Parsed(ParsedWorld(), {line});
}

using ParsedWords = std::vector<int>;

TEST(ParsePhrase, FindsVerbAdjectiveNounAndTheSecondPair) {
    EXPECT_EQ(Parsed("PUT THE RED LAMP SLOWLY IN THE BLUE BOX"), (ParsedWords{21, 60, 30, 40, 50, 61, 31}));
}

TEST(ParsePhrase, TakesKeysInUpperCase) {
    EXPECT_EQ(Parsed("get lamp"), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, PassesOverUnknownWords) {
    EXPECT_EQ(Parsed("GET XYZZY LAMP PLUGH"), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ManyBlanksAreOne) {
    EXPECT_EQ(Parsed("  GET    LAMP  "), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, OnlyTheFirstAdverbAndPrepositionCount) {
    EXPECT_EQ(Parsed("GET SLOWLY SOFTLY LAMP ON IN"), (ParsedWords{20, 60, 255, 40, 51, 255, 255}));
}

TEST(ParsePhrase, TwoDifferentNounsAreFirstAndSecond) {
    EXPECT_EQ(Parsed("PUT LAMP BOX"), (ParsedWords{21, 60, 255, 255, 255, 61, 255}));
}

TEST(ParsePhrase, AThirdNounIsPassedOver) {
    EXPECT_EQ(Parsed("PUT LAMP BOX RED TABLE"), (ParsedWords{21, 60, 255, 255, 255, 61, 255}));
}

TEST(ParsePhrase, OneNounTwiceIsOneThing) {
    EXPECT_EQ(Parsed("GET LAMP LAMP"), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, OneNounTwiceWithDifferentAdjectivesIsTwoThings) {
    EXPECT_EQ(Parsed("GET RED LAMP BLUE LAMP"), (ParsedWords{20, 60, 30, 255, 255, 60, 31}));
}

TEST(ParsePhrase, OneNounTwiceWithOneAdjectiveIsOneThing) {
    EXPECT_EQ(Parsed("GET RED LAMP RED LAMP"), (ParsedWords{20, 60, 30, 255, 255, 255, 30}));
}

TEST(ParsePhrase, AConjunctionSplitsFirst) {
    EXPECT_EQ(Parsed("GET THE RED LAMP AND THE BLUE LAMP"), (ParsedWords{255, 60, 31, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ASecondAdjectiveBeforeTheNounIsPassedOver) {
    EXPECT_EQ(Parsed("GET RED BLUE LAMP"), (ParsedWords{20, 60, 30, 255, 255, 255, 255}));
}

TEST(ParsePhrase, AVerbThatIsANounTooIsThatNounTheSecondTime) {
    EXPECT_EQ(Parsed(ParsedWorld().Word("GET", 70, 2), {"GET GET"}),
              (ParsedWords{20, 70, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ASecondVerbIsPassedOverWithoutASecondRow) {
    EXPECT_EQ(Parsed("GET PUT LAMP"), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ASecondVerbIsPassedOverWithThreeRows) {
    GameBuilder game = ParsedWorld();
    game.Word("PUT", 70, 2).Word("PUT", 71, 3);
    EXPECT_EQ(Parsed(game, {"GET PUT"}), (ParsedWords{20, 255, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ADirectionNounAloneIsTheVerbToo) {
    EXPECT_EQ(Parsed("NORTH"), (ParsedWords{5, 5, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ADirectionNounWithAVerbIsANoun) {
    EXPECT_EQ(Parsed("EXAMINE NORTH"), (ParsedWords{22, 5, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, APlainNounAloneIsNoVerb) {
    EXPECT_EQ(Parsed("LAMP"), (ParsedWords{255, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, APronounStandsForTheLastNounWithItsAdjective) {
    EXPECT_EQ(Parsed(ParsedWorld(), {"EXAMINE RED LAMP", "GET IT"}),
              (ParsedWords{20, 60, 30, 255, 255, 255, 255}));
}

TEST(ParsePhrase, APronounBehindANounIsTheSecondNoun) {
    EXPECT_EQ(Parsed(ParsedWorld(), {"EXAMINE BLUE BOX", "PUT LAMP IN IT"}),
              (ParsedWords{21, 60, 255, 255, 50, 61, 31}));
}

TEST(ParsePhrase, APronounWithNothingToStandForIsPassedOver) {
    EXPECT_EQ(Parsed("GET IT"), (ParsedWords{20, 255, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, OfTwoNounsThePronounRemembersTheFirst) {
    EXPECT_EQ(Parsed(ParsedWorld(), {"PUT LAMP IN BOX", "GET IT"}),
              (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ANounBelow50IsNeverRememberedForThePronoun) {
    EXPECT_EQ(Parsed(ParsedWorld(), {"GET LAMP", "GET COIN", "EXAMINE IT"}),
              (ParsedWords{22, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, OfASecondNounThePronounRemembersItWhenTheFirstIsBelow50) {
    EXPECT_EQ(Parsed(ParsedWorld(), {"PUT COIN IN BLUE BOX", "EXAMINE IT"}),
              (ParsedWords{22, 61, 31, 255, 255, 255, 255}));
}

TEST(ParsePhrase, TheWordsOfTheSentenceBeforeAreGone) {
    EXPECT_EQ(Parsed(ParsedWorld(), {"PUT RED LAMP SLOWLY IN BLUE BOX", "GET"}),
              (ParsedWords{20, 255, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, AnAccentedWordIsKnown) {
    EXPECT_EQ(Parsed(ParsedWorld().Word("TÜR", 80, 2), {"GET TÜR"}),
              (ParsedWords{20, 80, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, AQuoteInAWordIsHarmless) {
    EXPECT_EQ(Parsed("GET THE 'RED' O'LAMP' OR '1'='1 LAMP"),
              (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, OfAFabulaGameLooksAtThirtyLetters) {
    const std::string word(31, 'A');
    EXPECT_EQ(Parsed(ParsedWorld().Word(word.substr(1), 80, 2), {"GET " + word + "B"})[1], 80);
}

TEST(ParsePhrase, OfAVelGameLooksAtFiveLetters) {
    GameBuilder game = ParsedWorld(AdventureKind::Vel);
    EXPECT_EQ(Parsed(game.Word("EXAMI", 23, 0), {"EXAMINATE LAMP"}),
              (ParsedWords{23, 60, 255, 255, 255, 255, 255}));
}

TEST(ParsePhrase, ASentenceWithoutVerbAndNounFails) {
    const auto run = ParsedWorld().Start();
    run->Said();
    EXPECT_EQ(run->Type("SLOWLY"), "(6)");
    EXPECT_EQ(run->Flag(31), 0);
}

TEST(ParsePhrase, AFailedSentenceThrowsTheRestOfTheLineAway) {
    const auto run = ParsedWorld().Start();
    run->Said();
    EXPECT_EQ(run->Type("XYZZY. GET LAMP"), "(6)");
}

// "marlo"

std::vector<int> MarloParsed(const std::vector<std::string>& lines) {
    GameBuilder game(AdventureKind::Marlo);
    game.Word("GET", 20, 0).Word("NORT", 5, 0).Word("LAMP", 60, 2).Word("BOX", 50, 2).Word("RED", 30, 3);
    game.Word("COIN", 7, 2);
    return Parsed(game.Numbers(0, 255, 255, "265"), lines);
}

TEST(MarloPhrase, TakesTwoWords) {
    EXPECT_EQ(MarloParsed({"GET LAMP BOX"}), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(MarloPhrase, LooksAtFourLetters) {
    EXPECT_EQ(MarloParsed({"NORTHWARDS"}), (ParsedWords{5, 255, 255, 255, 255, 255, 255}));
}

TEST(MarloPhrase, KnowsVerbsAndNounsOnly) {
    EXPECT_EQ(MarloParsed({"GET RED LAMP"}), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(MarloPhrase, ADirectionWordIsTheVerbByBeingTheFirst) {
    EXPECT_EQ(MarloParsed({"NORTH"}), (ParsedWords{5, 255, 255, 255, 255, 255, 255}));
}

TEST(MarloPhrase, DropsAllFurtherSentences) {
    EXPECT_EQ(MarloParsed({"GET LAMP. NORTH"}), (ParsedWords{20, 60, 255, 255, 255, 255, 255}));
}

TEST(MarloPhrase, RemembersANounAbove50ForThePronounFlag) {
    GameBuilder game(AdventureKind::Marlo);
    game.Word("GET", 20, 0).Word("BOX", 50, 2).Word("LAMP", 51, 2).Numbers(0, 255, 255, "265");
    const auto run = game.Start();
    run->Type("GET LAMP");
    EXPECT_EQ(run->Flag(46), 51);
    run->Type("GET BOX");
    EXPECT_EQ(run->Flag(46), 51);
}

// Speech and PARSE

TEST(Parse, UnderstoodGoesOnWithTheNextEntryAndTheWordsOfTheSpeech) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Word("LAMP", 60, 2).Message(1, "What?").Message(2, "Yes.");
    game.Entry(0, "SAY", "_", "PARSE MES 1 DONE").Entry(0, "GET", "LAMP", "MES 2 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("SAY \"GET LAMP\""), "Yes.");
}

TEST(Parse, NotUnderstoodGoesOnWithTheEntryAndTheWordsOfTheSentence) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("SLOW", 40, 1).Word("BOB", 60, 2).Word("RED", 30, 3).Message(1, "What?");
    game.Entry(0, "SAY", "_", "PARSE MES 1 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("SAY SLOW RED BOB \"XYZZY\""), "What?");
    EXPECT_EQ(run->Flag(33), 20);
    EXPECT_EQ(run->Flag(34), 60);
    EXPECT_EQ(run->Flag(35), 30);
    EXPECT_EQ(run->Flag(36), 40);
    EXPECT_EQ(run->Flag(46), 60);
}

/// SAY reads speech, which GET LAMP answers by reading more, and MES 2 when there is no more.
GameBuilder SayingTwice() {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Word("LAMP", 60, 2).Word("BOB", 61, 2);
    game.Entry(0, "SAY", "_", "PARSE DONE").Entry(0, "GET", "LAMP", "PARSE SET 200 DONE");
    return game;
}

TEST(Parse, KeepsThePlayersOwnWordsWhileWhatIsSaidIsUnderstood) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Word("LAMP", 60, 2).Word("BOB", 61, 2);
    const auto run = game.Entry(0, "SAY", "_", "PARSE DONE").Start();
    run->Type("SAY BOB \"GET LAMP\"");
    EXPECT_EQ(run->Flag(33), 30);
    EXPECT_EQ(run->Flag(1006), 20);
    EXPECT_EQ(run->Flag(1008), 61);
}

TEST(Parse, TheLastOneThatIsNotUnderstoodGivesBackThePlayersOwnWords) {
    const auto run = SayingTwice().Start();
    run->Type("SAY BOB \"GET LAMP\"");
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_EQ(run->Flag(33), 20);
    EXPECT_EQ(run->Flag(34), 61);
}

TEST(Parse, ItsStoresAreClearedWhenTheWordsAreGivenBack) {
    const auto run = SayingTwice().Start();
    run->Type("SAY BOB \"GET LAMP\"");
    for (int store = 1006; store <= 1011; ++store)
        EXPECT_EQ(run->Flag(store), 0) << store;
}

TEST(Parse, OfASentenceThatIsNotUnderstoodWithAnotherBehindItGivesNoWordsBackYet) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Message(1, "What?").Entry(0, "SAY", "_", "PARSE MES 1 DONE");
    const auto run = game.Start();
    run->engine.EnterLine("SAY \"XYZZY. GET\"");
    EXPECT_EQ(run->Flag(1006), 20);
}

TEST(Parse, ReadsUpToTheNextQuoteAndLeavesWhatFollows) {
    GameBuilder game;
    game.Word("SAY", 20, 0)
        .Word("GET", 30, 0)
        .Word("LAMP", 60, 2)
        .Word("LOOK", 31, 0)
        .Message(1, "He looks.");
    game.Message(2, "He gets it.").Message(3, "You look.");
    game.Entry(0, "SAY", "_", "PARSE DONE")
        .Entry(0, "GET", "LAMP", "MES 2 DONE")
        .Entry(0, "LOOK", "_", "MES 3 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("SAY \"GET LAMP\" THEN LOOK"), "He gets it.You look.");
}

TEST(Parse, WithoutASecondQuoteReadsToTheEnd) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Word("LAMP", 60, 2).Message(2, "He gets it.");
    game.Entry(0, "SAY", "_", "PARSE DONE").Entry(0, "GET", "LAMP", "MES 2 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("SAY \"GET LAMP"), "He gets it.");
}

TEST(Parse, OfSeveralSentencesReadsTheFirstAndKeepsTheOthersForTheNextParse) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Word("LAMP", 60, 2).Word("TAKE", 31, 0);
    game.Entry(0, "SAY", "_", "PARSE DONE").Entry(0, "GET", "_", "SET 200 PARSE DONE");
    game.Entry(0, "TAKE", "LAMP", "SET 201 DONE");
    const auto run = game.Start();
    run->Type("SAY \"GET LAMP. TAKE LAMP\"");
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(Parse, WithoutSpeechIsNotUnderstood) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Message(1, "Say what?").Entry(0, "SAY", "_", "PARSE MES 1 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("SAY"), "Say what?");
    EXPECT_EQ(run->Flag(33), 20);
}

TEST(Parse, WithoutItSpeechIsASentenceThatIsNotUnderstood) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Message(1, "You speak.").Entry(0, "SAY", "_", "MES 1 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("SAY \"GET LAMP\""), "You speak.(6)");
}

TEST(Parse, WritesTheHistoryAsEverySentenceDoes) {
    GameBuilder game;
    game.Word("SAY", 20, 0).Word("GET", 30, 0).Word("LAMP", 60, 2);
    game.Entry(0, "SAY", "_", "LET 100 5 PARSE DONE").Entry(0, "GET", "_", "LET 100 6 OOPS 1");
    const auto run = game.Start();
    run->Type("SAY \"GET LAMP\"");
    EXPECT_EQ(run->Flag(100), 5);
}

}  // namespace
}  // namespace fabula::test
