#include "ide/dialogs/jobs/decompile_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <fstream>
#include <memory>

#include <gtest/gtest.h>

#include "ide/window/job_events.h"
#include "qt/qt_programs.h"
#include "support/active_window.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using authoring::DecompileScreen;
using std::filesystem::path;

/// Programs that run as in the authoring tool; what is shown is noted.
class NotedPrograms final : public qt::QtPrograms {
  public:
    std::vector<path> shown;

    bool ShowText(const path& file) override {
        shown.push_back(file);
        return true;
    }
};

/// Lets the window have its turns, and does something at each.
class TurnedEvents final : public platform::EventPump {
  public:
    std::function<void()> atTurn = [] {};

    void Pump() override {
        events_.Pump();
        atTurn();
    }

  private:
    ide::JobEvents events_;
};

/// The dialog with real programs: a stand-in for a decompiler, under names that tell it what to do.
class DecompileDialogTest : public testing::Test {
  protected:
    DecompileDialogTest() {
        std::ofstream(In("game; rm -rf $HOME.sna")) << "x";
        dialog_.show();
        EXPECT_TRUE(test::BecomesActive(&dialog_));
    }

    path In(const std::string& name) const { return folder_.Path() / name; }
    /// The program under a name.
    path ProgramNamed(const std::string& name) const {
        std::filesystem::create_symlink(StandInDecompiler(), In(name));
        return In(name);
    }
    template <typename Widget>
    Widget& Find(const char* name) {
        return *dialog_.findChild<Widget*>(name);
    }
    QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
    std::string Status() { return Find<QPlainTextEdit>("status").toPlainText().toStdString(); }
    void Type(const char* field, const path& text) {
        QLineEdit& line = Find<QLineEdit>(field);
        line.clear();
        QTest::keyClicks(&line, QString::fromStdString(text.string()));
    }
    void Fill(const char* option, const char* programField, const std::string& program) {
        Find<QRadioButton>(option).click();
        Type(programField, ProgramNamed(program));
        Type("input", In("game; rm -rf $HOME.sna"));
        Type("output", In("game.lst"));
    }
    static std::string Content(const path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    bool Exists(const char* name) const { return std::filesystem::exists(In(name)); }

    TempFolder folder_;
    platform::ScriptedDialogs dialogs_;
    TurnedEvents events_;
    platform::MemorySettings settings_;
    NotedPrograms programs_;
    DecompileScreen screen_{{dialogs_, events_, settings_, programs_}};
    ide::DecompileDialog dialog_{screen_};
};

TEST_F(DecompileDialogTest, AProgramThatSucceedsGivesAListing) {
    Fill("unVel", "unVelProgram", "UnVels succeeds");
    QTest::keyClick(&Find<QLineEdit>("output"), Qt::Key_Return);
    EXPECT_EQ(Content(In("game.lst")), In("game; rm -rf $HOME.sna").string() + "\n-C\n-G\n[]\n");
    EXPECT_EQ(programs_.shown, std::vector<path>{In("game.lst")});
    EXPECT_NE(Status().find("Written: " + In("game.lst").string()), std::string::npos) << Status();
    EXPECT_EQ(dialog_.focusWidget(), &Button("exit"));
    QTest::keyClick(dialog_.focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(DecompileDialogTest, UnMarloWritesTwoListings) {
    Fill("unMarlo", "unMarloProgram", "unMarlo.succeeds");
    EXPECT_TRUE(Find<QCheckBox>("passL").isEnabled());
    Find<QCheckBox>("passL").click();
    Button("run").click();
    const std::string input = In("game; rm -rf $HOME.sna").string();
    EXPECT_EQ(Content(In("game.lst.lis")), input + "\n-O\n-L\n-TZB\n[]\n");
    EXPECT_EQ(Content(In("game.lst")), input + "\n-O\n-L\n-TZ\n[]\n");
}

TEST_F(DecompileDialogTest, AProgramThatFailsShowsWhatItTells) {
    Fill("unVel", "unVelProgram", "UnVels-fails");
    Button("run").click();
    ASSERT_FALSE(dialogs_.Boxes().empty());
    EXPECT_EQ(dialogs_.Boxes().back().text,
              In("game.lst").string() + " does not exist and there is no UnVel output");
    EXPECT_NE(Status().find("UnVel tells:\nNot a snapshot: "), std::string::npos) << Status();
    EXPECT_NE(Status().find("UnVel ended with status 3."), std::string::npos) << Status();
    EXPECT_FALSE(Exists("game.lst"));
    EXPECT_TRUE(programs_.shown.empty());
    EXPECT_TRUE(Button("run").isEnabled());
}

TEST_F(DecompileDialogTest, AProgramThatComplainsAndWritesGivesAListing) {
    Fill("unVel", "unVelProgram", "UnVels-complains");
    Button("run").click();
    EXPECT_TRUE(Exists("game.lst"));
    EXPECT_NE(Status().find("UnVel ended with status 3."), std::string::npos) << Status();
}

TEST_F(DecompileDialogTest, AProgramWithoutOutputIsTold) {
    Fill("unMarlo", "unMarloProgram", "unmarlo-silent");
    Button("run").click();
    ASSERT_FALSE(dialogs_.Boxes().empty());
    EXPECT_EQ(dialogs_.Boxes().back().text,
              In("game.lst.lis").string() + " does not exist and there is no UnMarlo output");
    EXPECT_FALSE(Exists("game.lst"));
}

TEST_F(DecompileDialogTest, AProgramThatNeverEndsIsEndedByCancel) {
    Fill("unVel", "unVelProgram", "UnVels-endless");
    std::string progress;
    events_.atTurn = [&] {
        EXPECT_FALSE(Button("run").isEnabled());
        EXPECT_FALSE(Find<QLineEdit>("input").isEnabled());
        EXPECT_EQ(Button("exit").text(), "&Cancel");
        progress = Find<QLabel>("progress").text().toStdString();
        // What it has written shows that it runs.
        if (progress == "game.lst: 6 bytes") QTest::mouseClick(&Button("exit"), Qt::LeftButton);
    };
    Button("run").click();
    EXPECT_EQ(progress, "game.lst: 6 bytes");
    EXPECT_NE(Status().find("Decompiling cancelled"), std::string::npos) << Status();
    EXPECT_FALSE(Exists("game.lst"));
    EXPECT_TRUE(dialog_.isVisible());
    EXPECT_EQ(Button("exit").text(), "E&xit");
}

TEST_F(DecompileDialogTest, AProgramThatCrashesIsTold) {
    Fill("unVel", "unVelProgram", "UnVels-crashes");
    Button("run").click();
    ASSERT_FALSE(dialogs_.Boxes().empty());
    EXPECT_EQ(dialogs_.Boxes().back().text, "UnVel has crashed.");
    EXPECT_FALSE(Exists("game.lst"));
}

TEST_F(DecompileDialogTest, AFileThatIsNoProgramIsTold) {
    std::ofstream(In("UnVels.txt")) << "not a program";
    Find<QRadioButton>("unVel").click();
    Type("unVelProgram", In("UnVels.txt"));
    Type("input", In("game; rm -rf $HOME.sna"));
    Type("output", In("game.lst"));
    Button("run").click();
    ASSERT_FALSE(dialogs_.Boxes().empty());
    EXPECT_TRUE(dialogs_.Boxes().back().text.starts_with("Could not start " + In("UnVels.txt").string()));
    EXPECT_FALSE(Exists("game.lst"));
}

TEST_F(DecompileDialogTest, FilesThatWereChosenStandInTheirFields) {
    const path program = ProgramNamed("UnVels");
    Find<QRadioButton>("unVel").click();
    dialogs_.AnswerFile(program);
    Button("findUnVel").click();
    EXPECT_EQ(Find<QLineEdit>("unVelProgram").text().toStdString(), program.string());
    dialogs_.AnswerFile(In("mill.z80"));
    Button("chooseInput").click();
    EXPECT_EQ(Find<QLineEdit>("input").text().toStdString(), In("mill.z80").string());
    EXPECT_EQ(Find<QLineEdit>("output").text().toStdString(), In("mill.unp").string());
}

}  // namespace
}  // namespace fabula::test
