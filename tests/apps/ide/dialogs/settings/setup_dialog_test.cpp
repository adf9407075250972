#include "ide/dialogs/settings/setup_dialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

#include "support/active_window.h"

namespace fabula::test {
namespace {

using store::AdventureKind;

class SetupDialogTest : public testing::Test {
  protected:
    void SetUp() override {
        dialog_.show();
        ASSERT_TRUE(test::BecomesActive(&dialog_));
    }
    QRadioButton& Option(const char* name) { return *dialog_.findChild<QRadioButton*>(name); }
    QString Explanation() { return dialog_.findChild<QLabel*>("explanation")->text(); }

    store::AdventureSetup setup_;
    ide::SetupDialog dialog_{setup_};
};

TEST_F(SetupDialogTest, OpensOnTheChoicesOfTheScreen) {
    EXPECT_EQ(dialog_.windowTitle(), "Choose Type of Adventure");
    EXPECT_TRUE(Option("fabula").isChecked());
    EXPECT_TRUE(Option("nonGraphic").isChecked());
    EXPECT_TRUE(Option("charSetsNo").isChecked());
    EXPECT_EQ(Explanation(), "Fabula: Takes all Fabula constructs, including extra Conditions & Actions.");
}

TEST_F(SetupDialogTest, HeadsItsGroupsInTheSystemsWords) {
    QStringList headings;
    for (const QLabel* label : dialog_.findChildren<QLabel*>()) {
        if (label->objectName().isEmpty()) headings << label->text();
    }
    EXPECT_EQ(headings, (QStringList{"Adventure Type", "Graphics Type", "Use Character Sets:"}));
}

TEST_F(SetupDialogTest, GroupsAreIndependent) {
    QTest::mouseClick(&Option("vel"), Qt::LeftButton);
    QTest::mouseClick(&Option("graphic"), Qt::LeftButton);
    QTest::mouseClick(&Option("charSetsYes"), Qt::LeftButton);
    EXPECT_EQ(setup_.Type(), AdventureKind::Vel);
    EXPECT_TRUE(setup_.Graphics());
    EXPECT_TRUE(setup_.CharSets());
    QTest::mouseClick(&Option("charSetsNo"), Qt::LeftButton);
    EXPECT_FALSE(setup_.CharSets());
}

TEST_F(SetupDialogTest, MarloForcesCharacterSets) {
    QTest::mouseClick(&Option("marlo"), Qt::LeftButton);
    EXPECT_TRUE(Option("charSetsYes").isChecked());
    EXPECT_FALSE(Option("charSetsNo").isEnabled());
    EXPECT_TRUE(setup_.CharSets());
    QTest::mouseClick(&Option("fabula"), Qt::LeftButton);
    EXPECT_TRUE(Option("charSetsNo").isEnabled());
}

TEST_F(SetupDialogTest, ExplainsTheOptionAtHand) {
    Option("nonGraphic").setFocus();
    EXPECT_EQ(Explanation(), "Non-Graphic: Graphic Editor is NOT included.");
    Option("charSetsNo").setFocus();
    EXPECT_EQ(Explanation(), "No - Windows Fonts used (Saves memory)");
}

TEST_F(SetupDialogTest, CanBeFilledInByKeysAlone) {
    QTest::keyClick(&Option("fabula"), Qt::Key_Right);
    EXPECT_EQ(setup_.Type(), AdventureKind::Vel);
    QTest::keyClick(dialog_.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(dialog_.focusWidget(), &Option("nonGraphic"));
    QTest::keyClick(dialog_.focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(setup_.Graphics());
    QTest::keyClick(&dialog_, Qt::Key_Return);
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
}

TEST_F(SetupDialogTest, EscapeMakesNothing) {
    QTest::keyClick(&dialog_, Qt::Key_Escape);
    EXPECT_EQ(dialog_.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(SetupDialogTest, OffersTheUsualWords) {
    EXPECT_TRUE(dialog_.Starter());
    dialog_.findChild<QCheckBox*>("starter")->click();
    EXPECT_FALSE(dialog_.Starter());
}

}  // namespace
}  // namespace fabula::test
