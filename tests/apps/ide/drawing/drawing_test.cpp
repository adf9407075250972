#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <fstream>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "ide/drawing/character_dialog.h"
#include "ide/drawing/character_grid.h"
#include "ide/drawing/character_table_dialog.h"
#include "ide/drawing/command_list.h"
#include "ide/drawing/image_import_dialog.h"
#include "ide/drawing/picture_canvas.h"
#include "ide/drawing/picture_dialog.h"
#include "ide/editors/record_picture.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "pictures/files/picture_folder.h"
#include "platform/settings.h"
#include "qt/strings.h"
#include "support/active_window.h"
#include "support/places.h"

// The dialogs of drawing, by keys and clicks alone.

namespace fabula::test {
namespace {

using pictures::Point;
using store::TableNum;

/// The picture editor's dialog on a picture of a game.
class Drawer {
  public:
    Drawer(Desk& desk, int number, bool isNew)
        : editor_(desk.context, {.key = number, .isNew = isNew}), dialog_(editor_, settings_) {
        dialog_.show();
        EXPECT_TRUE(test::BecomesActive(&dialog_));
    }

    template <typename Widget>
    Widget& Part(const char* name) {
        return *dialog_.findChild<Widget*>(name);
    }
    ide::PictureCanvas& Canvas() { return static_cast<ide::PictureCanvas&>(Part<QWidget>("Canvas")); }
    authoring::PictureEditor& Editor() { return editor_; }
    ide::PictureDialog& Dialog() { return dialog_; }

    void ClicksAt(Point point) {
        QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, Canvas().PlaceOf(point));
    }
    /// On a button, behind a click on the tab of its page.
    void ClicksOn(const char* name) {
        auto& button = Part<QWidget>(name);
        const auto& pages = Part<QTabWidget>("Palette");
        for (int page = 0; page < pages.count(); ++page) {
            if (!pages.widget(page)->isAncestorOf(&button)) continue;
            QTest::mouseClick(pages.tabBar(), Qt::LeftButton, {}, pages.tabBar()->tabRect(page).center());
        }
        ASSERT_TRUE(button.isVisible()) << name;
        QTest::mouseClick(&button, Qt::LeftButton);
        QApplication::processEvents();
    }
    void Types(const std::string& line) {
        auto& field = Part<QLineEdit>("CommandLine");
        field.setFocus();
        QTest::keyClicks(&field, qt::ToQt(line));
        QTest::keyClick(&field, Qt::Key_Return);
    }
    void Presses(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&Part<QLineEdit>("CommandLine"), key, modifiers);
    }
    /// Types another command in a line of the list.
    void ChangesLine(int row, const std::string& text) {
        auto& list = Part<QListView>("Commands");
        list.setFocus();
        list.edit(list.model()->index(row, 0));
        auto* field = list.findChild<QLineEdit*>();
        ASSERT_NE(field, nullptr);
        field->selectAll();
        QTest::keyClicks(field, qt::ToQt(text));
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }

  private:
    platform::MemorySettings settings_;
    authoring::PictureEditor editor_;
    ide::PictureDialog dialog_;
};

std::string Rows(const pictures::Canvas& canvas) {
    std::string text;
    for (const pictures::Plane* plane : {&canvas.colour, &canvas.pixel}) {
        for (int line = 0; line < pictures::kCanvasHeight; ++line) {
            for (int x = 0; x < pictures::kCanvasWidth; ++x)
                text += static_cast<char>('0' + pictures::ColourToIndex(plane->Pixel(x, line)));
        }
    }
    return text;
}

/// A game with the drawings of the lighthouse.
class DrawingTest : public testing::Test {
  protected:
    DrawingTest() {
        desk_.Clear(TableNum::Pictures);
        for (const std::int64_t room : {4, 7, 10, 13, 20})
            if (desk_.Rows(TableNum::Locations, "locnum", "locnum=" + std::to_string(room)).empty())
                desk_.Add(TableNum::Locations, {{"locnum", room}});
        pictures::AddPictureFolder(desk_.Adventure(), SourceFolder() / "examples/lighthouse/pictures");
    }

    Desk desk_{store::AdventureKind::Fabula, true};
};

/// Draws one command of a drawstring with the key cursor and the command line.
class Hand {
  public:
    explicit Hand(Drawer& drawer) : drawer_(drawer) {}

    void Draws(const std::vector<std::string>& words, std::size_t at) {
        const std::string& word = words[at];
        const auto number = [&](std::size_t place) { return *pictures::ParameterValue(words[at + place]); };
        const Point here = drawer_.Editor().State().cursor;
        if (word == "PLOT") {
            drawer_.ClicksAt({number(2), number(3)});
            drawer_.Types("PLOT");
        } else if (word == "LINE" || word == "SHADE") {
            drawer_.ClicksAt({here.x + number(2), here.y + number(3)});
            const std::string shades = word == "SHADE" ? " " + std::to_string(number(4) % 16) + " " +
                                                             std::to_string(number(4) / 16)
                                                       : "";
            drawer_.Types(word + shades);
        } else if (word == "FILL" || word == "QFILL") {
            drawer_.ClicksAt({here.x + number(1), here.y + number(2)});
            drawer_.Types(word);
        } else if (word == "BLOCK") {
            // Two corners make a block, and the list gives it its place and size.
            drawer_.ClicksAt({here.x < 128 ? 200 : 20, here.y < 88 ? 160 : 10});
            drawer_.Types("BLOCK");
            drawer_.ChangesLine(
                static_cast<int>(drawer_.Editor().CommandsDrawn()),
                "BLOCK " + words[at + 1] + " " + words[at + 2] + " " + words[at + 3] + " " + words[at + 4]);
        } else if (word == "INK" || word == "PAPER") {
            drawer_.ClicksOn((word + words[at + 1]).c_str());
        } else if (word == "BRIGHT") {
            drawer_.Types("BRIGHT " + words[at + 1]);
        } else {
            ADD_FAILURE() << "There is no way to draw " << word;
        }
    }

  private:
    Drawer& drawer_;
};

TEST_F(DrawingTest, ThePictureOfTheKitchenIsDrawnAgainByKeysAndClicks) {
    const pictures::PictureBook book = pictures::LoadPictureBook(desk_.Adventure());
    const pictures::Picture wanted = *book.FindPicture(13);
    desk_.Adventure().DeleteFrom(TableNum::Pictures, "locnum=13");
    Drawer drawer(desk_, 13, true);
    Hand hand(drawer);
    drawer.Types("DEFPAPER " + std::to_string(wanted.paper));
    drawer.Types("DEFINK " + std::to_string(wanted.ink));
    const auto words = pictures::DrawstringWords(wanted.drawstring);
    for (std::size_t at = 0; words[at] != "END";) {
        hand.Draws(words, at);
        at += 1 + static_cast<std::size_t>(book.commands.Find(words[at])->drawnParameters);
    }
    QTest::keyClick(&drawer.Dialog(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(drawer.Dialog().isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{});
    const pictures::PictureBook stored = pictures::LoadPictureBook(desk_.Adventure());
    ASSERT_NE(stored.FindPicture(13), nullptr);
    EXPECT_EQ(stored.FindPicture(13)->drawstring, wanted.drawstring);
    EXPECT_TRUE(Rows(pictures::DrawPicture(stored, 13)) == Rows(pictures::DrawPicture(book, 13)));
    EXPECT_TRUE(Rows(drawer.Editor().Planes()) == Rows(pictures::DrawPicture(book, 13)));
}

TEST_F(DrawingTest, TheKeysOfTheCommandLineMoveTheCursorOfThePicture) {
    Drawer drawer(desk_, 99, true);
    drawer.Presses(Qt::Key_Right, Qt::ShiftModifier);
    drawer.Presses(Qt::Key_Home);
    EXPECT_EQ(drawer.Editor().KeyCursor(), (Point{9, 1}));
    drawer.Types("LINE");
    drawer.Presses(Qt::Key_PageUp);
    EXPECT_EQ(drawer.Editor().Position(), 0U);
    drawer.Presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(drawer.Editor().drawstring, "END");
    drawer.Presses(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(drawer.Editor().drawstring, "LINE 0 9 1 END");
}

TEST_F(DrawingTest, TheCanvasIsEnlargedByWholeNumbersAndTellsThePixelUnderThePointer) {
    Drawer drawer(desk_, 13, false);
    ide::PictureCanvas& canvas = drawer.Canvas();
    canvas.resize(256 * 3 + 100, 176 * 3 + 20);
    EXPECT_EQ(canvas.Scale(), 3);
    EXPECT_EQ(canvas.PointAt(canvas.PlaceOf({100, 50})), (Point{100, 50}));
    EXPECT_FALSE(canvas.PointAt({0, 0}));
    const QPoint corner = canvas.PlaceOf({255, 0});
    QMouseEvent move(QEvent::MouseMove, corner, canvas.mapToGlobal(corner), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&canvas, &move);
    EXPECT_EQ(drawer.Part<QLabel>("Pointer").text(), "Pointer: 255, 0");
}

TEST_F(DrawingTest, DraggingShowsTheGuideLine) {
    Drawer drawer(desk_, 99, true);
    ide::PictureCanvas& canvas = drawer.Canvas();
    QTest::mousePress(&canvas, Qt::LeftButton, {}, canvas.PlaceOf({10, 10}));
    QMouseEvent move(QEvent::MouseMove, canvas.PlaceOf({40, 30}),
                     canvas.mapToGlobal(canvas.PlaceOf({40, 30})), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&canvas, &move);
    EXPECT_EQ(drawer.Editor().KeyCursor(), (Point{40, 30}));
    ASSERT_TRUE(drawer.Editor().Guide());
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, canvas.PlaceOf({40, 30}));
    drawer.ClicksOn("DoLINE");
    EXPECT_EQ(drawer.Editor().drawstring, "LINE 0 40 30 END");
}

TEST_F(DrawingTest, AClickInTheListStepsThere) {
    Drawer drawer(desk_, 13, false);
    auto& list = drawer.Part<QListView>("Commands");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(3, 0)).center());
    QApplication::processEvents();
    EXPECT_EQ(drawer.Editor().CommandsDrawn(), 3U);
    EXPECT_EQ(list.currentIndex().row(), 3);
    EXPECT_EQ(list.model()->index(1, 0).data().toString(), "PAPER 6    Paper 6, Yellow");
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), "START    The empty picture");
}

TEST_F(DrawingTest, TheButtonsDoWhatTheWordsDoAndShowThemInTheirTips) {
    Drawer drawer(desk_, 99, true);
    EXPECT_TRUE(drawer.Part<QWidget>("DoLINE").toolTip().startsWith("LINE: "));
    drawer.ClicksOn("INK2");
    drawer.ClicksOn("PAPER8");
    drawer.ClicksOn("DoBRIGHT");
    drawer.ClicksOn("DoBRIGHT");
    drawer.ClicksAt({50, 50});
    drawer.ClicksOn("DoPLOT");
    drawer.ClicksOn("DoSHADE");
    drawer.ClicksOn("DoQSHADE");
    drawer.ClicksOn("DoTEXT");
    EXPECT_EQ(drawer.Editor().drawstring,
              "INK 2 PAPER 8 BRIGHT 1 BRIGHT 0 PLOT 0 50 50 SHADE 0 0 0 0 QSHADE 0 0 0 129 "
              "TEXT 0 0 32 6 15 END");
}

TEST_F(DrawingTest, TheCanvasTellsItsStatusToReadersOfTheScreen) {
    Drawer drawer(desk_, 99, true);
    drawer.ClicksAt({7, 8});
    EXPECT_TRUE(drawer.Canvas().accessibleDescription().contains("X: 7   Y: 8   Location: 99"));
}

TEST_F(DrawingTest, ABrokenDrawstringShowsItsFaultInTheList) {
    desk_.Add(TableNum::Pictures, {{"locnum", std::int64_t{50}},
                                   {"locpaper", std::int64_t{7}},
                                   {"locink", std::int64_t{0}},
                                   {"drawstring", std::string("INK 2 PLOT 0 999 5 END")}});
    Drawer drawer(desk_, 50, false);
    const auto& list = drawer.Part<QListView>("Commands");
    EXPECT_TRUE(list.model()->index(2, 0).data().toString().contains(
        "999 is an invalid relative X number for command PLOT"));
}

TEST_F(DrawingTest, ABrokenDrawstringIsUnderlinedAtItsWordAndSteppingStopsInFrontOfIt) {
    desk_.Add(TableNum::Pictures, {{"locnum", std::int64_t{50}},
                                   {"locpaper", std::int64_t{7}},
                                   {"locink", std::int64_t{0}},
                                   {"drawstring", std::string("INK 2 PLOT 0 999 5 END")}});
    Drawer drawer(desk_, 50, false);
    const auto marks = drawer.Part<QPlainTextEdit>("Drawstring").extraSelections();
    ASSERT_EQ(marks.size(), 1);
    EXPECT_EQ(marks.first().cursor.selectedText(), "999");
    drawer.Presses(Qt::Key_PageDown);
    drawer.Presses(Qt::Key_PageDown);
    EXPECT_EQ(drawer.Editor().Position(), 2U);
    EXPECT_EQ(desk_.Boxes(),
              std::vector<std::string>{"999 is an invalid relative X number for command PLOT"});
}

TEST_F(DrawingTest, AnUpdateThatFailsIsToldAndKeepsTheEditorOpenWithItsWork) {
    std::ofstream(desk_.Adventure().GameDir() / "art") << "a file, no folder";
    desk_.dialogs.AnswerFile(desk_.Adventure().GameDir() / "art" / "kitchen.bmp");
    Drawer drawer(desk_, 99, true);
    drawer.ClicksOn("Browse");
    drawer.Types("INK 5");
    QTest::keyClick(&drawer.Dialog(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(desk_.Boxes().size(), 1U);
    EXPECT_TRUE(drawer.Dialog().isVisible());
    EXPECT_EQ(drawer.Editor().drawstring, "INK 5 END");
    EXPECT_EQ(desk_.Rows(TableNum::Pictures, "locnum", "locnum=99"), std::vector<std::string>{});
    desk_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    drawer.Dialog().reject();
}

TEST_F(DrawingTest, AnUpdateIsOneStepOfTheUndoOfTheAdventure) {
    const Snapshot before = desk_.Everything();
    Drawer drawer(desk_, 13, false);
    drawer.Types("INK 5");
    drawer.Types("PLOT");
    desk_.dialogs.AnswerNext(false);  // no image of it
    QTest::keyClick(&drawer.Dialog(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(desk_.document.UndoName(), "edit picture 13");
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_FALSE(desk_.document.UndoName());
}

TEST_F(DrawingTest, PicturesThatAreDrawnAreShownInSmall) {
    EXPECT_EQ(ide::PictureOfRecord(desk_.Adventure(), TableNum::Pictures, 13).size(), QSize(256, 176));
    EXPECT_EQ(ide::PictureOfRecord(desk_.Adventure(), TableNum::Locations, 13).size(), QSize(256, 176));
    EXPECT_TRUE(ide::PictureOfRecord(desk_.Adventure(), TableNum::Pictures, 99).isNull());
    EXPECT_TRUE(ide::PictureOfRecord(desk_.Adventure(), TableNum::Messages, 13).isNull());
}

TEST_F(DrawingTest, APictureThatIsKeptInTheFileIsShownInSmall) {
    QImage image(64, 44, QImage::Format_RGB32);
    image.fill(Qt::green);
    const auto file = desk_.Adventure().GameDir() / "kept.png";
    ASSERT_TRUE(image.save(qt::PathToQt(file)));
    store::Cursor& settings = desk_.Adventure().OpenTable(TableNum::Adventure, "def");
    settings.SetField("graphicsindb", std::int64_t{1});
    settings.Update();
    store::Cursor& room = desk_.Adventure().OpenTable(TableNum::Locations, "def", "locnum=20");
    room.StoreFileInField(file, "picgraphic", "oldpicloc");
    room.Update();
    std::filesystem::remove(file);
    EXPECT_EQ(ide::PictureOfRecord(desk_.Adventure(), TableNum::Locations, 20).size(), QSize(64, 44));
}

/// The editor of the first user-defined character.
class CharacterDialogTest : public testing::Test {
  protected:
    CharacterDialogTest() {
        dialog_.show();
        EXPECT_TRUE(test::BecomesActive(&dialog_));
        Click("Clear");
    }
    ide::CharacterGrid& Grid() {
        return static_cast<ide::CharacterGrid&>(*dialog_.findChild<QWidget*>("Squares"));
    }
    void Click(const char* name) { QTest::mouseClick(dialog_.findChild<QWidget*>(name), Qt::LeftButton); }
    std::string Stored() { return desk_.Rows(TableNum::Characters, "charvals", "charkey=144").at(0); }

    Desk desk_;
    authoring::CharacterEditor editor_{desk_.context, {.key = 144}};
    ide::CharacterDialog dialog_{editor_};
};

TEST_F(CharacterDialogTest, ACharacterIsMadeByMouse) {
    for (int i = 0; i < 8; ++i)
        QTest::mouseClick(&Grid(), Qt::LeftButton, {}, Grid().PlaceOf(9 * i));
    Click("MirrorSideways");
    QTest::keyClick(&dialog_, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_EQ(Stored(), "1 2 4 8 16 32 64 128");
}

TEST_F(CharacterDialogTest, ACharacterIsMadeByKeys) {
    Grid().setFocus();
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(&Grid(), Qt::Key_Space);
        QTest::keyClick(&Grid(), Qt::Key_Right);
        QTest::keyClick(&Grid(), Qt::Key_Down);
    }
    QTest::keyClick(&Grid(), Qt::Key_Z, Qt::ControlModifier);
    auto& line = *dialog_.findChild<QLineEdit*>("CommandLine");
    QTest::keyClicks(&line, "r");
    QTest::keyClick(&line, Qt::Key_Return);
    QTest::keyClick(&dialog_, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Stored(), "128 64 32 16 8 4 2 0");
}

TEST_F(CharacterDialogTest, ExitAsksOfChangesAndLeavesTheCharacter) {
    const std::string before = Stored();
    desk_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    QTest::keyClick(&dialog_, Qt::Key_Escape);
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"What was changed here is not stored yet."});
    EXPECT_EQ(Stored(), before);
}

TEST(CharacterTableDialog, EnterOpensTheEditorOfTheChosenCharacter) {
    Desk desk;
    authoring::CharacterSetScreen screen(desk.context);
    std::vector<int> opened;
    ide::CharacterTableDialog dialog(screen, desk.dialogs, [&](const authoring::ScreenRequest& request) {
        opened.push_back(request.key.key);
    });
    dialog.show();
    ASSERT_TRUE(test::BecomesActive(&dialog));
    auto& table = *dialog.findChild<QListWidget*>("Characters");
    EXPECT_EQ(table.count(), static_cast<int>(screen.Characters().size()));
    table.setCurrentRow(2);
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(opened, std::vector<int>{2});
}

TEST(ImageImportDialog, ShowsAndGivesThePictureWithAndWithoutDithering) {
    ide::ImageImportDialog dialog(pictures::Image(64, 44, pictures::MakeColour(115, 0, 0)));
    const auto plain = dialog.Chosen().image.numbers;
    dialog.show();
    QTest::keyClick(dialog.findChild<QWidget*>("Dithering"), Qt::Key_Space);
    EXPECT_FALSE(dialog.Chosen().image.numbers == plain);
    EXPECT_FALSE(dialog.Chosen().asDrawstring);
    QTest::keyClick(dialog.findChild<QWidget*>("AsDrawstring"), Qt::Key_Space);
    EXPECT_TRUE(dialog.Chosen().asDrawstring);
}

}  // namespace
}  // namespace fabula::test
