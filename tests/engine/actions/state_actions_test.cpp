#include <gtest/gtest.h>

#include "engine/game.h"
#include "engine/saved_world.h"

namespace fabula::test {
namespace {

using engine::Waiting;

// SAVE and LOAD

TEST(Save, AsksForAFileByItsTitle) {
    const auto run = SavedWorld().Start();
    Save(*run);
    EXPECT_EQ(run->window.fileQuestions, std::vector<std::string>{"Save as a Fabula Save File"});
}

TEST(Save, WritesTheWholeHistory) {
    GameBuilder game = SavedWorld();
    game.FlagCount(1019);
    const auto run = game.Start();
    const std::string content = Save(*run);
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < content.size();) {
        const std::size_t end = content.find('\n', at);
        lines.push_back(content.substr(at, end - at));
        at = end + 1;
    }
    ASSERT_EQ(lines.size(), 35U);
    EXPECT_EQ(lines[0], "Fabula,test,10,10,1018");
    EXPECT_EQ(lines[1], "10");
    EXPECT_EQ(lines[2], "1,0,0");   // room 0 is visited now
    EXPECT_EQ(lines[12], "0,0,0");  // and was not at the start
    EXPECT_EQ(lines[13], "252,0");
    EXPECT_EQ(lines[24].substr(0, 8), "0,0,0,0,");
}

TEST(Save, DescribesThePlaceAndEndsTheTable) {
    const auto run = SavedWorld().Start();
    run->Said();
    run->window.AnswerFile(run->File("one.sav"));
    EXPECT_EQ(run->Type("SAVE"), "Room 0");
    EXPECT_EQ(run->Flag(210), 0);
}

TEST(Save, CancelledChangesNothingAndGoesOn) {
    const auto run = SavedWorld().Start();
    run->Said();
    run->window.AnswerFile(std::nullopt);
    EXPECT_EQ(run->Type("SAVE"), "");
    EXPECT_EQ(run->Flag(210), 255);
}

TEST(Save, GivesANameWithoutAnExtensionTheOneOfSaves) {
    const auto run = SavedWorld().Start();
    Save(*run, "two");
    EXPECT_TRUE(std::filesystem::exists(run->File("two.sav")));
}

TEST(Save, ThatCantBeWrittenIsToldAndEndsTheTable) {
    const auto run = SavedWorld().Start();
    run->window.AnswerFile(run->File("no/such/folder.sav"));
    run->Said();
    EXPECT_EQ(run->Type("SAVE"), "");
    EXPECT_EQ(run->Flag(210), 0);
    EXPECT_EQ(run->person.Boxes().size(), 1U);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Save, ThatCantBeWrittenLeavesAnOlderFileAsItWas) {
    const auto run = SavedWorld().Start();
    const std::string first = Save(*run);
    std::filesystem::create_directory(run->File("full"));
    run->window.AnswerFile(run->File("full"));  // a folder stands where the file would
    run->Type("SAVE");
    EXPECT_EQ(ReadState(run->File("one.sav")), first);
}

TEST(Load, BringsFlagsObjectsVisitsAndHistoryBack) {
    const auto run = SavedWorld().Start();
    run->Type("TAKE");
    Save(*run);
    run->Type("STEP");
    run->Place(1, 2);
    EXPECT_EQ(Load(*run), "");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(38), 0);
    EXPECT_EQ(run->Flag(1), 1);
    EXPECT_EQ(run->PlaceOf(1), 254);
    EXPECT_FALSE(run->Visited(1));
}

TEST(Load, DescribesThePlaceAndEndsTheTable) {
    const auto run = SavedWorld().Start();
    Save(*run);
    run->Said();
    run->window.AnswerFile(run->File("one.sav"));
    EXPECT_EQ(run->Type("LOAD"), "Room 0");
    EXPECT_EQ(run->Flag(211), 0);
}

TEST(Load, OfAStateWithTheTurnOfItsLineIsNotTakenForALineThatWasNotUnderstood) {
    const auto run = SavedWorld().Start();
    Save(*run);  // at turn 1, which is also the turn at which LOAD is typed
    run->window.AnswerFile(run->File("one.sav"));
    run->Said();
    EXPECT_EQ(run->Type("LOAD"), "Room 0");
}

TEST(Load, CancelledChangesNothingAndGoesOn) {
    const auto run = SavedWorld().Start();
    run->window.AnswerFile(std::nullopt);
    run->Type("LOAD");
    EXPECT_EQ(run->Flag(211), 255);
}

TEST(Load, LetsOopsReachBackBehindIt) {
    GameBuilder game = SavedWorld();
    game.Entry(0, "DO", "_", "OOPS 3");
    const auto run = game.Start();
    run->Type("STEP");  // the sentence before SAVE
    Save(*run);
    const auto other = game.Start();
    WriteState(other->File("one.sav"), ReadState(run->File("one.sav")));
    Load(*other);
    EXPECT_EQ(other->Flag(200), 1);
    other->Type("DO");  // slots: 1 before DO, 2 before SAVE, 3 before STEP
    EXPECT_EQ(other->Flag(200), 0);
}

TEST(Load, AFileOfOneBuildLoadsInTheNext) {
    const auto run = SavedWorld().FlagCount(1019).Start();
    std::string content = "Fabula,test,10,10,1018\r\n10\r\n";
    for (int slot = 0; slot < 11; ++slot)
        content += "1,1,0\r\n";
    for (int slot = 0; slot < 11; ++slot)
        content += "253,2\r\n";
    for (int slot = 0; slot < 11; ++slot) {
        for (int flag = 0; flag < 1019; ++flag)
            content += (flag > 0 ? "," : "") + std::to_string(flag == 38 || flag == 51 ? 1 : flag % 7);
        content += "\r\n";
    }
    WriteState(run->File("one.sav"), content);
    EXPECT_EQ(Load(*run), "");
    EXPECT_EQ(run->PlaceOf(0), 253);
    EXPECT_EQ(run->Flag(38), 1);
    EXPECT_EQ(run->Flag(200), 4);
}

TEST(Load, RefusesASaveOfAnotherAdventureOfTheSameSizes) {
    const auto other = SavedWorld().SettingText("savename", "other").Start();
    const std::string content = Save(*other);
    const auto run = SavedWorld().Start();
    WriteState(run->File("one.sav"), content);
    EXPECT_EQ(Load(*run), "Invalid Save File for this Adventure");
    EXPECT_EQ(run->person.Boxes().back().title, "Error");
    EXPECT_EQ(run->Flag(211), 0);
}

TEST(Load, OfAFileThatDoesNotExistIsToldAndChangesNothing) {
    const auto run = SavedWorld().Start();
    EXPECT_NE(Load(*run, "none.sav"), "");
    EXPECT_EQ(run->Flag(211), 0);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(SaveTo, AndLoadFromKeepASessionOverTheProgramsEnd) {
    const auto run = SavedWorld().Start();
    run->Type("TAKE");
    run->Type("STEP");
    run->engine.SaveTo(run->File("auto.sav"));
    const auto later = SavedWorld().Start();
    WriteState(later->File("auto.sav"), ReadState(run->File("auto.sav")));
    later->Said();
    EXPECT_TRUE(later->engine.LoadFrom(later->File("auto.sav")));
    EXPECT_EQ(later->Said(), "\nRoom 1");
    EXPECT_EQ(later->Flag(200), 1);
    EXPECT_EQ(later->Waits(), Waiting::Sentence);
    EXPECT_EQ(later->Type("STEP"), "Room 1");
}

TEST(LoadFrom, RefusesWhatIsNoSaveAndChangesNothing) {
    const auto run = SavedWorld().Start();
    WriteState(run->File("auto.sav"), "something else");
    run->Said();
    EXPECT_FALSE(run->engine.LoadFrom(run->File("auto.sav")));
    EXPECT_EQ(run->Said(), "");
    EXPECT_TRUE(run->person.Boxes().empty());
}

TEST(LoadFrom, ForgetsTheLineThatWasHalfTyped) {
    GameBuilder game = SavedWorld();
    game.Entry(0, "DO", "_", "PLUS 200 1").Entry(1, "_", "_", "ANYKEY");
    const auto run = game.Start();
    run->engine.EnterLine("");
    run->engine.SaveTo(run->File("auto.sav"));
    run->engine.Key(U'd');
    run->engine.Key(U'o');
    ASSERT_TRUE(run->engine.LoadFrom(run->File("auto.sav")));
    ASSERT_EQ(run->Waits(), Waiting::AnyKey);
    run->engine.Key(engine::Engine::kEnter);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(LoadFrom, ATimeOutOfTheGameBeforeDoesNotGoOn) {
    const auto run = SavedWorld().Start();
    run->engine.SaveTo(run->File("auto.sav"));
    run->SetFlag(48, 3);
    run->SetFlag(49, 4);
    run->Type("STEP");
    ASSERT_TRUE(run->window.timeOut.has_value());
    ASSERT_TRUE(run->engine.LoadFrom(run->File("auto.sav")));
    EXPECT_FALSE(run->window.timeOut.has_value());
    run->Said();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Said(), "");
}

// RAMSAVE and RAMLOAD

TEST(RamSave, KeepsTheStateForRamload) {
    const auto run = SavedWorld().Start();
    run->Type("KEEP");
    run->Type("TAKE");
    run->Type("STEP");
    run->Type("BACK");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(38), 0);
    EXPECT_EQ(run->PlaceOf(1), 0);
    EXPECT_FALSE(run->Visited(1));
}

TEST(RamSave, ChangesNothing) {
    const auto run = SavedWorld().Start();
    run->Type("STEP");
    run->Type("KEEP");
    EXPECT_EQ(run->Flag(200), 1);
}

TEST(RamLoad, WithoutARamsaveGoesBackToTheStart) {
    const auto run = SavedWorld().Start();
    run->Type("TAKE");
    run->Type("STEP");
    run->Type("BACK");
    EXPECT_EQ(run->Flag(38), 0);
    EXPECT_EQ(run->PlaceOf(1), 0);
}

TEST(RamLoad, Of255KeepsTheFlagsFrom256Up) {
    const auto run = SavedWorld().Start();
    run->Type("KEEP");
    run->Type("STEP");
    run->Type("BACK");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(300), 1);
}

TEST(RamLoad, OfAFlagInTheMiddleKeepsTheFlagsAboveIt) {
    GameBuilder game = SavedWorld();
    game.Entry(0, "DO", "_", "RAMLOAD 199");
    const auto run = game.Start();
    run->Type("STEP");
    run->Type("DO");
    EXPECT_EQ(run->Flag(30), 0);
    EXPECT_EQ(run->Flag(200), 1);
}

TEST(RamLoad, BeyondTheLastFlagTakesAll) {
    GameBuilder game = SavedWorld();
    game.Entry(0, "DO", "_", "RAMLOAD 5000");
    const auto run = game.Start();
    run->Type("STEP");
    run->Type("DO");
    EXPECT_EQ(run->Flag(300), 0);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

// OOPS

/// STEP counts flag 200; BACK goes back `slots` sentences, itself included.
GameBuilder Oops(int slots) {
    GameBuilder game;
    game.Word("STEP", 106, 0).Word("BACK", 104, 0).Object(0, {.place = 0});
    game.Entry(0, "STEP", "_", "PLUS 200 1 PLUS 30 5 PLACE 0 2 GOTO 1 DESC");
    game.Entry(0, "BACK", "_", "OOPS " + std::to_string(slots) + " DONE");
    return game;
}

TEST(Oops, GoesBackThroughAllTenSlots) {
    for (int slot = 1; slot <= 10; ++slot) {
        const auto run = Oops(slot).Start();
        for (int step = 0; step < 15; ++step)
            run->Type("STEP");
        run->Type("BACK");
        EXPECT_EQ(run->Flag(200), 16 - slot) << slot;
    }
}

TEST(Oops, BringsObjectsAndVisitsBackToo) {
    const auto run = Oops(2).Start();
    run->Type("STEP");
    run->Type("BACK");
    EXPECT_EQ(run->PlaceOf(0), 0);
    EXPECT_FALSE(run->Visited(1));
    EXPECT_EQ(run->Flag(38), 0);
}

TEST(Oops, Of1GoesBackToTheStateBeforeItsOwnSentence) {
    EXPECT_EQ(GameBuilder().Do("LET 201 8 OOPS 1 DONE")->Flag(201), 0);
}

TEST(Oops, BringsTheWordsOfTheSentenceBackSoThatLaterEntriesMatchThem) {
    GameBuilder game;
    game.Word("STEP", 106, 0).Entry(0, "DO", "_", "OOPS 1").Entry(0, "STEP", "_", "PLUS 200 1");
    const auto run = game.Start();
    run->Type("STEP");
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 2);
}

TEST(Oops, LeavesScoreAndTheLowTurnCount) {
    const auto run = Oops(2).Start();
    run->Type("STEP");
    run->Type("BACK");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(30), 5);
    EXPECT_EQ(run->Flag(31), 2);
}

TEST(Oops, TellsWhatItDid) {
    const auto run = Oops(2).Start();
    run->Type("STEP");
    run->Said();
    EXPECT_EQ(run->Type("BACK"), "OOPS restored from previous turn 2\n");
}

TEST(Oops, SlotsFromBeforeTheStartHoldTheStart) {
    const auto run = Oops(10).Start();
    run->Type("STEP");
    run->Type("BACK");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(38), 0);
}

TEST(Oops, OfASlotThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(GameBuilder().Do("OOPS 11")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), OOPS 11: history slot 11 "
              "does not exist.");
}

TEST(Oops, CountsAsAnActionAlthoughItBringsFlag1015Back) {
    const auto run = Oops(1).Start();
    run->Said();
    EXPECT_EQ(run->Type("BACK"), "OOPS restored from previous turn 1\n");
}

// AGAIN

GameBuilder Again() {
    GameBuilder game;
    game.Word("GET", 20, 0).Word("G", 21, 0).Word("LAMP", 60, 2).Word("RED", 30, 3).Word("SLOW", 40, 1);
    game.Word("IN", 50, 4).Word("BOX", 61, 2).Word("BLUE", 31, 3);
    game.Entry(0, "GET", "_", "PLUS 200 1 DONE").Entry(0, "G", "_", "AGAIN");
    return game;
}

TEST(Again, BringsTheWordsOfTheSentenceBeforeBackAndTellsThem) {
    const auto run = Again().Start();
    run->Type("GET RED LAMP SLOW IN BLUE BOX");
    run->Said();
    EXPECT_EQ(run->Type("G"), "Re-executing SLOW GET RED LAMP IN BLUE BOX \n");
    EXPECT_EQ(run->Flag(33), 20);
    EXPECT_EQ(run->Flag(34), 60);
    EXPECT_EQ(run->Flag(35), 30);
    EXPECT_EQ(run->Flag(36), 40);
    EXPECT_EQ(run->Flag(43), 50);
    EXPECT_EQ(run->Flag(44), 61);
    EXPECT_EQ(run->Flag(45), 31);
}

TEST(Again, LetsTheEntryGoOnWithTheWords) {
    GameBuilder game;
    game.Word("GET", 20, 0).Word("G", 21, 0).Word("LAMP", 60, 2);
    game.Entry(0, "GET", "_", "PROCESS 5")
        .Entry(0, "G", "_", "AGAIN PROCESS 5")
        .Entry(5, "GET", "LAMP", "PLUS 200 1");
    const auto run = game.Start();
    run->Type("GET LAMP");
    run->Type("G");
    EXPECT_EQ(run->Flag(200), 2);
}

TEST(Again, OfASentenceOfTheSameLineWorksTheSame) {
    const auto run = Again().Start();
    run->Said();
    EXPECT_EQ(run->Type("GET LAMP. G"), "Re-executing GET LAMP \n");
}

TEST(Again, AfterATimeOutStillKnowsTheSentence) {
    const auto run = Again().Entry(1, "_", "_", "TIME 2 4").Start();
    run->Type("GET LAMP");
    run->engine.TimeOutTick();
    run->Said();
    EXPECT_EQ(run->Type("G"), "Re-executing GET LAMP \n");
}

TEST(Again, PassesOverAWordNumberWithoutAWordOfTheType) {
    GameBuilder game = Again();
    game.Word("NORTH", 5, 2).Entry(0, "NORTH", "_", "DONE");
    const auto run = game.Start();
    run->Type("NORTH");  // verb and noun 5, of which only the noun is a word
    run->Said();
    EXPECT_EQ(run->Type("G"), "Re-executing NORTH \n");
}

TEST(Again, WithNoSentenceBeforeTellsNone) {
    const auto run = Again().Start();
    run->Said();
    EXPECT_EQ(run->Type("G"), "Re-executing \n");
}

TEST(Again, BringsWhatIsKnownOfTheObjectBackToo) {
    GameBuilder game = Again();
    game.Object(0, {.place = 0})
        .Object(1, {.place = 0})
        .Entry(0, "DO", "_", "LET 51 1 LET 54 7 LET 55 8 DONE");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("G");
    EXPECT_EQ(run->Flag(51), 1);
    EXPECT_EQ(run->Flag(54), 7);
    EXPECT_EQ(run->Flag(55), 8);
}

}  // namespace
}  // namespace fabula::test
