#include <QApplication>
#include <QMenuBar>
#include <QToolBar>
#include <map>

#include <gtest/gtest.h>

#include "ide/dialog_checks.h"
#include "ide/driven_window.h"
#include "qt/look/theme.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using NamesOf = std::vector<std::string>;

/// What one letter means twice among these actions.
void AddClashes(const QList<QAction*>& actions, const std::string& where, NamesOf& clashes) {
    std::map<QString, QStringList> texts;
    for (const QAction* action : actions) {
        const QKeySequence key = QKeySequence::mnemonic(action->text());
        if (action->isVisible() && !key.isEmpty()) texts[key.toString()] << action->text();
    }
    for (const auto& [key, found] : texts) {
        if (found.size() > 1) clashes.push_back(where + ": " + qt::FromQt(found.join(" / ")));
    }
}

class MainWindowAccess : public testing::Test {
  protected:
    ~MainWindowAccess() override { QApplication::setFont(font_); }

    NamesOf MenuClashes() {
        NamesOf clashes;
        AddClashes(window_.Window().menuBar()->actions(), "the bar", clashes);
        for (const QMenu* menu : window_.Window().menuBar()->findChildren<QMenu*>())
            AddClashes(menu->actions(), qt::FromQt(menu->title()), clashes);
        return clashes;
    }
    /// Keys that belong to more than one command.
    NamesOf KeysTwice() {
        std::map<QString, QStringList> texts;
        for (const QAction* action : window_.Window().findChildren<QAction*>()) {
            for (const QKeySequence& key : action->shortcuts())
                texts[key.toString()] << action->text();
        }
        NamesOf twice;
        for (const auto& [key, found] : texts) {
            if (found.size() > 1) twice.push_back(qt::FromQt(key + ": " + found.join(" / ")));
        }
        return twice;
    }

    QFont font_ = QApplication::font();
    DrivenWindow window_{store::AdventureKind::Fabula};
};

TEST_F(MainWindowAccess, EveryControlHasAName) {
    EXPECT_EQ(WidgetsWithoutName(window_.Window()), NamesOf{});
}

TEST_F(MainWindowAccess, EveryControlOfTheFirstPageHasAName) {
    window_.Press(Qt::Key_W, Qt::ControlModifier);
    ASSERT_FALSE(window_.Action("Run").isEnabled());
    EXPECT_EQ(WidgetsWithoutName(window_.Window()), NamesOf{});
}

TEST_F(MainWindowAccess, EveryCommandOfTheToolBarHasANameAndATip) {
    for (const QAction* action : window_.Part<QToolBar>("Toolbar").actions()) {
        if (action->isSeparator()) continue;
        EXPECT_FALSE(action->text().isEmpty());
        EXPECT_FALSE(action->toolTip().isEmpty()) << qt::FromQt(action->text());
    }
}

TEST_F(MainWindowAccess, NoMnemonicMeansTwoThingsInAMenu) {
    for (const char* table : {"Locations", "Flags", "Response (P0)", "Messages", "Special Codes"}) {
        window_.GoToTable(table);
        EXPECT_EQ(MenuClashes(), NamesOf{}) << table;
    }
}

TEST_F(MainWindowAccess, NoKeyBelongsToTwoCommands) {
    EXPECT_EQ(KeysTwice(), NamesOf{});
}

TEST_F(MainWindowAccess, FitsASmallScreenWithLargeText) {
    QFont large = font_;
    large.setPointSizeF(font_.pointSizeF() * 2);
    QApplication::setFont(large);
    QApplication::processEvents();
    window_.Window().resize(790, 560);
    EXPECT_EQ(window_.Window().size(), QSize(790, 560));
    GrabInBothThemes(window_.Window(), "main-large");
}

}  // namespace
}  // namespace fabula::test
