#include "authoring/fields/flag_meaning.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "authoring/entries/made_records.h"

namespace fabula::authoring {
namespace {

using condacts::FlagNumber;
using condacts::PlaceNumber;

// A place has no name of a flag, and a flag is made no place.
static_assert(std::is_invocable_v<decltype(&FlagName), FlagNumber, std::string_view>);
static_assert(!std::is_invocable_v<decltype(&FlagName), PlaceNumber, std::string_view>);
static_assert(!std::is_invocable_v<decltype(&FlagName), int, std::string_view>);
static_assert(std::is_invocable_v<decltype(&AddPlace), store::Adventure&, PlaceNumber, std::string>);
static_assert(!std::is_invocable_v<decltype(&AddPlace), store::Adventure&, FlagNumber, std::string>);
static_assert(
    !std::is_invocable_v<decltype(&AddPlace), store::Adventure&, condacts::ObjectNumber, std::string>);

TEST(FlagName, IsWhatTheEngineKeepsInTheFlag) {
    EXPECT_EQ(FlagName(FlagNumber(33), "Number of the verb of the sentence, 255 if it has none."), "verb");
    EXPECT_EQ(FlagName(FlagNumber(38), ""), "place of the player");
}

TEST(FlagName, IsTheFirstClauseOfADescription) {
    EXPECT_EQ(FlagName(FlagNumber(60), "Lamp lit"), "Lamp lit");
    EXPECT_EQ(FlagName(FlagNumber(60), "The lamp is lit. 255 for ever."), "The lamp is lit");
    EXPECT_EQ(FlagName(FlagNumber(60), "Lamp lit, or nearly"), "Lamp lit");
    EXPECT_EQ(FlagName(FlagNumber(60), "Lamp (see 61)"), "Lamp");
    EXPECT_EQ(FlagName(FlagNumber(60), "Time: 12.5"), "Time: 12.5");
}

TEST(FlagName, OfADescriptionThatSaysNothingIsNone) {
    EXPECT_EQ(FlagName(FlagNumber(60), ""), "");
    EXPECT_EQ(FlagName(FlagNumber(60), "Used by this Adventure."), "");
}

}  // namespace
}  // namespace fabula::authoring
