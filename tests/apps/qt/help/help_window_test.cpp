#include "qt/help/help_window.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include "qt/help/help.h"
#include "qt/help_folder.h"
#include "support/doubles/scripted_dialogs.h"

namespace fabula::test {
namespace {

TEST(HelpWindow, ShowsTheContentsWithoutATopic) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    window.Show({});
    EXPECT_EQ(window.Page(), "contents.html");
    EXPECT_EQ(window.findChild<QTreeWidget*>("Contents")->topLevelItemCount(), 3);
}

TEST(HelpWindow, ShowsThePageOfATopicAtItsAnchor) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    window.Show({"frmvellocation.html", {"txtexits"}});
    EXPECT_EQ(window.Page(), "frmvellocation.html");
    EXPECT_EQ(window.findChild<QTextBrowser*>("Page")->source().fragment(), "txtexits");
    EXPECT_EQ(window.findChild<QTreeWidget*>("Contents")->currentItem()->text(0), "Location");
}

TEST(HelpWindow, ShowsTheContentsForAPageThatIsMissing) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    window.Show({"missing.html", {}});
    EXPECT_EQ(window.Page(), "contents.html");
}

TEST(HelpWindow, LineOfTheContentsOpensItsPage) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    window.Show({});
    auto* contents = window.findChild<QTreeWidget*>("Contents");
    contents->setCurrentItem(contents->topLevelItem(1)->child(1));
    EXPECT_EQ(window.Page(), "frmvelvocabulary.html");
    window.findChild<QAction*>("Back")->trigger();
    EXPECT_EQ(window.Page(), "contents.html");
}

TEST(HelpWindow, SearchListsPagesAndEnterOpensTheFirst) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    window.Show({});
    auto* search = window.findChild<QLineEdit*>("Search");
    QTest::keyClicks(search, "lamp");
    EXPECT_EQ(window.findChild<QListWidget*>("Hits")->count(), 3);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(window.Page(), "frmvelidemain.html");
}

TEST(HelpWindow, SearchWithoutAHitSaysSo) {
    const HelpFolder folder;
    qt::HelpWindow window(folder.Contents());
    QTest::keyClicks(window.findChild<QLineEdit*>("Search"), "zebra");
    EXPECT_EQ(window.findChild<QListWidget*>("Hits")->item(0)->text(), "No page has these words.");
}

TEST(HelpRequest, F1AsksForThePageOfTheDialogAtTheControlWithTheKeyboard) {
    qt::HelpTopic asked;
    const qt::HelpRequest request([&](const qt::HelpTopic& topic) { asked = topic; });
    QDialog dialog;
    dialog.setObjectName("LocationDialog");
    dialog.setProperty(qt::kHelpPage, "frmvellocation.html");
    QLineEdit exits(&dialog);
    exits.setObjectName("exits");
    QTest::keyClick(&exits, Qt::Key_F1);
    EXPECT_EQ(asked.page, "frmvellocation.html");
    EXPECT_EQ(asked.anchors, QStringList({"txtexits", "locationdialog"}));
}

TEST(HelpRequest, PageOfAControlCountsBeforeThatOfItsDialog) {
    qt::HelpTopic asked;
    const qt::HelpRequest request([&](const qt::HelpTopic& topic) { asked = topic; });
    QDialog dialog;
    dialog.setProperty(qt::kHelpPage, "frmvelcondact.html");
    QLineEdit entry(&dialog);
    entry.setProperty(qt::kHelpPage, "at.htm");
    QTest::keyClick(&entry, Qt::Key_F1);
    EXPECT_EQ(asked.page, "at.htm");
}

TEST(HelpRequest, OtherKeysGoToTheirControl) {
    bool asked = false;
    const qt::HelpRequest request([&](const qt::HelpTopic&) { asked = true; });
    QLineEdit line;
    QTest::keyClicks(&line, "a");
    QTest::keyClick(&line, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_FALSE(asked);
    EXPECT_EQ(line.text(), "a");
}

TEST(Help, OpensItsWindowWhenItIsFirstAskedFor) {
    const HelpFolder folder;
    platform::ScriptedDialogs dialogs;
    qt::Help help(folder.Contents(), dialogs);
    EXPECT_EQ(help.Window(), nullptr);
    QLineEdit word;
    word.setProperty(qt::kHelpPage, "frmvelvocabulary.html");
    QTest::keyClick(&word, Qt::Key_F1);
    ASSERT_NE(help.Window(), nullptr);
    EXPECT_EQ(help.Window()->Page(), "frmvelvocabulary.html");
    EXPECT_FALSE(help.Window()->testAttribute(Qt::WA_QuitOnClose));
    help.Close();
    EXPECT_EQ(help.Window(), nullptr);
}

TEST(Help, WithoutItsPagesSaysSo) {
    platform::ScriptedDialogs dialogs;
    qt::Help help({}, dialogs);
    help.Show({});
    ASSERT_EQ(dialogs.Boxes().size(), 1U);
    EXPECT_EQ(dialogs.Boxes()[0].text, "The pages of the help were not found.");
    EXPECT_EQ(dialogs.Boxes()[0].title, "Help");
    EXPECT_EQ(help.Window(), nullptr);
}

}  // namespace
}  // namespace fabula::test
