#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <QTreeWidgetItemIterator>
#include <functional>

#include <gtest/gtest.h>

#include "ide/opened_window.h"
#include "player/played_window.h"
#include "player/window/about_adventure.h"
#include "player/window/settings_dialog.h"
#include "qt/help/help_window.h"
#include "qt/qt_dialogs.h"
#include "qt/report_window.h"
#include "qt/strings.h"
#include "translation/pseudo_language.h"
#include "translation/shown_texts.h"

// The windows of both programs, and the player's dialogs, in a language whose words are 40 % longer.

namespace fabula::test {
namespace {

using Texts = std::vector<std::string>;

/// The name of the program, games and their files, tables and columns by their names in the file, and keys.
const Texts kInTheGame = {"Fabula( IDE.*)?",
                          "game",
                          "&1  game",
                          "/.*",
                          "<p style.*game.fbd</p>",
                          "Test \\(Version 1.0\\)",
                          "[a-z0-9]+",
                          "Close Tab",  // said by Qt
                          "[A-Z]\\w+[A-Z]\\w+",
                          "\\[.*\\] \\(.*\\)"};

/// Said by Qt, in its own translation.
constexpr const char* kYesAndNo = "&?(Yes|No)";

constexpr QSize kUsual(1000, 700);

class TranslatedWindow : public testing::Test {
  protected:
    /// Shows neither an untranslated text nor a cut one, as it opens and at its smallest.
    static void Check(QWidget& window, const Texts& ofTheGame = {}) {
        window.show();
        window.resize(kUsual);
        Settle();
        EXPECT_EQ(UntranslatedTexts(window, ofTheGame), "");
        EXPECT_EQ(CutTexts(window), "");
        window.resize(window.minimumSizeHint());
        Settle();
        EXPECT_EQ(CutTexts(window), "") << "at its smallest";
    }
    /// Looks at the box that `ask` shows, as it stands, and closes it.
    static void CheckBox(const std::function<void()>& ask) {
        bool shown = false;
        QTimer::singleShot(0, [&shown] {
            QWidget& box = *QApplication::activeModalWidget();
            shown = true;
            Settle();
            EXPECT_EQ(UntranslatedTexts(box, {kYesAndNo}), "");
            EXPECT_EQ(CutTexts(box), "");
            box.close();
        });
        ask();
        EXPECT_TRUE(shown);
    }
    /// Lays out what has changed, and what follows from that.
    static void Settle() {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }
    static GameBuilder Game() {
        GameBuilder game;
        game.Message(0, "It is dark.").Entry(0, "DO", "_", "MESSAGE 0 DONE");
        return game;
    }

    PseudoLanguage language_;
};

TEST_F(TranslatedWindow, OfTheAuthoringToolWithoutAnAdventure) {
    OpenedWindow opened;
    Check(opened.Window(), kInTheGame);
}

TEST_F(TranslatedWindow, OfTheAuthoringToolAtEachTable) {
    OpenedWindow opened;
    opened.Open(Game());
    auto& tree = opened.Part<QTreeWidget>("Tree");
    for (QTreeWidgetItemIterator node(&tree); *node; ++node) {
        SCOPED_TRACE(qt::FromQt((*node)->text(0)));
        tree.setCurrentItem(*node);
        Check(opened.Window(), kInTheGame);
    }
}

TEST_F(TranslatedWindow, OfThePlayerWithoutAGame) {
    PlayedWindow played;
    Check(played.Window(), kInTheGame);
}

TEST_F(TranslatedWindow, OfThePlayerWithAGame) {
    PlayedWindow played;
    played.Load(Game());
    Check(played.Window(), kInTheGame);
}

TEST_F(TranslatedWindow, OfDiagnostics) {
    PlayedWindow played(true);
    played.Load(Game());
    played.Action("Debug").trigger();
    Check(*played.Window().findChild<QWidget*>("diagnostics"));
}

TEST_F(TranslatedWindow, OfThePlayersSettings) {
    platform::ManualTimers timers;
    player::SettingsDialog dialog({}, {"Synthesizer"}, timers, nullptr);
    Check(dialog, {"Synthesizer"});
}

TEST_F(TranslatedWindow, AboutAnAdventure) {
    player::AboutAdventure about;
    about.name = "The Vault";
    about.lines = {"Version: 1.0", "Written by M. E."};
    bool shown = false;
    QTimer::singleShot(0, [&] {
        shown = true;
        Check(*QApplication::activeModalWidget(), {"The Vault"});
        QApplication::activeModalWidget()->close();
    });
    player::ShowAbout(about, nullptr);
    EXPECT_TRUE(shown);
}

TEST_F(TranslatedWindow, OfTheHelp) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    window.Show({});
    Check(window);
}

TEST_F(TranslatedWindow, OfAReport) {
    qt::ReportWindow window("The word was deleted. No other record used it.", "Delete Word",
                            qt::ReportWindow::Answer::OkOrCancel);
    Check(window);
}

TEST_F(TranslatedWindow, OfTheBoxes) {
    qt::QtDialogs dialogs;
    CheckBox([&] { dialogs.Tell("Source File not specified", "Error"); });
    CheckBox([&] { dialogs.Confirm("All information in /g.fbd will be deleted.", "Warning"); });
    CheckBox([&] { dialogs.AskLeaving("What was changed here is not stored yet.", "Close"); });
    CheckBox([&] {
        dialogs.AskText({.prompt = "(M-N,ALL,comma separated list)", .title = "Error", .proposal = "ALL"});
    });
}

}  // namespace
}  // namespace fabula::test
