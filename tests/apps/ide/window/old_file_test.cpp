// A file of an older version that the window opens.

#include <QApplication>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include "ide/author.h"
#include "qt/strings.h"
#include "support/raw_database.h"

namespace fabula::test {
namespace {

constexpr const char* kWithoutSource =
    "ALTER TABLE Adventure DROP COLUMN source; DELETE FROM Tables WHERE fieldname='source'";

std::filesystem::path MakeGame(const TempFolder& folder, const std::string& sql) {
    const auto file = folder / "old.fbd";
    GameBuilder().Write(file);
    RawDatabase(file).Run(sql);
    return file;
}

/// Keeps the text of the box of steps when it is shown.
class BoxOfSteps final : public QObject {
  public:
    BoxOfSteps() { qApp->installEventFilter(this); }
    std::vector<std::string> texts;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        const auto* box = qobject_cast<QProgressDialog*>(receiver);
        if (box && event->type() == QEvent::Show) texts.push_back(qt::FromQt(box->labelText()));
        return false;
    }
};

TEST(OldFile, ShowsItsStepsInABoxWhileTheyRun) {
    OpenedWindow window;
    BoxOfSteps box;
    window.Window().Start(MakeGame(window.folder, kWithoutSource));
    EXPECT_EQ(box.texts, std::vector<std::string>{"46 - Add of Source to Adventure table\n"});
    EXPECT_EQ(window.Window().findChild<QProgressDialog*>("upgrade"), nullptr) << "it has gone again";
    EXPECT_EQ(window.Window().windowTitle(), "Fabula IDE - old");
}

TEST(OldFile, AsksForItsTypeWithoutAWayAroundIt) {
    Author author;
    const auto file = MakeGame(author.Desk().folder, "UPDATE Adventure SET adventype='Unknwn'");
    author.Expects("Choose Type of Adventure", [&] {
        EXPECT_FALSE(author.Front().findChild<QPushButton*>("exit")->isVisible());
        author.Clicks("vel");
        author.Clicks("execute");
    });
    author.Desk().Window().Start(file);
    EXPECT_EQ(author.StillExpected(), 0u);
    EXPECT_EQ(RawDatabase(file).Ask("SELECT adventype FROM Adventure"), "VEL");
}

TEST(OldFile, ListsRulesWithOldFlagsUntilCancelIsPressed) {
    Author author;
    const auto file = MakeGame(
        author.Desk().folder,
        "UPDATE System SET flagchange=0; DELETE FROM ProcessTables;"
        "INSERT INTO ProcessTables(canum, estype, w1, w2, w1num, w2num, numcas, condacts, numericcondacts) "
        "VALUES(1,0,'_','_',255,255,1,'SET 260','224 260')");
    author.Expects("Version 6 Flag Change", [&] {
        const QString text = author.Front().findChild<QPlainTextEdit*>()->toPlainText();
        EXPECT_TRUE(text.endsWith("   1   0 _          _          SET 260\n")) << qt::FromQt(text);
        EXPECT_NE(author.Front().findChild<QPushButton*>("print"), nullptr);
        author.Front().findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    author.Desk().Window().Start(file);
    EXPECT_EQ(RawDatabase(file).Ask("SELECT flagchange FROM System"), "0");
    author.Chooses("File > Close");
    author.Expects("Version 6 Flag Change", [&] {
        author.Front().findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
    });
    author.Desk().Window().Start(file);
    EXPECT_EQ(RawDatabase(file).Ask("SELECT flagchange FROM System"), "1");
    EXPECT_EQ(author.StillExpected(), 0u);
}

}  // namespace
}  // namespace fabula::test
