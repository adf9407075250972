#include <fstream>

#include <gtest/gtest.h>

#include "support/conversation.h"
#include "support/places.h"
#include "support/temp_folder.h"
#include "waiting_game.h"

namespace fabula::test {
namespace {

constexpr const char* kUp = "\x1B[A";
constexpr const char* kLeft = "\x1B[D";

/// The game that waits for all there is, played in a terminal of 40 columns.
class PlayInTerminal : public testing::Test {
  protected:
    PlayInTerminal() { BuildWaitingGame(game_); }

    void Start(std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"play", game_});
        talk_ = std::make_unique<Conversation>(Line::Terminal, Program(), options);
        talk_->ReadUntil("?\r\n>");
    }
    /// What is on the screen from the typed command up to the next prompt.
    std::string Say(const std::string& command) {
        talk_->Send(command + "\r");
        return talk_->ReadUntil("?\r\n>");
    }

    TempFolder folder_;
    std::string game_ = folder_ / "game.fbd";
    std::unique_ptr<Conversation> talk_;
};

TEST_F(PlayInTerminal, TheCommandStandsOnTheScreenOnce) {
    Start();
    EXPECT_EQ(Say("inventory"), "inventory\r\nYou are carrying:\r\nnothing.\r\n?\r\n>");
}

TEST_F(PlayInTerminal, LinesBreakAtTheTerminalsWidth) {
    Start();
    EXPECT_EQ(
        Say("long"),
        "long\r\none two three four five six seven eight\r\nnine ten eleven twelve thirteen\r\n?\r\n>");
}

TEST_F(PlayInTerminal, AWidthOfTheUserGoesBeforeTheTerminals) {
    Start({"--width", "24"});
    EXPECT_EQ(
        Say("long"),
        "long\r\none two three four five\r\nsix seven eight nine ten\r\neleven twelve thirteen\r\n?\r\n>");
}

TEST_F(PlayInTerminal, ColoursAndLooksAreSequences) {
    Start();
    EXPECT_EQ(Say("colour"),
              "colour\r\nAn \x1B[0;31mink\x1B[0m, a \x1B[0;1;90;107mbright\x1B[0m and a "
              "\x1B[0;30;44mpaper\x1B[0m word.\r\n?\r\n>");
}

TEST_F(PlayInTerminal, PlainSwitchesThemOff) {
    Start({"--plain"});
    EXPECT_EQ(Say("colour"), "colour\r\nAn ink, a bright and a paper word.\r\n?\r\n>");
}

TEST_F(PlayInTerminal, LinesCanBeEdited) {
    Start();
    EXPECT_NE(Say(std::string("rol") + kLeft + kLeft + kLeft + "x\x7F\x05l").find("roll\r\n"),
              std::string::npos);
}

TEST_F(PlayInTerminal, LinesAreRemembered) {
    Start();
    Say("inventory");
    EXPECT_NE(Say(kUp).find("You are carrying:\r\nnothing."), std::string::npos);
}

TEST_F(PlayInTerminal, AnswersAreNotRemembered) {
    Start();
    talk_->Send("ask\r");
    talk_->ReadUntil("Sure?\r\n>");
    EXPECT_EQ(Say("yes"), "yes\r\nYou said yes.\r\n?\r\n>");
    EXPECT_NE((talk_->Send(std::string(kUp) + "\r"), talk_->ReadUntil("Sure?")).find("ask"),
              std::string::npos);
}

TEST_F(PlayInTerminal, TheEndOfTheInputEndsTheProgram) {
    Start();
    talk_->Send("\x04");
    talk_->ReadToEnd();
    EXPECT_EQ(talk_->Status(), 0);
}

TEST_F(PlayInTerminal, ATimeOutPassesByItselfAndThrowsTheTypedTextAway) {
    Start();
    Say("clock");
    talk_->Send("inven");
    EXPECT_NE(talk_->ReadUntil("?\r\n>").find("The hour strikes.\r\n\r\nTime passes..."),
              std::string::npos);
    EXPECT_EQ(Say("dance"), "dance\r\nSorry, that gets you nowhere.\r\n?\r\n>");
}

TEST_F(PlayInTerminal, AnEmptyLineShowsThePromptAgain) {
    Start();
    talk_->Send("\r");
    EXPECT_EQ(talk_->ReadUntil(">"), "\r\n>");
}

TEST_F(PlayInTerminal, LinesOfAScriptAreShown) {
    std::ofstream(folder_ / "script") << "inventory\n";
    Start({"--script", folder_ / "script"});
    EXPECT_EQ(talk_->ReadUntil("?\r\n>"), "inventory\r\nYou are carrying:\r\nnothing.\r\n?\r\n>");
}

TEST_F(PlayInTerminal, AFileIsNotReplacedWithoutAQuestion) {
    std::ofstream(folder_ / "mine.sav") << "old";
    Start();
    talk_->Send("save\r");
    EXPECT_EQ(talk_->ReadUntil("\r\n>"), "save\r\nSave as a Fabula Save File\r\n>");
    talk_->Send((folder_ / "mine.sav").string() + "\r");
    talk_->ReadUntil("Replace it? (Y/N)\r\n>");
    Say("n");
    std::string content;
    std::getline(std::ifstream(folder_ / "mine.sav"), content);
    EXPECT_EQ(content, "old");
}

}  // namespace
}  // namespace fabula::test
