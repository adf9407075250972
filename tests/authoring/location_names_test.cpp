#include "authoring/location_names.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

TEST(LocationName, IsTheShortDescription) {
    EXPECT_EQ(LocationName("The lamp room", "You are in the lamp room."), "The lamp room");
}

TEST(LocationName, WithoutAShortDescriptionIsTheBeginningOfTheLongOne) {
    EXPECT_EQ(LocationName(" ", "You are\u008Con the  stairs."), "You are on the stairs.");
}

TEST(LocationName, HasNoMarkup) {
    EXPECT_EQ(LocationName("<INK=2>Fish &amp; chips<INK>", ""), "Fish & chips");
}

TEST(LocationName, HasSixtyCharactersAtMost) {
    const std::string sixty = "\u00C4" + std::string(59, 'x');
    EXPECT_EQ(LocationName(sixty, ""), sixty);
    EXPECT_EQ(LocationName(sixty + "y", ""), "\u00C4" + std::string(58, 'x') + "\u2026");
}

}  // namespace
}  // namespace fabula::authoring
