#include "references/index.h"

#include <type_traits>

#include <gtest/gtest.h>

#include "condacts/words.h"
#include "records.h"
#include "support/games/template_adventure.h"

namespace fabula::references {
namespace {

using test::OpenedAdventure;
using test::UsesOf;

// What carries numbers is a flag and nothing else.
using Carries = decltype(&Index::Carries);
static_assert(std::is_invocable_v<Carries, const Index&, condacts::FlagNumber, Kind>);
static_assert(!std::is_invocable_v<Carries, const Index&, condacts::PlaceNumber, Kind>);
static_assert(!std::is_invocable_v<Carries, const Index&, int, Kind>);

constexpr int kNone = 255;

TEST(ReferenceIndex, TellsWhetherAFlagIsReadOrSet) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kNone, kNone, "ZERO 60 SET 60 PLUS 60 1 COPYFF 60 61 PRINT 60 ADD 61 60");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Flag, 60),
              "entry 1 condacts 1 reads\n"
              "entry 1 condacts 3 sets\n"
              "entry 1 condacts 5 reads and sets\n"
              "entry 1 condacts 8 reads\n"
              "entry 1 condacts 11 reads\n"
              "entry 1 condacts 14 reads and sets\n");
    EXPECT_EQ(UsesOf(index, Kind::Flag, 61),
              "entry 1 condacts 9 sets\n"
              "entry 1 condacts 13 reads\n");
    EXPECT_EQ(index.CountOf({Kind::Flag, 60}), 6);
    EXPECT_EQ(index.CountOf({Kind::Flag, 62}), 0);
}

TEST(ReferenceIndex, FindsPlacesInEntriesExitsObjectsAndSettings) {
    OpenedAdventure game;
    test::PutLocation(*game, 4, "N 5", "2 5");
    test::PutLocation(*game, 5, "", "");
    test::PutObject(*game, 3, 5, kNone, kNone);
    test::PutEntry(*game, 1, 0, kNone, kNone, "AT 5 PLACE 3 5 PLACE 3 254 GOTO 5");
    game->OpenTable(store::TableNum::Adventure, "startloc").SetField("startloc", std::int64_t{5});
    game->Table(store::TableNum::Adventure).Update();
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Location, 5),
              "location 4 exits 1 names\n"
              "object 3 objloc 0 names\n"
              "settings 0 startloc 0 names\n"
              "entry 1 condacts 1 names\n"
              "entry 1 condacts 4 names\n"
              "entry 1 condacts 9 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Location, 254), "") << "what is carried is at no location";
    EXPECT_EQ(UsesOf(index, Kind::Object, 3),
              "entry 1 condacts 3 sets\n"
              "entry 1 condacts 6 sets\n");
}

TEST(ReferenceIndex, TakesTheContainerOfAnActionForItsObjectAndItsPlace) {
    OpenedAdventure game;
    test::PutObject(*game, 2, 252, kNone, kNone, true);
    test::PutEntry(*game, 1, 0, kNone, kNone, "PUTIN 7 2 AUTOT 2");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Object, 2), "entry 1 condacts 2 reads\nentry 1 condacts 4 reads\n");
    EXPECT_EQ(UsesOf(index, Kind::Location, 2),
              "object 2 objattr 0 names\n"
              "entry 1 condacts 2 names\n"
              "entry 1 condacts 4 names\n");
}

TEST(ReferenceIndex, KeepsWordsOfOneNumberApartByTheirTypes) {
    OpenedAdventure game;
    test::PutLocation(*game, 4, "N 5", "60 5");
    test::PutObject(*game, 3, 4, 60, 60);
    test::PutEntry(*game, 1, 0, 60, kNone, "PREP UNDER NOUN2 LAMP", "123 60 124 60");
    test::PutEntry(*game, 2, 0, kNone, 60, "DONE", "265");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Word, 60, TypeBit(condacts::kVerb)),
              "location 4 exits 0 names\nentry 1 w1 0 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Word, 60, TypeBit(condacts::kNoun)),
              "location 4 exits 0 names\n"
              "object 3 objnoun 0 names\n"
              "entry 1 condacts 3 names\n"
              "entry 1 w1 0 names\n"
              "entry 2 w2 0 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Word, 60, TypeBit(condacts::kPreposition)), "entry 1 condacts 1 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Word, 60, TypeBit(condacts::kAdjective)), "object 3 objadject 0 names\n");
}

TEST(ReferenceIndex, TellsOfTextsAndProcessTables) {
    OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutEntry(*game, 1, 3, kNone, kNone, "MESSAGE 7 MES 7 SYSMESS 7 PROCESS 4 YESNO 7");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Message, 7),
              "entry 1 condacts 1 names\nentry 1 condacts 3 names\nentry 1 condacts 9 names\n");
    EXPECT_EQ(UsesOf(index, Kind::SystemMessage, 7), "entry 1 condacts 5 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Process, 3), "entry 1 estype 0 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Process, 4), "entry 1 condacts 7 names\n");
}

TEST(ReferenceIndex, NumbersInFlagsThatAMessageIsTakenFromArePossible) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kNone, kNone, "LET 70 12 PROCESS 3");
    test::PutEntry(*game, 2, 3, kNone, kNone, "MESSGF 70");
    test::PutEntry(*game, 3, 3, kNone, kNone, "LET 71 12");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Message, 12), "entry 1 condacts 2 names?\n");
    EXPECT_EQ(UsesOf(index, Kind::Message, 13), "");
    EXPECT_EQ(index.CountOf({Kind::Message, 12}), 0) << "possible uses don't count";
}

TEST(ReferenceIndex, AFlagThatIsCountedMayNameAnyMessage) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kNone, kNone, "PLUS 70 1 MESSGF 70");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Message, 13), "entry 1 condacts 4 names?\n");
    EXPECT_EQ(UsesOf(index, Kind::SystemMessage, 13), "");
}

TEST(ReferenceIndex, FlagsOfTheEngineHoldPlacesObjectsAndWords) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kNone, kNone, "EQ 38 5 LET 51 5 EQ 34 5 GT 33 5 LET 42 5 EQ 38 255");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Location, 5), "entry 1 condacts 2 names?\n");
    EXPECT_EQ(UsesOf(index, Kind::Object, 5), "entry 1 condacts 5 names?\n");
    EXPECT_EQ(UsesOf(index, Kind::Word, 5, TypeBit(condacts::kNoun)),
              "entry 1 condacts 8 names?\nentry 1 condacts 11 names?\n");
    EXPECT_EQ(UsesOf(index, Kind::SystemMessage, 5), "entry 1 condacts 14 names?\n");
    EXPECT_EQ(UsesOf(index, Kind::Location, 255), "");
}

TEST(ReferenceIndex, ReadsDrawstrings) {
    OpenedAdventure game;
    test::PutPicture(*game, 5, "INK 2 GOSUB sc=3 9 TEXT 0 1 65 3 4 SHADE 0 1 1 18 END", 7);
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Picture, 9), "picture 5 drawstring 4 names\n");
    EXPECT_EQ(UsesOf(index, Kind::CharacterSet, 1), "picture 5 drawstring 7 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Character, 1065), "picture 5 drawstring 8 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Character, 1), "picture 5 drawstring 15 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Character, 2), "picture 5 drawstring 15 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Location, 7), "picture 5 roompicnum 0 names\n");
}

TEST(ReferenceIndex, ReadsTagsOfSetsOnlyWhereTheGameHasCharacterSets) {
    OpenedAdventure game;
    test::PutMessage(*game, 7, "One <charset=2>two <#=65>three");
    test::PutEntry(*game, 1, 0, kNone, kNone, "CHARSET 2");
    EXPECT_EQ(UsesOf(Index(*game), Kind::CharacterSet, 2), "") << "2 is a font";
    game->OpenTable(store::TableNum::Adventure, "charsets").SetField("charsets", std::int64_t{1});
    game->Table(store::TableNum::Adventure).Update();
    game->ReadSettings();
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::CharacterSet, 2), "message 7 msgmsg 4 names\nentry 1 condacts 1 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Character, 65), "message 7 msgmsg 19 names?\n");
}

TEST(ReferenceIndex, AnEntryThatHasLostItsTextIsReadInItsCompiledForm) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kNone, kNone, "", "101 3 124 60");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Location, 3), "entry 1 condacts 1 names\n");
    EXPECT_EQ(UsesOf(index, Kind::Word, 60), "entry 1 condacts 3 names\n");
}

TEST(ReferenceIndex, AWordThatWasNotCompiledNamesNothing) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kNone, kNone, "PREP UNDER AT 3", "123 101 3");
    const Index index(*game);
    EXPECT_EQ(UsesOf(index, Kind::Location, 3), "entry 1 condacts 3 names\n");
    EXPECT_EQ(index.UsesBy(store::TableNum::ProcessTables, 1).size(), 2U);
}

}  // namespace
}  // namespace fabula::references
