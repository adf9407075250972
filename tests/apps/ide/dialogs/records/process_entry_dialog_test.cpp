#include "ide/dialogs/records/process_entry_dialog.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "ide/editors/cond_act_edit.h"

namespace fabula::ide {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// The window on a new entry of a small game.
class ProcessEntryDialogTest : public testing::Test {
  protected:
    ProcessEntryDialogTest() {
        desk_.Add(TableNum::Messages,
                  {{"msgnum", std::int64_t{0}}, {"msgmsg", std::string("It is too dark.")}});
        desk_.Add(TableNum::Objects,
                  {{"objnum", std::int64_t{0}}, {"objdesc", std::string("a brass lamp")}});
        desk_.AddWord(500, "GET", 20, 0);
        authoring::ReadNextKeys(desk_.context);
        const authoring::ScreenRequest request{.screen = authoring::Screen::ProcessEntry,
                                               .key = {.key = desk_.context.nextEntry, .isNew = true},
                                               .table = TableNum::ProcessTables};
        Reopen(request);
    }

    void Reopen(const authoring::ScreenRequest& request) {
        dialog_.reset();
        screen_ = std::make_unique<authoring::ProcessEntryScreen>(desk_.context, request);
        dialog_ = std::make_unique<ProcessEntryDialog>(*screen_);
        dialog_->show();
        dialog_->activateWindow();
        QApplication::processEvents();
        line_ = dialog_->findChild<CondActEdit*>("line");
    }

    template <typename Widget>
    Widget* Find(const char* name) {
        return dialog_->findChild<Widget*>(name);
    }
    /// The label of a control, without its mnemonic.
    std::string Caption(const char* name) {
        for (const QLabel* label : dialog_->findChildren<QLabel*>()) {
            if (label->buddy() == Find<QWidget>(name)) return label->text().remove('&').toStdString();
        }
        return "";
    }
    void Choose(const char* name, const char* item) {
        auto* box = Find<QComboBox>(name);
        box->setCurrentIndex(box->findText(item));
        Q_EMIT box->activated(box->currentIndex());
    }
    void Type(const char* text) { QTest::keyClicks(line_, text); }
    std::string Line() { return line_->toPlainText().toStdString(); }
    std::string Label(const char* name) { return Find<QLabel>(name)->text().toStdString(); }
    std::vector<std::string> Entries() {
        return desk_.Rows(TableNum::ProcessTables, "canum, estype, w1, w2, condacts, numericcondacts");
    }

    test::Desk desk_;
    std::unique_ptr<authoring::ProcessEntryScreen> screen_;
    std::unique_ptr<ProcessEntryDialog> dialog_;
    CondActEdit* line_ = nullptr;
};

TEST_F(ProcessEntryDialogTest, StoresALineThatIsTypedWithCtrlReturn) {
    Find<QComboBox>("verb")->setCurrentText("GET");
    Type("get 0 done");
    QTest::keyClick(line_, Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    if (dialog_->isVisible()) QTest::keyClick(dialog_.get(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_THAT(Entries(), ElementsAre("0|0|GET|_|GET 0 DONE|201 0 265"));
}

TEST_F(ProcessEntryDialogTest, OffersWhatBeginsAsIsTyped) {
    Type("MESS");
    EXPECT_EQ(line_->Offered(), (QStringList{"MESSAGE", "MESSGF"}));
}

TEST_F(ProcessEntryDialogTest, OffersTheRecordsForAParameter) {
    Type("MESSAGE ");
    EXPECT_EQ(line_->Offered(), QStringList{"0  It is too dark."});
}

TEST_F(ProcessEntryDialogTest, TabTakesWhatIsOffered) {
    Type("MESSA");
    QTest::keyClick(line_, Qt::Key_Tab);
    EXPECT_EQ(Line(), "MESSAGE ");
    EXPECT_EQ(Label("meaning"), "MESSAGE takes a message here");
}

TEST_F(ProcessEntryDialogTest, TellsTheMeaningOfTheTokenAtTheCursor) {
    Type("MESSAGE 0");
    EXPECT_EQ(Label("meaning"), "MESSAGE 0: It is too dark.");
}

TEST_F(ProcessEntryDialogTest, MarksTheFirstFaultAtItsToken) {
    Type("MESSAGE 7 DON");
    EXPECT_EQ(Label("fault"), "Fault at 7: Invalid number for parameter 1");
    const auto marks = line_->extraSelections();
    ASSERT_EQ(marks.size(), 1);
    EXPECT_EQ(marks.front().cursor.selectedText(), "7");
    EXPECT_EQ(marks.front().format.underlineStyle(), QTextCharFormat::WaveUnderline);
}

TEST_F(ProcessEntryDialogTest, AFaultThatNamesItsTokenIsToldWithoutItsPlace) {
    Type("frob 1 ");
    EXPECT_EQ(Label("fault"), "Fault: FROB is an invalid Condition/Action");
}

TEST_F(ProcessEntryDialogTest, AFaultKeepsTheFocusInTheLine) {
    line_->setFocus();
    Type("XYZ");
    Find<QLineEdit>("process")->setFocus();
    QApplication::processEvents();
    EXPECT_THAT(desk_.Boxes(), ElementsAre("XYZ is an invalid Condition/Action"));
    EXPECT_EQ(QApplication::focusWidget(), line_);
}

TEST_F(ProcessEntryDialogTest, PutsACondactTogetherFromTheLists) {
    auto* condAct = Find<QComboBox>("condAct");
    condAct->setFocus();
    condAct->setEditText("place");
    auto* first = Find<QComboBox>("parameter1");
    Find<QLineEdit>("process")->setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(first->isEnabled());
    first->setEditText("0");
    Find<QComboBox>("parameter2")->setEditText("CARRIED");
    QTest::mouseClick(Find<QPushButton>("add"), Qt::LeftButton);
    EXPECT_EQ(Line(), "PLACE 0 254");
    EXPECT_FALSE(first->isEnabled());
}

TEST_F(ProcessEntryDialogTest, AnEmptyLineIsNotStored) {
    QTest::mouseClick(Find<QPushButton>("update"), Qt::LeftButton);
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Cannot have a record with no Condition/Actions"));
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(ProcessEntryDialogTest, ExitStoresNothingThatTheAuthorDiscards) {
    Type("XYZ ");
    desk_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    QTest::mouseClick(Find<QPushButton>("exit"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_THAT(Entries(), IsEmpty());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("What was changed here is not stored yet."));
}

TEST_F(ProcessEntryDialogTest, ExitWithoutAChangeAsksNothing) {
    QTest::mouseClick(Find<QPushButton>("exit"), Qt::LeftButton);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(ProcessEntryDialogTest, EscapeKeepsTheLineWhenTheAuthorWouldRatherGoOn) {
    Type("XYZ ");
    desk_.dialogs.AnswerLeaving(platform::Leaving::KeepEditing);
    QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(Line(), "XYZ ");
}

TEST_F(ProcessEntryDialogTest, EscapeStoresTheLineWhenTheAuthorWantsThat) {
    Type("DONE ");
    desk_.dialogs.AnswerLeaving(platform::Leaving::Store);
    QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(Entries().size(), 1U);
}

TEST_F(ProcessEntryDialogTest, EscapeStaysWithALineThatCannotBeStored) {
    Type("XYZ ");
    desk_.dialogs.AnswerLeaving(platform::Leaving::Store);
    QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(desk_.Boxes().size(), 2U);
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(ProcessEntryDialogTest, EscapeClosesTheListOfOffersFirst) {
    Type("MES");
    ASSERT_FALSE(Find<CondActEdit>("line")->Offered().isEmpty());
    dialog_->reject();
    EXPECT_TRUE(Find<CondActEdit>("line")->Offered().isEmpty());
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(ProcessEntryDialogTest, NamesItsFieldsInTheSystemsWords) {
    EXPECT_EQ(dialog_->windowTitle(), "Process Table Editor");
    EXPECT_EQ(Label("recordKey"), "Record Key: 0");
    EXPECT_EQ(Caption("process"), "Process Table #:");
    EXPECT_EQ(Caption("verb"), "Verb:");
    EXPECT_EQ(Caption("noun"), "Noun:");
    EXPECT_EQ(Caption("condAct"), "Cond/Act");
    EXPECT_EQ(Caption("parameter1"), "Param1");
    EXPECT_EQ(Caption("parameter2"), "Param2");
    EXPECT_EQ(Caption("line"), "Combined Condition/Actions");
    EXPECT_EQ(Find<QPushButton>("add")->text(), "&Add to Conditions/Actions");
}

TEST_F(ProcessEntryDialogTest, AParameterIsNamedByItsKindWhileItIsOpen) {
    Choose("condAct", "PLACE");
    EXPECT_EQ(Caption("parameter1"), "Object");
    EXPECT_EQ(Caption("parameter2"), "Location");
    EXPECT_EQ(Find<QComboBox>("parameter1")->itemText(0), "0  a brass lamp");
}

TEST_F(ProcessEntryDialogTest, TabGoesFromANameToTheParameterThatItOpens) {
    auto* condAct = Find<QComboBox>("condAct");
    condAct->setFocus();
    condAct->setEditText("message");
    QTest::keyClick(condAct, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), Find<QComboBox>("parameter1"));
}

TEST_F(ProcessEntryDialogTest, ANewEntryBeginsWithItsVerbAndAnOldOneWithItsLine) {
    EXPECT_EQ(dialog_->focusWidget()->objectName().toStdString(), "verb");
    desk_.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DONE");
    Reopen(
        {.screen = authoring::Screen::ProcessEntry, .key = {.key = 4}, .table = TableNum::ProcessTables});
    EXPECT_EQ(dialog_->focusWidget(), line_);
}

TEST_F(ProcessEntryDialogTest, EnterGoesFromTheBeginningOfANameToTheLine) {
    auto* condAct = Find<QComboBox>("condAct");
    condAct->setFocus();
    QTest::keyClicks(condAct, "plac");
    QTest::keyClick(condAct, Qt::Key_Return);
    EXPECT_EQ(condAct->currentText(), "PLACE");
    EXPECT_EQ(dialog_->focusWidget(), Find<QComboBox>("parameter1"));
    QTest::keyClicks(dialog_->focusWidget(), "0");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog_->focusWidget(), Find<QComboBox>("parameter2"));
    QTest::keyClicks(dialog_->focusWidget(), "carried");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Line(), "PLACE 0 254");
    EXPECT_EQ(dialog_->focusWidget(), condAct);
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(ProcessEntryDialogTest, ACondactWithoutParametersIsAddedWhenItIsChosen) {
    Choose("condAct", "DONE");
    EXPECT_EQ(Line(), "DONE");
}

TEST_F(ProcessEntryDialogTest, KeysInTheListOfNamesChooseNothingBeforeEnter) {
    auto* condAct = Find<QComboBox>("condAct");
    condAct->setFocus();
    condAct->setCurrentIndex(condAct->findText("DESC"));
    QTest::keyClick(condAct, Qt::Key_Down);
    EXPECT_TRUE(condAct->view()->isVisible());
    EXPECT_EQ(condAct->currentText(), "DESC");
    EXPECT_EQ(Line(), "");
    QTest::keyClick(condAct->view(), Qt::Key_Return);
    EXPECT_EQ(Line(), "DESC");
}

TEST_F(ProcessEntryDialogTest, TheWheelOverTheListOfNamesChoosesNothing) {
    auto* condAct = Find<QComboBox>("condAct");
    condAct->setCurrentIndex(condAct->findText("DESC"));
    QWheelEvent turn({5, 5}, condAct->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(condAct, &turn);
    EXPECT_EQ(condAct->currentText(), "DESC");
    EXPECT_EQ(Line(), "");
}

TEST_F(ProcessEntryDialogTest, ANewProcessThatIsNotConfirmedKeepsTheFocus) {
    Type("DONE");
    auto* type = Find<QLineEdit>("process");
    type->setFocus();
    QApplication::processEvents();
    type->setText("3");
    desk_.dialogs.AnswerNext(false);
    QTest::keyClick(type, Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Confirm Creation of Process table 3"));
    EXPECT_EQ(QApplication::focusWidget(), type);
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(ProcessEntryDialogTest, AnEntryThatIsGoneIsToldAndWhatWasTypedStays) {
    desk_.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DONE");
    Reopen(
        {.screen = authoring::Screen::ProcessEntry, .key = {.key = 4}, .table = TableNum::ProcessTables});
    desk_.Clear(TableNum::ProcessTables);
    Type(" DESC");
    QTest::mouseClick(Find<QPushButton>("update"), Qt::LeftButton);
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Could not edit process entry 4: it is not there."));
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(Line(), "DONE DESC");
}

TEST_F(ProcessEntryDialogTest, TheLineGivesWayBeforeAnythingHasToBeScrolled) {
    const auto* bar = dialog_->findChild<QScrollArea*>()->verticalScrollBar();
    dialog_->resize(dialog_->width(), dialog_->height() - line_->height() + line_->minimumHeight() + 1);
    QApplication::processEvents();
    EXPECT_FALSE(bar->isVisible());
}

/// Names in place of numbers, by keys.
class TypedNames : public ProcessEntryDialogTest {
  protected:
    void PressInList(int key) {
        QTest::keyClick(QApplication::activePopupWidget(), static_cast<Qt::Key>(key));
    }
    std::vector<std::string> Messages() {
        return desk_.Rows(TableNum::Messages, "msgnum, msgmsg", "", "msgnum");
    }
};

TEST_F(TypedNames, BehindAQuoteTheRecordsAreOfferedAndTypingFiltersThem) {
    desk_.Add(TableNum::Objects, {{"objnum", std::int64_t{1}}, {"objdesc", std::string("a red coat")}});
    Reopen({.screen = authoring::Screen::ProcessEntry,
            .key = screen_->Key(),
            .table = TableNum::ProcessTables});
    Type("PRESENT \"");
    EXPECT_EQ(line_->Offered(), (QStringList{"0  a brass lamp", "1  a red coat"}));
    Type("lam");
    EXPECT_EQ(line_->Offered(), QStringList{"0  a brass lamp"});
    QTest::keyClick(line_, Qt::Key_Tab);
    EXPECT_EQ(Line(), "PRESENT 0 ");
}

TEST_F(TypedNames, BehindAnAtTheyAreOfferedTooAndEnterTakesOne) {
    Type("PRESENT 0 GET @bra");
    EXPECT_EQ(line_->Offered(), QStringList{"0  a brass lamp"});
    PressInList(Qt::Key_Return);
    EXPECT_EQ(Line(), "PRESENT 0 GET 0 ");
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(TypedNames, EscapeClosesTheListAndNothingElse) {
    Type("PRESENT \"bra");
    ASSERT_FALSE(line_->Offered().isEmpty());
    PressInList(Qt::Key_Escape);
    EXPECT_THAT(line_->Offered(), IsEmpty());
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(Line(), "PRESENT \"bra");
}

TEST_F(TypedNames, ANewTextBecomesAMessageWithItsEntryAndOneUndoTakesBothBack) {
    Type("MESSAGE \"It snows.");
    EXPECT_EQ(line_->Offered(), QStringList{"Add message 1: \u201CIt snows.\u201D"});
    QTest::keyClick(line_, Qt::Key_Tab);
    EXPECT_EQ(Line(), "MESSAGE 1 ");
    EXPECT_EQ(Find<QListWidget>("explained")->item(0)->text().toStdString(),
              "MESSAGE 1    \u201CIt snows.\u201D");
    EXPECT_THAT(Messages(), ElementsAre("0|It is too dark."));
    Type("DONE");
    if (!line_->Offered().isEmpty()) PressInList(Qt::Key_Escape);
    QTest::mouseClick(Find<QPushButton>("update"), Qt::LeftButton);
    EXPECT_THAT(Entries(), ElementsAre("0|0|_|_|MESSAGE 1 DONE|250 1 265"));
    EXPECT_THAT(Messages(), ElementsAre("0|It is too dark.", "1|It snows."));
    desk_.document.Undo();
    EXPECT_THAT(Entries(), IsEmpty());
    EXPECT_THAT(Messages(), ElementsAre("0|It is too dark."));
}

TEST_F(TypedNames, ANewTextOfAnEntryThatIsDiscardedIsNotAdded) {
    Type("MESSAGE \"It snows.");
    QTest::keyClick(line_, Qt::Key_Tab);
    desk_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    QTest::mouseClick(Find<QPushButton>("exit"), Qt::LeftButton);
    EXPECT_THAT(Messages(), ElementsAre("0|It is too dark."));
}

TEST_F(TypedNames, AFaultInANewTextIsToldOnceAndTheTextStays) {
    Type("MESSAGE \"<INK=99>snow");
    QTest::keyClick(line_, Qt::Key_Tab);
    EXPECT_EQ(desk_.Boxes().size(), 1U);
    EXPECT_EQ(Line(), "MESSAGE \"<INK=99>snow");
}

}  // namespace
}  // namespace fabula::ide
