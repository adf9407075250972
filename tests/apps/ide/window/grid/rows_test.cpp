// Groups, tabs and the rows with names, by keys and clicks.

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTest>
#include <array>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ide/opened_window.h"
#include "ide/window/grid/tab_strip.h"
#include "qt/look/theme.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using store::TableNum;
using testing::ElementsAre;

/// In both themes.
class Rows : public testing::TestWithParam<qt::Theme> {
  protected:
    Rows() {
        qt::ApplyTheme(GetParam());
        const auto file = window_.folder / "rows.fbd";
        WriteGame(file);
        window_.Window().Start(file);
    }

    static void WriteGame(const std::filesystem::path& file) {
        constexpr std::array<std::array<const char*, 2>, 3> kEntries = {
            {{"GET", "AT 0 MESSAGE 0 DONE"}, {"GET", "MESSAGE 1 DONE"}, {"DROP", "DONE"}}};
        GameBuilder game;
        game.Location(0, "You are in the hall.", "The hall").Word("GET", 30, 0).Word("DROP", 31, 0);
        game.Message(0, "You lower the wick.").Message(1, "It is dark.");
        game.Object(0, {.description = "a lamp", .place = 0});
        for (const auto& [verb, line] : kEntries)
            game.Entry(0, verb, "_", line);
        game.Write(file);
        // The texts of the entries, which a game does not need.
        const auto adventure = store::Adventure::Open(file, store::OpenMode::ReadWrite);
        store::Cursor& rows = adventure->OpenTable(TableNum::ProcessTables, "def");
        for (; !rows.Eof(); rows.MoveNext()) {
            const auto& [verb, line] = kEntries.at(static_cast<std::size_t>(rows.Number("canum")));
            rows.SetField("w1", std::string(verb));
            rows.SetField("w2", std::string("_"));
            rows.SetField("condacts", std::string(line));
            rows.Update();
        }
    }

    QTableView& Grid() { return window_.Part<QTableView>("Grid"); }
    QWidget& Pane() { return window_.Part<QWidget>("RecordPane"); }
    ide::TabStrip& Strip() { return window_.Part<ide::TabStrip>("TabStrip"); }
    void ShowEntries() {
        window_.ChooseNode("Response (P0)");
        Grid().setFocus();
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        window_.Press(key, modifiers);
        QApplication::processEvents();
    }
    /// What a screen reader says of each line.
    std::vector<std::string> Spoken() {
        std::vector<std::string> spoken;
        const QAbstractItemModel& model = *Grid().model();
        for (int line = 0; line < model.rowCount(); ++line) {
            const QModelIndex index = model.index(line, 0);
            const QString text = index.data(Qt::AccessibleTextRole).toString();
            spoken.push_back(qt::FromQt(text.isEmpty() ? index.data().toString() : text));
        }
        return spoken;
    }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (int tab = 0; tab < Strip().count(); ++tab)
            titles.push_back(qt::FromQt(Strip().tabText(tab)));
        return titles;
    }
    void ClickTree(const char* node, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
        auto& tree = window_.Part<QTreeWidget>("Tree");
        const QRect place = tree.visualItemRect(&window_.Node(node));
        QTest::mouseClick(tree.viewport(), button, modifiers, place.center());
        QApplication::processEvents();
    }

    OpenedWindow window_;
};

TEST_P(Rows, AreGroupedByVerbAndFoldedByKeys) {
    ShowEntries();
    Press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_THAT(Spoken(),
                ElementsAre("DROP, 1 entry, unfolded", "DROP", "GET, 2 entries, unfolded", "GET", "GET"));
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(window_.Logic().CurrentRow(), -1);
    Press(Qt::Key_Left);
    EXPECT_THAT(Spoken(), ElementsAre("DROP, 1 entry, folded", "GET, 2 entries, unfolded", "GET", "GET"));
    EXPECT_EQ(Grid().currentIndex().row(), 0);
    Press(Qt::Key_Right);
    EXPECT_EQ(Spoken().size(), 5U);
    Press(Qt::Key_Return);
    EXPECT_EQ(Spoken().size(), 4U);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(window_.Logic().CurrentRow(), 1);
    Press(Qt::Key_Left);
    EXPECT_EQ(Grid().currentIndex().row(), 1) << "the heading of its group";
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Spoken().size(), 5U);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_THAT(Spoken(), ElementsAre("DROP, 1 entry, folded", "GET, 2 entries, folded"));
    Press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(Spoken().size(), 3U);
}

TEST_P(Rows, OfAGroupAreFoldedByAClickOnTheHeading) {
    ShowEntries();
    Press(Qt::Key_1, Qt::ControlModifier);
    const QRect heading = Grid().visualRect(Grid().model()->index(2, 0));
    EXPECT_GT(heading.width(), Grid().viewport()->width() * 9 / 10) << "it takes the whole width";
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, heading.center());
    QApplication::processEvents();
    EXPECT_THAT(Spoken(), ElementsAre("DROP, 1 entry, unfolded", "DROP", "GET, 2 entries, folded"));
}

TEST_P(Rows, WithNamesOpenTheCurrentOneToALineForEachConditionAndAction) {
    ShowEntries();
    Press(Qt::Key_F8);
    Press(Qt::Key_Home, Qt::ControlModifier);
    const int usual = Grid().verticalHeader()->defaultSectionSize();
    const int letters = Grid().fontMetrics().height();
    std::vector<int> opened;
    for (int row = 0; row < 3; ++row) {
        opened.push_back(Grid().rowHeight(row));
        EXPECT_EQ(Grid().rowHeight((row + 1) % 3), usual) << "only the current row is open";
        Press(Qt::Key_Down);
    }
    EXPECT_THAT(opened, testing::UnorderedElementsAre(usual, usual + letters, usual + 2 * letters));
}

TEST_P(Rows, ShowTheUsesOfRecords) {
    window_.ChooseNode("Messages");
    Grid().setFocus();
    EXPECT_EQ(Grid().model()->columnCount(), 2);
    Press(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(Grid().model()->headerData(1, Qt::Horizontal).toString(), "Uses");
    EXPECT_EQ(window_.Cell(0, 1), "1");
    Press(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(Grid().model()->columnCount(), 2);
}

TEST_P(Rows, OpenInTabsByKeys) {
    window_.ChooseNode("Messages");
    Grid().setFocus();
    EXPECT_FALSE(Strip().isVisible());
    Press(Qt::Key_Down);
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(Strip().isVisible());
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Messages 1"));
    EXPECT_TRUE(Pane().isVisible());
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(window_.Logic().Tabs().Current(), 0);
    EXPECT_FALSE(Pane().isVisible());
    Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window_.Logic().Tabs().Current(), 1);
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_THAT(Titles(), ElementsAre("Messages"));
    EXPECT_FALSE(Strip().isVisible());
}

TEST_P(Rows, OpenInTabsByClicks) {
    window_.ChooseNode("Messages");
    ClickTree("Flags", Qt::LeftButton, Qt::ControlModifier);
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Flags"));
    ClickTree("Objects", Qt::LeftButton, {});
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Objects"));
    QTest::mouseClick(&Strip(), Qt::LeftButton, {}, Strip().tabRect(0).center());
    QApplication::processEvents();
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    QTest::mouseClick(&Strip(), Qt::MiddleButton, {}, Strip().tabRect(1).center());
    QApplication::processEvents();
    EXPECT_THAT(Titles(), ElementsAre("Messages"));
}

TEST_P(Rows, InTabsAreThereAgainAtTheNextStart) {
    window_.ChooseNode("Messages");
    ClickTree("Flags", Qt::LeftButton, Qt::ControlModifier);
    window_.Restart();
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Flags"));
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Flags);
}

TEST_P(Rows, HaveTheirRecordBesideThemWhereTheWindowIsWideUntilTheAuthorChooses) {
    window_.ChooseNode("Messages");
    EXPECT_FALSE(Pane().isVisible());
    window_.Window().resize(1300, 700);
    QApplication::processEvents();
    EXPECT_TRUE(Pane().isVisible());
    window_.Window().resize(900, 700);
    QApplication::processEvents();
    EXPECT_FALSE(Pane().isVisible());
    window_.Window().resize(1300, 700);
    QApplication::processEvents();
    Grid().setFocus();
    Press(Qt::Key_F9);
    EXPECT_FALSE(Pane().isVisible());
    window_.Window().resize(1310, 700);
    QApplication::processEvents();
    EXPECT_FALSE(Pane().isVisible());
}

TEST_P(Rows, KeepEightLinesAboveARecordOnASmallScreen) {
    window_.Window().resize(800, 600);
    for (const char* table : {"Locations", "Objects", "Messages", "Response (P0)"}) {
        window_.ChooseNode(table);
        Grid().setFocus();
        if (!Pane().isVisible()) Press(Qt::Key_F9);
        QApplication::processEvents();
        ASSERT_TRUE(Pane().isVisible()) << table;
        EXPECT_GE(Grid().viewport()->height(), 8 * Grid().verticalHeader()->defaultSectionSize()) << table;
        EXPECT_LE(Grid().height(), 300) << table;
    }
}

TEST_P(Rows, LeaveThePictureToARecordBelowThemThatShowsItItself) {
    QImage image(64, 44, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(qt::PathToQt(window_.folder / "hall.png")));
    GameBuilder game;
    window_.Open(game.Graphics().Location(0, "You are in the hall.", "The hall").PictureOf(0, "hall.png"));
    window_.Window().resize(800, 600);
    window_.ChooseNode("Locations");
    const auto& picture = *Grid().parentWidget()->findChild<QLabel*>("pictureView");
    EXPECT_TRUE(picture.isVisible());
    Grid().setFocus();
    Press(Qt::Key_F9);
    EXPECT_TRUE(Pane().findChild<QLabel*>("pictureView")->isVisible());
    EXPECT_FALSE(picture.isVisible());
    window_.Window().resize(1300, 600);
    QApplication::processEvents();
    EXPECT_TRUE(picture.isVisible());
    Press(Qt::Key_F9);
    window_.Window().resize(800, 600);
    EXPECT_TRUE(picture.isVisible());
}

TEST_P(Rows, GiveTheRecordHalfOfAScreenThatIsTooSmallForEightLines) {
    window_.Window().resize(800, 360);
    window_.ChooseNode("Messages");
    Press(Qt::Key_F9);
    QApplication::processEvents();
    const int both = Pane().parentWidget()->height();
    EXPECT_LE(Grid().height(), both / 2);
    EXPECT_GE(Grid().height(), both / 2 - 8);
}

TEST_P(Rows, EveryFieldOfARecordBelowThemCanBeSeenWhenItHasTheKeyboard) {
    window_.Window().resize(800, 600);
    for (const char* table : {"Locations", "Objects", "Messages", "Response (P0)"}) {
        window_.ChooseNode(table);
        Grid().setFocus();
        if (!Pane().isVisible()) Press(Qt::Key_F9);
        Press(Qt::Key_Return);
        QApplication::processEvents();
        const QWidget* const first = QApplication::focusWidget();
        ASSERT_TRUE(Pane().isAncestorOf(first)) << table;
        int fields = 0;
        do {
            const QWidget* const field = QApplication::focusWidget();
            const QRect seen = field->visibleRegion().boundingRect();
            EXPECT_GT(seen.height(), field->fontMetrics().height())
                << table << ": " << field->objectName().toStdString();
            ++fields;
            Press(Qt::Key_Tab);
            QApplication::processEvents();
        } while (Pane().isAncestorOf(QApplication::focusWidget()) && QApplication::focusWidget() != first &&
                 fields < 50);
        EXPECT_GT(fields, 2) << table;
    }
}

INSTANTIATE_TEST_SUITE_P(Themes, Rows, testing::Values(qt::Theme::Light, qt::Theme::Dark));

}  // namespace
}  // namespace fabula::test
