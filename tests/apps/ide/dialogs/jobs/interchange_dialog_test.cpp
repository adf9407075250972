#include "ide/dialogs/jobs/interchange_dialog.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <memory>

#include <gtest/gtest.h>

#include "ide/dialog_checks.h"
#include "support/active_window.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/doubles/scripted_pump.h"
#include "support/games/template_adventure.h"
#include "support/places.h"

namespace fabula::test {
namespace {

using authoring::InterchangeScreen;
using authoring::JobMode;

class InterchangeDialogTest : public testing::Test {
  protected:
    void Open(JobMode mode) {
        dialog_.reset();
        screen_ = std::make_unique<InterchangeScreen>(mode, &*adventure_, host_);
        dialog_ = std::make_unique<ide::InterchangeDialog>(*screen_, dialogs_);
        dialog_->show();
        ASSERT_TRUE(test::BecomesActive(dialog_.get()));
    }
    ~InterchangeDialogTest() override { dialog_.reset(); }

    template <typename Widget>
    Widget& Find(const char* name) {
        return *dialog_->findChild<Widget*>(name);
    }
    QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
    QString Status() { return Find<QPlainTextEdit>("status").toPlainText(); }
    void Type(const char* field, const std::filesystem::path& path) {
        QLineEdit& line = Find<QLineEdit>(field);
        line.clear();
        QTest::keyClicks(&line, QString::fromStdString(path.string()));
    }
    std::filesystem::path In(const char* name) const { return adventure_.Folder() / name; }
    std::filesystem::path Exported() {
        InterchangeScreen screen(JobMode::Export, &*adventure_, host_);
        screen.ChooseKind(2);
        screen.source = In("game.ext").string();
        EXPECT_TRUE(screen.RunJob());
        return In("game.ext");
    }

    OpenedAdventure adventure_;
    platform::ScriptedDialogs dialogs_;
    platform::FixedClock clock_{{2026, 3, 9, 8, 5, 7}};
    ScriptedPump pump_;
    platform::MemorySettings settings_;
    authoring::InterchangeHost host_{dialogs_, clock_, pump_, settings_, test::DefaultData()};
    std::unique_ptr<InterchangeScreen> screen_;
    std::unique_ptr<ide::InterchangeDialog> dialog_;
};

TEST_F(InterchangeDialogTest, ShowsTheModeOfItsScreen) {
    Open(JobMode::Import);
    EXPECT_EQ(dialog_->windowTitle(), "Import of source file");
    EXPECT_EQ(Find<QLabel>("statusCaption").text(), "Import Status");
    EXPECT_EQ(Button("start").text(), "&Import");
    EXPECT_EQ(Button("print").text(), "&Print Status");
    EXPECT_FALSE(Button("print").isEnabled());
}

TEST_F(InterchangeDialogTest, EveryKindCanBeChosen) {
    Open(JobMode::Import);
    EXPECT_TRUE(Find<QRadioButton>("kindPCVEL").isChecked());
    Find<QRadioButton>("kindUnMarlo").click();
    EXPECT_EQ(screen_->ChosenKind(), 0U);
    Find<QRadioButton>("kindACE").click();
    EXPECT_EQ(screen_->ChosenKind(), 4U);
}

TEST_F(InterchangeDialogTest, ImportsByKeysAndClicks) {
    const auto source = Exported();
    Open(JobMode::Import);
    Find<QRadioButton>("kindPCVEL").setFocus();
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Find<QRadioButton>("kindFabula").isChecked());
    Type("source", source);
    Type("database", In("new.fbd"));
    QTest::keyClick(&Find<QLineEdit>("database"), Qt::Key_Return);
    EXPECT_EQ(screen_->NewFile(), In("new.fbd"));
    EXPECT_TRUE(Status().startsWith("Creating default database for "));
    EXPECT_EQ(Status().toStdString(), screen_->Status());
    EXPECT_EQ(Find<QProgressBar>("progressBar").value(), 100);
    EXPECT_FALSE(Button("start").isEnabled());
    EXPECT_TRUE(Button("print").isEnabled());
    QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(InterchangeDialogTest, TheLettersOfAnImportCanBeChosen) {
    Open(JobMode::Import);
    auto& letters = Find<QComboBox>("encoding");
    EXPECT_EQ(letters.currentText(), "As the file tells");
    letters.setCurrentText("Windows-1252");
    EXPECT_EQ(screen_->encoding, interchange::Encoding::Windows1252);
    Open(JobMode::Export);
    EXPECT_EQ(dialog_->findChild<QComboBox*>("encoding"), nullptr);
}

TEST_F(InterchangeDialogTest, ListingsOfOlderGamesAreImported) {
    struct Row {
        const char* button;
        const char* listing;
        const char* last;
    };
    for (const Row& row :
         {Row{"kindUnMarlo", "honey_run/honey_run.unq", "honey_run.unq Loaded"},
          Row{"kindUnVel", "stuck_cockerel/stuck_cockerel.unp", "stuck_cockerel.unp Loaded"}}) {
        Open(JobMode::Import);
        Find<QRadioButton>(row.button).click();
        Type("source", test::SourceFolder() / "examples" / row.listing);
        Type("database", In(row.button).replace_extension(".fbd"));
        QTest::keyClick(&Find<QLineEdit>("database"), Qt::Key_Return);
        EXPECT_EQ(screen_->NewFile(), In(row.button).replace_extension(".fbd")) << screen_->Status();
        EXPECT_TRUE(Status().contains("User Flag Analysis")) << Status().toStdString();
        EXPECT_EQ(dialogs_.Boxes().back().text, row.last);
    }
}

TEST_F(InterchangeDialogTest, FilesThatWereChosenStandInTheirFields) {
    Open(JobMode::Import);
    dialogs_.AnswerFile(In("mill.sce"));
    Button("chooseSource").click();
    EXPECT_EQ(Find<QLineEdit>("source").text().toStdString(), In("mill.sce").string());
    EXPECT_EQ(Find<QLineEdit>("database").text().toStdString(), In("mill.fbd").string());
    dialogs_.AnswerFile(In("other.fbd"));
    Button("chooseDatabase").click();
    EXPECT_EQ(Find<QLineEdit>("database").text().toStdString(), In("other.fbd").string());
}

TEST_F(InterchangeDialogTest, BlankSourceKeepsTheFocus) {
    Open(JobMode::Import);
    Button("start").click();
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Source File not specified");
    EXPECT_EQ(dialog_->focusWidget(), &Find<QLineEdit>("source"));
}

TEST_F(InterchangeDialogTest, NothingCanBeChangedWhileAJobRuns) {
    const auto source = Exported();
    Open(JobMode::Import);
    Find<QRadioButton>("kindFabula").click();
    Type("source", source);
    Type("database", In("new.fbd"));
    int turns = 0;
    pump_.atTurn = [&] {
        if (!screen_->Running()) return;
        ++turns;
        EXPECT_FALSE(Button("start").isEnabled());
        EXPECT_FALSE(Find<QLineEdit>("source").isEnabled());
        EXPECT_FALSE(Find<QRadioButton>("kindPCVEL").isEnabled());
        EXPECT_EQ(Button("exit").text(), "&Cancel");
        Button("start").click();
    };
    Button("start").click();
    EXPECT_GT(turns, 3);
    EXPECT_TRUE(screen_->NewFile());
    EXPECT_EQ(Button("exit").text(), "E&xit");
}

TEST_F(InterchangeDialogTest, CancelEndsTheJobAndLeavesTheWindowOpen) {
    const auto source = Exported();
    Open(JobMode::Import);
    Find<QRadioButton>("kindFabula").click();
    Type("source", source);
    Type("database", In("new.fbd"));
    pump_.atTurn = [&] {
        if (screen_->Running()) Button("exit").click();
    };
    Button("start").click();
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_FALSE(std::filesystem::exists(In("new.fbd")));
    EXPECT_TRUE(Status().endsWith("Import cancelled\nDeleting bad database\n"));
    EXPECT_TRUE(Button("start").isEnabled());
}

TEST_F(InterchangeDialogTest, ExportShowsTheCheckAndGoesOnWhenItHasPassed) {
    Open(JobMode::Export);
    EXPECT_EQ(dialog_->findChild<QLineEdit*>("database"), nullptr);
    Find<QRadioButton>("kindFabula").click();
    Type("source", In("game.ext"));
    Button("start").click();
    EXPECT_TRUE(std::filesystem::exists(In("game.ext")));
    EXPECT_TRUE(Status().contains("No Errors Found"));
    EXPECT_EQ(QApplication::activeModalWidget(), dialog_.get());
}

TEST_F(InterchangeDialogTest, ExportWaitsUntilTheFaultsOfTheCheckWereRead) {
    store::Cursor& entries = adventure_->OpenTable(store::TableNum::ProcessTables, "def");
    entries.AddNew();
    entries.SetField("canum", std::int64_t{0});
    entries.SetField("estype", std::int64_t{0});
    entries.SetField("w1", std::string("*"));
    entries.SetField("w2", std::string("*"));
    entries.SetField("condacts", std::string("BRIGHT 1"));
    entries.Update();
    Open(JobMode::Export);
    Type("source", In("game.sce"));
    bool read = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* check = QApplication::activeModalWidget();
        auto* progress = check ? check->findChild<QLabel*>("progress") : nullptr;
        if (!progress || progress->text() != "The adventure has not passed.") return;
        read = true;
        check->findChild<QPushButton*>("ok")->click();
    });
    watch.start(1);
    Button("start").click();
    EXPECT_TRUE(read);
    EXPECT_FALSE(std::filesystem::exists(In("game.sce")));
    EXPECT_TRUE(Status().contains("Use of BRIGHT Condition/Action."));
}

TEST_F(InterchangeDialogTest, EveryControlHasANameAndBothThemesShowIt) {
    const auto source = Exported();
    for (const JobMode mode : {JobMode::Export, JobMode::Import}) {
        Open(mode);
        EXPECT_EQ(WidgetsWithoutName(*dialog_), std::vector<std::string>{});
        GrabInBothThemes(*dialog_, mode == JobMode::Export ? "export" : "import-empty");
    }
    Find<QRadioButton>("kindFabula").click();
    Type("source", source);
    Type("database", In("new.fbd"));
    Button("start").click();
    GrabInBothThemes(*dialog_, "import-done");
}

}  // namespace
}  // namespace fabula::test
