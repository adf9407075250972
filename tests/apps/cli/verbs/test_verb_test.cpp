#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "apps/cli/waiting_game.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

class TestVerb : public testing::Test {
  protected:
    TestVerb() { BuildWaitingGame(game_); }

    ProgramResult Test(std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"test", game_, script_});
        return RunProgram(Program(), options);
    }
    void Write(const std::string& file, const std::string& content) {
        std::ofstream(file, std::ios::binary) << content;
    }
    std::string Read(const std::string& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    TempFolder folder_;
    std::string game_ = folder_ / "game.fbd";
    std::string script_ = folder_ / "walk.txt";
    std::string transcript_ = folder_ / "walk.transcript";
};

TEST_F(TestVerb, SaysNothingWhenTheTranscriptIsTheExpectedOne) {
    Write(script_, "inventory\n");
    Write(transcript_, "A room.\n?\n>inventory\nYou are carrying:\nnothing.\n?\n");
    const ProgramResult result = Test();
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(TestVerb, ShowsTheDifferenceAndEndsWithOne) {
    Write(script_, "inventory\n");
    Write(transcript_, "A room.\n?\n>inventory\nYou are carrying:\na lamp.\n?\n");
    const ProgramResult result = Test();
    EXPECT_EQ(result.output,
              "--- " + transcript_ +
                  "\n+++ played\n@@ -2,5 +2,5 @@\n ?\n >inventory\n You are carrying:\n-a lamp.\n"
                  "+nothing.\n ?\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(TestVerb, TakesAByteOrderMarkAndLineEndsOfOtherSystems) {
    Write(transcript_, "A room.\n?\n>inventory\nYou are carrying:\nnothing.\n?\n");
    for (const char* script : {"\xEF\xBB\xBFinventory\r\n", "\xEF\xBB\xBF>>inventory\r\n"}) {
        Write(script_, script);
        const ProgramResult result = Test();
        EXPECT_EQ(result.output, "") << script;
        EXPECT_EQ(result.status, 0) << script;
    }
}

TEST_F(TestVerb, OfARecordedScriptTheTypedLinesArePlayed) {
    Write(script_, "A room.\n?\n>>inventory\r\nYou are carrying:\nnothing.\n?\n>>Read:>>inventory\n");
    Write(transcript_,
          "A room.\n?\n>inventory\nYou are carrying:\nnothing.\n?\n"
          ">inventory\nYou are carrying:\nnothing.\n?\n");
    const ProgramResult result = Test();
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(TestVerb, UpdateWritesTheTranscript) {
    Write(script_, "inventory\n");
    Write(transcript_, "old");
    const ProgramResult result = Test({"--update"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Read(transcript_), "A room.\n?\n>inventory\nYou are carrying:\nnothing.\n?\n");
    EXPECT_EQ(Test().status, 0);
}

TEST_F(TestVerb, TheTranscriptMayLieElsewhere) {
    Write(script_, "inventory\n");
    const std::string elsewhere = folder_ / "elsewhere";
    EXPECT_EQ(Test({"--transcript", elsewhere, "--update"}).status, 0);
    EXPECT_EQ(Test({"--transcript", elsewhere}).status, 0);
    EXPECT_FALSE(std::filesystem::exists(transcript_));
}

TEST_F(TestVerb, AMissingTranscriptIsToldSo) {
    Write(script_, "inventory\n");
    const ProgramResult result = Test();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not read " + transcript_ + "; --update writes it.\n");
}

TEST_F(TestVerb, AScriptMayNotBeItsOwnTranscript) {
    script_ = transcript_;
    Write(script_, "inventory\n");
    EXPECT_EQ(Test({"--update"}).status, 2);
    EXPECT_EQ(Test({"--update", "--transcript", script_}).status, 2);
    EXPECT_EQ(Read(script_), "inventory\n");
}

TEST_F(TestVerb, RandomNumbersAreTheSameEachTime) {
    Write(script_, "roll\nroll\nroll\nroll\n");
    Test({"--update"});
    EXPECT_EQ(Test().status, 0);
    EXPECT_EQ(Test({"--seed", "99"}).status, 1);
}

TEST_F(TestVerb, SavedGamesLiveAsLongAsTheTest) {
    const std::string outside = folder_ / "outside.sav";
    Write(script_, "save\n" + outside + "\ni\nload\n" + outside + "\n");
    Test({"--update"});
    EXPECT_EQ(
        Read(transcript_),
        "A room.\n?\n>save\nSave as a Fabula Save File\n>" + outside +
            "\nA room.\n?\n>i\nYou are carrying:\nnothing.\n?\n>load\nOpen Existing Fabula Save File\n>" +
            outside + "\nA room.\n?\n");
    EXPECT_FALSE(std::filesystem::exists(outside));
}

TEST_F(TestVerb, SavedGamesBesideTheScriptCanBeLoaded) {
    RunProgram(Program(), {"play", game_}, "save\n" + (folder_ / "kept.sav").string() + "\n");
    Write(script_, "load\nkept\n");
    Test({"--update"});
    EXPECT_EQ(Read(transcript_), "A room.\n?\n>load\nOpen Existing Fabula Save File\n>kept\nA room.\n?\n");
}

}  // namespace
}  // namespace fabula::test
