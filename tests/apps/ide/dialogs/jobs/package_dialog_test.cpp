#include "ide/dialogs/jobs/package_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <fstream>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "ide/dialog_checks.h"
#include "platform/settings.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

class PackageDialogTest : public testing::Test {
  protected:
    PackageDialogTest() {
        dialog_.show();
        QApplication::setActiveWindow(&dialog_);
    }

    std::filesystem::path Folder() { return desk_.Adventure().GameDir(); }
    void Click(const char* name) { dialog_.findChild<QAbstractButton*>(name)->click(); }
    QTableWidget& Files() { return *dialog_.findChild<QTableWidget*>("files"); }
    std::string Name(int row) { return qt::FromQt(Files().item(row, 1)->text()); }

    Desk desk_;
    platform::MemorySettings settings_;
    std::unique_ptr<packages::PackageScreen> screen_ =
        packages::PackageScreen::Open(desk_.context, settings_, {});
    ide::PackageDialog dialog_{*screen_};
};

TEST_F(PackageDialogTest, ShowsTheFiles) {
    EXPECT_EQ(dialog_.windowTitle(), "Package Your Adventure");
    ASSERT_EQ(Files().rowCount(), 2);
    EXPECT_EQ(Files().item(0, 0)->text(), "DB");
    EXPECT_EQ(Name(1), "New Adventure.ReadMe");
}

TEST_F(PackageDialogTest, CanBeUsedByKeysAndReadAloud) {
    EXPECT_EQ(WidgetsWithoutName(dialog_), std::vector<std::string>());
    EXPECT_EQ(MnemonicsTwice(dialog_), std::vector<std::string>());
    EXPECT_EQ(WidgetsThatTabMisses(dialog_), std::vector<std::string>());
    GrabInBothThemes(dialog_, "package");
}

TEST_F(PackageDialogTest, AddsAndDeletesFiles) {
    std::ofstream(Folder() / "map.txt") << "a map";
    desk_.dialogs.AnswerFile(Folder() / "map.txt");
    Click("addFiles");
    ASSERT_EQ(Files().rowCount(), 3);
    EXPECT_EQ(Name(1), "map.txt");
    Files().setCurrentCell(1, 0);
    desk_.dialogs.AnswerNext(true);
    Click("delete");
    EXPECT_EQ(Files().rowCount(), 2);
}

TEST_F(PackageDialogTest, UnticksAnEngineThatIsNotThere) {
    Click("includeEngine");
    EXPECT_FALSE(dialog_.findChild<QCheckBox*>("includeEngine")->isChecked());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"Engine not found on folder for this database"});
}

TEST_F(PackageDialogTest, PacksWithWhatWasTypedAndCloses) {
    dialog_.findChild<QLineEdit*>("version")->setText("3.1");
    dialog_.findChild<QPlainTextEdit*>("readMe")->setPlainText("Mind the step.");
    desk_.dialogs.AnswerFile(Folder() / "game.zip");
    QTest::keyClick(&dialog_, Qt::Key_Return);
    EXPECT_TRUE(std::filesystem::exists(Folder() / "game.zip"));
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
    std::ifstream readMe(Folder() / "New Adventure.ReadMe");
    const std::string text{std::istreambuf_iterator<char>(readMe), {}};
    EXPECT_NE(text.find("Version 3.1."), std::string::npos);
    EXPECT_NE(text.find("Mind the step."), std::string::npos);
}

TEST_F(PackageDialogTest, StaysOpenWithoutAVersion) {
    dialog_.findChild<QLineEdit*>("version")->clear();
    Click("pack");
    EXPECT_TRUE(dialog_.isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"Version is not filled in."});
}

}  // namespace
}  // namespace fabula::test
