#include "condacts/places.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "condacts/limits.h"

namespace fabula::condacts {
namespace {

TEST(Places, ThoseThatAreNoRoomLieBetweenTheLocations) {
    EXPECT_FALSE(IsSpecialPlace(PlaceNumber(251)));
    EXPECT_TRUE(IsSpecialPlace(PlaceNumber(252)));
    EXPECT_TRUE(IsSpecialPlace(PlaceNumber(255)));
    EXPECT_FALSE(IsSpecialPlace(PlaceNumber(256)));
}

TEST(Places, AreDescribedAsTheTableOfObjectsTellsThem) {
    EXPECT_EQ(DescriptionOfPlace(PlaceNumber(252)), "Not created.");
    EXPECT_EQ(DescriptionOfPlace(PlaceNumber(253)), "Worn.");
    EXPECT_EQ(DescriptionOfPlace(PlaceNumber(254)), "Carried.");
    EXPECT_EQ(DescriptionOfPlace(PlaceNumber(12)), "In Room 12.");
}

TEST(Places, HaveTheirWordsInConditionsAndActions) {
    ASSERT_EQ(std::size(kLocationWords), 4u);
    EXPECT_EQ(kLocationWords[0].word, "NOTCR");
    EXPECT_EQ(kLocationWords[0].number.value, 252);
    EXPECT_EQ(kLocationWords[3].word, "HERE");
    EXPECT_EQ(kLocationWords[3].number.value, 255);
}

TEST(Places, InsideAnObjectAreOfObjectsOnly) {
    EXPECT_EQ(Inside(ObjectNumber(7)), PlaceNumber(7));
    static_assert(!std::is_invocable_v<decltype(&Inside), FlagNumber>);
    static_assert(!std::is_invocable_v<decltype(&Inside), PlaceNumber>);
    static_assert(!std::is_invocable_v<decltype(&Inside), int>);
}

TEST(Numbers, OfOneKindAreNoneOfAnother) {
    static_assert(!std::is_convertible_v<FlagNumber, PlaceNumber>);
    static_assert(!std::is_constructible_v<PlaceNumber, FlagNumber>);
    static_assert(!std::is_convertible_v<int, FlagNumber>);
    static_assert(!std::is_convertible_v<FlagNumber, int>);
    EXPECT_LT(FlagNumber(3), FlagNumber(4));
    EXPECT_EQ(FlagNumber(3).value, 3);
}

TEST(Limits, AreThoseOfTheTypeOfTheAdventure) {
    using store::AdventureKind;
    EXPECT_EQ(SignificantLetters(AdventureKind::Fabula), 30);
    EXPECT_EQ(SignificantLetters(AdventureKind::Vel), 5);
    EXPECT_EQ(SignificantLetters(AdventureKind::Marlo), 4);
    EXPECT_EQ(HighestRecord(AdventureKind::Fabula), 999);
    EXPECT_EQ(HighestRecord(AdventureKind::Vel), 255);
    EXPECT_EQ(HighestObject(AdventureKind::Fabula), 999);
    EXPECT_EQ(HighestObject(AdventureKind::Marlo), 254);
}

}  // namespace
}  // namespace fabula::condacts
