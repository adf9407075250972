#include "authoring/frm_vel_objects.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// Locations 0 to 7, of which 6 has an exit, object 3, and words for objects.
class ObjectScreen : public testing::Test {
  protected:
    explicit ObjectScreen(AdventureKind kind = AdventureKind::Fabula) : desk_(kind) {
        desk_.FillUp(TableNum::Locations, 8);
        store::Cursor& locations = desk_.Adventure().OpenTable(TableNum::Locations, "def");
        for (; !locations.Eof(); locations.MoveNext()) {
            locations.SetField("numexits", std::int64_t{locations.Number("locnum") == 6 ? 2 : 0});
            locations.Update();
        }
        desk_.AddWord(100, "LAMP", 50, 2);
        desk_.AddWord(101, "BEACON", 50, 2);
        desk_.AddWord(102, "RED", 60, 3);
        desk_.AddWord(103, "GET", 50, 0);
        desk_.Add(TableNum::Objects, {{"objnum", std::int64_t{3}},
                                      {"objdesc", std::string("a lamp\u008Cof brass")},
                                      {"objnoun", std::string("LAMP")},
                                      {"objnumnoun", std::int64_t{50}},
                                      {"objadject", std::string("RED")},
                                      {"objnumadject", std::int64_t{60}},
                                      {"objloc", std::int64_t{253}},
                                      {"objlocdesc", std::string("Worn.")},
                                      {"objweight", std::int64_t{9}},
                                      {"objattrn", std::int64_t{2}},
                                      {"objattr", std::string("WR")}});
    }

    frmVelObjects Open() { return {desk_.session, {3, false}}; }
    frmVelObjects OpenNew(int number = 4) { return {desk_.session, {number, true}}; }

    std::string Stored(int number, std::string_view fields) {
        const auto rows = desk_.Rows(TableNum::Objects, fields, "objnum=" + std::to_string(number));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    test::Desk desk_;
};

class MarloObjectScreen : public ObjectScreen {
  protected:
    MarloObjectScreen() : ObjectScreen(AdventureKind::Marlo) {}
};

std::vector<std::string> Texts(const std::vector<ListItem>& items) {
    std::vector<std::string> texts;
    for (const ListItem& item : items)
        texts.push_back(item.text);
    return texts;
}

TEST_F(ObjectScreen, ShowsTheRecord) {
    const frmVelObjects screen = Open();
    EXPECT_EQ(screen.txtObjDesc, "a lamp\nof brass");
    ASSERT_NE(screen.cboObjWord.Chosen(), nullptr);
    EXPECT_EQ(screen.cboObjWord.Chosen()->text, "LAMP");
    ASSERT_NE(screen.cboAdjective.Chosen(), nullptr);
    EXPECT_EQ(screen.cboAdjective.Chosen()->text, "RED");
    EXPECT_EQ(screen.optInitiaLloc, InitialPlace::Worn);
    EXPECT_FALSE(screen.chkContainer);
    EXPECT_TRUE(screen.chkWearRemove);
    EXPECT_EQ(screen.txtWeight, "9");
}

TEST_F(ObjectScreen, OffersNounsAndAdjectivesWithTheReservedWords) {
    const frmVelObjects screen = OpenNew();
    EXPECT_THAT(Texts(screen.cboObjWord.items), ElementsAre("BEACON", "LAMP", "*", "_"));
    EXPECT_THAT(Texts(screen.cboAdjective.items), ElementsAre("RED", "*", "_"));
}

TEST_F(ObjectScreen, OpensForANewObjectWithoutAPlace) {
    const frmVelObjects screen = OpenNew();
    EXPECT_EQ(screen.optInitiaLloc, std::nullopt);
    EXPECT_EQ(screen.cboObjWord.Chosen()->text, "_");
    EXPECT_EQ(screen.cboAdjective.Chosen()->text, "_");
}

TEST_F(ObjectScreen, NeedsAnInitialLocation) {
    frmVelObjects screen = OpenNew();
    screen.txtObjDesc = "a coin";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("No Initial Location is set"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(screen.Refused(), "optInitiaLloc");
    EXPECT_EQ(Stored(4, "objnum"), "0 records");
}

TEST_F(ObjectScreen, NeedsARoomWhenItIsInOne) {
    frmVelObjects screen = OpenNew();
    screen.optInitiaLloc = InitialPlace::InRoom;
    screen.cboInRoom.text = " ";
    EXPECT_FALSE(screen.LeaveCboInRoom());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("No room specified"));
    EXPECT_EQ(screen.Refused(), "cboInRoom");
}

TEST_F(ObjectScreen, RefusesARoomThatIsNotThere) {
    frmVelObjects screen = OpenNew();
    screen.optInitiaLloc = InitialPlace::InRoom;
    for (const char* room : {"8", "252", "-1", "cave"}) {
        screen.cboInRoom.text = room;
        EXPECT_FALSE(screen.LeaveCboInRoom()) << room;
        EXPECT_EQ(desk_.Boxes().back(), "Invalid location");
    }
}

TEST_F(ObjectScreen, DoesNotLookAtTheRoomOfAnObjectElsewhere) {
    frmVelObjects screen = OpenNew();
    screen.optInitiaLloc = InitialPlace::Carried;
    screen.cboInRoom.text = "cave";
    EXPECT_TRUE(screen.LeaveCboInRoom());
}

TEST_F(ObjectScreen, AContainerNumbered7NeedsLocation7) {
    desk_.Adventure().DeleteFrom(TableNum::Locations, "locnum=7");
    frmVelObjects screen = OpenNew(7);
    screen.chkContainer = true;
    EXPECT_FALSE(screen.ClickChkContainer());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("There is no location with this object number"));
    EXPECT_FALSE(screen.chkContainer);
}

TEST_F(ObjectScreen, AContainerNeedsALocationWithoutExits) {
    frmVelObjects screen = OpenNew(6);
    screen.chkContainer = true;
    EXPECT_FALSE(screen.ClickChkContainer());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("This Location has exits. A container cannot have exits."));
    EXPECT_EQ(screen.Refused(), "chkContainer");
}

TEST_F(ObjectScreen, AContainerNumbered7WithLocation7Passes) {
    frmVelObjects screen = OpenNew(7);
    screen.chkContainer = true;
    EXPECT_TRUE(screen.ClickChkContainer());
    EXPECT_TRUE(screen.chkContainer);
}

TEST_F(ObjectScreen, UpdateChecksTheContainerAgain) {
    frmVelObjects screen = OpenNew(6);
    screen.optInitiaLloc = InitialPlace::NotCreated;
    screen.chkContainer = true;
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_EQ(screen.Refused(), "chkContainer");
}

TEST_F(ObjectScreen, Weight64IsRefusedAnd63Accepted) {
    frmVelObjects screen = OpenNew();
    screen.txtWeight = "63";
    EXPECT_TRUE(screen.LeaveTxtWeight());
    screen.txtWeight = "64";
    EXPECT_FALSE(screen.LeaveTxtWeight());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Weight must be from 0 to 63"));
    EXPECT_EQ(screen.Refused(), "txtWeight");
}

TEST_F(ObjectScreen, AWeightThatIsNoNumberIsRefused) {
    frmVelObjects screen = OpenNew();
    for (const char* weight : {"", "-1", "x", "1.5"}) {
        screen.txtWeight = weight;
        EXPECT_FALSE(screen.LeaveTxtWeight()) << weight;
        EXPECT_EQ(desk_.Boxes().back(), "Weight must be from 0 to 63");
    }
}

TEST_F(ObjectScreen, UpdateChecksTheFieldsInTheirOrder) {
    frmVelObjects screen = OpenNew(6);
    screen.txtObjDesc = "a<b";
    screen.chkContainer = true;
    screen.txtWeight = "64";
    screen.cmdUpdate();
    EXPECT_EQ(screen.Refused(), "txtObjDesc");
    screen.txtObjDesc = "a box";
    screen.cmdUpdate();
    EXPECT_EQ(screen.Refused(), "optInitiaLloc");
    screen.optInitiaLloc = InitialPlace::InRoom;
    screen.cmdUpdate();
    EXPECT_EQ(screen.Refused(), "cboInRoom");
    screen.cboInRoom.text = "5";
    screen.cmdUpdate();
    EXPECT_EQ(screen.Refused(), "chkContainer");
    screen.chkContainer = false;
    screen.cmdUpdate();
    EXPECT_EQ(screen.Refused(), "txtWeight");
    screen.txtWeight = "3";
    EXPECT_TRUE(screen.cmdUpdate());
}

TEST_F(ObjectScreen, AddsAnObjectThatUndoTakesBack) {
    frmVelObjects screen = OpenNew(7);
    screen.txtObjDesc = "a box\nof <INK=2>tin";
    screen.cboObjWord.ChooseText("LAMP");
    screen.cboAdjective.ChooseText("RED");
    screen.optInitiaLloc = InitialPlace::InRoom;
    screen.cboInRoom.text = "5";
    screen.chkContainer = true;
    screen.chkWearRemove = true;
    screen.txtWeight = " 12 ";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(7,
                     "objdesc, objnoun, objnumnoun, objadject, objnumadject, objloc, objlocdesc, "
                     "objweight, objattrn, objattr"),
              "a box\u008Cof <INK=2>tin|BEACON|50|RED|60|5|In Room 5.|12|3|CWR")
        << "the noun is the first of its number";
    EXPECT_EQ(desk_.document.UndoName(), "add object 7");
    desk_.document.Undo();
    EXPECT_EQ(Stored(7, "objnum"), "0 records");
}

TEST_F(ObjectScreen, EditsAnObjectAndUndoTakesItBack) {
    frmVelObjects screen = Open();
    screen.txtWeight = "10";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "objweight, objloc, objattr"), "10|253|WR");
    EXPECT_EQ(desk_.document.UndoName(), "edit object 3");
    desk_.document.Undo();
    EXPECT_EQ(Stored(3, "objweight"), "9");
}

TEST_F(ObjectScreen, EachPlaceHasItsNumberAndWords) {
    const std::pair<InitialPlace, const char*> places[] = {
        {InitialPlace::NotCreated, "252|Not created."},
        {InitialPlace::Carried, "254|Carried."},
        {InitialPlace::Worn, "253|Worn."},
    };
    for (const auto& [place, stored] : places) {
        frmVelObjects screen = Open();
        screen.optInitiaLloc = place;
        EXPECT_TRUE(screen.cmdUpdate());
        EXPECT_EQ(Stored(3, "objloc, objlocdesc"), stored);
    }
}

TEST_F(ObjectScreen, AWordThatTheVocabularyHasLostBecomesNoWord) {
    desk_.Adventure().DeleteFrom(TableNum::Vocabulary, "vocnum=50");
    frmVelObjects screen = Open();
    EXPECT_EQ(screen.cboObjWord.Chosen(), nullptr);
    screen.txtWeight = "1";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "objnoun, objnumnoun"), "_|255");
}

TEST_F(ObjectScreen, UpdateWithoutAChangeStoresNothing) {
    EXPECT_TRUE(Open().cmdUpdate());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
    EXPECT_TRUE(OpenNew().cmdUpdate());
    EXPECT_EQ(Stored(4, "objnum"), "0 records");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(MarloObjectScreen, DoesNotUseWeightAdjectiveAndAttributes) {
    frmVelObjects screen = Open();
    EXPECT_FALSE(screen.HasAttributes());
    screen.txtObjDesc = "a lamp";
    screen.txtWeight = "99";
    screen.chkContainer = true;
    screen.cboAdjective.index = -1;
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(3, "objdesc, objadject, objnumadject, objweight, objattrn, objattr"),
              "a lamp|RED|60|9|2|WR");
}

TEST_F(MarloObjectScreen, GivesANewObjectTheUsualOnes) {
    frmVelObjects screen = OpenNew();
    screen.txtObjDesc = "a coin";
    screen.optInitiaLloc = InitialPlace::NotCreated;
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(4, "objadject, objnumadject, objweight, objattrn, objattr"), "_|255|1|0|");
}

}  // namespace
}  // namespace fabula::authoring
