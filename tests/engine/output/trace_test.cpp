#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>

#include <gtest/gtest.h>

#include "engine/game.h"
#include "engine/output/trace_file.h"
#include "platform/error.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::StatusField;
using store::AdventureKind;
using Lines = std::vector<std::string>;

/// The trace of the sentence DO, run in the given game.
Lines TraceOf(GameBuilder game, std::string_view line = "DO") {
    const auto run = game.Traced().Start();
    run->trace.lines.clear();
    run->engine.EnterLine(line);
    return run->trace.lines;
}

bool Has(const Lines& lines, std::string_view line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(Trace, IsOffByItself) {
    EXPECT_TRUE(GameBuilder().Do("SET 200")->trace.lines.empty());
}

TEST(Trace, FollowsASentenceThroughTheTables) {
    GameBuilder game;
    game.Word("LAMP", 60, 2)
        .Message(1, "x")
        .Entry(0, "DO", "LAMP", "AT 0 MES 1 ZERO 200 EQ 200 5")
        .Entry(0, "DO", "_", "DONE");
    EXPECT_EQ(TraceOf(game, "DO LAMP"),
              (Lines{
                  "Executing Command: DO LAMP",
                  "Command: DO LAMP",
                  "Processing sentence (abverb verb adjective noun prep Null DO Null LAMP Null)",
                  "Process 0 stack -1 - Flag(33):DO) Flag(34):LAMP) StartX: -1 StartY: -1 End of "
                  "Table: 1",
                  "word1=100, word2=60,verb=100, noun=60. Matched using word1=verb and word2=noun",
                  "at (0)",
                  "mes 1 ",
                  "zero(200)",
                  "eq(200,5)",
                  "Exiting record because condition not satisfied",
                  "word1=100, word2=255,verb=100, noun=60. Matched using word1=verb and word2 wild",
                  "done ",
                  "Exiting record because of Done",
                  "Exiting process because of Done",
              }));
}

TEST(Trace, TellsHowEntriesMatched) {
    GameBuilder game;
    game.Word("LAMP", 60, 2).Entry(0, "_", "LAMP", "AT 1").Entry(0, "_", "_", "AT 1");
    const Lines lines = TraceOf(game, "DO LAMP");
    EXPECT_TRUE(
        Has(lines, "word1=255, word2=60,verb=100, noun=60. Matched using word1 wild and word2=noun"));
    EXPECT_TRUE(Has(lines, "word1=255, word2=255,verb=100, noun=60. Matched using Both words wild"));
    EXPECT_TRUE(Has(lines, "Normal end of process table"));
}

TEST(Trace, TellsHowEntriesOfAMarloGameMatched) {
    GameBuilder game(AdventureKind::Marlo);
    game.Word("LAMP", 60, 2)
        .Entry(0, "_", "LAMP", "AT 1")
        .Entry(0, "_", "_", "AT 1")
        .Entry(0, "DO", "_", "AT 1");
    game.Entry(0, "DO", "LAMP", "AT 1");
    const Lines lines = TraceOf(game, "DO LAMP");
    EXPECT_TRUE(Has(lines, "word1=255, word2=60,verb=100, noun=60. Matched using Word1 wild & word2=noun"));
    EXPECT_TRUE(Has(lines, "word1=255, word2=255,verb=100, noun=60. Matched using Both words wild"));
    EXPECT_TRUE(
        Has(lines, "word1=100, word2=255,verb=100, noun=60. Matched using Word1=verb & word2 wild"));
    EXPECT_TRUE(Has(lines, "word1=100, word2=60,verb=100, noun=60. Matched using word1=verb & word2=noun"));
}

TEST(Trace, TellsThatTablesAboveZeroMatchWithoutWords) {
    GameBuilder game;
    game.Entry(2, "_", "_", "AT 1");
    EXPECT_TRUE(Has(TraceOf(game),
                    "Matched using intParentProcNum > 0 (All words match in processes > 0 or called from "
                    "Processes > 0)"));
}

TEST(Trace, TellsWhyEntriesAndTablesAreLeft) {
    const std::pair<const char*, const char*> expected[] = {
        {"DESC", "Exiting record because of Describe"},
        {"DESC", "Exiting process because of Describe"},
        {"DONE", "Exiting record because of Done"},
        {"DONE", "Exiting process because of Done"},
        {"ANYKEY", "Exiting process because asking for input"},
    };
    for (const auto& [condact, line] : expected) {
        GameBuilder game;
        game.Entry(0, "DO", "_", condact);
        EXPECT_TRUE(Has(TraceOf(game), line)) << line;
    }
}

TEST(Trace, TellsTheEnd) {
    GameBuilder game;
    const auto run = game.Entry(0, "DO", "_", "END").Traced().Start();
    run->engine.EnterLine("DO");
    run->engine.EnterLine("N");
    EXPECT_TRUE(run->trace.Has("Executing AskForInput Command: N"));
    EXPECT_TRUE(run->trace.Has("stack cleared because of End"));
    EXPECT_TRUE(run->trace.Has("Exiting record because of End"));
    EXPECT_TRUE(run->trace.Has("Exiting process because of End"));
}

TEST(Trace, TellsOfTheWordThatAConditionLooksAt) {
    GameBuilder game;
    game.Word("RED", 30, 3).Entry(0, "DO", "_", "ADJECT1 RED ADVERB _ PREP _ NOUN2 _ ADJECT2 _");
    const Lines lines = TraceOf(game, "DO RED");
    EXPECT_TRUE(Has(lines, "adject1(30) 35:30)"));
    EXPECT_TRUE(Has(lines, "adverb(255) 36:255)"));
    EXPECT_TRUE(Has(lines, "prep(255) 43255)"));
    EXPECT_TRUE(Has(lines, "noun2(255) 44:255)"));
    EXPECT_TRUE(Has(lines, "adject2(255) 45:255)"));
}

TEST(Trace, TellsOfQuestionsAndTimeOuts) {
    GameBuilder game;
    game.Message(1, "?")
        .Entry(0, "DO", "_", "TIMEOUT")
        .Entry(0, "DO", "_", "QUIT")
        .Entry(1, "_", "_", "TIME 2 4");
    const Lines lines = TraceOf(game);
    EXPECT_TRUE(Has(lines, "timeout()"));
    EXPECT_TRUE(Has(lines, "quit()"));
    const auto run = game.Traced().Start();
    run->engine.TimeOutTick();
    EXPECT_TRUE(run->trace.Has("Timer TimeOut"));
}

TEST(Trace, TellsOfObjectsTakenAndDropped) {
    GameBuilder game;
    game.Object(0, {.place = 0}).Entry(0, "DO", "_", "GET 0 DROP 0");
    const Lines lines = TraceOf(game);
    EXPECT_TRUE(Has(lines, "0 added to carried. Value now 1"));
    EXPECT_TRUE(Has(lines, "0 removed from carried. Value now 0"));
}

TEST(Trace, TellsWhyTheStackWasEmptied) {
    for (const char* action : {"OK", "DESC", "RESET 0"}) {
        GameBuilder game;
        game.Entry(0, "DO", "_", action);
        const std::string name = action == std::string("OK")     ? "OK"
                                 : action == std::string("DESC") ? "Desc"
                                                                 : "Reset";
        EXPECT_TRUE(Has(TraceOf(game), "stack cleared because of " + name)) << action;
    }
}

TEST(Trace, TellsTheStackOfACalledTable) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 5").Entry(5, "_", "_", "AT 0");
    EXPECT_TRUE(
        Has(TraceOf(game),
            "Process 5 stack 0 - Flag(33):DO) Flag(34):Null) StartX: -1 StartY: -1 End of Table: 0"));
}

TEST(Trace, TellsOfSpeech) {
    GameBuilder game;
    game.Word("LAMP", 60, 2).Entry(0, "DO", "_", "PARSE");
    const Lines lines = TraceOf(game, "DO \"LAMP\"");
    EXPECT_TRUE(Has(lines, "Command: LAMP"));
    EXPECT_TRUE(
        Has(lines, "Processing parse sentence (abverb verb adjective noun prep Null Null Null LAMP Null)"));
    EXPECT_TRUE(Has(lines, "Continuing:"));
}

TEST(Trace, FollowsTheCycleOfAMarloGame) {
    GameBuilder game(AdventureKind::Marlo);
    game.Entry(0, "DO", "_", "SET 30");
    EXPECT_EQ(TraceOf(game),
              (Lines{
                  "Executing Command: DO",
                  "Executing MarloProcessLoop -1 -1 -1",
                  "Autodec any flags (if necessary) to ",
                  "Command: DO",
                  "Processing sentence (abverb verb adjective noun prep Null DO Null Null Null)",
                  "Incrementing turn to 1",
                  "Current location is 0",
                  "Drop into Proc0 after setting variables",
                  "Searching Connections table",
                  "Process 0 from Proc0 label",
                  "Process 0 stack -1 - Flag(33):DO) Flag(34):Null) StartX: -1 StartY: -1 End of Table: 0",
                  "word1=100, word2=255,verb=100, noun=255. Matched using Word1=verb & word2 wild",
                  "set 30 ",
                  "Normal end of process table",
                  "Did an action. Back to Proc1",
                  "Drop into Proc1 after setting variables",
                  "Process 1 from Proc1 label",
                  "Autodec any flags (if necessary) to ",
              }));
}

TEST(Trace, TellsOfAnExitOfAMarloGame) {
    GameBuilder game(AdventureKind::Marlo);
    EXPECT_TRUE(Has(TraceOf(game.Exit(0, 100, 1)), "connections goto "));
}

TEST(Trace, TellsOfAResumeOfAMarloGame) {
    const auto run = GameBuilder(AdventureKind::Marlo).Entry(0, "DO", "_", "ANYKEY").Traced().Start();
    run->engine.EnterLine("DO");
    run->engine.EnterLine("");
    EXPECT_TRUE(run->trace.Has("Executing MarloProcessLoop 0 0 4"));
    EXPECT_TRUE(run->trace.Has("Back to Process 0 after ending procedure"));
}

TEST(Trace, OfAMarloGameTellsThatOtherProcessesCantBeResumed) {
    const auto run = GameBuilder(AdventureKind::Marlo)
                         .Entry(0, "DO", "_", "PROCESS 3")
                         .Entry(3, "_", "_", "ANYKEY")
                         .Traced()
                         .Start();
    run->engine.EnterLine("DO");
    run->engine.EnterLine("");
    EXPECT_TRUE(run->trace.Has("Trying to skip to 3 in a Marlo game"));
}

TEST(Trace, ShowsLocationAndSentenceInTheStatus) {
    const auto run = GameBuilder().Traced().Start();
    run->engine.EnterLine("DO");
    EXPECT_EQ(run->window.status[StatusField::Location], "Location: 0");
    EXPECT_EQ(run->window.status[StatusField::Command], "Null DO Null Null Null");
}

TEST(Trace, IsSwitchedOnByFlag1005) {
    const auto run = GameBuilder().Traced().Entry(0, "DO", "_", "SET 200").Start();
    run->SetFlag(1004, 0);
    run->trace.lines.clear();
    run->engine.EnterLine("DO");
    EXPECT_TRUE(run->trace.lines.empty());
    run->SetFlag(1005, 1);
    run->engine.EnterLine("DO");
    EXPECT_TRUE(run->trace.Has("set 200 "));
}

/// Takes the events themselves.
class Matches final : public engine::TraceSink {
  public:
    void Tell(const engine::TraceEvent& event) override {
        if (const auto* match = std::get_if<engine::EntryMatched>(&event)) entries.push_back(*match);
    }

    std::vector<engine::EntryMatched> entries;
};

TEST(Trace, GivesEventsInPlaceOfLinesToWhoWantsThem) {
    const TempFolder folder;
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 4").Entry(4, "_", "_", "AT 1").Entry(4, "DO", "_", "DONE");
    game.Write(folder / "game.fbd");
    const auto adventure = store::Adventure::Open(folder / "game.fbd", store::OpenMode::ReadOnly);
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    QueuedRandom random;
    RecordingSound sound;
    Matches trace;
    engine::Engine played(*adventure, {window, person, random, sound, &trace, window.Parts()},
                          {.traceFile = true});
    played.Initialize();
    played.EnterLine("DO");
    ASSERT_EQ(trace.entries.size(), 2U);
    EXPECT_EQ(trace.entries[1].process, engine::ProcessNumber(4));
    EXPECT_EQ(trace.entries[1].entry, 0);
    EXPECT_EQ(trace.entries[1].record, 2);
    EXPECT_EQ(trace.entries[1].by, engine::EntryMatched::By::NounWild);
}

TEST(TraceFile, IsNamedByItsBegin) {
    EXPECT_EQ(engine::TraceFileName({2026, 1, 31, 23, 5, 9}), "TRC20260131_230509.trc");
}

/// The environment's COMPUTER while a test runs.
class ComputerName {
  public:
    explicit ComputerName(const char* name) {
        if (const char* before = std::getenv("COMPUTER")) before_ = before;
        Set(name);
    }
    ~ComputerName() { Set(before_ ? before_->c_str() : nullptr); }
    ComputerName(const ComputerName&) = delete;
    ComputerName& operator=(const ComputerName&) = delete;

  private:
    static void Set(const char* name) {
        if (name) {
            setenv("COMPUTER", name, 1);
        } else {
            unsetenv("COMPUTER");
        }
    }

    std::optional<std::string> before_;
};

TEST(TraceHeader, TellsTheFileAndTheTime) {
    const ComputerName none(nullptr);
    EXPECT_EQ(engine::TraceHeader("games/x.fbd", {2026, 1, 31, 23, 5, 9}),
              "games/x.fbd 2026-01-31 23:05:09");
}

TEST(TraceHeader, EndsWithTheMachineWhereTheEnvironmentNamesIt) {
    const ComputerName attic("ATTIC");
    EXPECT_EQ(engine::TraceHeader("x.fbd", {2026, 12, 1, 0, 0, 0}), "x.fbd 2026-12-01 00:00:00 ATTIC");
}

TEST(TraceFile, HoldsItsHeaderAndLines) {
    const TempFolder folder;
    {
        engine::TraceFile file(folder / "x.trc", "header");
        file.WriteLine("one");
    }
    std::ifstream stream(folder / "x.trc");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), "header\none\n");
}

TEST(TraceFile, ThatCantBeWrittenIsAnError) {
    EXPECT_THROW(engine::TraceFile("/no/such/folder/x.trc", "header"), Error);
    EXPECT_THROW(engine::TraceFile("/dev/full", "header"), Error);
}

}  // namespace
}  // namespace fabula::test
