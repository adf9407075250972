#include "references/place_text.h"

#include <gtest/gtest.h>

#include "records.h"
#include "references/index.h"
#include "support/games/template_adventure.h"

namespace fabula::references {
namespace {

constexpr int kNoWord = 255;

TEST(PlaceText, NamesRecordsAsAnAuthorDoes) {
    test::OpenedAdventure game;
    test::PutEntry(*game, 12, 3, kNoWord, kNoWord, "SET 60");
    PlaceText places(*game);
    EXPECT_EQ(places.RecordName(store::TableNum::ProcessTables, 12), "process table 3, entry 12 (_ _)");
    EXPECT_EQ(places.RecordName(store::TableNum::Adventure, 0), "the settings");
    EXPECT_EQ(places.RecordName(store::TableNum::Locations, 0), "location 0");
    EXPECT_EQ(places.RecordName(store::TableNum::Messages, 900), "message 900") << "one that is gone";
}

TEST(PlaceText, ShowsTheConditionOrActionAroundAUse) {
    test::OpenedAdventure game;
    test::PutEntry(*game, 12, 3, kNoWord, kNoWord, "ZERO 60 LET 60 4 PREP UNDER DONE",
                   "113 60 228 60 4 123 9 265");
    const Index index(*game);
    PlaceText places(*game);
    const auto uses = index.UsesOf({Kind::Flag, 60});
    ASSERT_EQ(uses.size(), 2U);
    EXPECT_EQ(places.Around(uses[0]), "ZERO 60");
    EXPECT_EQ(places.Around(uses[1]), "LET 60 4");
    EXPECT_EQ(places.FieldOf(uses[1]), "ZERO 60 LET 60 4 PREP UNDER DONE");
    EXPECT_EQ(places.FieldOf(uses[1], 10), "ZERO 60...");
    EXPECT_EQ(places.Around(index.UsesOf({Kind::Word, 9}).at(0)), "PREP UNDER");
}

TEST(PlaceText, ShowsTheExitAndTheCommandOfADrawstring) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 900, "N 4 S 5", "2 4 3 5");
    test::PutPicture(*game, 5, "INK 2 GOSUB sc=3 9 END");
    const Index index(*game);
    PlaceText places(*game);
    EXPECT_EQ(places.Around(index.UsesOf({Kind::Location, 5}).at(0)), "S 5");
    EXPECT_EQ(places.Around(index.UsesOf({Kind::Picture, 9}).at(0)), "GOSUB sc=3 9");
}

}  // namespace
}  // namespace fabula::references
