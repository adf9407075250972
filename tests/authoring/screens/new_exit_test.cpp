// The exit that is typed in the screen of a location, what it makes, and what is told of it meanwhile.

#include <gmock/gmock.h>

#include "places_and_words.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

class NewExitTest : public PlacesAndWords {};

TEST_F(NewExitTest, AnExitMayBeTypedAsItsWordAndThePlace) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = " north  Room 4 ";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.exits, "north 4");
    screen.exitWord.text = "climb 5";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "NORD 4 CLIMB 5");
}

TEST_F(NewExitTest, AddJoinsWordAndLocationToTheLine) {
    LocationScreen screen = Open(3);
    screen.exits = "NORTH 5 ";
    screen.exitWord.text = "CLIMB";
    screen.exitPlace.text = "7";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.exits, "NORTH 5 CLIMB 7");
    EXPECT_EQ(screen.exitWord.text + screen.exitPlace.text, "");
}

TEST_F(NewExitTest, APlaceCanBeGivenByItsNameOrItsBeginning) {
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

TEST_F(NewExitTest, ANameOfTwoPlacesIsRefused) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH";
    screen.exitPlace.text = "room";
    EXPECT_FALSE(screen.Add());
    EXPECT_EQ(desk_.Boxes().back(), "More than one location is called room");
    EXPECT_EQ(screen.Refused(), "exitPlace");
}

TEST_F(NewExitTest, APlaceThatDoesNotExistIsMadeWithoutAQuestion) {
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

TEST_F(NewExitTest, AFaultyWordMakesNoPlace) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "XYZZY The mill";
    EXPECT_FALSE(screen.Add());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("XYZZY is not a valid word"));
    EXPECT_EQ(screen.Refused(), "exitWord");
    EXPECT_EQ(screen.exitPlace.items.size(), 7u);
}

TEST_F(NewExitTest, TheNameOfANewPlaceIsCheckedAsAShortDescription) {
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

TEST_F(NewExitTest, WhereNoNumberIsLeftNoPlaceIsMade) {
    store::Transaction filling(desk_.Adventure());
    desk_.Clear(TableNum::Locations);
    for (int number = 0; number < 1000; ++number)
        AddLocation(number);
    filling.Commit();
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH The mill";
    EXPECT_FALSE(screen.Add()) << "252 to 255 are there in this file, and no places";
    EXPECT_EQ(desk_.Boxes().back(), "There is no number left for a location");
}

TEST_F(NewExitTest, APlaceWhoseExitWasTakenOutAgainIsNotMade) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH";
    screen.exitPlace.text = "The mill";
    EXPECT_TRUE(screen.Add());
    screen.exits = "CLIMB 7";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(6, "locnum"), "0 records");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3");
}

TEST_F(NewExitTest, AnExitAndBackJoinsBothPlacesInOneStepOfUndo) {
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

TEST_F(NewExitTest, ANewPlaceGetsItsWayBackToo) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH The mill";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(6, "locshortdesc, exits, numericexits, numexits"), "The mill|SOUTH 3|3 3|2");
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3 with new location 6");
}

TEST_F(NewExitTest, ThatExitsGoOneWayHoldsForTheNextLocationToo) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    Open(3).SetAndBack(false);
    LocationScreen screen = Open(4);
    EXPECT_FALSE(screen.AndBack());
    screen.exitWord.text = "NORTH 7";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(4, "exits"), "NORD 7");
    EXPECT_EQ(Stored(7, "exits"), "");
}

TEST_F(NewExitTest, AWayBackDoesNotReplaceAnExit) {
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

TEST_F(NewExitTest, AWordWithoutAnOppositeMakesAnExitOneWay) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB 7";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 7");
    EXPECT_EQ(Stored(7, "exits"), "");
}

TEST_F(NewExitTest, AnExitToTheSamePlaceHasNoWayBack) {
    desk_.AddWord(108, "SOUTH", 3, 2);
    LocationScreen screen = Open(3);
    screen.exitWord.text = "NORTH 3";
    EXPECT_EQ(screen.WhatAddDoes(), "Leads to location 3, \u201CRoom 3\u201D.");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "NORD 3");
}

/// What is told while an exit is typed.
class TypedExitTest : public NewExitTest {
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

TEST_F(NewExitTest, UpdateStoresAnExitThatWasNotAddedYet) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB";
    screen.exitPlace.text = "7";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 7");
}

TEST_F(NewExitTest, UpdateRefusesAnExitThatWasOnlyBegun) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "CLIMB";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(desk_.Boxes().back(), "TO location must be numeric");
    EXPECT_EQ(screen.Refused(), "exitPlace");
}

TEST_F(NewExitTest, AddRefusesWhatTheLineWouldRefuse) {
    LocationScreen screen = Open(3);
    screen.exitWord.text = "XYZZY";
    screen.exitPlace.text = "7";
    EXPECT_FALSE(screen.Add());
    EXPECT_EQ(desk_.Boxes().back(), "XYZZY is not a valid word");
    EXPECT_EQ(screen.Refused(), "exitWord");
    EXPECT_EQ(screen.exits, "");
}

}  // namespace
}  // namespace fabula::authoring
