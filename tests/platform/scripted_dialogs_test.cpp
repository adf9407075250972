#include "support/doubles/scripted_dialogs.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

TEST(ScriptedDialogs, GiveTheirAnswersInTheirOrder) {
    ScriptedDialogs dialogs;
    dialogs.AnswerText("first");
    dialogs.AnswerText(std::nullopt);
    dialogs.AnswerFile("/games/a.fbd");
    dialogs.AnswerNext(false);
    EXPECT_EQ(dialogs.AskText({"Name:", "Set Name", "My Set"}), "first");
    EXPECT_EQ(dialogs.AskText({"Name:", "Set Name", "My Set"}), std::nullopt);
    EXPECT_EQ(dialogs.ChooseFile(FileQuestion()), "/games/a.fbd");
    EXPECT_FALSE(dialogs.Proceed("Go on?", "Question"));
}

TEST(ScriptedDialogs, KeepWhatTheyWereShown) {
    ScriptedDialogs dialogs;
    dialogs.Tell("Weight must be from 0 to 63", "Error");
    dialogs.Report("1 record", "Listing");
    dialogs.AnswerText("x");
    dialogs.AskText({"Name:", "Set Name", "My Set 2"});
    EXPECT_EQ(dialogs.Boxes(),
              (std::vector<ScriptedDialogs::Shown>{{"Weight must be from 0 to 63", "Error"}}));
    EXPECT_EQ(dialogs.Reports(), (std::vector<ScriptedDialogs::Shown>{{"1 record", "Listing"}}));
    EXPECT_EQ(dialogs.TextQuestions().at(0).proposal, "My Set 2");
}

TEST(ScriptedDialogs, AnswerReportsThatAsk) {
    ScriptedDialogs dialogs;
    dialogs.AnswerNext(false);
    EXPECT_FALSE(dialogs.ProceedFromReport("SET 260", "Version 6 Flag Change"));
    EXPECT_EQ(dialogs.Reports(),
              (std::vector<ScriptedDialogs::Shown>{{"SET 260", "Version 6 Flag Change"}}));
}

TEST(ScriptedDialogs, RefuseAQuestionThatNoTestExpects) {
    ScriptedDialogs dialogs;
    EXPECT_THROW(dialogs.ChooseFile(FileQuestion()), std::logic_error);
    EXPECT_THROW(dialogs.AskText({"Name:", "Set Name", ""}), std::logic_error);
    EXPECT_THROW(dialogs.Confirm("Sure?", "Question"), std::logic_error);
}

}  // namespace
}  // namespace fabula::platform
