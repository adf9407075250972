#include "references/renumber.h"

#include <string>

#include <gtest/gtest.h>

#include "lighthouse.h"
#include "records.h"
#include "references/index.h"
#include "references/lint/lint.h"
#include "store/file/change_set.h"
#include "support/games/template_adventure.h"

namespace fabula::references {
namespace {

using store::Adventure;
using store::TableNum;

constexpr int kAnyWord = 255;

/// All records that a renumbering may touch, field by field.
std::string Records(Adventure& game) {
    std::string all;
    for (const TableNum table :
         {TableNum::Locations, TableNum::Messages, TableNum::Objects, TableNum::Adventure,
          TableNum::ProcessTables, TableNum::SystemMessages, TableNum::Vocabulary, TableNum::Flags,
          TableNum::ProcDesc, TableNum::Characters, TableNum::Pictures}) {
        store::Cursor& records = game.OpenTable(table, "def");
        for (; !records.Eof(); records.MoveNext()) {
            for (std::size_t i = 0; i < records.Fields().size(); ++i)
                all.append(text::ToText(records.Field(i))).append("|");
            all += "\n";
        }
    }
    return all;
}

std::string Field(Adventure& game, TableNum table, const std::string& where, const char* field) {
    store::Cursor& record = game.OpenTable(table, "def", where);
    return record.Eof() ? "(none)" : text::ToText(record.Field(field));
}

std::string LineOf(Adventure& game, int entry) {
    return Field(game, TableNum::ProcessTables, "canum=" + std::to_string(entry), "condacts");
}

void Do(Adventure& game, Kind kind, int from, int to) {
    const RenumberPlan plan = PlanRenumbering(game, {kind, from}, to);
    ASSERT_EQ(plan.refusal, "");
    Renumber(game, plan);
}

TEST(Renumbering, GivesAMessageAFreeNumberAndItsUsesFollow) {
    test::OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "AT 7 MESSAGE 7 SYSMESS 7", "101 7 250 7 251 7");
    Do(*game, Kind::Message, 7, 70);
    EXPECT_EQ(Field(*game, TableNum::Messages, "msgnum=70", "msgmsg"), "Seven");
    EXPECT_EQ(Field(*game, TableNum::Messages, "msgnum=7", "msgmsg"), "(none)");
    EXPECT_EQ(LineOf(*game, 1), "AT 7 MESSAGE 70 SYSMESS 7");
    EXPECT_EQ(Field(*game, TableNum::ProcessTables, "canum=1", "numericcondacts"), "101 7 250 70 251 7");
}

TEST(Renumbering, SwapsWithTheRecordThatHasTheNumber) {
    test::OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutMessage(*game, 8, "Eight");
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "MESSAGE 7 MES 8", "250 7 249 8");
    const RenumberPlan plan = PlanRenumbering(*game, {Kind::Message, 7}, 8);
    EXPECT_TRUE(plan.swaps);
    Renumber(*game, plan);
    EXPECT_EQ(Field(*game, TableNum::Messages, "msgnum=8", "msgmsg"), "Seven");
    EXPECT_EQ(Field(*game, TableNum::Messages, "msgnum=7", "msgmsg"), "Eight");
    EXPECT_EQ(LineOf(*game, 1), "MESSAGE 8 MES 7");
}

TEST(Renumbering, ALocationTakesExitsObjectsStartAndFlagsWithIt) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 40, "N 41", "2 41");
    test::PutLocation(*game, 41, "S 40", "3 40");
    test::PutObject(*game, 3, 40, kAnyWord, kAnyWord);
    game->OpenTable(TableNum::Adventure, "startloc").SetField("startloc", std::int64_t{40});
    game->Table(TableNum::Adventure).Update();
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "EQ 38 40 COPYFF 38 90 EQ 90 40 EQ 91 40 PLACE 3 40");
    Do(*game, Kind::Location, 40, 50);
    EXPECT_EQ(Field(*game, TableNum::Locations, "locnum=41", "exits"), "S 50");
    EXPECT_EQ(Field(*game, TableNum::Locations, "locnum=41", "numericexits"), "3 50");
    EXPECT_EQ(Field(*game, TableNum::Objects, "objnum=3", "objloc"), "50");
    EXPECT_EQ(Field(*game, TableNum::Adventure, "", "startloc"), "50");
    EXPECT_EQ(LineOf(*game, 1), "EQ 38 50 COPYFF 38 90 EQ 90 50 EQ 91 40 PLACE 3 50");
}

TEST(Renumbering, AFlagFollowsWhereItIsComparedByOrderToo) {
    test::OpenedAdventure game;
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "LT 71 4 GT 71 3 EQ 71 71 ADD 71 73");
    Do(*game, Kind::Flag, 71, 73);
    EXPECT_EQ(LineOf(*game, 1), "LT 73 4 GT 73 3 EQ 73 71 ADD 73 71");
}

TEST(Renumbering, AContainerAndItsPlaceGoTogether) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 30, "", "");
    test::PutObject(*game, 30, 252, kAnyWord, kAnyWord, true);
    test::PutObject(*game, 4, 30, kAnyWord, kAnyWord);
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "PUTIN 4 30 GET 30");
    Do(*game, Kind::Object, 30, 60);
    EXPECT_EQ(Field(*game, TableNum::Locations, "locnum=60", "locdesc"), "A place.");
    EXPECT_EQ(Field(*game, TableNum::Objects, "objnum=4", "objloc"), "60");
    EXPECT_EQ(LineOf(*game, 1), "PUTIN 4 60 GET 60");
}

TEST(Renumbering, ADrawingFollowsThePictureThatItCalls) {
    test::OpenedAdventure game;
    test::PutPicture(*game, 5, "GOSUB sc=0 9 LINE 0 9 9 END");
    test::PutPicture(*game, 9, "END");
    Do(*game, Kind::Picture, 9, 12);
    EXPECT_EQ(Field(*game, TableNum::Pictures, "locnum=5", "drawstring"), "GOSUB sc=0 12 LINE 0 9 9 END");
    EXPECT_EQ(Field(*game, TableNum::Pictures, "locnum=12", "drawstring"), "END");
}

TEST(Renumbering, ALocationTakesItsRoomsPictureAndTheWordsForItsPlaceWithIt) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 40, "", "");
    test::PutPicture(*game, 9, "END", 40);
    test::PutObject(*game, 3, 40, kAnyWord, kAnyWord);
    game->OpenTable(TableNum::Objects, "def", "objnum=3")
        .SetField("objlocdesc", std::string("In Room 40."));
    game->Table(TableNum::Objects).Update();
    Do(*game, Kind::Location, 40, 50);
    EXPECT_EQ(Field(*game, TableNum::Pictures, "locnum=9", "roompicnum"), "50");
    EXPECT_EQ(Field(*game, TableNum::Objects, "objnum=3", "objlocdesc"), "In Room 50.");
}

TEST(Renumbering, ACharacterSetTakesItsCharactersAndTheirKeysWithIt) {
    test::OpenedAdventure game;
    for (const std::int64_t number : {65, 66}) {
        store::Cursor& characters = game->OpenTable(TableNum::Characters, "def");
        characters.AddNew();
        characters.SetField("charkey", 4000 + number);
        characters.SetField("charset", std::string("SET 0004"));
        characters.SetField("charsetnum", std::int64_t{4});
        characters.SetField("charnum", number);
        characters.Update();
    }
    Do(*game, Kind::CharacterSet, 4, 12);
    EXPECT_EQ(Field(*game, TableNum::Characters, "charkey=12065", "charset"), "SET 0012");
    EXPECT_EQ(Field(*game, TableNum::Characters, "charkey=12066", "charsetnum"), "12");
    EXPECT_EQ(Field(*game, TableNum::Characters, "charsetnum=4", "charkey"), "(none)");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::CharacterSet, 12}, 998).refusal, "");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::CharacterSet, 12}, 999).refusal,
              "The numbers of a character set go from 0 to 998.");
}

TEST(Renumbering, RefusesWhatARuleComparesByItsOrder) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 40, "", "");
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "ATGT 45 INVEN");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Location, 40}, 50).refusal,
              "ATGT 45 in process table 0, entry 1 tells 40 and 50 apart by their order.");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Location, 40}, 45).refusal, "");
}

TEST(Renumbering, TheBorderOfAnOrderLiesWhereTheRuleDrawsIt) {
    struct Case {
        const char* line;
        Kind kind;
        int lowestAbove;  ///< the lowest number on the upper side
    };
    for (const auto& [line, kind, lowestAbove] :
         {Case{"ATGT 45 INVEN", Kind::Location, 46}, Case{"ATLT 45 INVEN", Kind::Location, 45},
          Case{"GT 38 45 INVEN", Kind::Location, 46}, Case{"LT 38 45 INVEN", Kind::Location, 45},
          Case{"RAMLOAD 74", Kind::Flag, 75}}) {
        test::OpenedAdventure game;
        for (const int location : {44, 45, 46})
            test::PutLocation(*game, location, "", "");
        test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, line);
        const std::string above = PlanRenumbering(*game, {kind, lowestAbove}, lowestAbove - 1).refusal;
        EXPECT_EQ(above, std::string(line).substr(0, std::string(line).find(" INVEN")) +
                             " in process table 0, entry 1 tells " + std::to_string(lowestAbove) + " and " +
                             std::to_string(lowestAbove - 1) + " apart by their order.");
        EXPECT_EQ(PlanRenumbering(*game, {kind, lowestAbove}, lowestAbove + 5).refusal, "") << line;
    }
}

TEST(Renumbering, PlayStillBeginsInTheSameRoomWhenItSwapsWithAnother) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 40, "N 41", "2 41");
    test::PutLocation(*game, 41, "S 40", "3 40");
    game->OpenTable(TableNum::Adventure, "startloc").SetField("startloc", std::int64_t{40});
    game->Table(TableNum::Adventure).Update();
    Do(*game, Kind::Location, 40, 41);
    EXPECT_EQ(Field(*game, TableNum::Adventure, "", "startloc"), "41");
}

TEST(Renumbering, RefusesWhatTheEngineKnows) {
    test::OpenedAdventure game;
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Flag, 38}, 60).refusal,
              "The engine itself knows flag 38 by its number.");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::SystemMessage, 7}, 60).refusal,
              "The engine itself knows system message 7 by its number.");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Process, 1}, 5).refusal,
              "The engine itself knows process table 1 by its number.");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Message, 900}, 5).refusal, "There is no message 900.");
    test::PutMessage(*game, 7, "Seven");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Message, 7}, 1000).refusal,
              "The numbers of a message go from 0 to 999.");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Message, 7}, 7).refusal, "It bears that number already.");
}

TEST(Renumbering, WarnsOfMessagesThatAFlagCounts) {
    test::OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "PLUS 70 1 MESSGF 70");
    const RenumberPlan plan = PlanRenumbering(*game, {Kind::Message, 7}, 70);
    ASSERT_EQ(plan.warnings.size(), 1U);
    EXPECT_EQ(
        plan.warnings[0],
        "Flag 70 is counted, and what it holds is taken for a message: see process table 0, entry 1.");
}

TEST(Renumbering, WarnsOfObjectsThatChangeTheirPlaceInLists) {
    test::OpenedAdventure game;
    for (const int object : {3, 4, 6})
        test::PutObject(*game, object, 252, kAnyWord, kAnyWord);
    const std::vector<std::string> warning{
        "Objects are listed in the order of their numbers, which this changes."};
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Object, 3}, 4).warnings, warning);
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Object, 3}, 5).warnings, warning);
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Object, 4}, 5).warnings, std::vector<std::string>{});
}

TEST(Renumbering, EachOfTwoEntriesWithOneNumberKeepsItsOwnLine) {
    test::OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutEntry(*game, 36, 0, 20, kAnyWord, "EQ 44 101 DONE", "114 44 101 265");
    test::PutEntry(*game, 36, 0, 21, kAnyWord, "MESSAGE 7 DONE", "250 7 265");
    Do(*game, Kind::Message, 7, 999);
    EXPECT_EQ(Field(*game, TableNum::ProcessTables, "w1num=20", "condacts"), "EQ 44 101 DONE");
    EXPECT_EQ(Field(*game, TableNum::ProcessTables, "w1num=20", "numericcondacts"), "114 44 101 265");
    EXPECT_EQ(Field(*game, TableNum::ProcessTables, "w1num=21", "condacts"), "MESSAGE 999 DONE");
    EXPECT_EQ(Field(*game, TableNum::ProcessTables, "w1num=21", "numericcondacts"), "250 999 265");
}

TEST(Renumbering, OfTwoLocationsWithOneNumberBothKeepTheirOwnExits) {
    test::OpenedAdventure game;
    test::PutLocation(*game, 40, "", "");
    test::PutLocation(*game, 41, "N 40", "2 40");
    test::PutLocation(*game, 41, "S 40 E 41", "3 40 4 41");
    Do(*game, Kind::Location, 40, 50);
    EXPECT_EQ(Field(*game, TableNum::Locations, "numericexits='2 50'", "exits"), "N 50");
    EXPECT_EQ(Field(*game, TableNum::Locations, "numericexits='3 50 4 41'", "exits"), "S 50 E 41");
}

TEST(Renumbering, RefusesANumberThatMoreThanOneRecordBears) {
    test::OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutMessage(*game, 7, "Seven, too");
    test::PutMessage(*game, 8, "Eight");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Message, 7}, 70).refusal,
              "There is more than one message 7: which one is meant can't be told.");
    EXPECT_EQ(PlanRenumbering(*game, {Kind::Message, 8}, 7).refusal,
              "There is more than one message 7: which one is meant can't be told.");
}

TEST(Renumbering, AnEntryThatHasLostItsTextFollowsInItsCompiledForm) {
    test::OpenedAdventure game;
    test::PutMessage(*game, 7, "Seven");
    test::PutEntry(*game, 1, 0, kAnyWord, kAnyWord, "", "101 7 250 7");
    Do(*game, Kind::Message, 7, 70);
    EXPECT_EQ(Field(*game, TableNum::ProcessTables, "canum=1", "numericcondacts"), "101 7 250 70");
}

TEST(Renumbering, TakenBackGivesTheRecordsByteForByte) {
    struct Case {
        Kind kind;
        int from;
        int to;
    };
    for (const auto& [kind, from, to] :
         {Case{Kind::Message, 12, 990}, Case{Kind::Message, 12, 40}, Case{Kind::Location, 5, 6},
          Case{Kind::Location, 8, 9}, Case{Kind::Object, 9, 12}, Case{Kind::Object, 2, 3},
          Case{Kind::Flag, 70, 200}, Case{Kind::Flag, 70, 71}, Case{Kind::Process, 3, 30},
          Case{Kind::Process, 3, 4}}) {
        const auto game = test::Lighthouse();
        const std::string before = Records(*game);
        const RenumberPlan plan = PlanRenumbering(*game, {kind, from}, to);
        ASSERT_EQ(plan.refusal, "") << EntryOf(kind).name << " " << from;
        std::string changes;
        {
            const store::ChangeRecorder recorder(*game);
            Renumber(*game, plan);
            changes = recorder.Changes();
        }
        EXPECT_NE(Records(*game), before);
        store::TakeBack(*game, changes);
        EXPECT_TRUE(Records(*game) == before) << EntryOf(kind).name << " " << from << " " << to;
    }
}

TEST(Renumbering, TwiceTheSameSwapGivesTheGameAsItWas) {
    const auto game = test::Lighthouse();
    const std::string before = Records(*game);
    Do(*game, Kind::Message, 12, 40);
    Do(*game, Kind::Message, 12, 40);
    EXPECT_TRUE(Records(*game) == before);
}

TEST(Renumbering, LeavesNoReferenceToWhatIsNotThere) {
    const auto game = test::Lighthouse();
    Do(*game, Kind::Message, 12, 40);
    Do(*game, Kind::Location, 5, 6);
    Do(*game, Kind::Object, 2, 3);
    Do(*game, Kind::Process, 3, 30);
    Do(*game, Kind::Flag, 70, 200);
    for (const Finding& finding : Lint(*game))
        EXPECT_EQ(finding.code.find("missing"), std::string_view::npos) << finding.message;
}

TEST(FreeNumbers, SkipThePlacesThatAreNone) {
    test::OpenedAdventure game;
    EXPECT_EQ(FreeNumber(*game, Kind::Location, 252), 256);
    test::PutMessage(*game, 900, "x");
    EXPECT_EQ(FreeNumber(*game, Kind::Message, 900), 901);
}

}  // namespace
}  // namespace fabula::references
