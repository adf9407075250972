#include "store/ifid.h"

#include <set>

#include <gtest/gtest.h>

#include "support/conversation.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

TEST(NewIfid, IsAnUpperCaseUuidOfRandomBits) {
    std::set<std::string> made;
    for (int n = 0; n < 100; ++n) {
        const std::string ifid = NewIfid();
        EXPECT_TRUE(IsIfid(ifid)) << ifid;
        EXPECT_EQ(ifid[14], '4');
        EXPECT_NE(std::string("89AB").find(ifid[19]), std::string::npos);
        made.insert(ifid);
    }
    EXPECT_EQ(made.size(), 100u);
}

TEST(IsIfid, TakesCapitalsInTheFormOfAUuidOnly) {
    EXPECT_TRUE(IsIfid("5B1F0A6C-8E0D-4C53-9A77-0F2D6B1E43C9"));
    for (const char* other :
         {"", "5b1f0a6c-8e0d-4c53-9a77-0f2d6b1e43c9", "5B1F0A6C8E0D4C539A770F2D6B1E43C9",
          "5B1F0A6C-8E0D-4C53-9A77-0F2D6B1E43C", "5B1F0A6C-8E0D-4C53-9A77-0F2D6B1E43CG"})
        EXPECT_FALSE(IsIfid(other)) << other;
}

TEST(IfidOf, StandsInTheFileAsPlainText) {
    test::OpenedAdventure adventure;
    EXPECT_EQ(IfidOf(*adventure), test::kTestIfid);
    adventure.Close();
    const std::string bytes = test::ReadBytes(adventure.File());
    const std::string mark = "UUID://" + std::string(test::kTestIfid) + "//";
    EXPECT_NE(bytes.find(mark), std::string::npos);
}

TEST(IfidOf, StaysInOnePieceBesideTheLongestTextsOfItsRecord) {
    test::OpenedAdventure adventure;
    adventure.Close();
    test::RawDatabase(adventure.File())
        .Run("UPDATE System SET sysinidate='" + std::string(255, 'x') + "'; VACUUM");
    const std::string bytes = test::ReadBytes(adventure.File());
    EXPECT_NE(bytes.find("UUID://" + std::string(test::kTestIfid) + "//"), std::string::npos);
}

TEST(IfidOf, IsCopiedWithTheFile) {
    test::OpenedAdventure adventure;
    const auto copy = adventure.Folder() / "copy.fbd";
    adventure->SaveCopy(copy);
    EXPECT_EQ(IfidOf(*Adventure::Open(copy)), test::kTestIfid);
}

TEST(IfidOf, IsEmptyForAnythingElseInItsPlace) {
    test::OpenedAdventure adventure;
    for (const char* other :
         {"", " ", "UUID://", "UUID://not one//", "5EED0000-0000-4000-8000-00000000FA8A"}) {
        Cursor& system = adventure->OpenTable(TableNum::System, "def");
        system.SetField("ifid", std::string(other));
        system.Update();
        EXPECT_EQ(IfidOf(*adventure), "") << other;
    }
}

}  // namespace
}  // namespace fabula::store
