#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QWheelEvent>
#include <filesystem>

#include <gtest/gtest.h>

#include "ide/driven_window.h"
#include "ide/editors/cond_act_edit.h"
#include "qt/help/help_window.h"
#include "qt/strings.h"

// What was typed beside the rows is neither lost nor changed, nor is anything else that nobody has typed.

namespace fabula::test {
namespace {

using store::AdventureKind;
using store::TableNum;

class TypedWork : public testing::Test {
  protected:
    TypedWork() { window_.Press(Qt::Key_F9); }

    /// Types in place of what a field of the record holds.
    template <typename Field>
    void TypeInto(const char* field, const QString& text) {
        window_.Part<Field>(field).setFocus();
        window_.Press(Qt::Key_A, Qt::ControlModifier);
        window_.Type(text);
        QApplication::processEvents();
    }
    void TypeWeight(const QString& weight) {
        window_.GoToTable("Objects");
        TypeInto<QLineEdit>("weight", weight);
    }
    std::string StoredWeight() { return window_.Stored(TableNum::Objects, "objweight", "objnum=0"); }
    std::string UndoText() { return qt::FromQt(window_.Action("Undo").text()); }
    /// Another program takes the file away.
    void MoveTheFileAway() {
        std::filesystem::rename(window_.folder / "game.fbd", window_.folder / "moved.fbd");
    }
    void Put(TableNum table, const char* field, const std::string& text, const char* where) {
        store::Cursor& record =
            window_.Logic().CurrentContext().document.Adventure().OpenTable(table, "def", where);
        record.SetField(field, text);
        record.Update();
        window_.Logic().Refresh();
    }
    void TurnTheWheelOver(QWidget& control) {
        QWheelEvent turn({5, 5}, control.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&control, &turn);
    }
    std::size_t Boxes() const { return window_.dialogs.Boxes().size(); }

    DrivenWindow window_{AdventureKind::Fabula};
};

TEST_F(TypedWork, TheWheelOverAClosedListChoosesNothing) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    auto& verb = window_.Part<QComboBox>("verb");
    const int chosen = verb.currentIndex();
    ASSERT_LT(chosen, verb.count() - 1);
    TurnTheWheelOver(verb);
    EXPECT_EQ(verb.currentIndex(), chosen);
    window_.GoToTable("Objects");
    EXPECT_EQ(UndoText(), "&Undo");
    auto& noun = window_.Part<QComboBox>("noun");
    TurnTheWheelOver(noun);
    EXPECT_EQ(noun.currentText(), "LAMP");
}

TEST_F(TypedWork, ARecordWithBlanksThatDoNotBreakIsWalkedPastWithoutAChange) {
    const std::string text = "la\u00A0porte";
    Put(TableNum::Flags, "flguse", "Switch", "flgnum=62");
    Put(TableNum::Flags, "flgdesc", text, "flgnum=62");
    Put(TableNum::Messages, "comment", text, "msgnum=0");
    window_.GoToTable("Flags");
    window_.GoToRow("62");
    window_.Press(Qt::Key_Down);
    EXPECT_EQ(window_.Stored(TableNum::Flags, "flgdesc", "flgnum=62"), text);
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    window_.Part<QPlainTextEdit>("comment").setFocus();
    window_.Type("!");
    window_.GoToRow("1");
    EXPECT_EQ(window_.Stored(TableNum::Messages, "comment", "msgnum=0"), "!" + text);
    EXPECT_EQ(UndoText(), "&Undo edit message 0");
    EXPECT_EQ(Boxes(), 0U);
}

TEST_F(TypedWork, SaveAsTakesItIntoTheCopyWhenTheOldFileCanNotBeWritten) {
    TypeWeight("7");
    MoveTheFileAway();
    window_.dialogs.AnswerFile(window_.folder / "copy.fbd");
    window_.Action("SaveAs").trigger();
    EXPECT_EQ(Boxes(), 0U);
    EXPECT_EQ(window_.Window().windowTitle(), "Fabula IDE - copy");
    EXPECT_EQ(StoredWeight(), "7");
    EXPECT_EQ(UndoText(), "&Undo edit object 0");
}

TEST_F(TypedWork, SaveAsKeepsWhatIsRefusedAsItWasTyped) {
    TypeWeight("99");
    window_.dialogs.AnswerFile(window_.folder / "copy.fbd");
    window_.Action("SaveAs").trigger();
    QApplication::processEvents();
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "Weight must be from 0 to 63");
    EXPECT_EQ(window_.Window().windowTitle(), "Fabula IDE - copy");
    EXPECT_EQ(window_.Part<QLineEdit>("weight").text(), "99");
    TypeInto<QLineEdit>("weight", "9");
    window_.GoToTable("Messages");
    EXPECT_EQ(StoredWeight(), "9");
}

TEST_F(TypedWork, SaveAsThatIsCancelledLeavesItAsItIs) {
    TypeWeight("7");
    window_.dialogs.AnswerFile(std::nullopt);
    window_.Action("SaveAs").trigger();
    EXPECT_NE(StoredWeight(), "7");
    EXPECT_EQ(window_.Part<QLineEdit>("weight").text(), "7");
}

TEST_F(TypedWork, ExitAsksAboutItWhenItCanNotBeStored) {
    TypeWeight("7");
    MoveTheFileAway();
    window_.dialogs.AnswerLeaving(platform::Leaving::KeepEditing);
    window_.Action("Exit").trigger();
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "What was changed here is not stored yet.");
    EXPECT_TRUE(window_.Window().isVisible());
    EXPECT_EQ(window_.Part<QLineEdit>("weight").text(), "7");
    window_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    window_.Action("Exit").trigger();
    EXPECT_FALSE(window_.Window().isVisible());
}

TEST_F(TypedWork, ExitStoresItWithoutAQuestionWhenItCanBeStored) {
    TypeWeight("7");
    window_.Action("Exit").trigger();
    EXPECT_FALSE(window_.Window().isVisible());
    EXPECT_EQ(Boxes(), 0U);
    EXPECT_EQ(StoredWeight(), "7");
}

TEST_F(TypedWork, TheHelpOnARuleThatIsBegunLeavesTheRuleAlone) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    TypeInto<QPlainTextEdit>("line", "DESC DONE");
    static_cast<ide::CondActEdit&>(window_.Part<QPlainTextEdit>("line")).HideOffers();
    window_.Action("Help").trigger();
    ASSERT_NE(window_.Window().Help().Window(), nullptr);
    QApplication::setActiveWindow(window_.Window().Help().Window());
    QApplication::processEvents();
    EXPECT_EQ(window_.Stored(TableNum::ProcessTables, "condacts", "canum=0"), "DESC");
    EXPECT_EQ(window_.Part<QPlainTextEdit>("line").toPlainText(), "DESC DONE");
}

TEST_F(TypedWork, ASwitchThatIsRefusedStaysAsItWas) {
    for (const char* name : {"WithNames", "Comments", "RecordBeside"}) {
        TypeWeight("99");
        const bool before = window_.Action(name).isChecked();
        window_.Action(name).trigger();
        QApplication::processEvents();
        EXPECT_EQ(window_.dialogs.Boxes().back().text, "Weight must be from 0 to 63") << name;
        EXPECT_EQ(window_.Action(name).isChecked(), before) << name;
        TypeInto<QLineEdit>("weight", "9");
    }
    window_.Action("WithNames").trigger();
    EXPECT_TRUE(window_.Action("WithNames").isChecked());
    EXPECT_TRUE(window_.Logic().NamesShown());
    EXPECT_FALSE(window_.Logic().CommentsShown());
}

TEST_F(TypedWork, ASwitchThatWasRefusedIsNotRemembered) {
    TypeWeight("99");
    window_.Action("WithNames").trigger();
    QApplication::processEvents();
    TypeInto<QLineEdit>("weight", "9");
    window_.Restart();
    EXPECT_FALSE(window_.Action("WithNames").isChecked());
}

TEST_F(TypedWork, IsRefusedInOneBox) {
    TypeWeight("99");
    window_.dialogs.whileTelling = [] { QApplication::processEvents(); };
    // The check of the field that is left comes behind the click that leaves it.
    window_.Part<QTreeWidget>("Tree").setFocus();
    window_.ChooseNode("Messages");
    QApplication::processEvents();
    EXPECT_EQ(Boxes(), 1U);
    TypeInto<QLineEdit>("weight", "9");
    window_.GoToTable("Messages");
    TypeInto<QPlainTextEdit>("text", "A <lamp");
    window_.Part<QTreeWidget>("Tree").setFocus();
    window_.ChooseNode("Objects");
    QApplication::processEvents();
    EXPECT_EQ(Boxes(), 2U);
}

}  // namespace
}  // namespace fabula::test
