#include "support/doubles/scripted_person.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

TEST(ScriptedPerson, KeepsWhatWasShownInOrder) {
    ScriptedPerson person;
    person.AnswerNext(true);
    person.Tell("Saved.", "Done");
    EXPECT_TRUE(person.Confirm("Go on?", "Question"));
    EXPECT_EQ(person.Boxes(),
              (std::vector<ScriptedPerson::Shown>{{"Saved.", "Done"}, {"Go on?", "Question"}}));
}

TEST(ScriptedPerson, AQuestionWithoutAPreparedAnswerIsAnErrorOfTheTest) {
    ScriptedPerson person;
    EXPECT_THROW(person.Confirm("Go on?", "Question"), std::logic_error);
}

}  // namespace
}  // namespace fabula::platform
