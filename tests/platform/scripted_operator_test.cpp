#include "platform/scripted_operator.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

TEST(ScriptedOperator, KeepsWhatWasShownInOrder) {
    ScriptedOperator person;
    person.AnswerNext(true);
    person.Tell("Saved.", "Done");
    EXPECT_TRUE(person.Confirm("Go on?", "Question"));
    EXPECT_EQ(person.Boxes(),
              (std::vector<ScriptedOperator::Shown>{{"Saved.", "Done"}, {"Go on?", "Question"}}));
}

TEST(ScriptedOperator, AQuestionWithoutAPreparedAnswerIsAnErrorOfTheTest) {
    ScriptedOperator person;
    EXPECT_THROW(person.Confirm("Go on?", "Question"), std::logic_error);
}

}  // namespace
}  // namespace fabula::platform
