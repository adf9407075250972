#include "authoring/frm_vel_location.h"

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
class LocationScreen : public testing::Test {
  protected:
    LocationScreen() {
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

    frmVelLocation Open(int number) { return {desk_.session, {number, false}}; }
    frmVelLocation OpenNew(int number) { return {desk_.session, {number, true}}; }

    /// The fields of one location, between bars.
    std::string Stored(int number, std::string_view fields) {
        const auto rows = desk_.Rows(TableNum::Locations, fields, "locnum=" + std::to_string(number));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    /// Leaves `txtExits` with a line, and gives the box that refuses it; "" when it passes.
    std::string Fault(const std::string& exits) {
        frmVelLocation screen = Open(3);
        screen.txtExits = exits;
        const bool passed = screen.LeaveTxtExits();
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

TEST_F(LocationScreen, ShowsTheRecord) {
    store::Cursor& record = desk_.Adventure().OpenTable(TableNum::Locations, "def", "locnum=3");
    record.SetField("locdesc", std::string("One.\u008CTwo."));
    record.SetField("exits", std::string("NORTH 5"));
    record.SetField("picloc", std::string("pictures/a.gif"));
    record.Update();
    const frmVelLocation screen = Open(3);
    EXPECT_EQ(screen.txtDEscription, "One.\nTwo.");
    EXPECT_EQ(screen.txtShortDesc, "Room 3");
    EXPECT_EQ(screen.txtExits, "NORTH 5");
    EXPECT_EQ(screen.txtPicture, "pictures/a.gif");
}

TEST_F(LocationScreen, OfARecordThatIsNotThereFails) {
    EXPECT_THROW(Open(6), Error);
}

TEST_F(LocationScreen, OffersVerbsAndConversionNounsAsMovementWordsWithDirectionsFirst) {
    const frmVelLocation screen = Open(0);
    std::vector<std::string> words;
    for (const ListItem& item : screen.cboExit.items)
        words.push_back(item.text);
    EXPECT_THAT(words, ElementsAre("NORD", "NORTH", "S\u00DCD", "CLIMB", "LAST"));
}

TEST_F(LocationScreen, OffersTheLocationsByName) {
    const frmVelLocation screen = Open(0);
    ASSERT_EQ(screen.cboLoc.items.size(), 7u);
    EXPECT_EQ(screen.cboLoc.items[6], (ListItem{7, "Room 7"}));
}

TEST_F(LocationScreen, ALocationWithoutAShortDescriptionIsKnownByTheFirstLineOfTheOther) {
    const auto nameOf = [this](const char* description) {
        frmVelLocation screen = Open(7);
        screen.txtShortDesc = "";
        screen.txtDEscription = description;
        EXPECT_TRUE(screen.cmdUpdate());
        return Open(0).cboLoc.items[6].text;
    };
    EXPECT_EQ(nameOf("<BRIGHT>The Yard</BRIGHT>\nThe yard is walled."), "The Yard");
    EXPECT_EQ(nameOf("<br>The Hard<br>The road climbs."), "The Hard");
    EXPECT_EQ(nameOf("A cave.\n\nIt is dark."), "A cave.");
    EXPECT_EQ(nameOf(""), "");
}

TEST_F(LocationScreen, GoodExitsPass) {
    EXPECT_EQ(Fault("NORTH 5 CLIMB 0"), "");
    EXPECT_EQ(Fault("  north   5  "), "");
    EXPECT_EQ(Fault(""), "");
    EXPECT_EQ(Fault("   "), "");
}

TEST_F(LocationScreen, AWordOfAnExitMustExist) {
    EXPECT_EQ(Fault("NORTH 5 XYZZY 3"), "XYZZY is not a valid word");
    EXPECT_EQ(desk_.dialogs.Boxes().back().title, "Error");
}

TEST_F(LocationScreen, AWordOfAnExitMustBeAVerbOrNoun) {
    EXPECT_EQ(Fault("RED 5"), "RED is not a Verb or conversion Noun");
    EXPECT_EQ(Fault("_ 5"), "_ is not a Verb or conversion Noun");
}

TEST_F(LocationScreen, AnExitOnNoun20IsRefused) {
    EXPECT_EQ(Fault("LAMP 5"), "LAMP is not identified as a movement word (value<20)");
}

TEST_F(LocationScreen, AnExitOnNoun19Passes) {
    EXPECT_EQ(Fault("LAST 5"), "");
}

TEST_F(LocationScreen, AWordThatIsAdjectiveAndVerbIsAVerb) {
    desk_.AddWord(110, "OPEN", 40, 3);
    desk_.AddWord(111, "OPEN", 41, 0);
    EXPECT_EQ(Fault("OPEN 5"), "");
}

TEST_F(LocationScreen, TheLocationOfAnExitMustBeNumericAndTheMessageLacksABlank) {
    EXPECT_EQ(Fault("NORTH FIVE"), "TO location for NORTHmust be numeric");
}

TEST_F(LocationScreen, AnExitWithoutALocationStopsAtTheCheckOfTheLastLocation) {
    desk_.AddWord(110, "SOUTH", 4, 2);
    EXPECT_EQ(Fault("NORTH 5 SOUTH"), "TO location for SOUTHmust be numeric");
}

TEST_F(LocationScreen, TheLocationOfAnExitMustExist) {
    EXPECT_EQ(Fault("NORTH 6"), "There is not a location with a number of 6 for NORTH");
    EXPECT_EQ(Fault("NORTH -1"), "There is not a location with a number of -1 for NORTH");
    EXPECT_EQ(Fault("NORTH 4294967301"), "There is not a location with a number of 4294967301 for NORTH");
}

TEST_F(LocationScreen, OnlyTheFirstFaultIsTold) {
    Fault("XYZZY 5 RED 6");
    EXPECT_EQ(desk_.dialogs.Boxes().size(), 1u);
}

TEST_F(LocationScreen, TheFocusGoesBackToTheFieldThatWasRefused) {
    frmVelLocation screen = Open(3);
    screen.txtExits = "XYZZY 5";
    screen.LeaveTxtExits();
    EXPECT_EQ(screen.Refused(), "txtExits");
    screen.txtDEscription = "Fish & chips";
    screen.LeaveTxtDEscription();
    EXPECT_EQ(screen.Refused(), "txtDEscription");
}

TEST_F(LocationScreen, ANewLocationMayLeadToItself) {
    frmVelLocation screen = OpenNew(8);
    screen.txtExits = "NORTH 8";
    EXPECT_TRUE(screen.LeaveTxtExits());
}

TEST_F(LocationScreen, TheLocationListAloneMustBeNumeric) {
    frmVelLocation screen = Open(3);
    screen.cboLoc.text = "far";
    EXPECT_FALSE(screen.LeaveCboLoc());
    EXPECT_EQ(desk_.Boxes().back(), "TO location must be numeric");
}

TEST_F(LocationScreen, TheLocationListAloneMustNameALocation) {
    frmVelLocation screen = Open(3);
    screen.cboLoc.text = "6";
    EXPECT_FALSE(screen.LeaveCboLoc());
    EXPECT_EQ(desk_.Boxes().back(), "There is not a location with a number of 6");
}

TEST_F(LocationScreen, AddJoinsWordAndLocationToTheLine) {
    frmVelLocation screen = Open(3);
    screen.txtExits = "NORTH 5 ";
    screen.cboExit.text = "CLIMB";
    screen.cboLoc.text = "7";
    EXPECT_TRUE(screen.cmdAdd());
    EXPECT_EQ(screen.txtExits, "NORTH 5 CLIMB 7");
    EXPECT_EQ(screen.cboExit.text + screen.cboLoc.text, "");
}

TEST_F(LocationScreen, UpdateStoresAnExitThatWasNotAddedYet) {
    frmVelLocation screen = Open(3);
    screen.cboExit.text = "CLIMB";
    screen.cboLoc.text = "7";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 7");
}

TEST_F(LocationScreen, UpdateRefusesAnExitThatWasOnlyBegun) {
    frmVelLocation screen = Open(3);
    screen.cboExit.text = "CLIMB";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(desk_.Boxes().back(), "TO location must be numeric");
    EXPECT_EQ(screen.Refused(), "cboLoc");
}

TEST_F(LocationScreen, AddRefusesWhatTheLineWouldRefuse) {
    frmVelLocation screen = Open(3);
    screen.cboExit.text = "XYZZY";
    screen.cboLoc.text = "7";
    EXPECT_FALSE(screen.cmdAdd());
    EXPECT_EQ(desk_.Boxes().back(), "XYZZY is not a valid word");
    EXPECT_EQ(screen.Refused(), "cboExit");
    EXPECT_EQ(screen.txtExits, "");
}

TEST_F(LocationScreen, ExitsAreRowsWithTheNameOfTheNeighbour) {
    frmVelLocation screen = Open(3);
    screen.txtExits = "NORTH 5 CLIMB 6 LAMP";
    EXPECT_THAT(screen.Exits(), ElementsAre(ExitRow{"NORTH", "5", "Room 5"}, ExitRow{"CLIMB", "6", ""},
                                            ExitRow{"LAMP", "", ""}));
}

TEST_F(LocationScreen, RowsMakeTheLineAgain) {
    frmVelLocation screen = Open(3);
    screen.SetExits({{"NORTH", "5", ""}, {"", "7", ""}, {"CLIMB", "0", ""}, {"LAMP", "", ""}});
    EXPECT_EQ(screen.txtExits, "NORTH 5 CLIMB 0");
}

TEST_F(LocationScreen, ShowsWhichLocationsLeadHere) {
    for (const int from : {1, 5}) {
        frmVelLocation screen = Open(from);
        screen.txtExits = "NORTH 3 CLIMB " + std::to_string(from);
        EXPECT_TRUE(screen.cmdUpdate());
    }
    EXPECT_THAT(Open(3).LeadsHere(),
                ElementsAre(Neighbour{1, "Room 1", "NORD"}, Neighbour{5, "Room 5", "NORD"}));
}

TEST_F(LocationScreen, StoresWordsByTheFirstOfTheirNumber) {
    frmVelLocation screen = Open(3);
    screen.txtExits = " north  05 climb 0 ";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "exits, numericexits, numexits"), "NORD 5 CLIMB 0|2 5 30 0|4");
}

TEST_F(LocationScreen, AVerbIsNotStoredAsTheNounOfItsNumber) {
    desk_.Adventure().Sorts().vocabulary = "word desc";
    frmVelLocation screen = Open(3);
    screen.txtExits = "CLIMB 5";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "exits"), "CLIMB 5");
}

TEST_F(LocationScreen, WordsKeepTheirLettersBeyondAscii) {
    frmVelLocation screen = Open(3);
    screen.txtExits = "s\u00FCd 5";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "exits"), "S\u00DCD 5");
}

TEST_F(LocationScreen, NoExitsAreStoredAsEmptyTexts) {
    frmVelLocation screen = Open(3);
    screen.txtExits = "NORTH 5";
    screen.cmdUpdate();
    frmVelLocation again = Open(3);
    again.txtExits = " ";
    EXPECT_TRUE(again.cmdUpdate());
    EXPECT_EQ(Stored(3, "exits, numericexits, numexits"), "||0");
}

TEST_F(LocationScreen, TextsAreStoredWithTheSystemsLineEnds) {
    frmVelLocation screen = Open(3);
    screen.txtDEscription = "One.\nTwo.";
    screen.txtShortDesc = "";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "locdesc, locshortdesc"), "One.\u008CTwo.| ");
}

TEST_F(LocationScreen, TagsAreAllowedInBothTexts) {
    frmVelLocation screen = Open(3);
    screen.txtDEscription = "<INK=2>Red.";
    screen.txtShortDesc = "<INK=2>Red room";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(LocationScreen, AFaultyTextIsToldByItsWord) {
    frmVelLocation screen = Open(3);
    screen.txtShortDesc = "Fish & chips";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(desk_.Boxes().back(),
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
    EXPECT_EQ(screen.Refused(), "txtShortDesc");
    EXPECT_EQ(Stored(3, "locshortdesc"), "Room 3");
}

TEST_F(LocationScreen, AShortDescriptionHas255CharactersAtMost) {
    frmVelLocation screen = Open(3);
    std::string words;
    for (int i = 0; i < 51; ++i)
        words += "r\u00E4um ";
    screen.txtShortDesc = words;
    EXPECT_TRUE(screen.LeaveTxtShortDesc());
    screen.txtShortDesc += "x";
    EXPECT_FALSE(screen.LeaveTxtShortDesc());
    EXPECT_EQ(desk_.Boxes().back(), "A maximum of 255 characters is allowed.\nYou have 256");
}

TEST_F(LocationScreen, UpdateChecksDescriptionThenShortDescriptionThenExits) {
    frmVelLocation screen = Open(3);
    screen.txtDEscription = "a<b";
    screen.txtShortDesc = "a>b";
    screen.txtExits = "XYZZY";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(screen.Refused(), "txtDEscription");
    screen.txtDEscription = "a";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(screen.Refused(), "txtShortDesc");
    screen.txtShortDesc = "a";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(screen.Refused(), "txtExits");
}

TEST_F(LocationScreen, UpdateWithoutAChangeStoresNothing) {
    EXPECT_TRUE(Open(3).cmdUpdate());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(LocationScreen, UpdateOfANewLocationWithoutAChangeAddsNone) {
    EXPECT_TRUE(OpenNew(8).cmdUpdate());
    EXPECT_EQ(Stored(8, "locnum"), "0 records");
}

TEST_F(LocationScreen, AddsALocationThatUndoTakesBack) {
    frmVelLocation screen = OpenNew(8);
    screen.txtDEscription = "A cave.";
    screen.txtExits = "NORTH 3";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(8, "locdesc, locshortdesc, exits, numericexits, numexits, picloc, pickey, oldpicloc"),
              "A cave.| |NORD 3|2 3|2||| ");
    EXPECT_EQ(desk_.document.UndoName(), "add location 8");
    desk_.document.Undo();
    EXPECT_EQ(Stored(8, "locnum"), "0 records");
    desk_.document.Redo();
    EXPECT_EQ(Stored(8, "locdesc"), "A cave.");
}

TEST_F(LocationScreen, EditsALocationAndUndoTakesItBack) {
    frmVelLocation screen = Open(3);
    screen.txtDEscription = "Changed.";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(desk_.document.UndoName(), "edit location 3");
    desk_.document.Undo();
    EXPECT_EQ(Stored(3, "locdesc"), "Long text of 3.");
}

TEST_F(LocationScreen, ThatIsLeftByExitChangesNothing) {
    {
        frmVelLocation screen = Open(3);
        screen.txtDEscription = "Changed.";
    }
    EXPECT_EQ(Stored(3, "locdesc"), "Long text of 3.");
}

TEST_F(LocationScreen, APictureIsStoredWithTheKeyOfItsRoom) {
    MakeFile(Folder() / "pictures" / "a.gif", "GIF");
    desk_.dialogs.AnswerFile(Folder() / "pictures" / "a.gif");
    frmVelLocation screen = Open(3);
    screen.cmdGetPic();
    EXPECT_EQ(desk_.dialogs.Questions().at(0).title, "Load Room Picture");
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "pickey, picloc, oldpicloc"), "Room3|pictures/a.gif| ");
    EXPECT_EQ(PictureBytes(3), "none") << "the adventure does not keep pictures";
}

TEST_F(LocationScreen, APictureThatIsKeptInTheAdventureIsRead) {
    KeepPicturesInTheAdventure();
    MakeFile(Folder() / "a.gif", "GIF");
    frmVelLocation screen = Open(3);
    screen.txtPicture = "a.gif";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "pickey, picloc, oldpicloc"), "Room3|a.gif|a.gif");
    EXPECT_EQ(PictureBytes(3), "GIF");
}

TEST_F(LocationScreen, APictureThatWasReadIsNotReadAgain) {
    KeepPicturesInTheAdventure();
    MakeFile(Folder() / "a.gif", "GIF");
    frmVelLocation screen = Open(3);
    screen.txtPicture = "a.gif";
    screen.cmdUpdate();
    std::filesystem::remove(Folder() / "a.gif");
    frmVelLocation again = Open(3);
    again.txtDEscription = "Changed.";
    EXPECT_TRUE(again.cmdUpdate());
    EXPECT_EQ(PictureBytes(3), "GIF");
}

TEST_F(LocationScreen, APictureThatIsMissingFailsAndStoresNothing) {
    KeepPicturesInTheAdventure();
    frmVelLocation screen = Open(3);
    screen.txtPicture = "none.gif";
    EXPECT_THROW(screen.cmdUpdate(), Error);
    EXPECT_EQ(Stored(3, "pickey, picloc"), "|");
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(LocationScreen, WithoutAPictureAllItsFieldsAreCleared) {
    KeepPicturesInTheAdventure();
    MakeFile(Folder() / "a.gif", "GIF");
    frmVelLocation screen = Open(3);
    screen.txtPicture = "a.gif";
    screen.cmdUpdate();
    frmVelLocation again = Open(3);
    again.cmdClearPic();
    EXPECT_TRUE(again.cmdUpdate());
    EXPECT_EQ(Stored(3, "pickey, picloc, oldpicloc"), "|| ");
    EXPECT_EQ(PictureBytes(3), "none");
}

}  // namespace
}  // namespace fabula::authoring
