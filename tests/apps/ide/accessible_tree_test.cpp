// What a screen reader finds in the windows of the authoring tool, in their states.

#include "ide/accessible_tree.h"

#include <QAccessible>
#include <QApplication>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "ide/dialog_stand.h"
#include "ide/driven_window.h"
#include "ide/editors/picture_view.h"
#include "qt/strings.h"
#include "support/active_window.h"

namespace fabula::test {
namespace {

using Wrong = std::vector<std::string>;

class AccessibleDialog : public testing::TestWithParam<DialogStand> {
  protected:
    AccessibleDialog() { Furnish(desk_); }

    Desk desk_;
};

TEST_P(AccessibleDialog, TellsItsContentByNamesAndValues) {
    const std::shared_ptr<QDialog> dialog = GetParam().open(desk_);
    dialog->show();
    QApplication::processEvents();
    EXPECT_EQ(WrongInAccessibleTree(*dialog), Wrong{});
}

/// The state in which something is wrong with what was typed.
TEST_P(AccessibleDialog, TellsFaultsAsTheyStand) {
    const std::shared_ptr<QDialog> dialog = GetParam().open(desk_);
    dialog->show();
    EXPECT_TRUE(test::BecomesActive(dialog.get()));
    if (QWidget* field = QApplication::focusWidget()) QTest::keyClicks(field, "<zz> qq 9");
    QApplication::processEvents();
    EXPECT_EQ(WrongInAccessibleTree(*dialog), Wrong{});
}

INSTANTIATE_TEST_SUITE_P(Dialogs, AccessibleDialog, testing::ValuesIn(EveryDialog()),
                         [](const auto& given) { return std::string(given.param.name); });

class AccessibleMainWindow : public testing::Test {
  protected:
    Wrong InTree() {
        QApplication::processEvents();
        return WrongInAccessibleTree(window_.Window());
    }

    DrivenWindow window_{store::AdventureKind::Fabula};
};

TEST_F(AccessibleMainWindow, TellsEachTable) {
    for (const char* table : {"Adventure Settings", "Locations", "Objects", "Vocabulary", "Messages",
                              "System Messages", "Flags", "Response (P0)", "Process Descriptions"}) {
        window_.GoToTable(table);
        EXPECT_EQ(InTree(), Wrong{}) << table;
    }
}

TEST_F(AccessibleMainWindow, TellsTheRecordBesideTheRows) {
    window_.Press(Qt::Key_F9);
    for (const char* table : {"Locations", "Messages", "Objects", "Response (P0)"}) {
        window_.GoToTable(table);
        EXPECT_EQ(InTree(), Wrong{}) << table;
    }
}

TEST_F(AccessibleMainWindow, TellsTheBarsForFindingAndFiltering) {
    window_.GoToTable("Messages");
    window_.Action("Find").trigger();
    EXPECT_EQ(InTree(), Wrong{});
    window_.Press(Qt::Key_Escape);
    window_.Press(Qt::Key_K, Qt::ControlModifier);
    window_.Type("lamp");
    EXPECT_EQ(InTree(), Wrong{});
}

TEST_F(AccessibleMainWindow, TellsTheUsesOfARecord) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    window_.Press(Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_EQ(InTree(), Wrong{});
}

TEST_F(AccessibleMainWindow, TellsTheFirstPage) {
    window_.Press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(InTree(), Wrong{});
}

/// What is told to have got the keyboard, as a screen reader hears it.
class FocusListener {
  public:
    FocusListener() {
        told_.clear();
        before_ = QAccessible::installUpdateHandler(Hear);
        SetActive(true);
    }
    FocusListener(const FocusListener&) = delete;
    FocusListener& operator=(const FocusListener&) = delete;
    ~FocusListener() {
        SetActive(false);
        QAccessible::installUpdateHandler(before_);
    }
    /// The names of the parts since the last call.
    std::vector<std::string> Take() { return std::exchange(told_, {}); }

  private:
    /// The offscreen platform has no screen reader that could ask for events.
    static void SetActive(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
    static void Hear(QAccessibleEvent* event) {
        if (event->type() == QAccessible::Focus && event->object())
            told_.push_back(qt::FromQt(event->object()->objectName()));
    }

    static inline std::vector<std::string> told_;
    QAccessible::UpdateHandler before_;
};

TEST_F(AccessibleMainWindow, WalkingInTheTreeMovesNoFocusInTheRows) {
    window_.GoToTable("Locations");
    window_.Part<QTreeWidget>("Tree").setFocus();
    FocusListener listener;
    window_.Press(Qt::Key_Down);
    window_.Press(Qt::Key_Down);
    QApplication::processEvents();
    for (const std::string& part : listener.Take())
        EXPECT_EQ(part, "Tree");
    EXPECT_EQ(window_.Logic().Grid().View().table, store::TableNum::Vocabulary);
}

TEST_F(AccessibleMainWindow, WalkingInTheRowsTellsEachRow) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    FocusListener listener;
    window_.Press(Qt::Key_Down);
    EXPECT_EQ(listener.Take(), std::vector<std::string>{"Grid"});
}

TEST(AccessiblePicture, IsAPictureAndAMissingOneTellsWhy) {
    ide::PictureView view;
    const auto* access = QAccessible::queryAccessibleInterface(&view);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::blue);
    view.Show(image);
    EXPECT_EQ(access->role(), QAccessible::Graphic);
    EXPECT_EQ(access->text(QAccessible::Name), "Picture");
    view.Show("/nowhere", "gone.bmp");
    EXPECT_EQ(access->text(QAccessible::Name), "The file is missing.");
}

}  // namespace
}  // namespace fabula::test
