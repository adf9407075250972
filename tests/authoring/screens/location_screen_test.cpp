#include "authoring/screens/location_screen.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "places_and_words.h"
#include "platform/error.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

class LocationScreenTest : public PlacesAndWords {
  protected:
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
    EXPECT_THAT(Open(3).LeadsHere(), ElementsAre(Neighbour{condacts::PlaceNumber(1), "Room 1", "NORD"},
                                                 Neighbour{condacts::PlaceNumber(5), "Room 5", "NORD"}));
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

}  // namespace
}  // namespace fabula::authoring
