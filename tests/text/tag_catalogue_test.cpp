#include "text/tag_catalogue.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

TEST(TagCatalogue, FindsATagByItsNameInAnyCase) {
    const TagCatalogue tags({{1, "ink", 2, "CO", ""}, {7, "bright", 0, "", ""}, {8, "/bright", 0, "", ""}});
    ASSERT_NE(tags.FindTag("INK"), nullptr);
    EXPECT_EQ(tags.FindTag("INK")->codenum, 1);
    ASSERT_NE(tags.FindTag("/Bright"), nullptr);
    EXPECT_EQ(tags.FindTag("/Bright")->codenum, 8);
    EXPECT_EQ(tags.FindTag("in"), nullptr);
}

TEST(TagCatalogue, ARowWithoutATagIsNotFoundByTheEmptyName) {
    const TagCatalogue tags({{12, "", 0, "", "Arial"}});
    EXPECT_EQ(tags.FindTag(""), nullptr);
}

TEST(TagCatalogue, WithCharacterSetsTheirNumbersCountAndFontsDoNot) {
    const TagCatalogue tags({{12, "", 0, "", "Arial"}}, std::set<int>{0, 3});
    EXPECT_TRUE(tags.HasCharacterSet(3));
    EXPECT_FALSE(tags.HasCharacterSet(12));
    EXPECT_FALSE(tags.HasCharacterSet(4294967299));
}

TEST(TagCatalogue, WithoutCharacterSetsTheNumbersOfFontsCount) {
    const TagCatalogue tags({{12, "", 0, "", "Arial"}, {13, "", 0, "", ""}});
    EXPECT_TRUE(tags.HasCharacterSet(12));
    EXPECT_FALSE(tags.HasCharacterSet(13));
    EXPECT_FALSE(tags.HasCharacterSet(3));
}

TEST(TagCatalogue, HasACodeForEveryRow) {
    const TagCatalogue tags({{12, "", 0, "", "Arial"}, {130, "", 0, "", ""}});
    EXPECT_TRUE(tags.HasCode(130));
    EXPECT_FALSE(tags.HasCode(131));
    EXPECT_FALSE(tags.HasCode(4294967426));
}

}  // namespace
}  // namespace fabula::text
