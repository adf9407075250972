#include <string>

#include <gtest/gtest.h>

#include "listings/listed_adventure.h"

namespace fabula::listings {
namespace {

using store::TableNum;

class TableReports : public testing::Test {
  protected:
    void Message(int number, std::string text) {
        AddRecord(*adventure_, TableNum::Messages,
                  {{"msgnum", std::int64_t{number}}, {"msgmsg", std::move(text)}});
    }
    void Flag(int number, std::string type, std::string use, std::string description, int modifiable = 2) {
        AddRecord(*adventure_, TableNum::Flags,
                  {{"flgnum", std::int64_t{number}},
                   {"flgtype", std::move(type)},
                   {"flguse", std::move(use)},
                   {"flgmod", std::int64_t{modifiable}},
                   {"flgdesc", std::move(description)}});
    }
    void Location(int number, std::string text, std::string exits = "", std::string numericExits = "",
                  std::string shortText = " ") {
        AddRecord(*adventure_, TableNum::Locations,
                  {{"locnum", std::int64_t{number}},
                   {"locdesc", std::move(text)},
                   {"exits", std::move(exits)},
                   {"numericexits", std::move(numericExits)},
                   {"locshortdesc", std::move(shortText)},
                   {"picloc", std::string("rooms/1.bmp")},
                   {"pickey", std::string("Room1")}});
    }
    void Object(int number, std::string text, int place, std::string placeText) {
        AddRecord(*adventure_, TableNum::Objects,
                  {{"objnum", std::int64_t{number}},
                   {"objdesc", std::move(text)},
                   {"objnoun", std::string("LAMP")},
                   {"objadject", std::string("BRASS")},
                   {"objweight", std::int64_t{5}},
                   {"objattr", std::string("CWR")},
                   {"objloc", std::int64_t{place}},
                   {"objlocdesc", std::move(placeText)}});
    }

    test::OpenedAdventure adventure_;
};

TEST_F(TableReports, ReportThatFindsNoRecordPrintsItsHeaderAndEnds) {
    Empty(*adventure_, TableNum::Messages);
    EXPECT_EQ(Behind(Listed(*adventure_, "messages"), "------"), "");
}

TEST_F(TableReports, MessageGoesOnBelowItsText) {
    Empty(*adventure_, TableNum::Messages);
    Message(12, "One\u008C" + std::string(68, 'x') + " yy");
    EXPECT_EQ(Behind(Listed(*adventure_, "messages"), "------"),
              "12       One\n         " + std::string(68, 'x') + "\n         yy\n");
}

TEST_F(TableReports, BriefListingTellsTheFirstLineOfEachText) {
    Empty(*adventure_, TableNum::Messages);
    Message(1, "First line.\u008CSecond line.");
    Message(2, std::string(60, 'a') + " " + std::string(20, 'b'));
    const std::string listed = Listed(*adventure_, "messages", {.detail = Detail::Brief});
    EXPECT_NE(listed.find("Brief Messages Table"), std::string::npos);
    EXPECT_EQ(Behind(listed, "------"), "1        First line.\n2        " + std::string(60, 'a') + "\n");
}

TEST_F(TableReports, BriefListingSkipsTheEmptyLinesThatATextBeginsWith) {
    Empty(*adventure_, TableNum::Messages);
    Message(1, "\u008C \u008CFirst words.\u008CSecond line.");
    Message(2, "\u008C");
    EXPECT_EQ(Behind(Listed(*adventure_, "messages", {.detail = Detail::Brief}), "------"),
              "1        First words.\n2\n");
}

TEST_F(TableReports, BriefListingTellsTheUseOfAFlagOnlyWhereItIsKnown) {
    Empty(*adventure_, TableNum::Flags);
    Flag(7, "User", "Switch", " ");
    Flag(8, "User", "Unknown", " ");
    EXPECT_EQ(Behind(Listed(*adventure_, "flags", {.detail = Detail::Brief}), "------"),
              "7        Switch\n8\n");
}

TEST_F(TableReports, BriefListingOfLocationsPrefersTheShortDescription) {
    Empty(*adventure_, TableNum::Locations);
    Location(1, "You are in a mill.", "", "", "Mill");
    Location(2, "You are in a yard.");
    EXPECT_EQ(Behind(Listed(*adventure_, "locations", {.detail = Detail::Brief}), "------"),
              "1        Mill\n2        You are in a yard.\n");
}

TEST_F(TableReports, FlagWithoutADescriptionIsNotDescribed) {
    Empty(*adventure_, TableNum::Flags);
    Flag(7, "User", "Switch", " ");
    EXPECT_EQ(Behind(Listed(*adventure_, "flags"), "------"),
              "7        User      Switch    Not Described\n");
}

TEST_F(TableReports, UserFlagWithoutAUseIsUnknownAndAnUnderscoreIsEmpty) {
    Empty(*adventure_, TableNum::Flags);
    Flag(7, "User", "", "_");
    EXPECT_EQ(Behind(Listed(*adventure_, "user-flags"), "------"), "7        Unknown\n");
}

TEST_F(TableReports, UserFlagsEndWithTheHighestFlagOfTheUser) {
    Empty(*adventure_, TableNum::Flags);
    Flag(7, "System", "Switch", "not his", 0);
    Flag(8, "User", "Switch", "his");
    Flag(9, "System", "Switch", "beyond");
    EXPECT_EQ(Behind(Listed(*adventure_, "user-flags"), "------"), "8        Switch    his\n");
}

TEST_F(TableReports, ExtraEntriesCountFromFlag60) {
    Empty(*adventure_, TableNum::Flags);
    for (const int number : {59, 60, 61, 62})
        Flag(number, "User", "Switch", "x");
    EXPECT_EQ(Behind(Listed(*adventure_, "user-flags", {.extraEntries = 2}), "------"),
              "59       Switch    x\n60       Switch    x\n61       Switch    x\n");
}

TEST_F(TableReports, ExtraEntriesEndWithTheHighestFlagOfTheUserToo) {
    Empty(*adventure_, TableNum::Flags);
    Flag(60, "User", "Switch", "x");
    Flag(61, "System", "Switch", "beyond", 1);
    EXPECT_EQ(Behind(Listed(*adventure_, "user-flags", {.extraEntries = 5}), "------"),
              "60       Switch    x\n");
}

TEST_F(TableReports, UserListingOfProcessDescriptionsLeavesUnderscoresOut) {
    Empty(*adventure_, TableNum::ProcDesc);
    AddRecord(*adventure_, TableNum::ProcDesc,
              {{"pmsgnum", std::int64_t{0}}, {"pmsgmsg", std::string("Main")}});
    AddRecord(*adventure_, TableNum::ProcDesc,
              {{"pmsgnum", std::int64_t{3}}, {"pmsgmsg", std::string("_")}});
    EXPECT_EQ(Behind(Listed(*adventure_, "user-process-descriptions"), "------"), "0        Main\n");
    EXPECT_EQ(Behind(Listed(*adventure_, "process-descriptions"), "------"), "0        Main\n3        _\n");
}

TEST_F(TableReports, ObjectTellsWordsWeightAttributesAndPlaceUnderTheirHeadings) {
    Empty(*adventure_, TableNum::Objects);
    Object(3, "a brass lamp", 7, "In Room 7.");
    EXPECT_EQ(Behind(Listed(*adventure_, "objects"), "---  "),
              "Noun                           Adj.                           Wt. Attr Initially At\n"
              "------------------------------ ------------------------------ --- ---- ------------\n"
              "3   a brass lamp\n"
              "LAMP                           BRASS                            5 CWR  In Room 7.\n");
}

TEST_F(TableReports, VerboseObjectShowsTheShortDescriptionOfItsRoom) {
    Empty(*adventure_, TableNum::Locations);
    Location(7, "You are in a mill.", "", "", "The mill");
    Empty(*adventure_, TableNum::Objects);
    Object(3, "a lamp", 7, "In Room 7.");
    EXPECT_TRUE(Listed(*adventure_, "objects", {.detail = Detail::Verbose})
                    .ends_with("5 CWR  In Room 7.          The mill\n"));
}

TEST_F(TableReports, VerboseObjectShowsTheFirstLineOfARoomWithoutAShortDescription) {
    Empty(*adventure_, TableNum::Locations);
    Location(7, "<bright>The mill</bright><BR>It is dark.");
    Empty(*adventure_, TableNum::Objects);
    Object(3, "a lamp", 7, "In Room 7.");
    EXPECT_TRUE(Listed(*adventure_, "objects", {.detail = Detail::Verbose})
                    .ends_with("5 CWR  In Room 7.          The mill\n"));
}

TEST_F(TableReports, LocationTellsItsPictureAndExits) {
    Empty(*adventure_, TableNum::Locations);
    Location(1, "You are in a mill.", "N 2 UP 3", "2 2 10 3");
    EXPECT_EQ(Behind(Listed(*adventure_, "locations"), "-------  "),
              "  1      : You are in a mill.\n"
              "  2      rooms/1.bmp\n"
              "2 N      To   2\n"
              "10 UP    To   3\n");
}

TEST_F(TableReports, VerboseLocationTellsThePictureKey) {
    Empty(*adventure_, TableNum::Locations);
    Location(1, "You are in a mill.");
    EXPECT_EQ(Behind(Listed(*adventure_, "locations", {.detail = Detail::Verbose}), "-------  "),
              "  1      : You are in a mill.\n"
              "  0      rooms/1.bmp                             Room1\n");
}

TEST_F(TableReports, ColumnsOfExitsMoveForWordsOfEightLetters) {
    Empty(*adventure_, TableNum::Locations);
    Location(1, "Mill.", "NORTHEAST 2 N 3", "6 2 2 3");
    const std::string listed = Listed(*adventure_, "locations");
    EXPECT_NE(listed.find("6 NORTHEAST To   2\n2 N         To   3\n"), std::string::npos) << listed;
}

TEST_F(TableReports, WordThatNoVocabularyHoldsDoesNotMoveTheColumns) {
    Empty(*adventure_, TableNum::Locations);
    Location(1, "Mill.", std::string(200, 'X') + " 2 N 3", "6 2 2 3");
    EXPECT_NE(Listed(*adventure_, "locations").find("2 N      To   3\n"), std::string::npos);
}

TEST_F(TableReports, CompleteLocationsShowConditionalExitsAndObjects) {
    Empty(*adventure_, TableNum::Locations);
    Empty(*adventure_, TableNum::Objects);
    Empty(*adventure_, TableNum::ProcessTables);
    Location(1, "Mill.", "S 2", "3 2");
    Object(4, "a sack", 1, "In Room 1.");
    AddRecord(*adventure_, TableNum::ProcessTables,
              {{"canum", std::int64_t{1}},
               {"estype", std::int64_t{0}},
               {"w1", std::string("GO")},
               {"w2", std::string("BARN")},
               {"w1num", std::int64_t{30}},
               {"w2num", std::int64_t{40}},
               {"condacts", std::string("AT 1 CARRIED 4 ZERO 60 GOTO 9 DESC")}});
    const std::string listed = Listed(*adventure_, "locations", {.complete = true});
    EXPECT_NE(listed.find("Showing Conditional Exits && Objects Present (Complete Listing)\n"),
              std::string::npos);
    EXPECT_TRUE(
        listed.ends_with("3 S        To   2\n"
                         "30 GO BARN To   9         ! CARRIED 4 ZERO 60\n"
                         "         Objects Present\n"
                         "           4  a sack\n"))
        << listed;
}

TEST_F(TableReports, EntryThatNamesNoLocationIsNoConditionalExit) {
    Empty(*adventure_, TableNum::Locations);
    Empty(*adventure_, TableNum::ProcessTables);
    Location(1, "Mill.");
    AddRecord(*adventure_, TableNum::ProcessTables,
              {{"canum", std::int64_t{1}},
               {"estype", std::int64_t{0}},
               {"w1", std::string("GO")},
               {"condacts", std::string("ZERO 60 GOTO 9")}});
    EXPECT_EQ(Listed(*adventure_, "locations", {.complete = true}).find("To   9"), std::string::npos);
}

TEST_F(TableReports, VocabularyHasTwoLinesOfHeadings) {
    Empty(*adventure_, TableNum::Vocabulary);
    AddRecord(*adventure_, TableNum::Vocabulary,
              {{"vocindex", std::int64_t{1}},
               {"vocnum", std::int64_t{50}},
               {"word", std::string("LAMP")},
               {"voctype", std::string("Noun")},
               {"voctypen", std::int64_t{2}}});
    const std::string listed = Listed(*adventure_, "vocabulary");
    EXPECT_NE(listed.find("                   Name                               Num       Type\n"
                          "                   Word                               Word      Word\n"),
              std::string::npos);
    EXPECT_EQ(Behind(listed, "------"),
              "                   LAMP                               50        Noun\n");
    EXPECT_EQ(Behind(Listed(*adventure_, "vocabulary", {.numbers = std::vector{0}}), "------"), "");
}

TEST_F(TableReports, SettingsTellAnAuthorThatIsNotThere) {
    store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
    settings.SetField("author", std::string(" "));
    settings.Update();
    EXPECT_NE(Listed(*adventure_, "settings").find("                        Author: None Supplied\n"),
              std::string::npos);
}

TEST_F(TableReports, SettingsTellVoicesAndColoursByName) {
    store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
    settings.SetField("defsndvoice", std::int64_t{73});
    settings.SetField("backcolor", std::int64_t{14});
    settings.Update();
    const std::string listed = Listed(*adventure_, "settings");
    EXPECT_NE(listed.find("                   Sound Voice: 73 Flute\n"), std::string::npos);
    EXPECT_NE(listed.find("                    Back Color: 14 Bright Yellow\n"), std::string::npos);
}

TEST_F(TableReports, EveryFieldOfTheSettingsHasItsLine) {
    const std::string listed = Listed(*adventure_, "settings");
    const auto lines = std::count(listed.begin(), listed.end(), '\n') - 3;
    EXPECT_EQ(lines, static_cast<long>(adventure_->Schema(TableNum::Adventure).fields.size()));
}

}  // namespace
}  // namespace fabula::listings
