#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <iterator>
#include <set>

#include <gtest/gtest.h>

#include "player/panes/character_pane.h"
#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "player/play/commands.h"
#include "player/play/played_game.h"
#include "player/play/preferred_sound.h"
#include "player/played_window.h"
#include "qt/look/icons.h"
#include "qt/strings.h"
#include "support/places.h"

namespace fabula::test {
namespace {

using engine::Waiting;
using std::chrono::milliseconds;

/// E and W walk between rooms 0 and 1, FAIL goes wrong, STOP ends, HOLD waits for a key.
GameBuilder CommandsGame() {
    GameBuilder game;
    game.SystemMessage(34, "").SystemMessage(13, "Again?").SystemMessage(16, "Key.");
    game.Word("E", 102, 0).Word("W", 103, 0).Exit(0, 102, 1).Exit(1, 103, 0);
    game.Word("FAIL", 104, 0).Entry(0, "FAIL", "_", "SET 5000");
    game.Word("STOP", 105, 0).Entry(0, "STOP", "_", "END");
    game.Word("HOLD", 106, 0).Entry(0, "HOLD", "_", "ANYKEY DONE");
    return game;
}

// Without a window

TEST(PlayerCommands, HaveNamesKeysAndIconsOfTheirOwn) {
    std::set<std::string_view> keys;
    std::set<std::string_view> shortcuts;
    for (const player::CommandEntry& entry : player::AllCommands()) {
        EXPECT_TRUE(keys.insert(entry.key).second) << entry.key;
        EXPECT_TRUE(entry.shortcut.empty() || shortcuts.insert(entry.shortcut).second) << entry.shortcut;
        EXPECT_TRUE(entry.icon.empty() || qt::HasIcon(entry.icon)) << entry.icon;
        EXPECT_FALSE(entry.tip.empty()) << entry.key;
    }
}

TEST(PlayerCommands, OfTheToolBarHaveIcons) {
    for (const player::CommandEntry& entry : player::AllCommands()) {
        const bool shown = entry.use == player::CommandEntry::Use::ToolBar;
        EXPECT_TRUE(!shown || !entry.icon.empty()) << entry.key;
    }
}

std::string Page(const char* name) {
    std::ifstream page(SourceFolder() / "help" / name);
    return {std::istreambuf_iterator<char>(page), {}};
}

TEST(PlayerCommands, StandInTheHelpWithTheirKeys) {
    const std::string window = Page("frmvelengmain.html");
    std::string shortcuts = Page("shortcuts.html");
    shortcuts.erase(0, shortcuts.find("name=\"game\""));
    for (const player::CommandEntry& entry : player::AllCommands()) {
        const auto anchor = QString("name=\"%1\"").arg(qt::ToQt(entry.key).toLower());
        EXPECT_NE(window.find(qt::FromQt(anchor)), std::string::npos) << entry.key;
        for (const QString& key : qt::ToQt(entry.shortcut).split("; ", Qt::SkipEmptyParts)) {
            const auto code = QString("<code>%1</code>").arg(key);
            EXPECT_NE(shortcuts.find(qt::FromQt(code)), std::string::npos) << qt::FromQt(key);
        }
    }
}

TEST(PlayerCommands, OneAloneIsCalledLoad) {
    for (const player::CommandEntry& entry : player::AllCommands()) {
        const bool loads = entry.text.find("oad") != std::string_view::npos;
        EXPECT_EQ(loads, entry.id == player::Command::Open) << entry.text;
    }
}

TEST(PlayerCommands, WithoutAGameOnlyThoseOfTheWindowCanBeUsed) {
    const auto enabled = [](player::Command command) { return player::StateOf(command, {}).enabled; };
    for (const auto command : {player::Command::Save, player::Command::Restore, player::Command::Undo,
                               player::Command::Stop, player::Command::StartAgain, player::Command::Find})
        EXPECT_FALSE(enabled(command));
    for (const auto command : {player::Command::Open, player::Command::Settings, player::Command::Exit})
        EXPECT_TRUE(enabled(command));
}

TEST(PreferredSound, GivesTheGamesSettingsWithTheDeviceAndTheVolumeOfThePlayer) {
    RecordingSound sound;
    player::PreferredSound preferred(sound);
    preferred.Configure({.channel = 3, .deviceName = "Game", .voice = 5, .volume = 80});
    EXPECT_EQ(sound.settings.deviceName, "Game");
    EXPECT_EQ(sound.settings.volume, 80);
    preferred.SetChoice({.device = "Piano", .volume = 50});
    EXPECT_EQ(sound.settings.deviceName, "Piano");
    EXPECT_EQ(sound.settings.volume, 40);
    EXPECT_EQ(sound.settings.channel, 3);
    preferred.SetVoice(9);
    preferred.SetChoice({});
    EXPECT_EQ(sound.settings.deviceName, "Game");
    EXPECT_EQ(sound.settings.voice, 9);
}

TEST(PreferredSound, IsSilentWhileThePlayerBehindItIs) {
    RecordingSound sound;
    player::PreferredSound preferred(sound);
    EXPECT_FALSE(preferred.IsSilent());
    sound.SetSilent(true);
    preferred.PlayTone(0, std::chrono::milliseconds(10));
    EXPECT_TRUE(preferred.IsSilent());
    sound.SetSilent(false);
    preferred.SetChoice({.device = "Piano"});
    EXPECT_FALSE(preferred.IsSilent());
}

// Save, Restore, Undo

TEST(WindowCommands, SaveAndRestoreByTheirKeys) {
    PlayedWindow played;
    played.Load(CommandsGame());
    const auto file = played.folder / "here";
    played.dialogs.AnswerFile(file);
    played.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(played.dialogs.Questions()[0].title, "Save as a Fabula Save File");
    EXPECT_EQ(played.Status("status"), "Saved as here.sav.");
    played.Type("e\n");
    ASSERT_TRUE(played.Text().ends_with("Room 1?\n>"));
    played.dialogs.AnswerFile(file);
    played.Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(played.dialogs.Questions()[1].title, "Open Existing Fabula Save File");
    EXPECT_TRUE(played.Text().ends_with("Room 0?\n>")) << played.Text();
}

TEST(WindowCommands, RestoreOfSomethingElseIsToldAndTheGameGoesOn) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    std::ofstream(played.folder / "letter.sav") << "Dear reader,\n";
    played.dialogs.AnswerFile(played.folder / "letter.sav");
    played.Action("Restore").trigger();
    EXPECT_EQ(played.dialogs.Boxes().back().text, "Invalid Save File for this Adventure");
    played.Type("w\n");
    EXPECT_TRUE(played.Text().ends_with("Room 0?\n>")) << played.Text();
}

TEST(WindowCommands, SaveThatCantBeWrittenIsTold) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.dialogs.AnswerFile(played.folder / "no" / "folder" / "here.sav");
    played.Action("Save").trigger();
    ASSERT_FALSE(played.dialogs.Boxes().empty());
    EXPECT_EQ(played.dialogs.Boxes().back().title, "Error");
}

TEST(WindowCommands, UndoGoesBackLineByLine) {
    PlayedWindow played;
    played.Load(CommandsGame());
    EXPECT_FALSE(played.Action("Undo").isEnabled());
    played.Type("e\n");
    played.Type("w\n");
    played.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
    played.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(played.Text().ends_with("Room 0?\n>")) << played.Text();
    EXPECT_FALSE(played.Action("Undo").isEnabled());
    played.Type("e\n");
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(WindowCommands, UndoOfALineThatAsksTakesItBack) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("hold\n");
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::AnyKey);
    EXPECT_FALSE(played.Action("Save").isEnabled());
    played.Action("Undo").trigger();
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Sentence);
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(WindowCommands, UndoGoesBackIntoAGameThatEnded) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("stop\nn\n");
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Nothing);
    played.Window().findChild<QPushButton*>("GoBack")->click();
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
    EXPECT_FALSE(played.Window().findChild<QWidget*>("EndBar")->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &played.Window().Screen().Text());
}

TEST(WindowCommands, UndoIntoAGameThatEndedKeepsWhatWasRead) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("stop\nn\n");
    const std::string read = played.Text();
    played.Press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(played.Text().starts_with(read)) << played.Text();
    const std::string added = played.Text().substr(read.size());
    EXPECT_NE(added.find("Room 1?\n>"), std::string::npos) << added;
    EXPECT_EQ(added.find("Room 0"), std::string::npos) << added;
}

TEST(WindowCommands, UndoBeginsATurnOfItsOwn) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("w\n");
    const int before = played.Window().Screen().Text().TurnStart();
    played.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_GT(played.Window().Screen().Text().TurnStart(), before);
}

TEST(WindowCommands, PastedTextBeyondTheLongestLineIsDropped) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Said();
    QApplication::clipboard()->setText(QString(1'000'000, 'x'));
    played.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(played.Said(), std::string(4096, 'X'));
}

TEST(WindowCommands, GameThatGoesWrongCanBeGoneBackTo) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("fail\n");
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Nothing);
    EXPECT_EQ(played.Window().findChild<QLabel*>("Ending")->text(),
              "The game went wrong. Undo goes back to before.");
    played.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(WindowCommands, StateBeforeAGameWentWrongIsOfferedAtTheNextStart) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("fail\n");
    played.Restart();
    played.dialogs.AnswerNext(true);
    played.Window().Load(played.folder / "game.fbd");
    EXPECT_EQ(played.dialogs.Boxes().back().text, "Go on where the last session of this game stopped?");
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

/// A step to the east in an earlier session, which is gone on with.
void ResumeInRoom1(PlayedWindow& played) {
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Restart();
    played.dialogs.AnswerNext(true);
    played.Window().Load(played.folder / "game.fbd");
    ASSERT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(WindowCommands, AResumedGameShowsItsPlaceAndNotItsOpening) {
    PlayedWindow played;
    ResumeInRoom1(played);
    EXPECT_EQ(played.Text(), "Room 1?\n>");
}

TEST(WindowCommands, UndoAfterResumeGoesBackToWhereTheSessionWasResumedAndNoFurther) {
    PlayedWindow played;
    ResumeInRoom1(played);
    EXPECT_FALSE(played.Action("Undo").isEnabled());
    played.Type("w\n");
    ASSERT_TRUE(played.Action("Undo").isEnabled());
    played.Action("Undo").trigger();
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
    EXPECT_FALSE(played.Action("Undo").isEnabled());
}

TEST(WindowCommands, UndoWhileAResumedGameWaitsForAKeyDoesNotGoBackToItsStart) {
    PlayedWindow played;
    played.Load(CommandsGame().Entry(1, "_", "_", "AT 1 ANYKEY"));
    played.Type("e\n");
    played.Type("x");
    played.Restart();
    played.dialogs.AnswerNext(true);
    played.Window().Load(played.folder / "game.fbd");
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::AnyKey);
    played.Said();
    played.Action("Undo").trigger();
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), Waiting::AnyKey);
    EXPECT_EQ(played.Said().find("Room 0"), std::string::npos);
}

TEST(WindowCommands, StartAgainAsksInASessionThatWasResumed) {
    PlayedWindow played;
    ResumeInRoom1(played);
    played.dialogs.AnswerNext(false);
    played.Action("StartAgain").trigger();
    EXPECT_EQ(played.dialogs.Boxes().back().text,
              "Leave the game as it stands and start it from its beginning?");
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

TEST(WindowCommands, StartAgainAsksAndCanBeTakenBack) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.dialogs.AnswerNext(false);
    played.Action("StartAgain").trigger();
    EXPECT_EQ(played.dialogs.Boxes().back().text,
              "Leave the game as it stands and start it from its beginning?");
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>"));
    played.dialogs.AnswerNext(true);
    played.Action("StartAgain").trigger();
    EXPECT_TRUE(played.Text().ends_with("Room 0?\n>"));
    played.Action("Undo").trigger();
    EXPECT_TRUE(played.Text().ends_with("Room 1?\n>")) << played.Text();
}

// Transcripts

TEST(WindowCommands, TranscriptOnAFullDiskIsToldWhenItIsClosed) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Window().Playing()->Transcript().Open("/dev/full");
    played.Window().Playing()->Transcript().Lines()->Write("not flushed yet");
    played.Action("Transcript").setChecked(true);
    played.Action("Transcript").trigger();
    ASSERT_EQ(played.dialogs.Boxes().size(), 1U);
    EXPECT_EQ(played.dialogs.Boxes()[0].text, "Could not write the transcript /dev/full. It is closed.");
}

TEST(WindowCommands, TranscriptOnAFullDiskIsToldWhenTheWindowCloses) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Window().Playing()->Transcript().Open("/dev/full");
    played.Window().Playing()->Transcript().Lines()->Write("not flushed yet");
    played.Window().close();
    ASSERT_EQ(played.dialogs.Boxes().size(), 1U);
    EXPECT_EQ(played.dialogs.Boxes()[0].text, "Could not write the transcript /dev/full. It is closed.");
}

TEST(WindowCommands, TranscriptNeverTakesThePlaceOfAnAdventure) {
    PlayedWindow played;
    played.Load(CommandsGame());
    const auto game = played.folder / "game.fbd";
    const auto size = std::filesystem::file_size(game);
    played.dialogs.AnswerFile(game);
    played.Action("Transcript").trigger();
    ASSERT_EQ(played.dialogs.Boxes().size(), 1U);
    EXPECT_EQ(played.dialogs.Boxes()[0].text, "Could not write " + game.string() + ": it is an adventure.");
    EXPECT_EQ(std::filesystem::file_size(game), size);
    EXPECT_FALSE(played.Action("Transcript").isChecked());
}

// Find and full screen

TEST(WindowCommands, FindGoesUpThroughTheTextAndBackToTheGame) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("w\n");
    played.Press(Qt::Key_F, Qt::ControlModifier);
    auto* wanted = played.Window().findChild<QLineEdit*>("FindText");
    ASSERT_EQ(QApplication::focusWidget(), wanted);
    played.Type("room 1\n");
    EXPECT_EQ(played.Window().Screen().Text().textCursor().selectedText(), "Room 1");
    played.Type("\n");
    EXPECT_EQ(played.Window().findChild<QLabel*>("FindAnswer")->text(), "Not found.");
    played.Press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &played.Window().Screen().Text());
    played.Type("e\n");
    EXPECT_TRUE(played.Text().ends_with("E\nRoom 1?\n>")) << played.Text();
}

TEST(WindowCommands, FindNextAndBeforeGoOnWithTheSameWords) {
    PlayedWindow played;
    played.Load(CommandsGame());
    played.Type("e\n");
    played.Type("w\n");
    played.Press(Qt::Key_F, Qt::ControlModifier);
    played.Type("room 0\n");
    const int last = played.Window().Screen().Text().textCursor().position();
    played.Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_LT(played.Window().Screen().Text().textCursor().position(), last);
    played.Press(Qt::Key_F3);
    EXPECT_EQ(played.Window().Screen().Text().textCursor().position(), last);
}

TEST(WindowCommands, FullScreenGoesOnAndOff) {
    PlayedWindow played;
    played.Press(Qt::Key_F11);
    EXPECT_TRUE(played.Window().isFullScreen());
    EXPECT_TRUE(played.Action("FullScreen").isChecked());
    played.Press(Qt::Key_F11);
    EXPECT_FALSE(played.Window().isFullScreen());
    EXPECT_FALSE(played.Action("FullScreen").isChecked());
}

TEST(WindowCommands, CharactersAreTwoPointsWideWhereTheScreenHasRoom) {
    PlayedWindow played;
    played.Window().resize(330, 400);
    played.Load(CommandsGame().CharacterSets());
    EXPECT_EQ(played.Window().Screen().Characters().Factor(), 2);
    EXPECT_GE(played.Window().width(), 512);
}

// Settings

/// Opens the settings and lets `use` use them.
template <typename Use>
void InSettings(PlayedWindow& played, Use use) {
    QTimer::singleShot(0, &played.Window(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        use(*dialog);
        if (dialog->isVisible()) QTest::keyClick(dialog, Qt::Key_Escape);
    });
    played.Press(Qt::Key_Comma, Qt::ControlModifier);
}

TEST(PlayerSettingsWindow, ShowsEachChangeInASampleAtOnce) {
    PlayedWindow played;
    played.Load(CommandsGame());
    InSettings(played, [](QWidget& dialog) {
        auto& sample = *dialog.findChild<player::TextPane*>("Sample");
        dialog.findChild<QSpinBox*>("FontSize")->setValue(30);
        EXPECT_EQ(sample.font().pointSizeF(), 30);
        dialog.findChild<QCheckBox*>("OwnFont")->setChecked(false);
        dialog.findChild<QFontComboBox*>("Font")->setCurrentFont(QFont("DejaVu Serif"));
        EXPECT_EQ(sample.font().family(), "DejaVu Serif");
        dialog.findChild<QComboBox*>("Colours")->setCurrentIndex(3);
        EXPECT_LT(sample.palette().color(QPalette::Base).lightness(), 60);
    });
    EXPECT_NE(played.Window().Screen().Text().font().pointSizeF(), 30);
}

TEST(PlayerSettingsWindow, OkAppliesAndKeepsWhatWasChosen) {
    PlayedWindow played;
    played.Load(CommandsGame());
    InSettings(played, [](QWidget& dialog) {
        dialog.findChild<QSpinBox*>("FontSize")->setValue(20);
        dialog.findChild<QSpinBox*>("LineWidth")->setValue(40);
        dialog.findChild<QSpinBox*>("KeptLines")->setValue(300);
        dialog.findChild<QSlider*>("Volume")->setValue(30);
        dialog.findChild<QComboBox*>("Theme")->setCurrentIndex(2);
        QTest::keyClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::Key_Space);
    });
    const auto sizeOf = [&] { return played.Window().Screen().Text().font().pointSizeF(); };
    EXPECT_EQ(sizeOf(), 20);
    EXPECT_TRUE(played.Action("ThemeDark").isChecked());
    played.Restart();
    played.Window().Load(played.folder / "game.fbd");
    EXPECT_EQ(sizeOf(), 20);
    InSettings(played, [](QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QSpinBox*>("LineWidth")->value(), 40);
        EXPECT_EQ(dialog.findChild<QSpinBox*>("KeptLines")->value(), 300);
        EXPECT_EQ(dialog.findChild<QSlider*>("Volume")->value(), 30);
    });
}

TEST(PlayerSettingsWindow, EscapeChangesNothing) {
    PlayedWindow played;
    played.Load(CommandsGame());
    const double before = played.Window().Screen().Text().font().pointSizeF();
    InSettings(played, [](QWidget& dialog) { dialog.findChild<QSpinBox*>("FontSize")->setValue(50); });
    EXPECT_EQ(played.Window().Screen().Text().font().pointSizeF(), before);
}

TEST(PlayerSettingsWindow, NumbersOutOfTheirRangesCountAsNotSet) {
    TempFolder folder;
    QSettings store(qt::PathToQt(folder / "settings.ini"), QSettings::IniFormat);
    store.setValue("Startup/FontSize", 5000);
    store.setValue("Startup/LineWidth", 3);
    store.setValue("Startup/KeptLines", -1);
    store.setValue("Startup/Colours", 17);
    store.setValue("Startup/Volume", 101);
    const auto settings = player::PlayerSettings::Load(store);
    EXPECT_EQ(settings.text, player::TextChoice{});
    EXPECT_EQ(settings.colours, player::Colours::ByTheme);
    EXPECT_EQ(settings.sound, player::SoundChoice{});
}

}  // namespace
}  // namespace fabula::test
