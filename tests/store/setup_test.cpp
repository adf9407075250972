#include "store/setup.h"

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "support/games/template_adventure.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

void SetSettings(Adventure& adventure, const char* type, int graphics, int charSets, int decompiled) {
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "*");
    settings.SetField("adventype", type);
    settings.SetField("graphics", graphics);
    settings.SetField("charsets", charSets);
    settings.SetField("unmarloed", decompiled);
    settings.Update();
}

TEST(Setup, StartsWithFabulaWithoutGraphicsAndWithTheSystemsFonts) {
    const AdventureSetup setup;
    EXPECT_EQ(setup.Type(), AdventureKind::Fabula);
    EXPECT_FALSE(setup.Graphics());
    EXPECT_FALSE(setup.CharSets());
}

TEST(Setup, ChoosingMarloTurnsCharacterSetsOnForGood) {
    AdventureSetup setup;
    setup.ChooseType(AdventureKind::Marlo);
    EXPECT_TRUE(setup.CharSets());
    EXPECT_FALSE(setup.ChooseCharSets(false));
    EXPECT_TRUE(setup.CharSets());
}

TEST(Setup, TheOtherTypesChooseFreely) {
    AdventureSetup setup;
    setup.ChooseType(AdventureKind::Vel);
    EXPECT_TRUE(setup.ChooseCharSets(true));
    EXPECT_TRUE(setup.CharSets());
    EXPECT_TRUE(setup.ChooseCharSets(false));
    EXPECT_FALSE(setup.CharSets());
    setup.ChooseGraphics(true);
    EXPECT_TRUE(setup.Graphics());
}

TEST(Setup, OpensOnWhatAnExistingFileHolds) {
    OpenedAdventure adventure;
    SetSettings(*adventure, "VEL", 1, 1, 0);
    const AdventureSetup setup(*adventure);
    EXPECT_EQ(setup.Type(), AdventureKind::Vel);
    EXPECT_TRUE(setup.Graphics());
    EXPECT_TRUE(setup.CharSets());
}

TEST(Setup, AGameFromADecompilerIsMarlo) {
    OpenedAdventure adventure;
    SetSettings(*adventure, "VEL", 0, 0, 1);
    const AdventureSetup setup(*adventure);
    EXPECT_EQ(setup.Type(), AdventureKind::Marlo);
    EXPECT_TRUE(setup.CharSets());
}

TEST(Setup, AFileNotYetClassifiedIsMarloFromADecompilerAndElseFabula) {
    OpenedAdventure adventure;
    SetSettings(*adventure, "Unknwn", 0, 0, 0);
    EXPECT_EQ(AdventureSetup(*adventure).Type(), AdventureKind::Fabula);
    SetSettings(*adventure, "Unknwn", 0, 0, 5);
    EXPECT_EQ(AdventureSetup(*adventure).Type(), AdventureKind::Marlo);
}

TEST(AdventureKind, IsNamedAsInTheSettings) {
    EXPECT_EQ(NameOf(AdventureKind::Fabula), "Fabula");
    EXPECT_EQ(NameOf(AdventureKind::Vel), "VEL");
    EXPECT_EQ(NameOf(AdventureKind::Marlo), "Marlo");
    EXPECT_EQ(AdventureKindFrom("vel"), AdventureKind::Vel);
    EXPECT_EQ(AdventureKindFrom("MARLO"), AdventureKind::Marlo);
    EXPECT_EQ(AdventureKindFrom("Unknwn"), std::nullopt);
    EXPECT_EQ(AdventureKindFrom(""), std::nullopt);
}

TEST(AdventureKind, OfAWordThatNamesNoneIsFabula) {
    EXPECT_EQ(AdventureKindOf("VEL"), AdventureKind::Vel);
    EXPECT_EQ(AdventureKindOf("marlo"), AdventureKind::Marlo);
    EXPECT_EQ(AdventureKindOf("Unknwn"), AdventureKind::Fabula);
}

}  // namespace
}  // namespace fabula::store
