#include "authoring/fields/flag_meaning.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

TEST(FlagName, IsWhatTheEngineKeepsInTheFlag) {
    EXPECT_EQ(FlagName(33, "Number of the verb of the sentence, 255 if it has none."), "verb");
    EXPECT_EQ(FlagName(38, ""), "place of the player");
}

TEST(FlagName, IsTheFirstClauseOfADescription) {
    EXPECT_EQ(FlagName(60, "Lamp lit"), "Lamp lit");
    EXPECT_EQ(FlagName(60, "The lamp is lit. 255 for ever."), "The lamp is lit");
    EXPECT_EQ(FlagName(60, "Lamp lit, or nearly"), "Lamp lit");
    EXPECT_EQ(FlagName(60, "Lamp (see 61)"), "Lamp");
    EXPECT_EQ(FlagName(60, "Time: 12.5"), "Time: 12.5");
}

TEST(FlagName, OfADescriptionThatSaysNothingIsNone) {
    EXPECT_EQ(FlagName(60, ""), "");
    EXPECT_EQ(FlagName(60, "Used by this Adventure."), "");
}

}  // namespace
}  // namespace fabula::authoring
