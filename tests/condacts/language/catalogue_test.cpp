#include "condacts/language/catalogue.h"

#include <gtest/gtest.h>

#include "condacts/sample.h"

namespace fabula::condacts {
namespace {

TEST(Catalogue, FindsANameWithoutRegardToCase) {
    const Catalogue catalogue = SampleCatalogue();
    ASSERT_NE(catalogue.Find("place"), nullptr);
    EXPECT_EQ(catalogue.Find("place")->number, 208);
}

TEST(Catalogue, FindsANumber) {
    const Catalogue catalogue = SampleCatalogue();
    ASSERT_NE(catalogue.Find(250), nullptr);
    EXPECT_EQ(catalogue.Find(250)->name, "MESSAGE");
}

TEST(Catalogue, GivesNothingForAnUnknownNameOrNumber) {
    const Catalogue catalogue = SampleCatalogue();
    EXPECT_EQ(catalogue.Find("XYZ"), nullptr);
    EXPECT_EQ(catalogue.Find(999), nullptr);
}

TEST(Catalogue, ANameOfAnotherDialectIsUnknown) {
    const Catalogue catalogue = SampleCatalogue();
    EXPECT_NE(catalogue.Find("AUTOINC", Dialect::Fabula), nullptr);
    EXPECT_EQ(catalogue.Find("AUTOINC", Dialect::Vel), nullptr);
    EXPECT_EQ(catalogue.Find("AUTOINC", Dialect::Marlo), nullptr);
    EXPECT_EQ(catalogue.Find("AUTOINC", Dialect::PCVel), nullptr);
}

TEST(Catalogue, TheFirstOfTwoRowsOfOneNameCounts) {
    CondAct first;
    first.number = 1;
    first.name = "TWICE";
    CondAct second = first;
    second.number = 2;
    const Catalogue catalogue({first, second});
    EXPECT_EQ(catalogue.Find("TWICE")->number, 1);
}

TEST(DialectOf, IsThatOfTheTypeOfAdventure) {
    EXPECT_EQ(DialectOf(store::AdventureKind::Fabula), Dialect::Fabula);
    EXPECT_EQ(DialectOf(store::AdventureKind::Vel), Dialect::Vel);
    EXPECT_EQ(DialectOf(store::AdventureKind::Marlo), Dialect::Marlo);
}

}  // namespace
}  // namespace fabula::condacts
