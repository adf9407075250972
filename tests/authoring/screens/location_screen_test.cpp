#include "authoring/screens/location_screen.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "platform/error.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

/// Locations 0 to 5 and 7, and words of every sort.
class LocationScreenTest : public testing::Test {
  protected:
    LocationScreenTest() {
        desk_.Clear(TableNum::Locations);
        for (const int number : {0, 1, 2, 3, 4, 5, 7})
            AddLocation(number);
        desk_.AddWord(100, "NORTH", 2, 2);
        desk_.AddWord(101, "NORD", 2, 2);
        desk_.AddWord(102, "CLIMB", 30, 0);
        desk_.AddWord(103, "LAMP", 20, 2);
        desk_.AddWord(104, "WAND", 30, 2);
        desk_.AddWord(105, "RED", 60, 3);
        desk_.AddWord(106, "S\u00DCD", 3, 2);
        desk_.AddWord(107, "LAST", 19, 2);
    }

    void AddLocation(int number) {
        desk_.Add(TableNum::Locations, {{"locnum", std::int64_t{number}},
                                        {"locdesc", "Long text of " + std::to_string(number) + "."},
                                        {"locshortdesc", "Room " + std::to_string(number)},
                                        {"numexits", std::int64_t{0}},
                                        {"exits", std::string()},
                                        {"numericexits", std::string()},
                                        {"picloc", std::string()},
                                        {"pickey", std::string()},
                                        {"oldpicloc", std::string(" ")}});
    }

    void AddNamed(int number, const char* name) {
        AddLocation(number);
        store::Cursor& record =
            desk_.Adventure().OpenTable(TableNum::Locations, "*", "locnum=" + std::to_string(number));
        record.SetField("locshortdesc", std::string(name));
        record.Update();
    }

    LocationScreen Open(int number) { return {desk_.context, {number, false}}; }
    LocationScreen OpenNew(int number) { return {desk_.context, {number, true}}; }

    /// The fields of one location, between bars.
    std::string Stored(int number, std::string_view fields) {
        const auto rows = desk_.Rows(TableNum::Locations, fields, "locnum=" + std::to_string(number));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    /// Leaves `exits` with a line, and gives the box that refuses it; "" when it passes.
    std::string Fault(const std::string& exits) {
        LocationScreen screen = Open(3);
        screen.exits = exits;
        const bool passed = screen.LeaveExits();
        const std::string box = desk_.dialogs.Boxes().empty() ? "" : desk_.dialogs.Boxes().back().text;
        EXPECT_EQ(passed, box.empty());
        return box;
    }

    std::filesystem::path Folder() { return desk_.Adventure().GameDir(); }
    void MakeFile(const std::filesystem::path& file, std::string_view bytes) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << bytes;
    }
    void KeepPicturesInTheAdventure() {
        store::Cursor& settings = desk_.Adventure().OpenTable(TableNum::Adventure, "def");
        settings.SetField("graphicsindb", std::int64_t{1});
        settings.Update();
    }
    std::string PictureBytes(int number) {
        const store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Locations, "picgraphic",
                                                                  "locnum=" + std::to_string(number));
        const text::Value value = record.Field("picgraphic");
        const auto* bytes = std::get_if<text::Blob>(&value);
        if (bytes == nullptr) return "none";
        return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
    }

    Desk desk_;
};

TEST_F(LocationScreenTest, ShowsTheRecord) {
    store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Locations, "def", "locnum=3");
    record.SetField("locdesc", std::string("One.\u008CTwo."));
    record.SetField("exits", std::string("NORTH 5"));
    record.SetField("picloc", std::string("pictures/a.gif"));
    record.Update();
    const LocationScreen screen = Open(3);
    EXPECT_EQ(screen.description, "One.\nTwo.");
    EXPECT_EQ(screen.shortDescription, "Room 3");
    EXPECT_EQ(screen.exits, "NORTH 5");
    EXPECT_EQ(screen.picture, "pictures/a.gif");
}

TEST_F(LocationScreenTest, OfARecordThatIsNotThereFails) {
    EXPECT_THROW(Open(6), Error);
}

TEST_F(LocationScreenTest, OffersVerbsAndConversionNounsAsMovementWordsWithDirectionsFirst) {
    const LocationScreen screen = Open(0);
    std::vector<std::string> words;
    for (const ListItem& item : screen.exitWord.items)
        words.push_back(item.text);
    EXPECT_THAT(words, ElementsAre("NORD", "NORTH", "S\u00DCD", "CLIMB", "LAST"));
}

TEST_F(LocationScreenTest, OffersTheLocationsByName) {
    const LocationScreen screen = Open(0);
    ASSERT_EQ(screen.exitPlace.items.size(), 7u);
    EXPECT_EQ(screen.exitPlace.items[6], (ListItem{7, "Room 7"}));
}

TEST_F(LocationScreenTest, ALocationWithoutAShortDescriptionIsKnownByTheFirstLineOfTheOther) {
    const auto nameOf = [this](const char* description) {
        LocationScreen screen = Open(7);
        screen.shortDescription = "";
        screen.description = description;
        EXPECT_TRUE(screen.Update());
        return Open(0).exitPlace.items[6].text;
    };
    EXPECT_EQ(nameOf("<BRIGHT>The Yard</BRIGHT>\nThe yard is walled."), "The Yard");
    EXPECT_EQ(nameOf("<br>The Hard<br>The road climbs."), "The Hard");
    EXPECT_EQ(nameOf("A cave.\n\nIt is dark."), "A cave.");
    EXPECT_EQ(nameOf(""), "");
}

TEST_F(LocationScreenTest, GoodExitsPass) {
    EXPECT_EQ(Fault("NORTH 5 CLIMB 0"), "");
    EXPECT_EQ(Fault("  north   5  "), "");
    EXPECT_EQ(Fault(""), "");
    EXPECT_EQ(Fault("   "), "");
}

TEST_F(LocationScreenTest, AWordOfAnExitMustExist) {
    EXPECT_EQ(Fault("NORTH 5 XYZZY 3"), "XYZZY is not a valid word");
    EXPECT_EQ(desk_.dialogs.Boxes().back().title, "Error");
}

TEST_F(LocationScreenTest, AWordOfAnExitMustBeAVerbOrNoun) {
    EXPECT_EQ(Fault("RED 5"), "RED is not a Verb or conversion Noun");
    EXPECT_EQ(Fault("_ 5"), "_ is not a Verb or conversion Noun");
}

TEST_F(LocationScreenTest, AnExitOnNoun20IsRefused) {
    EXPECT_EQ(Fault("LAMP 5"), "LAMP is not identified as a movement word (value<20)");
}

TEST_F(LocationScreenTest, AnExitOnNoun19Passes) {
    EXPECT_EQ(Fault("LAST 5"), "");
}

TEST_F(LocationScreenTest, AWordThatIsAdjectiveAndVerbIsAVerb) {
    desk_.AddWord(110, "OPEN", 40, 3);
    desk_.AddWord(111, "OPEN", 41, 0);
    EXPECT_EQ(Fault("OPEN 5"), "");
}

TEST_F(LocationScreenTest, TheLocationOfAnExitMustBeNumericAndTheMessageLacksABlank) {
    EXPECT_EQ(Fault("NORTH FIVE"), "TO location for NORTHmust be numeric");
}

TEST_F(LocationScreenTest, AnExitWithoutALocationStopsAtTheCheckOfTheLastLocation) {
    desk_.AddWord(110, "SOUTH", 4, 2);
    EXPECT_EQ(Fault("NORTH 5 SOUTH"), "TO location for SOUTHmust be numeric");
}

TEST_F(LocationScreenTest, TheLocationOfAnExitMustExist) {
    EXPECT_EQ(Fault("NORTH 6"), "There is not a location with a number of 6 for NORTH");
    EXPECT_EQ(Fault("NORTH -1"), "There is not a location with a number of -1 for NORTH");
    EXPECT_EQ(Fault("NORTH 4294967301"), "There is not a location with a number of 4294967301 for NORTH");
}

TEST_F(LocationScreenTest, OnlyTheFirstFaultIsTold) {
    Fault("XYZZY 5 RED 6");
    EXPECT_EQ(desk_.dialogs.Boxes().size(), 1u);
}

TEST_F(LocationScreenTest, TheFocusGoesBackToTheFieldThatWasRefused) {
    LocationScreen screen = Open(3);
    screen.exits = "XYZZY 5";
    screen.LeaveExits();
    EXPECT_EQ(screen.Refused(), "exits");
    screen.description = "Fish & chips";
    screen.LeaveDescription();
    EXPECT_EQ(screen.Refused(), "description");
}

TEST_F(LocationScreenTest, ANewLocationMayLeadToItself) {
    LocationScreen screen = OpenNew(8);
    screen.exits = "NORTH 8";
    EXPECT_TRUE(screen.LeaveExits());
}

TEST_F(LocationScreenTest, TheLocationListAloneMustBeNumeric) {
    LocationScreen screen = Open(3);
    screen.exitPlace.text = "far";
    EXPECT_FALSE(screen.LeaveExitPlace());
    EXPECT_EQ(desk_.Boxes().back(), "TO location must be numeric");
}

TEST_F(LocationScreenTest, TheLocationListAloneMustNameALocation) {
    LocationScreen screen = Open(3);
    screen.exitPlace.text = "6";
    EXPECT_FALSE(screen.LeaveExitPlace());
    EXPECT_EQ(desk_.Boxes().back(), "There is not a location with a number of 6");
}

TEST_F(LocationScreenTest, AddJoinsWordAndLocationToTheLine) {
    LocationScreen screen = Open(3);
    screen.exits = "NORTH 5 ";
    screen.exitWord.text = "CLIMB";
    screen.exitPlace.text = "7";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.exits, "NORTH 5 CLIMB 7");
    EXPECT_EQ(screen.exitWord.text + screen.exitPlace.text, "");
}

TEST_F(LocationScreenTest, APlaceCanBeGivenByItsNameOrItsBeginning) {
    AddNamed(20, "The old mill");
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH";
    screen.exitPlace.text = "the OLD mill";
    EXPECT_TRUE(screen.Add());
    screen.exitWord.text = "CLIMB";
    screen.exitPlace.text = "the old";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.exits, "NORTH 20 CLIMB 20");
}

TEST_F(LocationScreenTest, ANameOfTwoPlacesIsRefused) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH";
    screen.exitPlace.text = "room";
    EXPECT_FALSE(screen.Add());
    EXPECT_EQ(desk_.Boxes().back(), "More than one location is called room");
    EXPECT_EQ(screen.Refused(), "exitPlace");
}

TEST_F(LocationScreenTest, APlaceThatDoesNotExistIsMadeWithoutAQuestion) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB";
    screen.exitPlace.text = "The mill";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(Stored(6, "locnum"), "0 records") << "only Update makes it";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(Stored(3, "exits, numericexits"), "CLIMB 6|30 6");
    EXPECT_EQ(Stored(6, "locshortdesc, exits, numexits"), "The mill||0");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3 with new location 6");
    desk_.document.Undo();
    EXPECT_EQ(Stored(6, "locnum"), "0 records");
    EXPECT_EQ(Stored(3, "exits"), "");
}

TEST_F(LocationScreenTest, AFaultyWordMakesNoPlace) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "XYZZY The mill";
    EXPECT_FALSE(screen.Add());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("XYZZY is not a valid word"));
    EXPECT_EQ(screen.Refused(), "exitWord");
    EXPECT_EQ(screen.exitPlace.items.size(), 7u);
}

TEST_F(LocationScreenTest, TheNameOfANewPlaceIsCheckedAsAShortDescription) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH Fish & chips";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(desk_.Boxes().back(),
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
    EXPECT_EQ(screen.Refused(), "exitPlace");
    screen.exitWord.text = "NORTH " + std::string(256, 'x');
    screen.exitPlace.text = "";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(desk_.Boxes().back(), "A maximum of 255 characters is allowed.\nYou have 256");
    EXPECT_EQ(Stored(6, "locnum"), "0 records");
}

TEST_F(LocationScreenTest, WhereNoNumberIsLeftNoPlaceIsMade) {
    desk_.Clear(TableNum::Locations);
    for (int number = 0; number < 1000; ++number)
        AddLocation(number);
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH The mill";
    EXPECT_FALSE(screen.Add()) << "252 to 255 are there in this file, and no places";
    EXPECT_EQ(desk_.Boxes().back(), "There is no number left for a location");
}

TEST_F(LocationScreenTest, APlaceWhoseExitWasTakenOutAgainIsNotMade) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH";
    screen.exitPlace.text = "The mill";
    EXPECT_TRUE(screen.Add());
    screen.exits = "CLIMB 7";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(6, "locnum"), "0 records");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3");
}

TEST_F(LocationScreenTest, AnExitAndBackJoinsBothPlacesInOneStepOfUndo) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    LocationScreen screen = Open(3);
    EXPECT_TRUE(screen.AndBack()) << "from the start";
    screen.exitWord.text = "NORD";
    screen.exitPlace.text = "7";
    EXPECT_TRUE(screen.Add());
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "NORD 7");
    EXPECT_EQ(Stored(7, "exits, numericexits, numexits"), "SOUTH 3|3 3|2");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3 with the way back from location 7");
    desk_.document.Undo();
    EXPECT_EQ(Stored(7, "exits, numexits"), "|0");
}

TEST_F(LocationScreenTest, ANewPlaceGetsItsWayBackToo) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH The mill";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(6, "locshortdesc, exits, numericexits, numexits"), "The mill|SOUTH 3|3 3|2");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3 with new location 6");
}

TEST_F(LocationScreenTest, ThatExitsGoOneWayHoldsForTheNextLocationToo) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    Open(3).SetAndBack(false);
    LocationScreen screen = Open(4);
    EXPECT_FALSE(screen.AndBack());
    screen.exitWord.text = "NORTH 7";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(4, "exits"), "NORD 7");
    EXPECT_EQ(Stored(7, "exits"), "");
}

TEST_F(LocationScreenTest, AWayBackDoesNotReplaceAnExit) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    LocationScreen other = Open(7);
    other.exits = "SOUTH 5";
    EXPECT_TRUE(other.Update());
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH";
    screen.exitPlace.text = "7";
    EXPECT_TRUE(screen.Add());
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(7, "numericexits"), "3 5");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(LocationScreenTest, AWordWithoutAnOppositeMakesAnExitOneWay) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB 7";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 7");
    EXPECT_EQ(Stored(7, "exits"), "");
}

TEST_F(LocationScreenTest, AnExitToTheSamePlaceHasNoWayBack) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH 3";
    EXPECT_EQ(screen.WhatAddDoes(), "Leads to location 3, \u201CRoom 3\u201D.");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "NORD 3");
}

/// What is told while an exit is typed.
class TypedExitTest : public LocationScreenTest {
  protected:
    TypedExitTest() { desk_.AddWord(108, "SOUTH", 3, 2); }

    std::string Told(const std::string& typed) {
        LocationScreen screen = Open(3);
        screen.exitWord.text = typed;
        return screen.WhatAddDoes();
    }
};

TEST_F(TypedExitTest, TellsNothingUntilItHasAPlace) {
    EXPECT_EQ(Told(""), "");
    EXPECT_EQ(Told("NORT"), "");
    EXPECT_EQ(Told("NORTH "), "");
    LocationScreen screen = Open(3);
    screen.exitPlace.text = "7";
    EXPECT_EQ(screen.WhatAddDoes(), "");
}

TEST_F(TypedExitTest, TellsWhichLocationItMakes) {
    EXPECT_EQ(Told("NORTH The mill"), "Makes location 6, \u201CThe mill\u201D, with SOUTH back to here.");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(TypedExitTest, TellsOfAPlaceThatWillBeMadeUntilItIs) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH The mill";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.WhatAddDoes(), "");
    screen.exitWord.text = "CLIMB the mill";
    EXPECT_EQ(
        screen.WhatAddDoes(),
        "Makes location 6, \u201CThe mill\u201D; no word leads back, as none is the opposite of CLIMB.");
}

TEST_F(TypedExitTest, TellsWhereItLeads) {
    EXPECT_EQ(Told("NORTH 7"), "Leads to location 7, \u201CRoom 7\u201D, with SOUTH back to here.");
    EXPECT_EQ(Told("south room 4"), "Leads to location 4, \u201CRoom 4\u201D, with NORD back to here.");
}

TEST_F(TypedExitTest, TellsNothingOfAWayBackThatNobodyWants) {
    Open(3).SetAndBack(false);
    EXPECT_EQ(Told("NORTH 7"), "Leads to location 7, \u201CRoom 7\u201D.");
}

TEST_F(TypedExitTest, TellsOfAWayBackThatIsThere) {
    const auto leadBack = [this](const char* exits) {
        LocationScreen other = Open(7);
        other.exits = exits;
        EXPECT_TRUE(other.Update());
        return Told("NORTH 7");
    };
    EXPECT_EQ(leadBack("SOUTH 3"), "Leads to location 7, \u201CRoom 7\u201D, from where SOUTH leads here.");
    EXPECT_EQ(
        leadBack("SOUTH 5"),
        "Leads to location 7, \u201CRoom 7\u201D; SOUTH leads from there to location 5 and stays so.");
}

TEST_F(TypedExitTest, TellsWhatIsWrongWithIt) {
    EXPECT_EQ(Told("XYZZY 7"), "XYZZY is not a valid word");
    EXPECT_EQ(Told("RED The mill"), "RED is not a Verb or conversion Noun");
    EXPECT_EQ(Told("NORTH 6"), "There is not a location with a number of 6 for NORTH");
    EXPECT_EQ(Told("NORTH Room"), "More than one location is called Room");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(LocationScreenTest, UpdateStoresAnExitThatWasNotAddedYet) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB";
    screen.exitPlace.text = "7";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 7");
}

TEST_F(LocationScreenTest, UpdateRefusesAnExitThatWasOnlyBegun) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(desk_.Boxes().back(), "TO location must be numeric");
    EXPECT_EQ(screen.Refused(), "exitPlace");
}

TEST_F(LocationScreenTest, AddRefusesWhatTheLineWouldRefuse) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "XYZZY";
    screen.exitPlace.text = "7";
    EXPECT_FALSE(screen.Add());
    EXPECT_EQ(desk_.Boxes().back(), "XYZZY is not a valid word");
    EXPECT_EQ(screen.Refused(), "exitWord");
    EXPECT_EQ(screen.exits, "");
}

TEST_F(LocationScreenTest, ExitsAreRowsWithTheNameOfTheNeighbour) {
    LocationScreen screen = Open(3);
    screen.exits = "NORTH 5 CLIMB 6 LAMP";
    EXPECT_THAT(screen.Exits(), ElementsAre(ExitRow{"NORTH", "5", "Room 5"}, ExitRow{"CLIMB", "6", ""},
                                            ExitRow{"LAMP", "", ""}));
}

TEST_F(LocationScreenTest, RowsMakeTheLineAgain) {
    LocationScreen screen = Open(3);
    screen.SetExits({{"NORTH", "5", ""}, {"", "7", ""}, {"CLIMB", "0", ""}, {"LAMP", "", ""}});
    EXPECT_EQ(screen.exits, "NORTH 5 CLIMB 0");
}

TEST_F(LocationScreenTest, ShowsWhichLocationsLeadHere) {
    for (const int from : {1, 5}) {
        LocationScreen screen = Open(from);
        screen.exits = "NORTH 3 CLIMB " + std::to_string(from);
        EXPECT_TRUE(screen.Update());
    }
    EXPECT_THAT(Open(3).LeadsHere(),
                ElementsAre(Neighbour{1, "Room 1", "NORD"}, Neighbour{5, "Room 5", "NORD"}));
}

TEST_F(LocationScreenTest, StoresWordsByTheFirstOfTheirNumber) {
    LocationScreen screen = Open(3);
    screen.exits = " north  05 climb 0 ";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits, numericexits, numexits"), "NORD 5 CLIMB 0|2 5 30 0|4");
}

TEST_F(LocationScreenTest, AVerbIsNotStoredAsTheNounOfItsNumber) {
    desk_.Adventure().Sorts().vocabulary = "word desc";
    LocationScreen screen = Open(3);
    screen.exits = "CLIMB 5";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 5");
}

TEST_F(LocationScreenTest, WordsKeepTheirLettersBeyondAscii) {
    LocationScreen screen = Open(3);
    screen.exits = "s\u00FCd 5";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "S\u00DCD 5");
}

TEST_F(LocationScreenTest, NoExitsAreStoredAsEmptyTexts) {
    LocationScreen screen = Open(3);
    screen.exits = "NORTH 5";
    screen.Update();
    LocationScreen again = Open(3);
    again.exits = " ";
    EXPECT_TRUE(again.Update());
    EXPECT_EQ(Stored(3, "exits, numericexits, numexits"), "||0");
}

TEST_F(LocationScreenTest, TextsAreStoredWithTheSystemsLineEnds) {
    LocationScreen screen = Open(3);
    screen.description = "One.\nTwo.";
    screen.shortDescription = "";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "locdesc, locshortdesc"), "One.\u008CTwo.| ");
}

TEST_F(LocationScreenTest, TagsAreAllowedInBothTexts) {
    LocationScreen screen = Open(3);
    screen.description = "<INK=2>Red.";
    screen.shortDescription = "<INK=2>Red room";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(LocationScreenTest, AFaultyTextIsToldByItsWord) {
    LocationScreen screen = Open(3);
    screen.shortDescription = "Fish & chips";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(desk_.Boxes().back(),
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
    EXPECT_EQ(screen.Refused(), "shortDescription");
    EXPECT_EQ(Stored(3, "locshortdesc"), "Room 3");
}

TEST_F(LocationScreenTest, AShortDescriptionHas255CharactersAtMost) {
    LocationScreen screen = Open(3);
    std::string words;
    for (int i = 0; i < 51; ++i)
        words += "r\u00E4um ";
    screen.shortDescription = words;
    EXPECT_TRUE(screen.LeaveShortDescription());
    screen.shortDescription += "x";
    EXPECT_FALSE(screen.LeaveShortDescription());
    EXPECT_EQ(desk_.Boxes().back(), "A maximum of 255 characters is allowed.\nYou have 256");
}

TEST_F(LocationScreenTest, UpdateChecksDescriptionThenShortDescriptionThenExits) {
    LocationScreen screen = Open(3);
    screen.description = "a<b";
    screen.shortDescription = "a>b";
    screen.exits = "XYZZY";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(screen.Refused(), "description");
    screen.description = "a";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(screen.Refused(), "shortDescription");
    screen.shortDescription = "a";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(screen.Refused(), "exits");
}

TEST_F(LocationScreenTest, UpdateWithoutAChangeStoresNothing) {
    EXPECT_TRUE(Open(3).Update());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(LocationScreenTest, UpdateOfANewLocationWithoutAChangeAddsNone) {
    EXPECT_TRUE(OpenNew(8).Update());
    EXPECT_EQ(Stored(8, "locnum"), "0 records");
}

TEST_F(LocationScreenTest, AddsALocationThatUndoTakesBack) {
    LocationScreen screen = OpenNew(8);
    screen.description = "A cave.";
    screen.exits = "NORTH 3";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(8, "locdesc, locshortdesc, exits, numericexits, numexits, picloc, pickey, oldpicloc"),
              "A cave.| |NORD 3|2 3|2||| ");
    EXPECT_EQ(desk_.document.UndoName(), "add location 8");
    desk_.document.Undo();
    EXPECT_EQ(Stored(8, "locnum"), "0 records");
    desk_.document.Redo();
    EXPECT_EQ(Stored(8, "locdesc"), "A cave.");
}

TEST_F(LocationScreenTest, EditsALocationAndUndoTakesItBack) {
    LocationScreen screen = Open(3);
    screen.description = "Changed.";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3");
    desk_.document.Undo();
    EXPECT_EQ(Stored(3, "locdesc"), "Long text of 3.");
}

TEST_F(LocationScreenTest, ThatIsLeftByExitChangesNothing) {
    {
        LocationScreen screen = Open(3);
        screen.description = "Changed.";
    }
    EXPECT_EQ(Stored(3, "locdesc"), "Long text of 3.");
}

TEST_F(LocationScreenTest, APictureIsStoredWithTheKeyOfItsRoom) {
    MakeFile(Folder() / "pictures" / "a.gif", "GIF");
    desk_.dialogs.AnswerFile(Folder() / "pictures" / "a.gif");
    LocationScreen screen = Open(3);
    screen.ChoosePicture();
    EXPECT_EQ(desk_.dialogs.Questions().at(0).title, "Load Room Picture");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "pickey, picloc, oldpicloc"), "Room3|pictures/a.gif| ");
    EXPECT_EQ(PictureBytes(3), "none") << "the adventure does not keep pictures";
}

TEST_F(LocationScreenTest, APictureThatIsKeptInTheAdventureIsRead) {
    KeepPicturesInTheAdventure();
    MakeFile(Folder() / "a.gif", "GIF");
    LocationScreen screen = Open(3);
    screen.picture = "a.gif";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "pickey, picloc, oldpicloc"), "Room3|a.gif|a.gif");
    EXPECT_EQ(PictureBytes(3), "GIF");
}

TEST_F(LocationScreenTest, APictureThatWasReadIsNotReadAgain) {
    KeepPicturesInTheAdventure();
    MakeFile(Folder() / "a.gif", "GIF");
    LocationScreen screen = Open(3);
    screen.picture = "a.gif";
    screen.Update();
    std::filesystem::remove(Folder() / "a.gif");
    LocationScreen again = Open(3);
    again.description = "Changed.";
    EXPECT_TRUE(again.Update());
    EXPECT_EQ(PictureBytes(3), "GIF");
}

TEST_F(LocationScreenTest, APictureThatIsMissingFailsAndStoresNothing) {
    KeepPicturesInTheAdventure();
    LocationScreen screen = Open(3);
    screen.picture = "none.gif";
    EXPECT_THROW(screen.Update(), Error);
    EXPECT_EQ(Stored(3, "pickey, picloc"), "|");
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(LocationScreenTest, WithoutAPictureAllItsFieldsAreCleared) {
    KeepPicturesInTheAdventure();
    MakeFile(Folder() / "a.gif", "GIF");
    LocationScreen screen = Open(3);
    screen.picture = "a.gif";
    screen.Update();
    LocationScreen again = Open(3);
    again.ClearPicture();
    EXPECT_TRUE(again.Update());
    EXPECT_EQ(Stored(3, "pickey, picloc, oldpicloc"), "|| ");
    EXPECT_EQ(PictureBytes(3), "none");
}

TEST_F(LocationScreenTest, AnExitMayBeTypedAsItsWordAndThePlace) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = " north  Room 4 ";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.exits, "north 4");
    screen.exitWord.text = "climb 5";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "NORD 4 CLIMB 5");
}

}  // namespace
}  // namespace fabula::authoring
