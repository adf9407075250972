#include <QAccessible>
#include <QAction>
#include <QLabel>

#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "player/played_window.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using std::chrono::milliseconds;

/// Listens as a screen reader does.
class Listener {
  public:
    Listener() {
        heard_.clear();
        before_ = QAccessible::installUpdateHandler(Hear);
        SetActive(true);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() {
        SetActive(false);
        QAccessible::installUpdateHandler(before_);
    }

    /// What was said since the last call, one line each: texts that came, and sentences of the status line.
    std::vector<std::string> Take() { return std::exchange(heard_, {}); }

  private:
    /// The offscreen platform has no screen reader that could ask for events.
    static void SetActive(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
    static void Hear(QAccessibleEvent* event) {
        if (event->type() == QAccessible::TextInserted) {
            const auto* inserted = static_cast<QAccessibleTextInsertEvent*>(event);
            heard_.push_back("text: " + qt::FromQt(inserted->textInserted()));
        } else if (event->type() == QAccessible::Alert) {
            heard_.push_back("alert: " + qt::FromQt(event->accessibleInterface()->text(QAccessible::Name)));
        }
    }

    static inline std::vector<std::string> heard_;
    QAccessible::UpdateHandler before_;
};

using Heard = std::vector<std::string>;

GameBuilder Game() {
    GameBuilder game;
    game.SystemMessage(34, "").SystemMessage(16, "Press something.");
    game.Message(0, "You look <b>very</b> closely. There is <ink=2>nothing</ink> here.");
    game.Message(1, "You listen.");
    game.Entry(0, "DO", "_", "MESSAGE 0 MESSAGE 1 DONE");
    game.Word("HOLD", 106, 0).Entry(0, "HOLD", "_", "ANYKEY MESSAGE 1 DONE");
    return game;
}

/// Qt says how a line ends by a sign of its own.
std::string WithLineEnds(std::string text) {
    const std::string sign = "\u2029";
    for (std::size_t at = text.find(sign); at != std::string::npos; at = text.find(sign))
        text.replace(at, sign.size(), "\n");
    return text;
}

TEST(ScreenReader, HearsWhatATurnWritesOnceWholeAndInOrder) {
    PlayedWindow played;
    played.Load(Game());
    played.Type("do");
    Listener listener;
    played.Type("\n");
    const Heard heard = listener.Take();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(WithLineEnds(heard[0]),
              "text: \nYou look very closely. There is nothing here.\nYou listen.\n?\n>");
}

TEST(ScreenReader, HearsEachKey) {
    PlayedWindow played;
    played.Load(Game());
    Listener listener;
    played.Type("do");
    EXPECT_EQ(listener.Take(), (Heard{"text: D", "text: O"}));
}

TEST(ScreenReader, HearsThatTheGameWaitsForAKey) {
    PlayedWindow played;
    played.Load(Game());
    played.Type("hold");
    Listener listener;
    played.Type("\n");
    const Heard heard = listener.Take();
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_NE(heard[0].find("Press something."), std::string::npos);
    EXPECT_EQ(heard[1], "alert: The game waits for a key.");
    played.Type("x");
    const Heard then = listener.Take();
    ASSERT_EQ(then.size(), 1U);
    EXPECT_NE(then[0].find("You listen."), std::string::npos);
}

TEST(ScreenReader, HearsTheStatusLineOnlyWhenItChanges) {
    PlayedWindow played;
    played.Load(Game());
    Listener listener;
    played.Action("Sound").trigger();
    EXPECT_EQ(listener.Take(), Heard{"alert: Sound ON"});
    played.Window().Tell("It is told.");
    played.Window().Tell("It is told.");
    EXPECT_EQ(listener.Take(), Heard{"alert: It is told."});
    played.Type("do\n");
    for (const std::string& said : listener.Take())
        EXPECT_EQ(said.find("alert"), std::string::npos) << said;
}

TEST(ScreenReader, HearsALongTurnInWholeLines) {
    PlayedWindow played;
    GameBuilder game = Game();
    std::string list;
    for (int i = 0; i < 190; ++i)
        list += "MESSAGE 0 ";
    played.Load(game.Word("MUCH", 107, 0).Entry(0, "MUCH", "_", list + "DONE"));
    played.Type("much");
    Listener listener;
    played.Type("\n");
    while (!played.Window().Screen().Text().IsWhole())
        played.Pass(milliseconds(1));
    std::string all;
    for (const std::string& said : listener.Take()) {
        ASSERT_TRUE(said.starts_with("text: ")) << said;
        all += WithLineEnds(said).substr(6);
    }
    std::string expected = "\n";
    for (int i = 0; i < 190; ++i)
        expected += "You look very closely. There is nothing here.\n";
    EXPECT_EQ(all, expected + "?\n>");
}

TEST(ScreenReader, ReadsTheTextBackLineByLine) {
    PlayedWindow played;
    played.Load(Game());
    played.Type("do\n");
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&played.Window().Screen().Text());
    EXPECT_EQ(access->role(), QAccessible::Terminal);
    QAccessibleTextInterface* text = access->textInterface();
    ASSERT_NE(text, nullptr);
    int start = 0;
    int end = 0;
    std::vector<std::string> lines;
    for (int at = 0; at < text->characterCount(); at = end) {
        lines.push_back(qt::FromQt(text->textAtOffset(at, QAccessible::LineBoundary, &start, &end)));
        ASSERT_GT(end, at);
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"Room 0?\n", ">DO\n",
                                               "You look very closely. There is nothing here.\n",
                                               "You listen.\n", "?\n", ">"}));
    EXPECT_EQ(
        qt::FromQt(text->textBeforeOffset(text->characterCount(), QAccessible::LineBoundary, &start, &end)),
        "?\n");
    EXPECT_EQ(qt::FromQt(text->textAtOffset(9, QAccessible::WordBoundary, &start, &end)), "DO");
}

TEST(ScreenReader, MovesTheCaretAndChoosesText) {
    PlayedWindow played;
    played.Load(Game());
    QAccessibleTextInterface* text =
        QAccessible::queryAccessibleInterface(&played.Window().Screen().Text())->textInterface();
    text->setCursorPosition(3);
    EXPECT_EQ(text->cursorPosition(), 3);
    text->setSelection(0, 0, 4);
    EXPECT_EQ(text->selectionCount(), 1);
    EXPECT_EQ(qt::FromQt(text->text(0, 4)), "Room");
    text->removeSelection(0);
    EXPECT_EQ(text->selectionCount(), 0);
    text->setCursorPosition(10'000);
    EXPECT_EQ(text->cursorPosition(), text->characterCount());
    EXPECT_EQ(text->text(-5, 100'000).size(), text->characterCount());
}

TEST(ScreenReader, StatusLineSaysWhatItSaysAndNotWhatItIsCalled) {
    PlayedWindow played;
    played.Load(Game());
    QAccessibleInterface* sound =
        QAccessible::queryAccessibleInterface(played.Window().findChild<QLabel*>("Status2"));
    EXPECT_EQ(qt::FromQt(sound->text(QAccessible::Name)), "Sound OFF");
}

}  // namespace
}  // namespace fabula::test
