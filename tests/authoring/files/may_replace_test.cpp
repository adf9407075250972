#include "authoring/files/may_replace.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/doubles/scripted_person.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

class MayReplaceTest : public testing::Test {
  protected:
    std::filesystem::path Existing() const {
        std::ofstream(folder_ / "game.fbd") << "x";
        return folder_ / "game.fbd";
    }

    test::TempFolder folder_;
    platform::ScriptedPerson person_;
};

TEST_F(MayReplaceTest, AFileThatIsNotThereNeedsNoQuestion) {
    EXPECT_TRUE(MayReplace(folder_ / "game.fbd", person_));
    EXPECT_TRUE(person_.Boxes().empty());
}

TEST_F(MayReplaceTest, AnExistingFileMayBeReplacedAfterYes) {
    const auto file = Existing();
    person_.AnswerNext(true);
    EXPECT_TRUE(MayReplace(file, person_));
    ASSERT_EQ(person_.Boxes().size(), 1u);
    EXPECT_EQ(person_.Boxes()[0].text, "All information in " + file.string() + " will be deleted.");
    EXPECT_EQ(person_.Boxes()[0].title, "Warning");
}

TEST_F(MayReplaceTest, AnExistingFileStaysAfterNo) {
    const auto file = Existing();
    person_.AnswerNext(false);
    EXPECT_FALSE(MayReplace(file, person_));
}

TEST_F(MayReplaceTest, WhatCannotBeLookedAtIsLeftToItsWriting) {
    EXPECT_TRUE(MayReplace(folder_.Path() / std::string(300, 'x'), person_));
    EXPECT_TRUE(person_.Boxes().empty());
}

}  // namespace
}  // namespace fabula::authoring
