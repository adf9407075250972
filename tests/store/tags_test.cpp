#include "store/tags.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"
#include "text/markup.h"

namespace fabula::store {
namespace {

TEST(LoadTagCatalogue, KnowsTheTagsOfTheDefaultData) {
    const test::OpenedAdventure game;
    const text::TagCatalogue tags = LoadTagCatalogue(*game);
    const text::CodeRow* ink = tags.FindTag("INK");
    ASSERT_NE(ink, nullptr);
    EXPECT_EQ(ink->codenum, 1);
    EXPECT_EQ(ink->fabulaTagVal, "CO");
    EXPECT_EQ(tags.FindTag("nonsense"), nullptr);
}

TEST(LoadTagCatalogue, WithoutCharacterSetsASetIsTheNumberOfAFont) {
    const test::OpenedAdventure game(AdventureKind::Fabula);
    const text::TagCatalogue tags = LoadTagCatalogue(*game);
    EXPECT_TRUE(tags.HasCharacterSet(1));
    EXPECT_FALSE(tags.HasCharacterSet(997));
}

TEST(LoadTagCatalogue, WithCharacterSetsASetMustHaveCharacters) {
    const test::OpenedAdventure game(AdventureKind::Marlo);
    const text::TagCatalogue tags = LoadTagCatalogue(*game);
    EXPECT_TRUE(tags.HasCharacterSet(0));
    EXPECT_FALSE(tags.HasCharacterSet(1));
}

}  // namespace
}  // namespace fabula::store
