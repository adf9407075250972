#include "interchange/listing/picture_listing.h"

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

TEST(PictureHead, TakesColoursFromThatOfTheAdventureToTheLast) {
    const auto head = PictureHead::Read("Location 3 graphics flag: Picture Ink=-1 Paper=15");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->number, 3);
    EXPECT_EQ(head->ink, -1);
    EXPECT_EQ(head->paper, 15);
}

TEST(PictureHead, LacksAColourThatIsNone) {
    const auto head = PictureHead::Read("Location 3 graphics flag: Picture Ink=-2 Paper=16");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->ink, std::nullopt);
    EXPECT_EQ(head->paper, std::nullopt);
}

}  // namespace
}  // namespace fabula::interchange
