#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "player/panes/character_pane.h"
#include "player/panes/pane_keys.h"
#include "player/panes/picture_pane.h"
#include "player/panes/text_pane.h"
#include "support/doubles/manual_timers.h"

namespace fabula::player {
namespace {

using engine::TextStyle;
using std::chrono::milliseconds;

PaneKey MeaningOfKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    return MeaningOf(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
}

TEST(PaneKeys, CharactersAreTextWithShiftAndWithTheThirdLevel) {
    EXPECT_EQ(MeaningOfKey(Qt::Key_A, Qt::NoModifier, "a"), PaneKey::Text);
    EXPECT_EQ(MeaningOfKey(Qt::Key_A, Qt::ShiftModifier, "A"), PaneKey::Text);
    EXPECT_EQ(MeaningOfKey(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@"), PaneKey::Text);
}

TEST(PaneKeys, ShortcutsAreNotForThePane) {
    EXPECT_EQ(MeaningOfKey(Qt::Key_Q, Qt::ControlModifier, "\x11"), PaneKey::Other);
    EXPECT_EQ(MeaningOfKey(Qt::Key_F, Qt::AltModifier, "f"), PaneKey::Other);
    EXPECT_EQ(MeaningOfKey(Qt::Key_Delete, Qt::NoModifier, "\x7F"), PaneKey::Other);
    EXPECT_EQ(MeaningOfKey(Qt::Key_Tab, Qt::NoModifier, "\t"), PaneKey::Other);
}

TEST(PaneKeys, ArrowsGoThroughTheHistoryAndWithShiftThroughTheText) {
    EXPECT_EQ(MeaningOfKey(Qt::Key_Up, Qt::NoModifier, ""), PaneKey::Older);
    EXPECT_EQ(MeaningOfKey(Qt::Key_Down, Qt::NoModifier, ""), PaneKey::Newer);
    EXPECT_EQ(MeaningOfKey(Qt::Key_Up, Qt::ShiftModifier, ""), PaneKey::Move);
}

/// A pane of 400 by 200 for a game in black on white.
class TextPaneTest : public testing::Test {
  protected:
    TextPaneTest() : pane_(timers_, {[this](const std::string& text) { typed_ += text; }, [](PaneKey) {}}) {
        pane_.resize(400, 200);
        pane_.StartGame({.style = kStyle});
        pane_.show();
    }

    QTextCharFormat FormatAt(int position) {
        QTextCursor cursor(pane_.document());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }
    void WriteLines(int count) {
        for (int line = 0; line < count; ++line) {
            pane_.Write("line", kStyle, "");
            pane_.EndLine();
        }
    }

    static constexpr TextStyle kStyle{.fontSize = 12, .paper = 15, .ink = 0};

    platform::ManualTimers timers_;
    std::string typed_;
    TextPane pane_;
};

TEST_F(TextPaneTest, RunsCarryFontSizeColourAndBold) {
    pane_.Write("ab", {.fontSize = 24, .paper = 15, .ink = 10, .bright = true}, "DejaVu Serif");
    const QTextCharFormat format = FormatAt(0);
    EXPECT_EQ(format.fontPointSize(), 24);
    EXPECT_EQ(format.fontWeight(), QFont::Bold);
    EXPECT_EQ(format.foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(format.fontFamilies().toStringList(), QStringList("DejaVu Serif"));
}

TEST_F(TextPaneTest, PaperIsShownWhereItIsNotThatOfTheGame) {
    pane_.Write("a", {.fontSize = 12, .paper = 1, .ink = 0}, "");
    pane_.Write("b", kStyle, "");
    EXPECT_EQ(FormatAt(0).background().color(), QColor(0, 0, 230));
    EXPECT_EQ(FormatAt(1).background().style(), Qt::NoBrush);
}

TEST_F(TextPaneTest, ASizeThatNoScreenHoldsIsTheLargestThatOneHolds) {
    pane_.Write("a", kStyle, "");
    pane_.Write("b", {.fontSize = 32'767, .paper = 15, .ink = 0}, "");
    EXPECT_EQ(FormatAt(1).fontPointSize(), 288);
}

TEST_F(TextPaneTest, ZoomChangesEverySize) {
    pane_.Write("a", kStyle, "");
    pane_.Write("b", {.fontSize = 24, .paper = 15, .ink = 0}, "");
    pane_.SetZoom(200);
    EXPECT_EQ(pane_.font().pointSizeF(), 24);
    EXPECT_EQ(FormatAt(1).fontPointSize(), 48);
    pane_.SetZoom(100);
    EXPECT_EQ(FormatAt(1).fontPointSize(), 24);
}

TEST_F(TextPaneTest, PageOfThePlayersChoiceRecoloursWhatIsThere) {
    pane_.Write("a", {.fontSize = 12, .paper = 15, .ink = 1}, "");
    pane_.SetPage(Page::Dark);
    EXPECT_LT(pane_.palette().color(QPalette::Base).lightness(), 60);
    EXPECT_NE(FormatAt(0).foreground().color(), QColor(0, 0, 230));
    pane_.SetPage(Page::OfTheGame);
    EXPECT_EQ(FormatAt(0).foreground().color(), QColor(0, 0, 230));
    EXPECT_EQ(pane_.palette().color(QPalette::Base), QColor(255, 255, 255));
}

TEST_F(TextPaneTest, TextBeforeAClearedPageStaysAboveIt) {
    WriteLines(3);
    pane_.ClearPage(15, 0);
    pane_.Write("fresh", kStyle, "");
    pane_.ShowTurn();
    EXPECT_EQ(pane_.toPlainText(), "line\nline\nline\n\nfresh");
    const int top = pane_.cursorForPosition(QPoint(30, 30)).block().position();
    EXPECT_EQ(pane_.document()->findBlock(top).text(), "fresh");
}

TEST_F(TextPaneTest, LongTurnIsShownFromItsBeginning) {
    WriteLines(20);
    pane_.EndInput("GO");
    WriteLines(40);
    pane_.ShowTurn();
    const QTextCursor top = pane_.cursorForPosition(QPoint(30, 12));
    EXPECT_EQ(top.block().text(), "GO");
}

TEST_F(TextPaneTest, ShortTurnIsShownWithItsEnd) {
    WriteLines(20);
    pane_.EndInput("GO");
    WriteLines(1);
    pane_.ShowTurn();
    EXPECT_EQ(pane_.verticalScrollBar()->value(), pane_.verticalScrollBar()->maximum());
}

TEST_F(TextPaneTest, FlashStopsWhenItIsNotAllowed) {
    pane_.Write("!", {.fontSize = 12, .paper = 15, .ink = 0, .flash = true}, "");
    timers_.Advance(milliseconds(320));
    EXPECT_EQ(pane_.extraSelections().size(), 1);
    timers_.Advance(milliseconds(320));
    EXPECT_EQ(pane_.extraSelections().size(), 0);
    timers_.Advance(milliseconds(320));
    pane_.SetFlashing(false);
    EXPECT_EQ(pane_.extraSelections().size(), 0);
    EXPECT_EQ(timers_.Running(), 0);
}

TEST_F(TextPaneTest, PastedTextIsTypedUpToItsFirstLineEnd) {
    QApplication::clipboard()->setText("take lamp\nquit");
    QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier, "\x16");
    QApplication::sendEvent(&pane_, &paste);
    EXPECT_EQ(typed_, "take lamp");
}

TEST_F(TextPaneTest, SelectedTextCanBeCopied) {
    pane_.Write("A moor.", kStyle, "");
    pane_.selectAll();
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, "\x03");
    QApplication::sendEvent(&pane_, &copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "A moor.");
}

TEST_F(TextPaneTest, TextOfAnInputMethodIsTyped) {
    QInputMethodEvent event;
    event.setCommitString("é");
    QApplication::sendEvent(&pane_, &event);
    EXPECT_EQ(typed_, "é");
    EXPECT_EQ(pane_.toPlainText(), "");
}

CharacterScreen SolidScreen() {
    pictures::CharacterSets sets;
    sets.Add({0, 'X', "Default", {255, 255, 255, 255, 255, 255, 255, 255}});
    CharacterScreen screen(std::move(sets));
    screen.Clear(1, 7);
    return screen;
}

class CharacterPaneTest : public testing::Test {
  protected:
    CharacterPaneTest() : pane_(timers_, {[](const std::string&) {}, [](PaneKey) {}}) {
        pane_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        pane_.resize(520, 400);
        pane_.show();
        pane_.StartGame(SolidScreen());
    }

    QColor PixelAt(int x, int y) {
        const QImage image = pane_.viewport()->grab().toImage();
        const int left = (image.width() - CharacterScreen::kWidth * pane_.Factor()) / 2;
        return image.pixelColor(left + x * pane_.Factor(), y * pane_.Factor());
    }

    platform::ManualTimers timers_;
    CharacterPane pane_;
};

TEST_F(CharacterPaneTest, DrawsInkAndPaperWithoutBlur) {
    pane_.Screen().Write("X", {.paper = 2, .ink = 6});
    pane_.ShowChanges();
    EXPECT_EQ(pane_.Factor(), 2);
    EXPECT_EQ(PixelAt(0, 0), QColor(230, 230, 0));
    EXPECT_EQ(PixelAt(7, 7), QColor(230, 230, 0));
    EXPECT_EQ(PixelAt(8, 0), QColor(0, 0, 230));
}

TEST_F(CharacterPaneTest, FactorIsWholeAndFollowsTheSize) {
    pane_.resize(300, 400);
    EXPECT_EQ(pane_.Factor(), 1);
    pane_.resize(800, 1000);
    EXPECT_EQ(pane_.Factor(), 3);
    pane_.SetZoomSteps(-1);
    EXPECT_EQ(pane_.Factor(), 2);
    pane_.SetZoomSteps(5);
    EXPECT_EQ(pane_.Factor(), 3);
}

TEST_F(CharacterPaneTest, FlashChangesInkAndPaperInTime) {
    pane_.Screen().Write("X", {.paper = 2, .ink = 6, .flash = true});
    pane_.ShowChanges();
    timers_.Advance(milliseconds(319));
    EXPECT_EQ(PixelAt(0, 0), QColor(230, 230, 0));
    timers_.Advance(milliseconds(1));
    EXPECT_EQ(PixelAt(0, 0), QColor(230, 0, 0));
    timers_.Advance(milliseconds(320));
    EXPECT_EQ(PixelAt(0, 0), QColor(230, 230, 0));
}

TEST_F(CharacterPaneTest, FlashCanBeSwitchedOff) {
    pane_.Screen().Write("X", {.paper = 2, .ink = 6, .flash = true});
    pane_.ShowChanges();
    pane_.SetFlashing(false);
    timers_.Advance(milliseconds(5000));
    EXPECT_EQ(PixelAt(0, 0), QColor(230, 230, 0));
    EXPECT_EQ(timers_.Running(), 0);
}

TEST_F(CharacterPaneTest, CaretIsDrawnWhereTheNextCharacterGoes) {
    QApplication::setActiveWindow(&pane_);
    pane_.setFocus();
    pane_.Screen().Write("X", {.paper = 2, .ink = 6});
    pane_.Screen().ShowInput("", "");
    pane_.ShowChanges();
    EXPECT_EQ(PixelAt(8, 6), QColor(0, 0, 230));
    EXPECT_EQ(PixelAt(8, 7), QColor(230, 230, 0));
    EXPECT_EQ(PixelAt(15, 7), QColor(230, 230, 0));
    EXPECT_EQ(PixelAt(16, 7), QColor(0, 0, 230));
}

TEST_F(CharacterPaneTest, NewestRowIsInSightAndTheFirstCanBeScrolledTo) {
    for (int row = 0; row < 100; ++row)
        pane_.Screen().EndLine();
    pane_.Screen().Write("X", {.paper = 2, .ink = 6});
    pane_.ShowChanges();
    QScrollBar& bar = *pane_.verticalScrollBar();
    EXPECT_EQ(bar.value(), bar.maximum());
    const int rows = 400 / 16;
    EXPECT_EQ(bar.maximum(), 101 - rows);
    EXPECT_EQ(PixelAt(0, (rows - 1) * 8), QColor(230, 230, 0));
}

TEST(PicturePane, KeepsTheShapeOfThePicture) {
    PicturePane pane;
    pane.resize(416, 416);
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(Qt::red);
    pane.Show(image);
    EXPECT_EQ(pane.Place(), QRect(8, 108, 400, 200));
}

TEST(PicturePane, IsMadeHighEnoughForPixelsOfOneSizeWhereThatLeavesRoomForTheText) {
    PicturePane pane;
    QImage image(256, 176, QImage::Format_RGB32);
    image.fill(Qt::red);
    pane.Show(image);
    EXPECT_EQ(pane.HeightIn({880, 700}), 352 + 16);
    EXPECT_EQ(pane.HeightIn({880, 400}), 176 + 16);
    // Neither one nor two times its size lies between two fifths and three fifths.
    EXPECT_EQ(pane.HeightIn({880, 600}), 240);
    // As high as before, and too narrow for two times.
    EXPECT_EQ(pane.HeightIn({500, 700}), 280);
}

TEST(PicturePane, WithoutAPictureShowsNothing) {
    PicturePane pane;
    pane.Show({});
    EXPECT_TRUE(pane.Place().isEmpty());
}

}  // namespace
}  // namespace fabula::player
