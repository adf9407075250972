#include "player/play/player_screen.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "support/doubles/manual_timers.h"
#include "support/doubles/recording_window.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/game_builder.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using player::PlayedGame;

/// E and W walk between rooms 0 and 1, FAIL goes wrong, STOP ends, HOLD waits for a key.
GameBuilder TwoRooms() {
    GameBuilder game;
    game.SystemMessage(34, "").SystemMessage(13, "Again?").SystemMessage(16, "Key.");
    game.Word("E", 102, 0).Word("W", 103, 0).Exit(0, 102, 1).Exit(1, 103, 0);
    game.Word("FAIL", 104, 0).Entry(0, "FAIL", "_", "SET 5000");
    game.Word("STOP", 105, 0).Entry(0, "STOP", "_", "END");
    game.Word("HOLD", 106, 0).Entry(0, "HOLD", "_", "ANYKEY DONE");
    return game;
}

/// The player's screen before a window that only keeps what it is shown.
class PlayerScreenTest : public testing::Test {
  protected:
    PlayerScreenTest() : file_(folder_ / "game.fbd") {
        TwoRooms().Write(file_);
        Restart();
    }

    /// Ends the program and starts it again.
    void Restart(bool isTrial = false) {
        if (screen_) screen_->End();
        screen_.emplace(player::PlayerHost{.timers = timers_,
                                           .dialogs = dialogs_,
                                           .sound = sound_,
                                           .random = random_,
                                           .recent = recent_,
                                           .dataFolder = folder_ / "data",
                                           .isTrial = isTrial},
                        player::GameView{.window = window_,
                                         .parts = window_.Parts(),
                                         .attach = [this](PlayedGame* game) { attach_(game); },
                                         .say = [this](const std::string& said) { said_ = said; }});
    }

    bool Load() { return screen_->Load(file_); }
    void Type(std::string_view line) { screen_->Playing()->EnterLine(line); }
    /// Whether the latest text of the game holds this.
    bool Said(std::string_view text) { return window_.TakeText().find(text) != std::string::npos; }
    std::string Box() const { return dialogs_.Boxes().empty() ? "" : dialogs_.Boxes().back().text; }

    TempFolder folder_;
    std::filesystem::path file_;
    platform::ManualTimers timers_;
    platform::ScriptedDialogs dialogs_;
    RecordingSound sound_;
    platform::SeededRandom random_{1};
    platform::RecentFiles recent_;
    engine::RecordingWindow window_;
    std::function<void(PlayedGame*)> attach_ = [](PlayedGame*) {};
    std::string said_;
    std::optional<player::PlayerScreen> screen_;
};

// Open and load

TEST_F(PlayerScreenTest, OpenAsksInTheFolderOfTheLatestGame) {
    recent_ = platform::RecentFiles({"/games/old.fbd", "/other/older.fbd"});
    dialogs_.AnswerFile(std::nullopt);
    EXPECT_FALSE(screen_->Open());
    EXPECT_EQ(dialogs_.Questions()[0].title, "Open VEL Database");
    EXPECT_EQ(dialogs_.Questions()[0].start, "/games");
    EXPECT_EQ(screen_->Playing(), nullptr);
}

TEST_F(PlayerScreenTest, GameThatIsOpenedIsPlayedAndRecent) {
    dialogs_.AnswerFile(file_);
    EXPECT_TRUE(screen_->Open());
    EXPECT_TRUE(Said("Room 0"));
    EXPECT_TRUE(screen_->IsRunning());
    EXPECT_EQ(recent_.Files(), (std::vector<std::filesystem::path>{file_}));
}

TEST_F(PlayerScreenTest, GameIsShownBeforeItStartsAndTakenAwayBeforeItEnds) {
    std::vector<std::pair<bool, int>> seen;
    attach_ = [&](const PlayedGame* game) { seen.emplace_back(game != nullptr, window_.starts); };
    Load();
    Load();
    EXPECT_EQ(seen, (std::vector<std::pair<bool, int>>{{true, 0}, {false, 1}, {true, 1}}));
    EXPECT_EQ(window_.starts, 2);
}

TEST_F(PlayerScreenTest, RefusedFileIsToldAndTheGameThatWasThereGoesOn) {
    Load();
    const auto letter = folder_ / "letter.fbd";
    std::ofstream(letter) << "Dear reader,\n";
    recent_.AddMRUItem(letter);
    EXPECT_FALSE(screen_->Load(letter));
    EXPECT_EQ(dialogs_.Boxes().back().title, "Error");
    EXPECT_EQ(recent_.Files(), (std::vector<std::filesystem::path>{file_}));
    Type("e");
    EXPECT_TRUE(Said("Room 1"));
}

TEST_F(PlayerScreenTest, GameThatShowsABoxIsNotReplacedByAnother) {
    Load();
    bool loaded = true;
    dialogs_.whileTelling = [&] { loaded = Load(); };
    Type("fail");
    EXPECT_FALSE(loaded);
    EXPECT_EQ(window_.starts, 1);
}

TEST_F(PlayerScreenTest, CommandsWithoutAGameDoNothing) {
    EXPECT_FALSE(screen_->Undo());
    EXPECT_FALSE(screen_->Next());
    EXPECT_FALSE(screen_->StartAgain());
    EXPECT_FALSE(screen_->Restore());
    screen_->Save();
    screen_->ToggleSound();
    screen_->WriteTranscript(true);
    screen_->FollowWait();
    EXPECT_TRUE(dialogs_.Questions().empty());
    EXPECT_FALSE(screen_->SoundOn());
    EXPECT_FALSE(screen_->WritesTranscript());
    EXPECT_TRUE(screen_->Close());
}

// Resume

TEST_F(PlayerScreenTest, GameThatWasLeftIsOfferedTheNextTime) {
    Load();
    Type("e");
    Restart();
    dialogs_.AnswerNext(true);
    Load();
    EXPECT_EQ(Box(), "Go on where the last session of this game stopped?");
    Type("w");
    EXPECT_TRUE(Said("Room 0")) << "it stood in room 1";
}

TEST_F(PlayerScreenTest, OfferThatIsNotWantedBeginsAnew) {
    Load();
    Type("e");
    Restart();
    window_.TakeText();
    dialogs_.AnswerNext(false);
    Load();
    EXPECT_TRUE(Said("Room 0"));
}

TEST_F(PlayerScreenTest, TestRunIsNeitherKeptNorRecent) {
    Restart(true);
    Load();
    Type("e");
    Restart(true);
    EXPECT_TRUE(Load());
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(recent_.Files().empty());
}

// Start Again

TEST_F(PlayerScreenTest, StartAgainAsksWhenThereIsSomethingToLose) {
    Load();
    EXPECT_TRUE(screen_->StartAgain()) << "nothing was played yet";
    Type("e");
    dialogs_.AnswerNext(false);
    EXPECT_FALSE(screen_->StartAgain());
    EXPECT_EQ(Box(), "Leave the game as it stands and start it from its beginning?");
    EXPECT_EQ(window_.starts, 2);
    dialogs_.AnswerNext(true);
    EXPECT_TRUE(screen_->StartAgain());
    EXPECT_EQ(window_.starts, 3);
}

TEST_F(PlayerScreenTest, StartAgainOfAGameThatHasEndedDoesNotAsk) {
    Load();
    Type("stop");
    Type("n");
    ASSERT_FALSE(screen_->IsRunning());
    EXPECT_TRUE(screen_->StartAgain());
    EXPECT_TRUE(screen_->IsRunning());
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

// Save and restore

TEST_F(PlayerScreenTest, SaveAndRestoreNameTheFileAndGoBackToIt) {
    Load();
    dialogs_.AnswerFile(folder_ / "here");
    screen_->Save();
    EXPECT_EQ(said_, "Saved as here.sav.");
    EXPECT_TRUE(std::filesystem::exists(folder_ / "here.sav"));
    Type("e");
    window_.TakeText();
    dialogs_.AnswerFile(folder_ / "here");
    EXPECT_TRUE(screen_->Restore());
    EXPECT_TRUE(Said("Room 0"));
    EXPECT_EQ(dialogs_.Questions()[1].start, screen_->Playing()->SaveFolder());
}

TEST_F(PlayerScreenTest, RestoreThatIsGivenUpTakesNoStep) {
    Load();
    dialogs_.AnswerFile(std::nullopt);
    EXPECT_FALSE(screen_->Restore());
}

TEST_F(PlayerScreenTest, RestoreOfAnotherFileIsTold) {
    Load();
    std::ofstream(folder_ / "letter.sav") << "Dear reader,\n";
    dialogs_.AnswerFile(folder_ / "letter.sav");
    EXPECT_TRUE(screen_->Restore());
    EXPECT_EQ(Box(), "Invalid Save File for this Adventure");
}

TEST_F(PlayerScreenTest, SaveThatCanNotBeWrittenIsTold) {
    Load();
    dialogs_.AnswerFile("/no/such/folder/here.sav");
    screen_->Save();
    EXPECT_EQ(dialogs_.Boxes().back().title, "Error");
    EXPECT_EQ(said_, "");
}

// Transcripts

TEST_F(PlayerScreenTest, TranscriptIsProposedWhereTheGamesOfThisKindAreSaved) {
    Load();
    dialogs_.AnswerFile(std::nullopt);
    screen_->WriteTranscript(true);
    EXPECT_EQ(dialogs_.Questions()[0].start, folder_ / "data" / "transcript.txt");
    std::filesystem::create_directories(screen_->Playing()->SaveFolder());
    dialogs_.AnswerFile(std::nullopt);
    screen_->WriteTranscript(true);
    EXPECT_EQ(dialogs_.Questions()[1].start, screen_->Playing()->SaveFolder() / "transcript.txt");
    EXPECT_FALSE(screen_->WritesTranscript());
}

TEST_F(PlayerScreenTest, TranscriptIsClosedWithTheGame) {
    Load();
    dialogs_.AnswerFile(folder_ / "t.txt");
    screen_->WriteTranscript(true);
    EXPECT_TRUE(screen_->WritesTranscript());
    screen_->Playing()->Transcript().Lines()->Typed("NORTH");
    Load();
    EXPECT_FALSE(screen_->WritesTranscript());
    std::ifstream written(folder_ / "t.txt");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(written), {}), ">NORTH\n");
}

TEST_F(PlayerScreenTest, TranscriptThatCanNotBeMadeIsTold) {
    Load();
    dialogs_.AnswerFile("/no/such/folder/t.txt");
    screen_->WriteTranscript(true);
    EXPECT_EQ(Box(), "Could not write the transcript /no/such/folder/t.txt: No such file or directory.");
    EXPECT_FALSE(screen_->WritesTranscript());
}

TEST_F(PlayerScreenTest, TranscriptThatCouldNotBeWrittenWholeIsToldBeforeTheWindowCloses) {
    Load();
    screen_->Playing()->Transcript().Open("/dev/full");
    screen_->Playing()->Transcript().Lines()->Write("not flushed yet");
    EXPECT_TRUE(screen_->Close());
    EXPECT_EQ(Box(), "Could not write the transcript /dev/full. It is closed.");
}

// What is said of the wait

TEST_F(PlayerScreenTest, WaitForAKeyIsSaidAndTakenBack) {
    Load();
    screen_->FollowWait();
    EXPECT_EQ(said_, "");
    Type("hold");
    screen_->FollowWait();
    EXPECT_EQ(said_, "The game waits for a key.");
    screen_->Playing()->Key(' ');
    screen_->FollowWait();
    EXPECT_EQ(said_, "");
    said_ = "Saved.";
    screen_->FollowWait();
    EXPECT_EQ(said_, "Saved.") << "what others say stays";
}

TEST_F(PlayerScreenTest, TurnThatIsLongIsSaidAfterAWhile) {
    GameBuilder game;
    game.SystemMessage(34, "").Entry(0, "DO", "_", "SET 100 DESC").Entry(1, "_", "_", "NOTZERO 100 DESC");
    game.Write(folder_ / "long.fbd");
    screen_->Load(folder_ / "long.fbd");
    Type("do");
    for (int slice = 0; slice < 19; ++slice) {
        screen_->FollowWait();
        screen_->Playing()->GoOn();
    }
    EXPECT_EQ(said_, "");
    screen_->FollowWait();
    EXPECT_EQ(said_, "The game is busy. Esc stops the turn.");
}

}  // namespace
}  // namespace fabula::test
