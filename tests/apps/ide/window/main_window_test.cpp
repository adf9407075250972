// What the window itself binds, a test for each thing: they all stand on one window with one game, and what
// has a subject of its own is in the files beside.

#include "ide/window/main_window.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <fstream>
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "authoring/desk/commands.h"
#include "ide/opened_window.h"
#include "ide/window/examples.h"
#include "ide/window/trial_run.h"
#include "platform/error.h"
#include "qt/help/help_window.h"
#include "qt/look/icons.h"
#include "qt/strings.h"
#include "support/active_window.h"
#include "support/child_process.h"
#include "support/raw_database.h"

namespace fabula::test {
namespace {

GameBuilder Game() {
    GameBuilder game;
    game.Message(0, "The lamp is lit.").Message(1, "It is dark.").Message(2, "Another lamp.");
    return game;
}

TEST(MainWindow, OffersNewOpenAndImportWhileNothingIsOpen) {
    OpenedWindow opened;
    for (const char* name : {"new", "open", "start", "tutorial"})
        EXPECT_TRUE(opened.Part<QPushButton>(name).isVisible()) << name;
    EXPECT_EQ(opened.Window().windowTitle(), "Fabula IDE");
    EXPECT_FALSE(opened.Action("Run").isEnabled());
}

TEST(MainWindow, SaysThatItsSettingsCannotBeKept) {
    OpenedWindow window;
    EXPECT_EQ(window.Part<QLabel>("status").text().toStdString().find("Settings can't be kept"),
              std::string::npos);
    const auto settings = window.folder / "settings.ini";
    std::filesystem::remove(settings);
    std::filesystem::create_directory(settings);
    window.Window().Start({});
    EXPECT_EQ(window.Part<QLabel>("status").text().toStdString(),
              "Settings can't be kept: " + settings.string() + " can't be written.");
}

TEST(MainWindow, OpenAdventureShowsItsTreeAndGrid) {
    OpenedWindow opened;
    opened.Open(Game());
    EXPECT_EQ(opened.Window().windowTitle(), "Fabula IDE - game");
    opened.ChooseNode("Messages");
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 3);
    EXPECT_TRUE(opened.Action("Run").isEnabled());
    EXPECT_EQ(opened.Action("NewTab").text(), "&Add Message");
}

TEST(MainWindow, FilterShowsTheRowsThatContainItsText) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    opened.Press(Qt::Key_F6);
    opened.Action("Filter").trigger();
    opened.Type("LAMP");
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 2);
    EXPECT_EQ(opened.Part<QLabel>("Count").text(), "2 of 3");
    opened.Press(Qt::Key_Escape);
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 3);
}

TEST(MainWindow, ScrollingReadsNothingFromTheFileAgain) {
    OpenedWindow opened;
    GameBuilder game;
    for (int number = 0; number < 900; ++number)
        game.Message(number, "as it was");
    opened.Open(game);
    opened.ChooseNode("Messages");
    QApplication::setActiveWindow(&opened.Window());
    auto& grid = opened.Part<QTableView>("Grid");
    grid.setFocus();
    RawDatabase(opened.folder / "game.fbd").Run("UPDATE Messages SET msgmsg = 'changed since'");

    while (grid.currentIndex().row() < 899)
        opened.Press(Qt::Key_PageDown);
    const int text = grid.model()->columnCount() - 1;
    EXPECT_EQ(opened.Cell(899, text), "as it was");
    opened.ChooseNode("Locations");
    opened.ChooseNode("Messages");
    EXPECT_EQ(opened.Cell(899, text), "changed since");
}

TEST(MainWindow, FindGoesToTheNextRowThatHasTheText) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    opened.Logic().SelectRow(0);
    opened.Action("Find").trigger();
    opened.Type("lamp");
    opened.Press(Qt::Key_Return);
    EXPECT_EQ(opened.Part<QTableView>("Grid").currentIndex().row(), 2);
    opened.Press(Qt::Key_Return);
    EXPECT_EQ(opened.Part<QTableView>("Grid").currentIndex().row(), 0);
}

TEST(MainWindow, DeletedRecordComesBackByUndoUnderItsName) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    opened.Logic().SelectRow(2);
    opened.dialogs.AnswerNext(true);
    opened.Action("Delete").trigger();
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 2);
    EXPECT_EQ(opened.Action("Undo").text(), "&Undo delete message 2");
    opened.Action("Undo").trigger();
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 3);
    EXPECT_EQ(opened.Action("Redo").text(), "&Redo delete message 2");
}

TEST(MainWindow, UndoGoesToTheTableAndTheRowThatChanged) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    opened.Part<QTableView>("Grid").selectRow(1);
    opened.dialogs.AnswerNext(true);
    opened.Action("Delete").trigger();
    opened.ChooseNode("Flags");
    opened.Action("Undo").trigger();
    EXPECT_EQ(opened.Part<QTreeWidget>("Tree").currentItem()->text(0), "Messages");
    EXPECT_EQ(opened.Part<QTableView>("Grid").currentIndex().row(), 1);
    EXPECT_EQ(opened.Part<QLabel>("status").text(), "Undone: delete message 1");
}

TEST(MainWindow, F6GoesFromTreeToFilterToRowsAndBack) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.Part<QTreeWidget>("Tree").setFocus();
    opened.Press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "FilterLine");
    opened.Press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Grid");
    opened.Press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Tree");
    opened.Press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Grid");
}

TEST(MainWindow, ThemeIsAppliedAndRemembered) {
    OpenedWindow opened;
    opened.Action("ThemeDark").trigger();
    EXPECT_TRUE(qt::WindowsAreDark());
    opened.Action("ThemeLight").trigger();
    EXPECT_FALSE(qt::WindowsAreDark());
    opened.Restart();
    EXPECT_TRUE(opened.Action("ThemeLight").isChecked());
}

TEST(MainWindow, AdventureThatWasOpenIsOpenedAgain) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.Restart();
    EXPECT_EQ(opened.Window().windowTitle(), "Fabula IDE - game");
}

TEST(MainWindow, TestHidesTheWindowAndComesBackToTheSameRow) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    opened.Logic().SelectRow(1);
    opened.Action("Run").trigger();
    ASSERT_NE(opened.Window().Test(), nullptr);
    EXPECT_FALSE(opened.Window().isVisible());
    EXPECT_TRUE(opened.Window().Test()->Window().isVisible());
    opened.Window().Test()->Window().close();
    QApplication::processEvents();
    EXPECT_EQ(opened.Window().Test(), nullptr);
    EXPECT_TRUE(opened.Window().isVisible());
    EXPECT_EQ(opened.Part<QTableView>("Grid").currentIndex().row(), 1);
}

/// Does something to the dialog that opens next, from its event loop.
void WithNextDialog(const char* name, const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0, [name, act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << name;
        act(*dialog);
    });
}

TEST(MainWindow, NewAsksForTheTypeAndOpensTheAdventureOnItsSettings) {
    OpenedWindow opened;
    opened.dialogs.AnswerFile(opened.folder / "mine.fbd");
    WithNextDialog("SetupDialog", [](QDialog& dialog) { dialog.accept(); });
    opened.Part<QPushButton>("new").click();
    EXPECT_EQ(opened.Window().windowTitle(), "Fabula IDE - mine");
    EXPECT_EQ(opened.Part<QTreeWidget>("Tree").currentItem()->text(0), "Adventure Settings");
}

TEST(MainWindow, ARecordThatWasAddedFromTheTreeHasTheKeyboard) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    opened.Part<QTreeWidget>("Tree").setFocus();
    WithNextDialog("MessageDialog", [](QDialog& dialog) {
        dialog.findChild<QPlainTextEdit*>("text")->setPlainText("A third lamp.");
        dialog.findChild<QPushButton*>("update")->click();
    });
    opened.Action("NewTab").trigger();
    EXPECT_EQ(opened.Cell(3, 1), "A third lamp.");
    EXPECT_EQ(opened.Window().focusWidget(), &opened.Part<QTableView>("Grid"));
    EXPECT_EQ(opened.Part<QTableView>("Grid").currentIndex().row(), 3);
}

TEST(MainWindow, NewWithoutATypeMakesNothing) {
    OpenedWindow opened;
    opened.dialogs.AnswerFile(opened.folder / "mine.fbd");
    WithNextDialog("SetupDialog", [](QDialog& dialog) { dialog.reject(); });
    opened.Part<QPushButton>("new").click();
    EXPECT_FALSE(std::filesystem::exists(opened.folder / "mine.fbd"));
}

TEST(MainWindow, AnotherAdventureIsShownWithoutTheFilterOfTheLast) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Adventure Settings");
    opened.Part<QLineEdit>("FilterLine").setText("no such title");
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 0);
    opened.dialogs.AnswerFile(opened.folder / "mine.fbd");
    WithNextDialog("SetupDialog", [](QDialog& dialog) { dialog.accept(); });
    opened.Action("NewAdv").trigger();
    EXPECT_EQ(opened.Part<QLineEdit>("FilterLine").text(), "");
    EXPECT_EQ(opened.Part<QTableView>("Grid").model()->rowCount(), 1);
}

TEST(MainWindow, TellsHowAVerifyEnded) {
    OpenedWindow opened;
    opened.Open(Game());
    WithNextDialog("VerifyDialog", [](QDialog& dialog) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.findChild<QPushButton*>("print")->isEnabled(); },
                                    test::kLongestWait));
        dialog.accept();
    });
    opened.Action("Verify").trigger();
    EXPECT_EQ(opened.Part<QLabel>("status").text(), "The adventure has passed.");
}

TEST(MainWindow, PrintsTheTableInTheGrid) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    QString title;
    WithNextDialog("PrintDialog", [&](QDialog& dialog) {
        title = dialog.windowTitle();
        opened.dialogs.AnswerFile(opened.folder / "messages.txt");
        dialog.findChild<QPushButton*>("save")->click();
    });
    opened.Action("Print").trigger();
    EXPECT_EQ(title, "Print for Messages Table");
    std::ifstream file(opened.folder / "messages.txt");
    const std::string listed((std::istreambuf_iterator<char>(file)), {});
    EXPECT_NE(listed.find("0        The lamp is lit."), std::string::npos);
    EXPECT_EQ(opened.Part<QLabel>("status").text(), "Saved the listing as messages.txt.");
}

TEST(MainWindow, PreviewOpensBehindItsSetup) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    QString place;
    WithNextDialog("PrintDialog", [&](QDialog& dialog) {
        WithNextDialog("PreviewDialog", [&](QDialog& preview) {
            auto* label = preview.findChild<QLabel*>("place");
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return label->text().startsWith("Page"); }, test::kLongestWait));
            place = label->text();
            preview.reject();
        });
        dialog.findChild<QPushButton*>("print")->click();
    });
    opened.Action("Preview").trigger();
    EXPECT_EQ(place, "Page 1 of 1, 100 %");
}

TEST(MainWindow, TellsWhereAnExportWent) {
    OpenedWindow opened;
    opened.Open(Game());
    WithNextDialog("InterchangeDialog", [&](QDialog& dialog) {
        dialog.findChild<QRadioButton*>("kindFabula")->click();
        auto* target = dialog.findChild<QLineEdit*>("source");
        target->clear();  // the name that is proposed
        QTest::keyClicks(target, QString::fromStdString((opened.folder / "out").string()));
        dialog.findChild<QPushButton*>("start")->click();
        dialog.reject();
    });
    opened.Action("Export").trigger();
    EXPECT_TRUE(std::filesystem::exists(opened.folder / "out.ext"));
    EXPECT_EQ(opened.Part<QLabel>("status").text(), "Exported to out.ext.");
}

TEST(MainWindow, EnterOnARowOpensItsScreen) {
    OpenedWindow opened;
    opened.Open(Game());
    const std::pair<const char*, const char*> screens[] = {{"Messages", "text"}, {"Locations", "exits"}};
    for (const auto& [node, control] : screens) {
        opened.ChooseNode(node);
        QApplication::setActiveWindow(&opened.Window());
        opened.Part<QTableView>("Grid").setFocus();
        bool shown = false;
        WithNextDialog(node, [&, name = control](QDialog& dialog) {
            shown = dialog.findChild<QWidget*>(name) != nullptr;
            dialog.reject();
        });
        opened.Press(Qt::Key_Return);
        EXPECT_TRUE(shown) << node;
    }
}

TEST(MainWindow, RowsAreSortedByAColumnFromTheMenuToo) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Messages");
    auto& menu = opened.Part<QMenu>("Columns");
    const auto texts = [&] {
        Q_EMIT menu.aboutToShow();
        return menu.actions().at(1);
    };
    texts()->trigger();
    EXPECT_EQ(opened.Cell(0, 1), "Another lamp.");
    EXPECT_EQ(texts()->text(), "Text (ascending)");
    texts()->trigger();
    EXPECT_EQ(opened.Cell(0, 1), "The lamp is lit.");
    EXPECT_EQ(texts()->text(), "Text (descending)");
    EXPECT_TRUE(texts()->isChecked());
    texts()->trigger();
    EXPECT_EQ(opened.Cell(0, 0), "0");
    EXPECT_EQ(texts()->text(), "Text");
}

TEST(MainWindow, ARecentAdventureIsOpenedFromTheMenu) {
    OpenedWindow opened;
    Game().Write(opened.folder / "other.fbd");
    opened.Window().Start(opened.folder / "other.fbd");
    opened.Open(Game());
    const QList<QAction*> actions = opened.Part<QMenu>("File").actions();
    ASSERT_TRUE(actions.last()->text().endsWith("other"));
    actions.last()->trigger();
    EXPECT_EQ(opened.Window().windowTitle(), "Fabula IDE - other");
    EXPECT_TRUE(opened.Part<QMenu>("File").actions().last()->text().endsWith("game"));
}

TEST(MainWindow, LongTextsNeedNoScrollingSideways) {
    OpenedWindow opened;
    opened.Open(GameBuilder().Message(0, std::string(400, 'x')).Location(0, std::string(400, 'y'), ""));
    auto& grid = opened.Part<QTableView>("Grid");
    for (const char* node : {"Messages", "Locations"}) {
        opened.ChooseNode(node);
        for (const int width : {1080, 600}) {
            opened.Window().resize(width, 500);
            QApplication::processEvents();
            EXPECT_EQ(grid.horizontalScrollBar()->maximum(), 0) << node << " " << width;
        }
    }
}

TEST(MainWindow, WidthsThatTheAuthorGaveAreKept) {
    OpenedWindow opened;
    opened.Open(Game().Word("AARDVARK", 70, 2));
    opened.ChooseNode("Vocabulary");
    auto& grid = opened.Part<QTableView>("Grid");
    grid.horizontalHeader()->resizeSection(1, 222);
    opened.timers.Advance(std::chrono::seconds(1));
    opened.ChooseNode("Messages");
    opened.ChooseNode("Vocabulary");
    EXPECT_EQ(grid.columnWidth(1), 222);
    opened.Restart();
    EXPECT_EQ(opened.Part<QTableView>("Grid").columnWidth(1), 222);
}

TEST(MainWindow, ColumnsOfTheSameTableAreMeasuredAnewWhenTheyAreOthers) {
    OpenedWindow window;
    window.Open(Game());
    const auto changeType = [&](const char* type) {
        authoring::Document& document = window.Logic().CurrentContext().document;
        authoring::Change change(document, "edit the settings");
        store::Cursor& settings = document.Adventure().OpenTable(store::TableNum::Adventure, "def");
        settings.SetField("adventype", std::string(type));
        settings.Update();
        change.Commit();
        window.Logic().Refresh();
        window.Action("Trace").trigger();
    };
    const auto widths = [&] {
        const auto& grid = window.Part<QTableView>("Grid");
        std::vector<int> found;
        for (int column = 0; column < grid.model()->columnCount(); ++column)
            found.push_back(grid.columnWidth(column));
        return found;
    };
    window.ChooseNode("Objects");
    const std::vector<int> before = widths();
    changeType("Marlo");
    window.ChooseNode("Messages");
    window.ChooseNode("Objects");
    EXPECT_LT(widths().size(), before.size());
    changeType("Fabula");
    EXPECT_EQ(widths(), before);
}

TEST(MainWindow, ColumnsThatAreNotKeptCannotBeWidened) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Vocabulary");
    const QHeaderView& header = *opened.Part<QTableView>("Grid").horizontalHeader();
    EXPECT_EQ(header.sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(header.sectionResizeMode(1), QHeaderView::Interactive);
}

TEST(MainWindow, EnterOnARowThatCannotBeEditedSaysWhy) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Special Codes");
    opened.Part<QTableView>("Grid").setFocus();
    opened.Press(Qt::Key_Return);
    EXPECT_EQ(opened.Part<QLabel>("status").text(), "Special Codes does not offer this.");
}

TEST(MainWindow, CharactersOfAnAdventureThatIsOpenToReadOnlyAreShownAndNotEdited) {
    OpenedWindow opened;
    const auto file = opened.folder / "game.fbd";
    Game().Write(file);
    std::filesystem::permissions(file, static_cast<std::filesystem::perms>(0444));
    opened.Window().Start(file);
    const std::string before = ReadBytes(file);
    bool shown = false;
    QTimer::singleShot(0, [&] {
        auto* table = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(table, nullptr);
        shown = table->windowTitle() == "Character Table";
        table->findChild<QListWidget*>("Characters")->setCurrentRow(1);
        QTimer::singleShot(0, [&] {
            // An editor that opened all the same is left.
            auto* editor = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            EXPECT_EQ(editor, table);
            if (editor && editor != table) editor->reject();
        });
        table->findChild<QPushButton*>("Edit")->click();
        QApplication::processEvents();
        table->reject();
    });
    opened.Action("CharTable").trigger();
    EXPECT_TRUE(shown);
    EXPECT_EQ(opened.dialogs.Boxes().back().text, authoring::MainScreen::kOnlyToRead);
    EXPECT_EQ(ReadBytes(file), before);
}

TEST(MainWindow, F1TellsAboutTheTableInView) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Vocabulary");
    opened.Part<QTableView>("Grid").setFocus();
    opened.help.Write("vocabulary.html", "<title>Vocabulary</title>");
    opened.Action("Help").trigger();
    ASSERT_NE(opened.Window().Help().Window(), nullptr);
    EXPECT_EQ(opened.Window().Help().Window()->Page(), "vocabulary.html");
}

TEST(MainWindow, F1OnACatalogueRowGoesToItsOwnPage) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.help.Write("notat.htm", "<title>NOTAT</title>");
    opened.help.Write("conditions.html", "<title>Conditions</title>");
    opened.ChooseNode("Conditions and Actions");
    opened.Part<QTableView>("Grid").setFocus();
    opened.Press(Qt::Key_Down);
    EXPECT_EQ(opened.Logic().Grid().KeyOf(1), 102);
    opened.Press(Qt::Key_F1);
    EXPECT_EQ(opened.Window().Help().Window()->Page(), "notat.htm");
}

TEST(MainWindow, F1OnACatalogueRowWithoutAPageGoesToThePageOfItsTable) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.help.Write("conditions.html", "<title>Conditions</title>");
    opened.ChooseNode("Conditions and Actions");
    opened.Part<QTableView>("Grid").setFocus();
    opened.Press(Qt::Key_F1);
    EXPECT_EQ(opened.Window().Help().Window()->Page(), "conditions.html");
}

TEST(MainWindow, F1OnAFlagGoesToItsPlaceOnThePage) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.ChooseNode("Flags");
    opened.Part<QTableView>("Grid").setFocus();
    opened.Part<QTableView>("Grid").selectRow(10);
    opened.Press(Qt::Key_F1);
    EXPECT_EQ(opened.Window().Help().Window()->findChild<QTextBrowser*>()->source().fragment(), "f10");
}

TEST(MainWindow, ExampleIsCopiedForTheAuthorBeforeItIsOpened) {
    OpenedWindow opened;
    const auto file = opened.folder / "shipped.fbd";
    Game().Write(file);
    opened.examples = {{file, "Shipped", "An example."}};
    opened.Restart();
    opened.Part<QPushButton>("Example1").click();
    EXPECT_EQ(opened.Window().windowTitle(), "Fabula IDE - shipped");
    EXPECT_TRUE(std::filesystem::exists(opened.folder / "own" / "shipped.fbd"));
}

TEST(MainWindow, ExampleThatCannotBeCopiedIsToldAndLeavesNothing) {
    const TempFolder folder;
    Game().Write(folder / "cellar.fbd");
    std::ofstream(folder / "own") << "in the way of a folder";
    const ide::Example example{folder / "cellar.fbd", "The Cellar", ""};
    EXPECT_THROW(ide::TakeExample(example, folder / "own"), Error);
    EXPECT_THROW(ide::TakeExample(example, folder / std::string(300, 'x').c_str()), Error);
    EXPECT_EQ(RunInChild([&] {
                  LimitFileSize(10'000);
                  try {
                      ide::TakeExample(example, folder / "full");
                  } catch (const Error&) {
                      return std::filesystem::is_empty(folder / "full") ? 0 : 2;
                  }
                  return 1;
              }),
              0);
}

TEST(MainWindow, WrongFileOfTheCommandLineIsTold) {
    OpenedWindow window;
    const auto file = window.folder / "none.fbd";
    window.Window().Start(file);
    EXPECT_EQ(window.dialogs.Boxes().back().text,
              "Could not open " + file.string() + ": there is no such file.");
    window.Window().Start(window.folder.Path());
    EXPECT_EQ(window.dialogs.Boxes().back().text,
              "Could not open " + window.folder.Path().string() + ": it is not an adventure file.");
    const auto tooLong = window.folder / std::string(300, 'x').c_str();
    window.Window().Start(tooLong);
    EXPECT_EQ(window.dialogs.Boxes().back().text,
              "Could not open " + tooLong.string() + ": there is no such file.");
}

TEST(MainWindow, EveryCommandHasAnIconAndATip) {
    OpenedWindow opened;
    for (const authoring::CommandEntry& entry : authoring::AllCommands()) {
        EXPECT_TRUE(qt::HasIcon(entry.icon)) << entry.icon;
        EXPECT_FALSE(opened.Action(std::string(entry.key).c_str()).toolTip().isEmpty()) << entry.key;
    }
}

TEST(MainWindow, FitsIntoASmallScreen) {
    OpenedWindow opened;
    opened.Open(Game());
    opened.Window().resize(480, 320);
    EXPECT_EQ(opened.Window().size(), QSize(480, 320));
}

}  // namespace
}  // namespace fabula::test
