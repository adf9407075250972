#include <QAction>
#include <QApplication>
#include <QLabel>
#include <csignal>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "player/play/played_game.h"
#include "player/played_window.h"

namespace fabula::test {
namespace {

using std::chrono::milliseconds;

/// DO does what `condacts` say. Message 0 is "Done it."; no cursor is shown behind what is typed.
GameBuilder GameOf(const std::string& condacts) {
    GameBuilder game;
    game.SystemMessage(34, "").Message(0, "Done it.").Entry(0, "DO", "_", condacts);
    return game;
}

/// DO is answered with "Done it.".
GameBuilder TalkingGame() {
    return GameOf("MESSAGE 0 DONE");
}

TEST(Window, ShowsTheGameItsTitleAndItsPrompt) {
    PlayedWindow played;
    played.Load(TalkingGame().SettingText("advname", "The Vault").SettingText("author", "M. E."));
    EXPECT_EQ(played.Window().windowTitle(), "The Vault (Version 1.0) by M. E.");
    EXPECT_EQ(played.Said(), "Room 0?\n>");
}

TEST(Window, TypedSentenceIsShownInCapitalsAndAnswered) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.Said();
    played.Type("do\n");
    EXPECT_EQ(played.Said(), "DO\nDone it.\n?\n>");
}

TEST(Window, BackspaceTakesTheLastCharacterBack) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.Said();
    played.Type("dox");
    played.Press(Qt::Key_Backspace);
    EXPECT_EQ(played.Said(), "DO");
}

TEST(Window, BackspaceInAnEmptyLineChangesNothing) {
    PlayedWindow played;
    played.Load(TalkingGame());
    const std::string before = played.Text();
    played.Press(Qt::Key_Backspace);
    EXPECT_EQ(played.Text(), before);
    played.Type("do\n");
    EXPECT_NE(played.Text().find("Done it."), std::string::npos);
}

TEST(Window, AnEmptyLineEndsItsLineAndDoesNothing) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.Said();
    played.Press(Qt::Key_Return);
    EXPECT_EQ(played.Said(), "\n");
    played.Type("do\n");
    EXPECT_EQ(played.Said(), "DO\nDone it.\n?\n>");
}

TEST(Window, AnyKeyTakesAnyKeyIncludingEnterAndPrintsNoCharacter) {
    PlayedWindow played;
    played.Load(GameOf("ANYKEY MESSAGE 0 DONE").SystemMessage(16, "Key."));
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Up}) {
        played.Type("do\n");
        ASSERT_EQ(played.Window().Playing()->WaitingFor(), engine::Waiting::AnyKey);
        played.Said();
        played.Press(key);
        const std::string said = played.Said();
        EXPECT_EQ(said.find('X'), std::string::npos);
        EXPECT_NE(said.find("Done it."), std::string::npos) << said;
    }
}

TEST(Window, TimeOutDuringTypingIsPostponedByEachKey) {
    PlayedWindow played;
    played.Load(GameOf("TIME 1 4 DONE").SystemMessage(35, "Time passes."));
    played.Type("do\n");
    played.Said();
    played.Pass(milliseconds(1279));
    played.Type("d");
    played.Pass(milliseconds(1279));
    EXPECT_EQ(played.Said(), "D");
    played.Pass(milliseconds(1));
    EXPECT_NE(played.Said().find("Time passes."), std::string::npos);
}

TEST(Window, PauseLetsNoKeyThroughUntilItsTimeHasPassed) {
    PlayedWindow played;
    played.Load(GameOf("PAUSE 50 MESSAGE 0 DONE"));
    played.Type("do\n");
    played.Said();
    played.Type("x");
    played.Pass(milliseconds(999));
    EXPECT_EQ(played.Said(), "");
    played.Pass(milliseconds(1));
    EXPECT_EQ(played.Said(), "Done it.\n?\n>");
}

TEST(Window, UpAndDownGoThroughTheHistory) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.Type("do first\n");
    played.Type("do second\n");
    played.Type("do thi");
    played.Said();
    played.Press(Qt::Key_Up);
    played.Press(Qt::Key_Up);
    EXPECT_TRUE(played.Text().ends_with(">DO FIRST"));
    played.Press(Qt::Key_Down);
    EXPECT_TRUE(played.Text().ends_with(">DO SECOND"));
    played.Press(Qt::Key_Down);
    EXPECT_TRUE(played.Text().ends_with(">DO THI"));
    played.Press(Qt::Key_Escape);
    EXPECT_TRUE(played.Text().ends_with(">"));
}

TEST(Window, TypingBringsTheCaretBackFromTheText) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(played.Window().Screen().Text().textCursor().position(), 0);
    played.Type("do");
    EXPECT_TRUE(played.Window().Screen().Text().textCursor().atEnd());
    EXPECT_TRUE(played.Text().ends_with(">DO"));
}

TEST(Window, ThePaneNeverEditsByItself) {
    PlayedWindow played;
    played.Load(TalkingGame());
    const std::string before = played.Text();
    played.Press(Qt::Key_A, Qt::ControlModifier);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace})
        played.Press(key);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_K, Qt::Key_D, Qt::Key_Backspace, Qt::Key_Delete})
        played.Press(key, Qt::ControlModifier);
    EXPECT_EQ(played.Text(), before);
}

TEST(Window, TabLeavesThePane) {
    PlayedWindow played;
    played.Load(TalkingGame());
    const std::string before = played.Text();
    played.Press(Qt::Key_Tab);
    EXPECT_EQ(played.Text(), before);
}

TEST(Window, GameThatEndsOffersToPlayAgain) {
    PlayedWindow played;
    played.Load(GameOf("END").SystemMessage(13, "Again?"));
    played.Type("do\n");
    played.Type("n\n");
    EXPECT_TRUE(played.Window().findChild<QWidget*>("EndBar")->isVisible());
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), engine::Waiting::Nothing);
    played.Action("StartAgain").trigger();
    EXPECT_FALSE(played.Window().findChild<QWidget*>("EndBar")->isVisible());
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), engine::Waiting::Sentence);
}

TEST(Window, LoadAsksForAFileWithTheSystemsTitleAndFilter) {
    PlayedWindow played;
    const auto file = played.Write(TalkingGame());
    played.dialogs.AnswerFile(file);
    played.Action("LoadAdv").trigger();
    ASSERT_EQ(played.dialogs.Questions().size(), 1U);
    EXPECT_EQ(played.dialogs.Questions()[0].title, "Open VEL Database");
    EXPECT_EQ(played.dialogs.Questions()[0].filter, "VEL Database|*.fbd");
    EXPECT_EQ(played.Said(), "Room 0?\n>");
}

TEST(Window, FileThatIsNoAdventureIsToldAndTheGameGoesOn) {
    PlayedWindow played;
    played.Load(TalkingGame());
    const auto file = played.folder / "letter.fbd";
    std::ofstream(file) << "Dear reader,";
    played.Window().Load(file);
    ASSERT_EQ(played.dialogs.Boxes().size(), 1U);
    EXPECT_EQ(played.dialogs.Boxes()[0].title, "Error");
    played.Said();
    played.Type("do\n");
    EXPECT_EQ(played.Said(), "DO\nDone it.\n?\n>");
}

TEST(Window, FileOfTheCommandLineIsLoadedOnceTheWindowIsThere) {
    PlayedWindow played;
    played.Window().OpenAtStart(played.Write(TalkingGame()));
    EXPECT_EQ(played.Text(), "One moment while I Inititlize");
    played.Pass(milliseconds(1));
    EXPECT_EQ(played.Text(), "Room 0?\n>");
}

TEST(Window, StatusLineShowsScriptAndSound) {
    PlayedWindow played;
    EXPECT_EQ(played.Status("Status1"), "Script Off");
    played.Load(TalkingGame());
    EXPECT_EQ(played.Status("Status1"), "Script Off");
    EXPECT_EQ(played.Status("Status2"), "Sound OFF");
    played.Action("Sound").trigger();
    EXPECT_EQ(played.Status("Status2"), "Sound ON");
    EXPECT_TRUE(played.Action("Sound").isChecked());
}

TEST(Window, SoundThatCannotBeOpenedIsToldAndTurnedOff) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.Action("Sound").trigger();
    played.Window().SoundFailed("Could not open the synthesizer.");
    EXPECT_EQ(played.Status("status"), "Could not open the synthesizer.");
    QApplication::processEvents();
    EXPECT_EQ(played.Status("Status2"), "Sound OFF");
    EXPECT_FALSE(played.Action("Sound").isChecked());
}

TEST(Window, DebugCanBeUsedInATestRunOnly) {
    PlayedWindow played;
    played.Load(TalkingGame());
    EXPECT_FALSE(played.Action("Debug").isEnabled());
}

TEST(Window, ScriptIsPlayedByNext) {
    PlayedWindow played;
    played.Load(TalkingGame().Word("SCRIPT", 101, 0).Entry(0, "SCRIPT", "_", "SCRIPT 2 DONE"));
    const auto script = played.folder / "play.scr";
    std::ofstream(script) << "A remark.\n>>DO\n>>DO\n";
    EXPECT_FALSE(played.Action("Next").isEnabled());
    played.dialogs.AnswerFile(script);
    played.Type("script\n");
    EXPECT_EQ(played.dialogs.Questions()[0].title, "Input SCRIPT Name");
    EXPECT_EQ(played.Status("Status1"), "Script Loaded");
    EXPECT_TRUE(played.Action("Next").isEnabled());
    played.Said();
    played.Action("Next").trigger();
    const std::string said = played.Said();
    EXPECT_NE(said.find("DO\nDone it."), std::string::npos) << said;
}

TEST(Window, SavedGamesGoToAFolderOfTheGame) {
    PlayedWindow played;
    played.Load(GameOf("SAVE").SettingText("savename", "vault"));
    const auto file = played.folder / "data" / "vault" / "here.sav";
    played.dialogs.AnswerFile(file);
    played.Type("do\n");
    ASSERT_EQ(played.dialogs.Questions().size(), 1U);
    EXPECT_EQ(played.dialogs.Questions()[0].title, "Save as a Fabula Save File");
    EXPECT_EQ(played.dialogs.Questions()[0].start, played.folder / "data" / "vault");
    EXPECT_TRUE(std::filesystem::exists(file));
}

std::string Written(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

TEST(Window, TranscriptTakesDownWhatIsShownAndTyped) {
    PlayedWindow played;
    played.Load(TalkingGame());
    const auto file = played.folder / "transcript.txt";
    played.dialogs.AnswerFile(file);
    played.Action("Transcript").trigger();
    EXPECT_TRUE(played.Action("Transcript").isChecked());
    played.Type("do\n");
    EXPECT_EQ(Written(file), ">DO\nDone it.\n?\n");
    played.Action("Transcript").trigger();
    EXPECT_FALSE(played.Action("Transcript").isChecked());
    played.Type("do\n");
    EXPECT_EQ(Written(file), ">DO\nDone it.\n?\n");
}

TEST(Window, TranscriptThatIsNotNamedIsNotWritten) {
    PlayedWindow played;
    played.Load(TalkingGame());
    played.dialogs.AnswerFile(std::nullopt);
    played.Action("Transcript").trigger();
    EXPECT_FALSE(played.Action("Transcript").isChecked());
}

TEST(Window, SessionThatWasCutOffIsOfferedAtTheNextStart) {
    PlayedWindow played;
    const auto game = TalkingGame().Word("E", 102, 0).Exit(0, 102, 1);
    played.Load(game);
    played.Type("e\n");
    played.Restart();
    played.dialogs.AnswerNext(true);
    played.Window().Load(played.folder / "game.fbd");
    EXPECT_EQ(played.dialogs.Boxes().back().text, "Go on where the last session of this game stopped?");
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(Window, SessionOfAKilledProgramIsOfferedAtTheNextStart) {
    PlayedWindow played;
    const auto file = played.Write(TalkingGame().Word("E", 102, 0).Exit(0, 102, 1));
    EXPECT_EXIT(
        {
            played.Window().Load(file);
            played.Type("e\n");
            played.Pass(milliseconds(150));
            std::raise(SIGKILL);
        },
        testing::KilledBySignal(SIGKILL), "");
    played.dialogs.AnswerNext(true);
    played.Window().Load(file);
    EXPECT_EQ(played.dialogs.Boxes().back().text, "Go on where the last session of this game stopped?");
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(Window, SessionOfAnAdventureThatHasChangedSinceIsToldAndBeginsAnew) {
    PlayedWindow played;
    const auto game = TalkingGame().Word("E", 102, 0).Exit(0, 102, 1);
    played.Load(game);
    played.Type("e\n");
    played.Restart();
    played.dialogs.AnswerNext(true);
    played.Load(GameBuilder(game).Location(9, "New."));
    ASSERT_EQ(played.dialogs.Boxes().size(), 2U);
    EXPECT_EQ(played.dialogs.Boxes()[1].text,
              "The last session can't be resumed: the adventure has changed since.");
    EXPECT_TRUE(played.Text().ends_with("Room 0?\n>")) << played.Text();
}

TEST(Window, SessionOfAGameThatEndedIsNotOffered) {
    PlayedWindow played;
    played.Load(GameOf("END").SystemMessage(13, "Again?").Word("E", 102, 0).Exit(0, 102, 1));
    played.Type("e\n");
    played.Pass(milliseconds(150));
    played.Type("do\n");
    played.Type("n\n");
    played.Restart();
    played.Window().Load(played.folder / "game.fbd");
    EXPECT_TRUE(played.dialogs.Boxes().empty());
}

TEST(Window, SessionThatIsNotWantedBeginsAnew) {
    PlayedWindow played;
    played.Load(TalkingGame().Word("E", 102, 0).Exit(0, 102, 1));
    played.Type("e\n");
    played.Restart();
    played.dialogs.AnswerNext(false);
    played.Window().Load(played.folder / "game.fbd");
    EXPECT_EQ(played.Text(), "Room 0?\n>");
}

}  // namespace
}  // namespace fabula::test
