#include "platform/file_question.h"

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

TEST(FilterOf, IsTheKindAndThePatternOfItsExtension) {
    EXPECT_EQ(FilterOf("Fabula Save File", ".sav"), "Fabula Save File|*.sav");
}

TEST(QuestionFor, TakesTheExtensionForNamesThatHaveNone) {
    const FileQuestion question =
        QuestionFor("Save as a Fabula Save File", "Fabula Save File", ".sav", "games");
    EXPECT_EQ(question.title, "Save as a Fabula Save File");
    EXPECT_EQ(question.filter, "Fabula Save File|*.sav");
    EXPECT_EQ(question.extension, "sav");
    EXPECT_EQ(question.start, "games");
    EXPECT_FALSE(question.forWriting);
}

}  // namespace
}  // namespace fabula::platform
