#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "player/panes/character_pane.h"
#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "player/play/played_game.h"
#include "player/played_window.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

GameBuilder AccessGame() {
    GameBuilder game;
    game.SystemMessage(34, "").SystemMessage(13, "Again?").Message(0, "Done it.");
    return game.Entry(0, "DO", "_", "MESSAGE 0 DONE");
}

/// What a person can use or read; the rest holds such widgets, or moves them.
bool IsControl(const QAccessibleInterface& access) {
    static const std::set<QAccessible::Role> kOthers{
        QAccessible::Client,    QAccessible::Pane,      QAccessible::LayeredPane, QAccessible::Splitter,
        QAccessible::Window,    QAccessible::ScrollBar, QAccessible::ToolBar,     QAccessible::Grip,
        QAccessible::Separator, QAccessible::MenuBar,   QAccessible::StatusBar,   QAccessible::Dialog,
        QAccessible::Border,    QAccessible::Grouping,  QAccessible::Whitespace};
    return !kOthers.contains(access.role());
}

/// The widgets in sight that have neither a name nor a text of their own.
std::vector<std::string> Nameless(const QWidget& window) {
    std::vector<std::string> nameless;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(widget);
        const bool used = widget->focusPolicy() != Qt::NoFocus || (access && IsControl(*access));
        if (!used) continue;
        if (access && !access->text(QAccessible::Name).isEmpty()) continue;
        nameless.push_back(std::string(widget->metaObject()->className()) + " " +
                           qt::FromQt(widget->objectName()));
    }
    return nameless;
}

const std::vector<std::string> kNone;

TEST(WindowAccess, EveryControlOfTheFirstPageHasAName) {
    PlayedWindow played;
    played.Load(AccessGame());
    played.Restart();
    EXPECT_EQ(Nameless(played.Window()), kNone);
}

TEST(WindowAccess, EveryControlOfAGameHasAName) {
    PlayedWindow played(true);
    QImage image(8, 4, QImage::Format_RGB32);
    image.fill(Qt::blue);
    image.save(qt::PathToQt(played.folder / "room.png"));
    played.Load(AccessGame().Graphics().PictureOf(0, "room.png"));
    EXPECT_EQ(Nameless(played.Window()), kNone);
}

TEST(WindowAccess, EveryControlOfAGameWithCharacterSetsHasAName) {
    PlayedWindow played;
    played.Load(AccessGame().CharacterSets());
    EXPECT_EQ(Nameless(played.Window()), kNone);
}

TEST(WindowAccess, EveryControlOfAGameThatEndedHasAName) {
    PlayedWindow played;
    played.Load(AccessGame().Word("STOP", 101, 0).Entry(0, "STOP", "_", "END"));
    played.Type("stop\nn\n");
    ASSERT_TRUE(played.Window().findChild<QWidget*>("EndBar")->isVisible());
    EXPECT_EQ(Nameless(played.Window()), kNone);
}

TEST(WindowAccess, EveryControlOfDiagnosticsHasAName) {
    PlayedWindow played(true);
    played.Load(AccessGame());
    played.Action("Debug").trigger();
    EXPECT_EQ(Nameless(*played.Window().findChild<QWidget*>("diagnostics")), kNone);
}

/// What is wrong with what a screen reader is told of a thing and all that is in it: controls without a
/// name, and choices without a value.
void Walk(QAccessibleInterface& access, std::vector<std::string>& wrong, int& seen) {
    if (access.state().invisible) return;
    ++seen;
    const auto role = access.role();
    const bool choice =
        role == QAccessible::ComboBox || role == QAccessible::SpinBox || role == QAccessible::Slider;
    const std::string name = qt::FromQt(access.text(QAccessible::Name));
    const std::string told = std::to_string(role) + " " + name;
    if (access.state().focusable && IsControl(access) && name.empty()) wrong.push_back(told + ": no name");
    if (choice && access.text(QAccessible::Value).isEmpty()) wrong.push_back(told + ": no value");
    if (name.find('<') != std::string::npos) wrong.push_back(told + ": markup");
    // What such a control is made of is no concern of the listener.
    if (choice || role == QAccessible::Terminal) return;
    for (int child = 0; child < access.childCount(); ++child) {
        if (QAccessibleInterface* inner = access.child(child)) Walk(*inner, wrong, seen);
    }
}

std::vector<std::string> WrongInTree(QWidget& window) {
    std::vector<std::string> wrong;
    int seen = 0;
    Walk(*QAccessible::queryAccessibleInterface(&window), wrong, seen);
    EXPECT_GT(seen, 5);
    return wrong;
}

TEST(WindowAccess, TreeOfEachStateOfTheWindowTellsNamesAndValues) {
    PlayedWindow played;
    EXPECT_EQ(WrongInTree(played.Window()), kNone);
    played.Load(AccessGame().Word("STOP", 101, 0).Entry(0, "STOP", "_", "END"));
    EXPECT_EQ(WrongInTree(played.Window()), kNone);
    played.Action("Find").trigger();
    EXPECT_EQ(WrongInTree(played.Window()), kNone);
    played.Press(Qt::Key_Escape);
    played.Type("stop\n");
    EXPECT_EQ(WrongInTree(played.Window()), kNone);
    played.Type("n\n");
    EXPECT_EQ(WrongInTree(played.Window()), kNone);
}

TEST(WindowAccess, TreeOfACharacterGameAndOfDiagnosticsTellsNamesAndValues) {
    PlayedWindow played(true);
    played.Load(AccessGame().CharacterSets());
    EXPECT_EQ(WrongInTree(played.Window()), kNone);
    played.Action("Debug").trigger();
    EXPECT_EQ(WrongInTree(*played.Window().findChild<QWidget*>("diagnostics")), kNone);
}

TEST(WindowAccess, TreeOfTheSettingsTellsNamesAndValues) {
    PlayedWindow played;
    std::vector<std::string> wrong{"not looked at"};
    QTimer::singleShot(0, &played.Window(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        wrong = WrongInTree(*dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    played.Action("Settings").trigger();
    EXPECT_EQ(wrong, kNone);
}

TEST(WindowAccess, EveryControlOfAboutHasANameAndEscapeLeavesIt) {
    PlayedWindow played;
    played.Load(AccessGame().SettingText("advdesc", "A vault.").SettingText("advcontactinfo", "Write."));
    std::vector<std::string> nameless{"not looked at"};
    QTimer::singleShot(0, &played.Window(), [&] {
        QWidget* about = QApplication::activeModalWidget();
        nameless = Nameless(*about);
        QTest::keyClick(about, Qt::Key_Escape);
    });
    played.Action("About").trigger();
    EXPECT_EQ(nameless, kNone);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

/// The widgets that Tab (or Shift+Tab) comes to until it is back where it began.
std::vector<QWidget*> Round(PlayedWindow& played, Qt::Key key) {
    const QWidget* start = QApplication::focusWidget();
    std::vector<QWidget*> round;
    do {
        played.Press(key);
        round.push_back(QApplication::focusWidget());
    } while (QApplication::focusWidget() != start && round.size() < 50);
    return round;
}

bool HasButton(const std::vector<QWidget*>& widgets, const QString& text) {
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        return button != nullptr && button->text() == text;
    });
}

TEST(WindowAccess, TabGoesFromTheTextToEveryButtonAndBack) {
    PlayedWindow played;
    played.Load(AccessGame());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        const auto round = Round(played, key);
        EXPECT_EQ(round.back(), &played.Window().Screen().Text());
        for (const char* button : {"Load a Game", "Save", "Sound", "About", "Exit"})
            EXPECT_TRUE(HasButton(round, button)) << button;
    }
}

TEST(WindowAccess, TabGoesFromTheCharactersToEveryButtonAndBack) {
    PlayedWindow played;
    played.Load(AccessGame().CharacterSets());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        const auto round = Round(played, key);
        EXPECT_EQ(round.back(), &played.Window().Screen().Characters());
        EXPECT_TRUE(HasButton(round, "Load a Game"));
    }
}

TEST(WindowAccess, TabLeavesAPaneThatWaitsForAnyKeyAndIsNone) {
    PlayedWindow played;
    played.Load(AccessGame().Word("WAIT", 101, 0).Entry(0, "WAIT", "_", "ANYKEY DONE"));
    played.Type("wait\n");
    played.Press(Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &played.Window().Screen().Text());
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), engine::Waiting::AnyKey);
}

TEST(WindowAccess, GameCanBeLoadedPlayedAndPlayedAgainByKeysAlone) {
    PlayedWindow played;
    played.dialogs.AnswerFile(played.Write(AccessGame().Word("STOP", 101, 0).Entry(0, "STOP", "_", "END")));
    played.Press(Qt::Key_Space);
    played.Type("do\n");
    EXPECT_NE(played.Text().find("Done it."), std::string::npos);
    played.Type("stop\nn\n");
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), engine::Waiting::Nothing);
    played.Press(Qt::Key_Space);
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), engine::Waiting::Sentence);
    EXPECT_EQ(QApplication::focusWidget(), &played.Window().Screen().Text());
}

TEST(WindowAccess, ScreenReaderFindsTheWholeText) {
    PlayedWindow played;
    played.Load(AccessGame());
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&played.Window().Screen().Text());
    ASSERT_NE(access->textInterface(), nullptr);
    EXPECT_EQ(access->textInterface()->text(0, access->textInterface()->characterCount()), "Room 0?\n>");
    EXPECT_EQ(access->textInterface()->cursorPosition(), 9);
}

}  // namespace
}  // namespace fabula::test
