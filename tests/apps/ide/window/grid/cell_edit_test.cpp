#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include "ide/driven_window.h"
#include "qt/strings.h"

// Words that are corrected in their cells, by keys and clicks.

namespace fabula::test {
namespace {

using store::AdventureKind;
using store::TableNum;

/// In the vocabulary, on the word LAMP, which is the noun of an object.
class CellEditTest : public testing::Test {
  protected:
    CellEditTest() {
        window_.GoToTable("Vocabulary");
        window_.GoToRow("60");
        Press(Qt::Key_Right);
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        window_.Press(key, modifiers);
        QApplication::processEvents();
    }
    void Type(const QString& text) {
        for (const QChar letter : text)
            QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        QApplication::processEvents();
    }
    QTableView& Grid() { return window_.Part<QTableView>("Grid"); }
    /// The cell that is typed into; nullptr when none is.
    QLineEdit* Cell() {
        for (auto* cell : Grid().findChildren<QLineEdit*>("cell")) {
            if (cell->isVisible()) return cell;
        }
        return nullptr;
    }
    static std::string Focus() { return qt::FromQt(QApplication::focusWidget()->objectName()); }
    std::string Word() { return window_.Stored(TableNum::Vocabulary, "word", "vocnum=60"); }
    std::string Status() { return qt::FromQt(window_.Part<QLabel>("status").text()); }
    std::string Current() { return window_.Cell(Grid().currentIndex().row(), 0); }

    DrivenWindow window_{AdventureKind::Fabula};
};

TEST_F(CellEditTest, TheKeyboardBeginsAtTheWord) {
    window_.GoToTable("Messages");
    window_.GoToTable("Vocabulary");
    EXPECT_EQ(Grid().currentIndex().column(), 1);
}

TEST_F(CellEditTest, TypingBeginsACorrectionAndEnterStoresIt) {
    Type("knob");
    ASSERT_NE(Cell(), nullptr);
    EXPECT_EQ(Cell()->text(), "knob");
    EXPECT_EQ(Cell()->accessibleName(), "Word");
    EXPECT_EQ(Cell()->geometry(), Grid().visualRect(Grid().currentIndex()));
    EXPECT_EQ(Word(), "LAMP");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(Word(), "KNOB");
    EXPECT_EQ(window_.Stored(TableNum::Objects, "objnoun", "objnum=0"), "KNOB");
    EXPECT_EQ(Status(), "Done: edit word KNOB with 1 use");
    EXPECT_EQ(Focus(), "Grid");
    EXPECT_EQ(window_.Cell(Grid().currentIndex().row(), 1), "KNOB");
    EXPECT_EQ(Grid().currentIndex().column(), 1);
    window_.Action("Undo").trigger();
    EXPECT_EQ(Word(), "LAMP");
    EXPECT_EQ(window_.Stored(TableNum::Objects, "objnoun", "objnum=0"), "LAMP");
}

TEST_F(CellEditTest, OneLetterIsAWord) {
    Type("k");
    Press(Qt::Key_Return);
    EXPECT_EQ(Word(), "K");
}

TEST_F(CellEditTest, F2BeginsWithTheWordAndEscapeTakesItBack) {
    Press(Qt::Key_F2);
    ASSERT_NE(Cell(), nullptr);
    EXPECT_EQ(Cell()->selectedText(), "LAMP");
    Press(Qt::Key_End);
    Type("s");
    EXPECT_EQ(Cell()->text(), "LAMPs");
    Press(Qt::Key_F2);
    EXPECT_EQ(Cell()->text(), "LAMPs");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(Focus(), "Grid");
    EXPECT_EQ(Word(), "LAMP");
    Press(Qt::Key_F2);
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(window_.Action("Undo").text(), "&Undo");
}

TEST_F(CellEditTest, LettersThatAreComposedBeginItToo) {
    QInputMethodEvent composed;
    composed.setCommitString("\u00C9");
    QApplication::sendEvent(&Grid(), &composed);
    ASSERT_NE(Cell(), nullptr);
    Press(Qt::Key_Return);
    EXPECT_EQ(Word(), "\u00C9");
}

TEST_F(CellEditTest, AFaultKeepsTheCellAndWhatWasTyped) {
    const std::size_t before = window_.dialogs.Boxes().size();
    Type("tin box");
    Press(Qt::Key_Return);
    ASSERT_EQ(window_.dialogs.Boxes().size(), before + 1);
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "The word cannot hold spaces");
    ASSERT_NE(Cell(), nullptr);
    EXPECT_EQ(Focus(), "cell");
    Press(Qt::Key_Down);
    EXPECT_EQ(window_.dialogs.Boxes().size(), before + 2);
    ASSERT_NE(Cell(), nullptr);
    EXPECT_EQ(Cell()->text(), "tin box");
    EXPECT_EQ(Current(), "60");
    EXPECT_EQ(Focus(), "cell");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(Word(), "LAMP");
}

TEST_F(CellEditTest, AClickOnAnotherRowDoesNotLoseAFault) {
    const std::size_t before = window_.dialogs.Boxes().size();
    Type("tin box");
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {},
                      Grid().visualRect(Grid().model()->index(1, 0)).center());
    QApplication::processEvents();
    EXPECT_EQ(window_.dialogs.Boxes().size(), before + 1);
    ASSERT_NE(Cell(), nullptr);
    EXPECT_EQ(Focus(), "cell");
    EXPECT_EQ(Current(), "60");
}

TEST_F(CellEditTest, AnotherRowStoresIt) {
    const int row = Grid().currentIndex().row();
    Type("knob");
    Press(Qt::Key_Up);
    EXPECT_EQ(Word(), "KNOB");
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(Grid().currentIndex().row(), row - 1);
    EXPECT_EQ(Focus(), "Grid");
}

TEST_F(CellEditTest, AClickAnotherTableAndACommandStoreIt) {
    Type("knob");
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {},
                      Grid().visualRect(Grid().model()->index(1, 0)).center());
    QApplication::processEvents();
    EXPECT_EQ(Word(), "KNOB");
    EXPECT_EQ(Grid().currentIndex().row(), 1);
    window_.GoToRow("60");
    Press(Qt::Key_Right);
    Type("lever");
    window_.GoToTable("Messages");
    EXPECT_EQ(Word(), "LEVER");
    window_.GoToTable("Vocabulary");
    window_.GoToRow("60");
    Press(Qt::Key_Right);
    Type("lamp");
    window_.Action("Trace").trigger();
    EXPECT_EQ(Word(), "LAMP");
}

TEST_F(CellEditTest, AnotherWindowStoresIt) {
    Type("knob");
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    EXPECT_EQ(Word(), "KNOB");
}

TEST_F(CellEditTest, OtherColumnsFindRows) {
    Press(Qt::Key_Home, Qt::ControlModifier);
    Type("60");
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(Current(), "60");
}

TEST_F(CellEditTest, OtherTablesFindRows) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Type("1");
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_EQ(Current(), "1");
}

TEST_F(CellEditTest, ReservedWordsAreNotTypedInto) {
    window_.GoToRow("255");
    Press(Qt::Key_Right);
    EXPECT_EQ(window_.Cell(Grid().currentIndex().row(), 2), "RESERVED");
    Press(Qt::Key_F2);
    EXPECT_EQ(Cell(), nullptr);
    EXPECT_FALSE(Grid().currentIndex().flags() & Qt::ItemIsEditable);
}

}  // namespace
}  // namespace fabula::test
