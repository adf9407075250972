#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSplitter>
#include <QSplitterHandle>
#include <QTest>
#include <QToolBar>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "player/panes/character_pane.h"
#include "player/panes/game_screen.h"
#include "player/panes/picture_pane.h"
#include "player/panes/text_pane.h"
#include "player/play/played_game.h"
#include "player/played_window.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using std::chrono::milliseconds;

GameBuilder LookGame() {
    GameBuilder game;
    game.SystemMessage(34, "");
    return game;
}

void SaveImage(const std::filesystem::path& file) {
    QImage image(8, 4, QImage::Format_RGB32);
    image.fill(Qt::blue);
    image.save(qt::PathToQt(file));
}

TEST(WindowPictures, PictureOfThePlaceIsShownAboveTheText) {
    PlayedWindow played;
    SaveImage(played.folder / "room.png");
    played.Load(LookGame().Graphics().PictureOf(0, "room.png"));
    EXPECT_TRUE(played.Window().Screen().Picture().isVisible());
    EXPECT_EQ(played.Window().Screen().Picture().Shown().size(), QSize(8, 4));
    EXPECT_EQ(played.Status("status"), "");
}

TEST(WindowPictures, MissingPictureShowsNothingAndIsToldOnce) {
    PlayedWindow played;
    played.Load(LookGame().Graphics().PictureOf(0, "room.png").Entry(0, "DO", "_", "PICTURE 0 DONE"));
    EXPECT_FALSE(played.Window().Screen().Picture().isVisible());
    EXPECT_EQ(played.Status("status"), "The picture room.png is missing.");
    played.Window().Tell("");
    played.Type("do\n");
    EXPECT_EQ(played.Status("status"), "");
}

TEST(WindowPictures, BrokenPictureShowsNothingAndIsTold) {
    PlayedWindow played;
    QFile file(qt::PathToQt(played.folder / "room.png"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    played.Load(LookGame().Graphics().PictureOf(0, "room.png"));
    EXPECT_FALSE(played.Window().Screen().Picture().isVisible());
    EXPECT_EQ(played.Status("status"), "The picture room.png can't be shown.");
}

TEST(WindowPictures, PathThatLeavesTheGamesFolderIsRefused) {
    PlayedWindow played;
    SaveImage(played.folder.Path().parent_path() / "outside-of-the-game.png");
    played.Load(LookGame().Graphics().PictureOf(0, "../outside-of-the-game.png"));
    std::filesystem::remove(played.folder.Path().parent_path() / "outside-of-the-game.png");
    EXPECT_FALSE(played.Window().Screen().Picture().isVisible());
    EXPECT_EQ(played.Status("status"),
              "The picture ../outside-of-the-game.png is refused: it lies outside the game's folder.");
}

TEST(WindowPictures, PictureKeptInTheAdventureFileIsShown) {
    PlayedWindow played;
    SaveImage(played.folder / "kept.png");
    const auto file =
        played.Write(LookGame().Graphics().PictureOf(0, "room.png").Setting("graphicsindb", 1));
    {
        const auto adventure = store::Adventure::Open(file);
        auto& room = adventure->OpenTable(store::TableNum::Locations, "*", "locnum=0");
        room.StoreFileInField(played.folder / "kept.png", "picgraphic", "oldpicloc");
        room.Update();
    }
    played.Window().Load(file);
    EXPECT_EQ(played.Window().Screen().Picture().Shown().size(), QSize(8, 4));
}

TEST(WindowCharacters, GameWithCharacterSetsIsDrawnInTheCharacterPane) {
    PlayedWindow played;
    played.Load(LookGame().CharacterSets());
    ASSERT_TRUE(played.Window().Screen().Characters().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &played.Window().Screen().Characters());
    EXPECT_EQ(played.Window().Screen().Characters().Screen().Text(), "Room 0?\n>\n");
    played.Type("do");
    EXPECT_EQ(played.Window().Screen().Characters().Screen().Text(), "Room 0?\n>DO\n");
    played.Press(Qt::Key_Backspace);
    EXPECT_EQ(played.Window().Screen().Characters().Screen().Text(), "Room 0?\n>D\n");
}

TEST(WindowCharacters, LinesAreWrappedAtThirtyTwoCharacters) {
    PlayedWindow played;
    played.Load(LookGame().CharacterSets().Location(0, "The quick brown fox jumps over the lazy dog. "));
    EXPECT_EQ(played.Window().Screen().Characters().Screen().Text(),
              "The quick brown fox jumps over\nthe lazy dog. ?\n>\n");
}

TEST(WindowCharacters, CharactersThatNoSetHasAreNotTyped) {
    PlayedWindow played;
    played.Load(LookGame().CharacterSets());
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, "é");
    QApplication::sendEvent(QApplication::focusWidget(), &event);
    EXPECT_EQ(played.Window().Screen().Characters().Screen().Text(), "Room 0?\n>\n");
}

TEST(WindowCharacters, GameCanBeReadAsPlainTextInstead) {
    PlayedWindow played;
    played.Load(LookGame().CharacterSets().Location(0, "The quick brown fox jumps over the lazy dog. "));
    played.Action("PlainText").trigger();
    EXPECT_TRUE(played.Window().Screen().Text().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &played.Window().Screen().Text());
    EXPECT_EQ(played.Text(), "The quick brown fox jumps over the lazy dog. ?\n>");
}

TEST(WindowLook, ZoomIsChangedByKeysAndRemembered) {
    PlayedWindow played;
    played.Load(LookGame());
    const double before = played.Window().Screen().Text().font().pointSizeF();
    played.Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(played.Window().Screen().Text().font().pointSizeF(), before * 1.1);
    played.Restart();
    played.Window().Load(played.folder / "game.fbd");
    EXPECT_DOUBLE_EQ(played.Window().Screen().Text().font().pointSizeF(), before * 1.1);
    played.Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(played.Window().Screen().Text().font().pointSizeF(), before);
}

TEST(WindowLook, ZoomIsChangedByTheWheelWithCtrl) {
    PlayedWindow played;
    played.Load(LookGame());
    QWidget& pane = *played.Window().Screen().Text().viewport();
    const double before = played.Window().Screen().Text().font().pointSizeF();
    QWheelEvent up(QPointF(9, 9), pane.mapToGlobal(QPointF(9, 9)), {}, QPoint(0, 120), Qt::NoButton,
                   Qt::ControlModifier, Qt::NoScrollPhase, false);
    // The pane leaves it to the window.
    QApplication::sendEvent(&pane, &up);
    EXPECT_FALSE(up.isAccepted());
    QApplication::sendEvent(&played.Window(), &up);
    EXPECT_GT(played.Window().Screen().Text().font().pointSizeF(), before);
}

TEST(WindowLook, ThemeIsRemembered) {
    PlayedWindow played;
    played.Action("ThemeDark").trigger();
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 80);
    played.Restart();
    EXPECT_TRUE(played.Action("ThemeDark").isChecked());
    played.Load(LookGame());
    EXPECT_LT(played.Window().Screen().Text().palette().color(QPalette::Base).lightness(), 80);
    played.Action("ThemeSystem").trigger();
    EXPECT_EQ(played.Window().Screen().Text().palette().color(QPalette::Base), QColor(255, 255, 255));
}

TEST(WindowLook, SizeIsRemembered) {
    PlayedWindow played;
    played.Window().resize(612, 413);
    played.Restart();
    EXPECT_EQ(played.Window().size(), QSize(612, 413));
}

TEST(WindowLook, RecentGamesAreOfferedOnTheFirstPageAndInTheMenu) {
    PlayedWindow played;
    played.Load(LookGame());
    played.Restart();
    QTest::keyClick(&played.Window(), Qt::Key_Tab);
    QWidget* recent = QApplication::focusWidget();
    ASSERT_NE(recent, nullptr);
    EXPECT_EQ(recent->accessibleName(), "Load game");
    QTest::keyClick(recent, Qt::Key_Space);
    EXPECT_EQ(played.Text(), "Room 0?\n>");
}

/// Gives the program another font for one test.
class ProgramFont {
  public:
    explicit ProgramFont(double factor) : before_(QApplication::font()) {
        QFont font = before_;
        font.setPointSizeF(font.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    ProgramFont(const ProgramFont&) = delete;
    ProgramFont& operator=(const ProgramFont&) = delete;
    ~ProgramFont() { QApplication::setFont(before_); }

  private:
    QFont before_;
};

TEST(WindowLook, WindowMayBe480By320) {
    PlayedWindow played;
    SaveImage(played.folder / "room.png");
    played.Load(LookGame().Graphics().PictureOf(0, "room.png"));
    played.Window().resize(480, 320);
    EXPECT_EQ(played.Window().size(), QSize(480, 320));
    QApplication::processEvents();
    EXPECT_GE(played.Window().Screen().Text().height(), 80);
    EXPECT_LE(played.Window().Screen().Text().document()->idealWidth(), 480);
}

TEST(WindowLook, WindowMayBe480By320WithTextOfTwiceTheSize) {
    const ProgramFont large(2);
    PlayedWindow played;
    SaveImage(played.folder / "room.png");
    played.Load(LookGame()
                    .Graphics()
                    .PictureOf(0, "room.png")
                    .SystemMessage(13, "Again?")
                    .Entry(0, "DO", "_", "END"));
    played.Window().Tell("A sentence that is much too long for a status line of a window of this size.");
    for (const engine::StatusField field : {engine::StatusField::Command, engine::StatusField::Location})
        played.Window().Screen().ShowStatus(field, "A text of some length");
    played.Window().Screen().ShowStatus(engine::StatusField::Script, "Script Loaded & Writing");
    played.Window().resize(480, 320);
    QApplication::processEvents();
    EXPECT_EQ(played.Window().size(), QSize(480, 320));
    EXPECT_GE(played.Window().Screen().Text().height(), 80);
    played.Type("do\nn\n");
    QApplication::processEvents();
    ASSERT_TRUE(played.Window().findChild<QWidget*>("EndBar")->isVisible());
    EXPECT_LE(played.Window().minimumSizeHint().width(), 480);
    EXPECT_LE(played.Window().minimumSizeHint().height(), 320);
}

TEST(WindowLook, PictureGivesWayWhereFewLinesOfTextWouldBeLeft) {
    PlayedWindow played;
    SaveImage(played.folder / "room.png");
    played.Load(LookGame().Graphics().PictureOf(0, "room.png"));
    played.Window().resize(480, 320);
    QApplication::processEvents();
    EXPECT_TRUE(played.Window().Screen().Picture().isVisible());
    for (int step = 0; step < 8; ++step)
        played.Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_FALSE(played.Window().Screen().Picture().isVisible());
    played.Window().resize(900, 900);
    QApplication::processEvents();
    EXPECT_TRUE(played.Window().Screen().Picture().isVisible());
}

TEST(WindowLook, HeightThatThePlayerGaveToPicturesIsKept) {
    PlayedWindow played;
    SaveImage(played.folder / "room.png");
    const auto game = LookGame().Graphics().PictureOf(0, "room.png").Word("E", 102, 0).Word("W", 103, 0);
    played.Load(GameBuilder(game).Exit(0, 102, 1).Exit(1, 103, 0));
    QApplication::processEvents();
    auto* handle = played.Window().Screen().findChild<QSplitter*>()->handle(1);
    QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(20, 1));
    QTest::mouseMove(handle, QPoint(20, -60));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(20, -60));
    const int given = played.Window().Screen().Picture().height();
    played.Type("e\n");
    ASSERT_FALSE(played.Window().Screen().Picture().isVisible());
    played.dialogs.AnswerNext(true);
    played.Action("StartAgain").trigger();
    QApplication::processEvents();
    EXPECT_NEAR(played.Window().Screen().Picture().height(), given, 1);
}

TEST(WindowLook, ZoomKeepsTheLatestTurnInSight) {
    PlayedWindow played;
    GameBuilder game = LookGame().Message(0, std::string(2000, 'x')).Entry(0, "DO", "_", "MESSAGE 0 DONE");
    played.Load(game);
    played.Type("do\n");
    played.Type("do nothing\n");
    player::TextPane& pane = played.Window().Screen().Text();
    const auto turnTop = [&] {
        QTextCursor turn(pane.document());
        turn.setPosition(pane.TurnStart());
        return pane.cursorRect(turn).top();
    };
    ASSERT_GE(turnTop(), 0);
    for (int step = 0; step < 6; ++step)
        played.Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GE(turnTop(), 0);
    EXPECT_LT(turnTop(), pane.viewport()->height());
}

TEST(WindowLook, ZoomKeepsThePlaceOfAReaderInTheText) {
    PlayedWindow played;
    GameBuilder game = LookGame().Message(0, std::string(3000, 'x')).Entry(0, "DO", "_", "MESSAGE 0 DONE");
    played.Load(game);
    for (int turn = 0; turn < 5; ++turn)
        played.Type("do\n");
    player::TextPane& pane = played.Window().Screen().Text();
    pane.verticalScrollBar()->setValue(pane.verticalScrollBar()->maximum() / 2);
    const int before = pane.cursorForPosition(QPoint(0, 0)).position();
    for (int step = 0; step < 4; ++step)
        played.Press(Qt::Key_Plus, Qt::ControlModifier);
    const int after = pane.cursorForPosition(QPoint(0, 0)).position();
    EXPECT_NEAR(after, before, 200);
}

TEST(WindowTestRun, DebugShowsAndChangesTheState) {
    PlayedWindow played(true);
    played.Load(LookGame());
    ASSERT_TRUE(played.Action("Debug").isEnabled());
    played.Action("Debug").trigger();
    auto* debug = played.Window().findChild<QWidget*>("diagnostics");
    ASSERT_NE(debug, nullptr);
    EXPECT_EQ(debug->windowTitle(), "Diagnostics");
    auto* input = debug->findChild<QLineEdit*>("request");
    auto* result = debug->findChild<QLabel*>("result");
    QTest::keyClicks(input, "f38");
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_EQ(result->text(), "F38 = 0");
    QTest::keyClicks(input, "=1");
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_EQ(result->text(), "F38 = 1");
    QTest::keyClicks(input, "?");
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_EQ(result->text(), "Invalid option");
}

TEST(WindowHelp, F1TellsAboutTheGameWindowAndIsNoKeyOfTheGame) {
    PlayedWindow played;
    played.Load(LookGame());
    played.Said();
    played.Press(Qt::Key_F1);
    ASSERT_TRUE(played.asked);
    EXPECT_EQ(played.asked->page, "frmvelengmain.html");
    EXPECT_TRUE(played.asked->anchors.contains("frmvelengmain"));
    EXPECT_EQ(played.Said(), "");
}

TEST(WindowHelp, ContentsAreThereWithoutAGame) {
    PlayedWindow played;
    played.Action("HelpContents").trigger();
    ASSERT_TRUE(played.asked);
    EXPECT_EQ(played.asked->page, "");
}

TEST(WindowHelp, HInDiagnosticsTellsAboutThem) {
    PlayedWindow played(true);
    played.Load(LookGame());
    played.Action("Debug").trigger();
    auto* input = played.Window().findChild<QWidget*>("diagnostics")->findChild<QLineEdit*>("request");
    QTest::keyClicks(input, "h");
    QTest::keyClick(input, Qt::Key_Return);
    ASSERT_TRUE(played.asked);
    EXPECT_EQ(played.asked->page, "frmdebug.html");
}

TEST(WindowTestRun, DebugFollowsTheGame) {
    PlayedWindow played(true);
    played.Load(LookGame().Entry(0, "DO", "_", "LET 0 7 DONE"));
    played.Action("Debug").trigger();
    auto* debug = played.Window().findChild<QWidget*>("diagnostics");
    QApplication::setActiveWindow(&played.Window());
    played.Window().Screen().FocusInput();
    played.Type("do\n");
    EXPECT_EQ(debug->findChild<QLabel*>("result")->text(), "F0 = 7");
}

TEST(WindowTestRun, WindowClosesWhenTheGameEnds) {
    PlayedWindow played(true);
    played.Load(LookGame().SystemMessage(13, "Again?").Entry(0, "DO", "_", "END"));
    played.Type("do\n");
    played.Type("n\n");
    EXPECT_TRUE(played.Window().isVisible());
    played.Pass(milliseconds(0));
    EXPECT_FALSE(played.Window().isVisible());
}

TEST(WindowTestRun, NothingOfTheRunIsKept) {
    PlayedWindow played(true);
    played.Load(LookGame().Entry(0, "DO", "_", "LET 0 7 DONE"));
    played.Type("do\n");
    played.Pass(milliseconds(10'000));
    EXPECT_FALSE(std::filesystem::exists(played.folder / "data"));
}

TEST(WindowBoxes, KeysAndTimesThatComeWhileABoxIsShownDoNotBreakIntoTheTurn) {
    PlayedWindow played;
    played.Load(LookGame()
                    .SystemMessage(35, "Time passes.")
                    .Entry(0, "DO", "_", "TIME 1 4 SCRIPT 2 SCRIPT 2 DONE"));
    QFile script(qt::PathToQt(played.folder / "s.scr"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.close();
    played.dialogs.AnswerFile(played.folder / "s.scr");
    bool shown = false;
    played.dialogs.whileTelling = [&] {
        shown = true;
        played.Type("x");
        played.Pass(milliseconds(2000));
        EXPECT_EQ(played.Text().find("Time passes."), std::string::npos);
        EXPECT_FALSE(played.Window().close());
    };
    played.Type("do\n");
    EXPECT_TRUE(shown);
    EXPECT_TRUE(played.Window().isVisible());
}

}  // namespace
}  // namespace fabula::test
