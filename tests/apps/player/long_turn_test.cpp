#include <QAction>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "player/panes/character_pane.h"
#include "player/panes/game_screen.h"
#include "player/panes/text_pane.h"
#include "player/play/played_game.h"
#include "player/played_window.h"

namespace fabula::test {
namespace {

using engine::TextStyle;
using engine::Waiting;
using player::TextPane;
using std::chrono::milliseconds;

/// A pane of 400 by 200 that keeps `lines` lines.
class LongText : public testing::Test {
  protected:
    LongText() : pane_(timers_, {[](const std::string&) {}, [](player::PaneKey) {}}) {
        pane_.resize(400, 200);
        pane_.StartGame({.style = kStyle});
        pane_.show();
    }

    void LetShow() {
        while (!pane_.IsWhole())
            timers_.Advance(milliseconds(1));
        timers_.Advance(milliseconds(1));
    }

    static constexpr TextStyle kStyle{.fontSize = 12, .paper = 15, .ink = 0};

    platform::ManualTimers timers_;
    TextPane pane_;
};

TEST_F(LongText, IsShownPieceByPiece) {
    for (int line = 0; line < 1000; ++line) {
        pane_.Write("a line of this text", kStyle, {});
        pane_.EndLine();
    }
    EXPECT_FALSE(pane_.IsWhole());
    EXPECT_LE(pane_.document()->characterCount(), TextPane::kWrittenAtOnce + 100);
    timers_.Advance(milliseconds(1));
    timers_.Advance(milliseconds(1));
    EXPECT_LE(pane_.document()->characterCount(), 3 * TextPane::kWrittenAtOnce + 300);
    LetShow();
    EXPECT_EQ(pane_.document()->blockCount(), 1001);
    EXPECT_EQ(pane_.document()->findBlockByNumber(999).text(), "a line of this text");
}

TEST_F(LongText, LineWithoutEndIsKeptAsLinesThatArePartedAtBlanks) {
    const QString words = QString("seven. ").repeated(2000);
    for (int part = 0; part < 5; ++part)
        pane_.Write(words, kStyle, {});
    LetShow();
    QString whole;
    for (QTextBlock line = pane_.document()->begin(); line.isValid(); line = line.next()) {
        EXPECT_LE(line.length(), TextPane::kLongestLine + 1);
        EXPECT_TRUE(line.text().endsWith(' '));
        whole += line.text();
    }
    EXPECT_EQ(whole, words.repeated(5));
}

TEST_F(LongText, OldestLinesGoWhenThereAreMoreThanAreKept) {
    pane_.SetChoice({.lines = 100});
    for (int line = 0; line < 250; ++line) {
        pane_.EndInput(QString::number(line));
        timers_.Advance(milliseconds(1));
    }
    EXPECT_LE(pane_.document()->blockCount(), 111);
    EXPECT_GE(pane_.document()->blockCount(), 100);
    EXPECT_TRUE(pane_.toPlainText().endsWith("248\n249\n"));
}

TEST_F(LongText, WhatIsNotKeptIsNeverLaidOut) {
    pane_.SetChoice({.lines = 100});
    pane_.Write("first", kStyle, {});
    for (int line = 0; line < 100'000; ++line) {
        pane_.EndLine();
        pane_.Write("a line of this text", kStyle, {});
    }
    int pieces = 0;
    for (; !pane_.IsWhole(); ++pieces)
        timers_.Advance(milliseconds(1));
    EXPECT_LE(pieces, 2);
    EXPECT_LE(pane_.document()->blockCount(), 600);
}

TEST_F(LongText, PageAndTurnOfTextThatIsNotKeptStillCount) {
    pane_.SetChoice({.lines = 100});
    for (int line = 0; line < 2000; ++line) {
        pane_.Write("a line of this text", kStyle, {});
        pane_.EndLine();
    }
    pane_.ClearPage(1, 7);
    for (int line = 0; line < 2000; ++line) {
        pane_.Write("another line of text", kStyle, {});
        pane_.EndLine();
    }
    LetShow();
    EXPECT_EQ(pane_.palette().color(QPalette::Base), QColor(0, 0, 230));
}

TEST_F(LongText, InputStandsBehindAllOfIt) {
    for (int line = 0; line < 2000; ++line) {
        pane_.Write("a line of this text", kStyle, {});
        pane_.EndLine();
    }
    pane_.Write(">", kStyle, {});
    pane_.ShowInput("", "");
    pane_.ShowInput("GO", "");
    pane_.ShowInput("GO ON", "_");
    LetShow();
    EXPECT_TRUE(pane_.toPlainText().endsWith("text\n>GO ON_"));
    pane_.EndInput("GO ON");
    EXPECT_TRUE(pane_.toPlainText().endsWith("text\n>GO ON\n"));
}

TEST_F(LongText, LineEnteredBeforeItIsShownComesInItsPlace) {
    for (int line = 0; line < 2000; ++line) {
        pane_.Write("a line of this text", kStyle, {});
        pane_.EndLine();
    }
    pane_.Write(">", kStyle, {});
    pane_.ShowInput("GO", "");
    pane_.EndInput("GO");
    pane_.Write("Gone.", kStyle, {});
    LetShow();
    EXPECT_TRUE(pane_.toPlainText().endsWith("text\n>GO\nGone."));
}

TEST_F(LongText, MarksStayAtTheirTextWhenOldLinesGo) {
    pane_.SetChoice({.lines = 100});
    for (int line = 0; line < 300; ++line) {
        pane_.EndInput("GO " + QString::number(line));
        timers_.Advance(milliseconds(1));
    }
    EXPECT_EQ(pane_.document()->findBlock(pane_.TurnStart()).text(), "GO 299");
    pane_.Write(">", kStyle, {});
    pane_.ShowInput("X", "");
    pane_.ShowInput("XY", "");
    EXPECT_TRUE(pane_.toPlainText().endsWith("GO 299\n>XY"));
}

TEST_F(LongText, TypedLineHasTheFontOfTheTextBeforeIt) {
    pane_.Write("big>", {.fontSize = 24, .paper = 15, .ink = 0}, "DejaVu Serif");
    pane_.ShowInput("GO", {});
    QTextCursor end(pane_.document());
    end.movePosition(QTextCursor::End);
    EXPECT_EQ(end.charFormat().fontPointSize(), 24);
    EXPECT_EQ(end.charFormat().fontFamilies().toStringList(), QStringList("DejaVu Serif"));
}

/// DO describes the place again and again.
GameBuilder Endless() {
    GameBuilder game;
    game.SystemMessage(34, "").Entry(0, "DO", "_", "SET 100 DESC").Entry(1, "_", "_", "NOTZERO 100 DESC");
    return game.Entry(0, "GO", "_", "PLUS 101 1 DONE").Word("GO", 101, 0);
}

TEST(LongTurn, LeavesTheWindowAwakeAndCanBeStopped) {
    PlayedWindow played;
    played.Load(Endless());
    played.Type("go\n");
    played.Type("do\n");
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Turn);
    EXPECT_TRUE(played.Action("Stop").isEnabled());
    EXPECT_FALSE(played.Action("Save").isEnabled());
    played.Pass(milliseconds(5));
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Turn);
    played.Type("x");
    played.Press(Qt::Key_Escape);
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Sentence);
    EXPECT_EQ(played.Window().Playing()->Engine().Running() != nullptr, true);
    EXPECT_FALSE(played.Action("Stop").isVisible());
    while (!played.Window().Screen().Text().IsWhole())
        played.Pass(milliseconds(1));
    played.Type("go\n");
    EXPECT_TRUE(played.Text().ends_with("GO\n?\n>")) << played.Text().substr(played.Text().size() - 60);
}

TEST(LongTurn, IsToldWhenItGoesOn) {
    PlayedWindow played;
    played.Load(Endless());
    played.Type("do\n");
    EXPECT_EQ(played.Status("status"), "");
    played.Pass(milliseconds(40));
    EXPECT_EQ(played.Status("status"), "The game is busy. Esc stops the turn.");
    played.Action("Stop").trigger();
    EXPECT_EQ(played.Status("status"), "");
}

TEST(LongTurn, IsKeptWithinTheLinesOfBothPanes) {
    PlayedWindow played;
    played.Load(Endless().CharacterSets());
    played.Type("do\n");
    for (int slice = 0; slice < 60; ++slice)
        played.Pass(milliseconds(1));
    EXPECT_LE(played.Window().Screen().Characters().Screen().Rows().size(), 5501U);
    EXPECT_LE(played.Window().Screen().Text().document()->blockCount(), 5501 + 600);
    played.Action("Stop").trigger();
}

TEST(LongTurn, OfTheStartCanBeStoppedToo) {
    PlayedWindow played;
    played.Load(GameBuilder().Entry(1, "_", "_", "DESC"));
    ASSERT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Turn);
    played.Action("Stop").trigger();
    EXPECT_EQ(played.Window().Playing()->WaitingFor(), Waiting::Nothing);
    EXPECT_TRUE(played.Window().findChild<QWidget*>("EndBar")->isVisible());
}

}  // namespace
}  // namespace fabula::test
