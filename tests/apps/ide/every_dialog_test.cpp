#include <QApplication>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include "ide/dialog_checks.h"
#include "ide/dialog_stand.h"
#include "qt/look/theme.h"
#include "qt/strings.h"
#include "support/active_window.h"

namespace fabula::test {
namespace {

using Names = std::vector<std::string>;

/// What a screen of 800 by 600 leaves to a window.
constexpr QSize kSmallScreen(790, 560);
constexpr QSize kLargeScreen(1100, 640);

class EveryDialogTest : public testing::TestWithParam<DialogStand> {
  protected:
    EveryDialogTest() { Furnish(desk_); }
    ~EveryDialogTest() override {
        qt::ApplyTheme(qt::Theme::System);
        QApplication::setFont(font_);
    }

    std::shared_ptr<QDialog> Open() {
        std::shared_ptr<QDialog> dialog = GetParam().open(desk_);
        dialog->show();
        EXPECT_TRUE(test::BecomesActive(dialog.get()));
        QApplication::processEvents();
        return dialog;
    }
    /// The letters twice as large.
    void EnlargeText() {
        QFont large = font_;
        large.setPointSizeF(font_.pointSizeF() * 2);
        QApplication::setFont(large);
    }

    Desk desk_;
    QFont font_ = QApplication::font();
};

TEST_P(EveryDialogTest, OpensWithItsTitleAndAPageOfTheHelp) {
    const auto dialog = Open();
    EXPECT_EQ(qt::FromQt(dialog->windowTitle()), GetParam().title);
    EXPECT_FALSE(dialog->property("helpPage").toString().isEmpty());
}

TEST_P(EveryDialogTest, LeavesTheHelpUsableBesideIt) {
    EXPECT_EQ(GetParam().open(desk_)->windowModality(), Qt::WindowModal);
}

TEST_P(EveryDialogTest, GivesTheKeyboardToItsFirstField) {
    const auto dialog = Open();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(qt::FromQt(QApplication::focusWidget()->objectName()), GetParam().firstFocus);
}

TEST_P(EveryDialogTest, EveryControlHasANameInBothThemes) {
    for (const qt::Theme theme : {qt::Theme::Light, qt::Theme::Dark}) {
        qt::ApplyTheme(theme);
        EXPECT_EQ(WidgetsWithoutName(*Open()), Names{});
    }
}

TEST_P(EveryDialogTest, NoMnemonicMeansTwoThings) {
    EXPECT_EQ(MnemonicsTwice(*Open()), Names{});
}

TEST_P(EveryDialogTest, TabComesToEveryControlInTheOrderOfReading) {
    const auto dialog = Open();
    EXPECT_EQ(WidgetsThatTabMisses(*dialog), Names{});
    EXPECT_EQ(desk_.Boxes(), Names{});
    EXPECT_EQ(StepsBack(*dialog), Names{}) << testing::PrintToString(TabOrder(*dialog));
}

TEST_P(EveryDialogTest, EscapeLeavesIt) {
    const auto dialog = Open();
    desk_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_FALSE(dialog->isVisible());
}

TEST_P(EveryDialogTest, FitsASmallScreenWithLargeText) {
    EnlargeText();
    const auto dialog = Open();
    const QSize smallest = dialog->minimumSizeHint();
    EXPECT_LE(smallest.width(), kSmallScreen.width());
    EXPECT_LE(smallest.height(), kSmallScreen.height());
    dialog->resize(kSmallScreen);
    QApplication::processEvents();
    EXPECT_EQ(ScrollsSideways(*dialog), 0);
}

TEST_P(EveryDialogTest, OpensWithinTheScreen) {
    const auto dialog = Open();
    const QSize room = dialog->screen()->availableSize() * 9 / 10;
    EXPECT_LE(dialog->width(), room.width());
    EXPECT_LE(dialog->height(), room.height());
}

TEST_P(EveryDialogTest, IsDrawnInBothThemes) {
    const QString name = QString("dialog-%1").arg(GetParam().name);
    const auto usual = Open();
    GrabInBothThemes(*usual, name);
    usual->resize(kLargeScreen);
    QApplication::processEvents();
    GrabInBothThemes(*usual, name + "-wide");
    EnlargeText();
    const auto large = Open();
    large->resize(large->size().boundedTo(kSmallScreen));
    QApplication::processEvents();
    GrabInBothThemes(*large, name + "-large");
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EveryDialogTest, testing::ValuesIn(EveryDialog()),
                         [](const auto& given) { return std::string(given.param.name); });

}  // namespace
}  // namespace fabula::test
