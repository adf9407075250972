#include "authoring/desk/batch_commands.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/main_screen_stand.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::HasSubstr;

class BatchCommands : public testing::Test, public test::MainScreenStand {
  protected:
    BatchCommands() {
        OpenNew();
        StoreMessage(0, "It is damp.");
        StoreMessage(1, "It glows.");
        main->Show({TableNum::Messages});
    }

    void Export(const char* scope, std::optional<std::string> processes = std::nullopt) {
        dialogs.AnswerText(scope);
        if (processes) dialogs.AnswerText(*processes);
        dialogs.AnswerFile(folder / "out.fbb");
        main->Run(Command::BatchExport);
    }
    std::string Written() const { return test::ReadBytes(folder / "out.fbb"); }
    void Import(const std::string& text) {
        std::ofstream(folder / "in.fbb") << text;
        dialogs.AnswerFile(folder / "in.fbb");
        main->Run(Command::BatchImport);
    }
};

TEST_F(BatchCommands, ExportTheCurrentTable) {
    Export("Current");
    EXPECT_THAT(Written(),
                HasSubstr("/MSG\nMessage=0\nText=\nIt is damp.\nENDDESC\nENDRECORD\nMessage=1\n"));
    EXPECT_EQ(main->Message(), "Written to out.fbb.");
    EXPECT_EQ(dialogs.Questions().back().title, "Save as a Fabula Batch File");
    EXPECT_EQ(dialogs.Questions().back().filter, "Fabula Batch File|*.fbb");
}

TEST_F(BatchCommands, ExportTheSelectedRecord) {
    main->SelectRow(1);
    Export("selected");
    EXPECT_EQ(Written(), "/MSG\nMessage=1\nText=\nIt glows.\nENDDESC\nENDRECORD\n/END\n");
}

TEST_F(BatchCommands, ExportAllTablesAndAskForTheProcesses) {
    Export("ALL", "0-1");
    EXPECT_THAT(Written(), HasSubstr("/PRO\n/END\n/PRO\n/END\n/ADV\n"));
    EXPECT_EQ(dialogs.TextQuestions().back().title, "List of Processes to Export");
    EXPECT_EQ(dialogs.TextQuestions().back().prompt, "(M-N,ALL,comma separated list)");
}

TEST_F(BatchCommands, RefuseAnotherScopeAndAListThatIsNone) {
    dialogs.AnswerText("some");
    main->Run(Command::BatchExport);
    EXPECT_EQ(Boxes().back(), "The scope is Current, Selected or ALL.");
    dialogs.AnswerText("ALL");
    dialogs.AnswerText("1-");
    main->Run(Command::BatchExport);
    EXPECT_EQ(Boxes().back(), "\"1-\" is no list of process tables.");
}

TEST_F(BatchCommands, ImportAFileInOneStepOfUndo) {
    Import("/MSG\nMessage=1\nText=\nIt glitters.\nENDDESC\nENDRECORD\n/END\n");
    EXPECT_EQ(main->Message(), "1 record changed by in.fbb.");
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "msgmsg", "msgnum=1").Text("msgmsg"),
              "It glitters.");
    main->Run(Command::Undo);
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "msgmsg", "msgnum=1").Text("msgmsg"), "It glows.");
}

TEST_F(BatchCommands, ShowFaultsWithFileAndLineAndChangeNothing) {
    Import("/MSG\nMessage=1\nText=\n<none>\nENDDESC\nENDRECORD\n/END\n");
    ASSERT_EQ(dialogs.Reports().size(), 1u);
    EXPECT_THAT(dialogs.Reports()[0].text, HasSubstr("in.fbb:3:1: fault: "));
    EXPECT_THAT(dialogs.Reports()[0].text, HasSubstr("Nothing was changed."));
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "msgmsg", "msgnum=1").Text("msgmsg"), "It glows.");
}

}  // namespace
}  // namespace fabula::authoring
