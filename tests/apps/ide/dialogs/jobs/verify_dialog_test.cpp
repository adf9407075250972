#include "ide/dialogs/jobs/verify_dialog.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "ide/dialog_checks.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/doubles/scripted_pump.h"
#include "support/games/template_adventure.h"

namespace fabula::test {
namespace {

using authoring::kForPlay;
using authoring::VerifyScreen;

class VerifyDialogTest : public testing::Test {
  protected:
    void AddEntry(int number, const char* condacts) {
        store::Cursor& entries = adventure_->OpenTable(store::TableNum::ProcessTables, "def");
        entries.AddNew();
        entries.SetField("canum", std::int64_t{number});
        entries.SetField("estype", std::int64_t{2});
        entries.SetField("w1", std::string("*"));
        entries.SetField("w2", std::string("_"));
        entries.SetField("condacts", std::string(condacts));
        entries.Update();
    }
    void ShowAndRun() {
        dialog_.show();
        QApplication::processEvents();
    }
    QListWidget& Lines() { return *dialog_.findChild<QListWidget*>("status"); }
    QPushButton& Button(const char* name) { return *dialog_.findChild<QPushButton*>(name); }
    QString Progress() { return dialog_.findChild<QLabel*>("progress")->text(); }
    QStringList Texts() {
        QStringList texts;
        for (int row = 0; row < Lines().count(); ++row)
            texts << Lines().item(row)->text();
        return texts;
    }

    OpenedAdventure adventure_;
    platform::ScriptedDialogs dialogs_;
    ScriptedPump pump_;
    VerifyScreen verify_{*adventure_, kForPlay, pump_};
    ide::VerifyDialog dialog_{verify_, dialogs_};
};

TEST_F(VerifyDialogTest, BeginsTheCheckOnceItIsShown) {
    EXPECT_FALSE(verify_.Finished());
    dialog_.show();
    EXPECT_FALSE(verify_.Finished());
    QApplication::processEvents();
    EXPECT_TRUE(verify_.Finished());
    EXPECT_EQ(Texts(),
              (QStringList{"Verifying Process/Response Tables ", "No Errors Found", "Verify Completed"}));
    EXPECT_EQ(Progress(), "The adventure has passed.");
    EXPECT_TRUE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, DoubleClickOnAnEntryGoesThere) {
    AddEntry(7, "FROB 3");
    std::vector<std::pair<int, int>> gone;
    dialog_.goTo = [&](const VerifyScreen::Entry& entry) { gone.emplace_back(entry.estype, entry.canum); };
    ShowAndRun();
    EXPECT_EQ(Progress(), "The adventure has not passed.");
    ASSERT_EQ(Lines().item(1)->text(), "Process Table 2 Entry # 7 (* _ FROB 3)");
    Q_EMIT Lines().itemActivated(Lines().item(0));
    EXPECT_TRUE(dialog_.isVisible());
    EXPECT_TRUE(gone.empty());
    const QPoint place = Lines().visualItemRect(Lines().item(1)).center();
    QTest::mouseClick(Lines().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Lines().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(gone, (std::vector<std::pair<int, int>>{{2, 7}}));
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, ButtonGoesToTheEntryOfTheLine) {
    AddEntry(7, "FROB 3");
    int gone = -1;
    dialog_.goTo = [&](const VerifyScreen::Entry& entry) { gone = entry.canum; };
    ShowAndRun();
    Lines().setCurrentRow(0);
    EXPECT_FALSE(Button("goTo").isEnabled());
    Lines().setCurrentRow(1);
    EXPECT_TRUE(Button("goTo").isEnabled());
    Button("goTo").click();
    EXPECT_EQ(gone, 7);
}

TEST_F(VerifyDialogTest, EndsOnTheFirstEntryAtFaultToWhichEnterGoes) {
    AddEntry(7, "FROB 3");
    AddEntry(8, "FROB 4");
    int gone = -1;
    dialog_.goTo = [&](const VerifyScreen::Entry& entry) { gone = entry.canum; };
    ShowAndRun();
    EXPECT_EQ(Lines().currentRow(), 1);
    EXPECT_TRUE(Button("goTo").isEnabled());
    QTest::keyClick(&Lines(), Qt::Key_Return);
    EXPECT_EQ(gone, 7);
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, WithoutAWayToEntriesThereIsNoButton) {
    ShowAndRun();
    EXPECT_FALSE(Button("goTo").isVisible());
}

TEST_F(VerifyDialogTest, StatusIsCopiedAndSaved) {
    ShowAndRun();
    dialog_.findChild<QAction*>("copyStatus")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Verifying Process/Response Tables \nNo Errors Found\nVerify Completed\n");
    dialogs_.AnswerFile(adventure_.Folder() / "status.txt");
    dialog_.findChild<QAction*>("saveStatus")->trigger();
    EXPECT_TRUE(std::filesystem::exists(adventure_.Folder() / "status.txt"));
}

TEST_F(VerifyDialogTest, OkClosesIt) {
    ShowAndRun();
    Button("ok").click();
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, OkDuringTheCheckEndsItAndCloses) {
    for (int number = 0; number < 100; ++number)
        AddEntry(number, "DONE");
    pump_.atTurn = [&] {
        if (pump_.turns == 3) Button("ok").click();
    };
    ShowAndRun();
    EXPECT_TRUE(verify_.Finished());
    EXPECT_FALSE(verify_.Passed());
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, BeforeAnExportItClosesWhenThePassIsClear) {
    dialog_.CloseWhenPassed();
    ShowAndRun();
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, BeforeAnExportItStaysWhenThereAreErrors) {
    AddEntry(7, "FROB 3");
    dialog_.CloseWhenPassed();
    ShowAndRun();
    EXPECT_TRUE(dialog_.isVisible());
}

TEST_F(VerifyDialogTest, EveryControlHasANameAndBothThemesShowIt) {
    AddEntry(7, "FROB 3");
    AddEntry(8, "AT 999 MESSAGE 5 DONE");
    dialog_.goTo = [](const VerifyScreen::Entry&) {};
    ShowAndRun();
    Lines().setCurrentRow(1);
    EXPECT_EQ(WidgetsWithoutName(dialog_), std::vector<std::string>{});
    GrabInBothThemes(dialog_, "verify");
}

}  // namespace
}  // namespace fabula::test
