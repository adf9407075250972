#include "authoring/settings/setup_texts.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

using store::AdventureKind;

TEST(SetupTexts, ExplainEveryChoiceInTheSystemsWords) {
    EXPECT_EQ(kSetupTitle, "Choose Type of Adventure");
    EXPECT_EQ(ExplainType(AdventureKind::Fabula),
              "Fabula: Takes all Fabula constructs, including extra Conditions & Actions.");
    EXPECT_EQ(
        ExplainType(AdventureKind::Vel),
        "VEL: Only original VEL constructs (Conditions, Actions, & Graphics Commands) are available.");
    EXPECT_EQ(ExplainType(AdventureKind::Marlo),
              "Marlo: Only original Marlo/Mender/Limner constructs are available. Graphics Editor is "
              "included if Graphic selected below.");
    EXPECT_EQ(ExplainGraphics(true), "Graphic: Graphics Editor is included & used in game.");
    EXPECT_EQ(ExplainGraphics(false), "Non-Graphic: Graphic Editor is NOT included.");
    EXPECT_EQ(ExplainCharSets(true), "Yes - Marlo & VEL character sets used");
    EXPECT_EQ(ExplainCharSets(false), "No - Windows Fonts used (Saves memory)");
}

}  // namespace
}  // namespace fabula::authoring
