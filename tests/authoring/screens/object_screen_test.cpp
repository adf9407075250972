#include "authoring/screens/object_screen.h"

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
class ObjectScreenTest : public testing::Test {
  protected:
    explicit ObjectScreenTest(AdventureKind kind = AdventureKind::Fabula) : desk_(kind) {
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

    ObjectScreen Open() { return {desk_.context, {3, false}}; }
    ObjectScreen OpenNew(int number = 4) { return {desk_.context, {number, true}}; }

    std::string Stored(int number, std::string_view fields) {
        const auto rows = desk_.Rows(TableNum::Objects, fields, "objnum=" + std::to_string(number));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    test::Desk desk_;
};

class MarloObjectScreenTest : public ObjectScreenTest {
  protected:
    MarloObjectScreenTest() : ObjectScreenTest(AdventureKind::Marlo) {}
};

std::vector<std::string> Texts(const std::vector<ListItem>& items) {
    std::vector<std::string> texts;
    for (const ListItem& item : items)
        texts.push_back(item.text);
    return texts;
}

TEST_F(ObjectScreenTest, ShowsTheRecord) {
    const ObjectScreen screen = Open();
    EXPECT_EQ(screen.description, "a lamp\nof brass");
    ASSERT_NE(screen.noun.Chosen(), nullptr);
    EXPECT_EQ(screen.noun.Chosen()->text, "LAMP");
    ASSERT_NE(screen.adjective.Chosen(), nullptr);
    EXPECT_EQ(screen.adjective.Chosen()->text, "RED");
    EXPECT_EQ(screen.initialPlace, InitialPlace::Worn);
    EXPECT_FALSE(screen.container);
    EXPECT_TRUE(screen.wearable);
    EXPECT_EQ(screen.weight, "9");
}

TEST_F(ObjectScreenTest, OffersNounsAndAdjectivesWithTheReservedWords) {
    const ObjectScreen screen = OpenNew();
    EXPECT_THAT(Texts(screen.noun.items), ElementsAre("BEACON", "LAMP", "*", "_"));
    EXPECT_THAT(Texts(screen.adjective.items), ElementsAre("RED", "*", "_"));
}

TEST_F(ObjectScreenTest, OpensForANewObjectWithoutAPlace) {
    const ObjectScreen screen = OpenNew();
    EXPECT_EQ(screen.initialPlace, std::nullopt);
    EXPECT_EQ(screen.noun.Chosen()->text, "_");
    EXPECT_EQ(screen.adjective.Chosen()->text, "_");
}

TEST_F(ObjectScreenTest, NeedsAnInitialLocation) {
    ObjectScreen screen = OpenNew();
    screen.description = "a coin";
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("No Initial Location is set"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(screen.Refused(), "initialPlace");
    EXPECT_EQ(Stored(4, "objnum"), "0 records");
}

TEST_F(ObjectScreenTest, NeedsARoomWhenItIsInOne) {
    ObjectScreen screen = OpenNew();
    screen.initialPlace = InitialPlace::InRoom;
    screen.room.text = " ";
    EXPECT_FALSE(screen.LeaveRoom());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("No room specified"));
    EXPECT_EQ(screen.Refused(), "room");
}

TEST_F(ObjectScreenTest, RefusesARoomThatIsNotThere) {
    ObjectScreen screen = OpenNew();
    screen.initialPlace = InitialPlace::InRoom;
    for (const char* room : {"8", "252", "-1", "cave"}) {
        screen.room.text = room;
        EXPECT_FALSE(screen.LeaveRoom()) << room;
        EXPECT_EQ(desk_.Boxes().back(), "Invalid location");
    }
}

TEST_F(ObjectScreenTest, DoesNotLookAtTheRoomOfAnObjectElsewhere) {
    ObjectScreen screen = OpenNew();
    screen.initialPlace = InitialPlace::Carried;
    screen.room.text = "cave";
    EXPECT_TRUE(screen.LeaveRoom());
}

TEST_F(ObjectScreenTest, AContainerNumbered7NeedsLocation7) {
    desk_.Adventure().DeleteFrom(TableNum::Locations, "locnum=7");
    ObjectScreen screen = OpenNew(7);
    screen.container = true;
    desk_.dialogs.AnswerNext(false);
    EXPECT_FALSE(screen.ClickContainer());
    EXPECT_THAT(desk_.Boxes(),
                ElementsAre("What a container holds lies in the location of its number. There "
                            "is no location 7. Make it?"));
    EXPECT_FALSE(screen.container);
}

TEST_F(ObjectScreenTest, TheLocationOfAContainerIsMadeWithItInOneStepOfUndo) {
    desk_.Adventure().DeleteFrom(TableNum::Locations, "locnum=7");
    const auto before = desk_.Everything();
    ObjectScreen screen = OpenNew(7);
    screen.description = "a tin box";
    screen.initialPlace = InitialPlace::Carried;
    screen.noun.ChooseText("LAMP");
    screen.container = true;
    desk_.dialogs.AnswerNext(true);
    EXPECT_TRUE(screen.ClickContainer());
    EXPECT_EQ(screen.Inside(), "What is in it lies in location 7, which is made.");
    EXPECT_EQ(desk_.Everything(), before);
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Rows(TableNum::Locations, "locshortdesc, numexits", "locnum=7"),
                ElementsAre("Inside a tin box|0"));
    EXPECT_EQ(Stored(7, "objattr"), "C");
    EXPECT_EQ(desk_.Boxes().size(), 1U);
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
}

TEST_F(ObjectScreenTest, TellsWhichLocationHoldsWhatIsInAContainer) {
    ObjectScreen screen = OpenNew(7);
    EXPECT_EQ(screen.Inside(), "");
    screen.container = true;
    EXPECT_EQ(screen.Inside(), "What is in it lies in location 7.");
}

TEST_F(ObjectScreenTest, AContainerWithTheNumberOfAPlaceThatIsNoRoomIsRefused) {
    ObjectScreen screen = OpenNew(254);
    screen.container = true;
    EXPECT_FALSE(screen.ClickContainer());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("There is no location with this object number"));
}

TEST_F(ObjectScreenTest, ProposesANounOfTheVocabularyThatTheDescriptionNames) {
    ObjectScreen screen = OpenNew();
    screen.description = "a lamp made of copper";
    EXPECT_TRUE(screen.LeaveDescription());
    ASSERT_NE(screen.noun.Chosen(), nullptr);
    EXPECT_EQ(screen.noun.Chosen()->text, "LAMP");
    EXPECT_EQ(screen.newNoun, "");
    // Who puts it back is not asked twice.
    screen.noun.ChooseText("_");
    EXPECT_TRUE(screen.LeaveDescription());
    EXPECT_EQ(screen.noun.Chosen()->text, "_");
}

TEST_F(ObjectScreenTest, ProposesTheLastWordOfTheDescriptionWhereThereIsNoSuchNoun) {
    ObjectScreen screen = OpenNew();
    screen.description = "a heavy iron key, rusty";
    EXPECT_TRUE(screen.LeaveDescription());
    EXPECT_EQ(screen.newNoun, "KEY");
}

TEST_F(ObjectScreenTest, FollowsTheDescriptionWhileItIsTypedForTheFirstTime) {
    ObjectScreen screen = OpenNew();
    for (const auto& [typed, offered] : {std::pair("a", ""),
                                         {"a lon", "LON"},
                                         {"a long ladder", "LADDER"},
                                         {"", ""},
                                         {"a rope", "ROPE"}}) {
        screen.description = typed;
        screen.ProposeNoun();
        EXPECT_EQ(screen.OfferedNoun(), offered);
        EXPECT_EQ(screen.newNoun, offered);
    }
    EXPECT_TRUE(screen.LeaveDescription());
    screen.description = "a rope of silk";
    screen.ProposeNoun();
    EXPECT_EQ(screen.newNoun, "ROPE");
}

TEST_F(ObjectScreenTest, ANounThatTheAuthorChoseStays) {
    ObjectScreen screen = OpenNew();
    screen.description = "a long";
    screen.ProposeNoun();
    screen.newNoun = "steps";
    screen.description = "a long ladder";
    screen.ProposeNoun();
    EXPECT_EQ(screen.newNoun, "steps");
    EXPECT_EQ(screen.OfferedNoun(), "STEPS") << "as the vocabulary will have it";
}

TEST_F(ObjectScreenTest, OffersAnObjectThatIsThereANounAndMakesItOnlyWhenItIsTicked) {
    ObjectScreen screen = Open();
    screen.noun.ChooseText("_");
    screen.description = "a key";
    EXPECT_TRUE(screen.LeaveDescription());
    EXPECT_EQ(screen.OfferedNoun(), "KEY");
    EXPECT_EQ(screen.newNoun, "");
    screen.ClickMakeNoun(true);
    EXPECT_EQ(screen.newNoun, "KEY");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "objnoun, objnumnoun"), "KEY|51");
    EXPECT_EQ(desk_.document.UndoName(), "edit object 3 with word KEY");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(ObjectScreenTest, OffersNoNounWhereOneIsChosenOrTheDescriptionNamesOne) {
    ObjectScreen screen = Open();
    screen.description = "a key";
    EXPECT_EQ(screen.OfferedNoun(), "") << "it is a LAMP";
    screen.noun.ChooseText("_");
    screen.description = "a lamp of copper";
    EXPECT_EQ(screen.OfferedNoun(), "");
}

TEST_F(ObjectScreenTest, ANewNounIsMadeWithItsObjectInOneStepOfUndo) {
    const auto before = desk_.Everything();
    ObjectScreen screen = OpenNew();
    screen.description = "a key";
    screen.initialPlace = InitialPlace::Carried;
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(Stored(4, "objnoun, objnumnoun"), "KEY|51");
    EXPECT_THAT(desk_.Rows(TableNum::Vocabulary, "word, vocnum, voctypen, voctype", "word='KEY'"),
                ElementsAre("KEY|51|2|Noun"));
    EXPECT_EQ(desk_.document.UndoName(), "add object 4 with word KEY");
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
}

TEST_F(ObjectScreenTest, ANounThatIsNotToBeMadeLeavesTheObjectWithoutOne) {
    ObjectScreen screen = OpenNew();
    screen.description = "a key";
    screen.initialPlace = InitialPlace::Carried;
    EXPECT_TRUE(screen.LeaveDescription());
    screen.ClickMakeNoun(false);
    EXPECT_EQ(screen.OfferedNoun(), "KEY") << "it can be ticked again";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(4, "objnoun, objnumnoun"), "_|255");
    EXPECT_THAT(desk_.Rows(TableNum::Vocabulary, "word", "word='KEY'"), IsEmpty());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(ObjectScreenTest, ANewNounIsCheckedLikeAnyWord) {
    ObjectScreen screen = OpenNew();
    screen.newNoun = "tin box";
    EXPECT_FALSE(screen.LeaveNoun());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("The word cannot hold spaces"));
    EXPECT_EQ(screen.newNoun, "tin box") << "what was typed stays";
    screen.newNoun = " lamp ";
    EXPECT_TRUE(screen.LeaveNoun());
    EXPECT_EQ(screen.noun.Chosen()->text, "LAMP");
    EXPECT_EQ(screen.newNoun, "");
    EXPECT_EQ(desk_.Boxes().size(), 1U);
}

TEST_F(MarloObjectScreenTest, ANewNounHasFourLettersAndNoNumberOfADirection) {
    ObjectScreen screen = OpenNew();
    screen.newNoun = "lantern";
    EXPECT_TRUE(screen.LeaveNoun());
    EXPECT_EQ(screen.newNoun, "LANT");
}

TEST_F(ObjectScreenTest, AContainerNeedsALocationWithoutExits) {
    ObjectScreen screen = OpenNew(6);
    screen.container = true;
    EXPECT_FALSE(screen.ClickContainer());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("This Location has exits. A container cannot have exits."));
    EXPECT_EQ(screen.Refused(), "container");
}

TEST_F(ObjectScreenTest, AContainerNumbered7WithLocation7Passes) {
    ObjectScreen screen = OpenNew(7);
    screen.container = true;
    EXPECT_TRUE(screen.ClickContainer());
    EXPECT_TRUE(screen.container);
}

TEST_F(ObjectScreenTest, UpdateChecksTheContainerAgain) {
    ObjectScreen screen = OpenNew(6);
    screen.initialPlace = InitialPlace::NotCreated;
    screen.container = true;
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(screen.Refused(), "container");
}

TEST_F(ObjectScreenTest, Weight64IsRefusedAnd63Accepted) {
    ObjectScreen screen = OpenNew();
    screen.weight = "63";
    EXPECT_TRUE(screen.LeaveWeight());
    screen.weight = "64";
    EXPECT_FALSE(screen.LeaveWeight());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Weight must be from 0 to 63"));
    EXPECT_EQ(screen.Refused(), "weight");
}

TEST_F(ObjectScreenTest, AWeightThatIsNoNumberIsRefused) {
    ObjectScreen screen = OpenNew();
    for (const char* weight : {"", "-1", "x", "1.5"}) {
        screen.weight = weight;
        EXPECT_FALSE(screen.LeaveWeight()) << weight;
        EXPECT_EQ(desk_.Boxes().back(), "Weight must be from 0 to 63");
    }
}

TEST_F(ObjectScreenTest, UpdateChecksTheFieldsInTheirOrder) {
    ObjectScreen screen = OpenNew(6);
    screen.description = "a<b";
    screen.container = true;
    screen.weight = "64";
    screen.Update();
    EXPECT_EQ(screen.Refused(), "description");
    screen.description = "a box";
    screen.Update();
    EXPECT_EQ(screen.Refused(), "initialPlace");
    screen.initialPlace = InitialPlace::InRoom;
    screen.Update();
    EXPECT_EQ(screen.Refused(), "room");
    screen.room.text = "5";
    screen.Update();
    EXPECT_EQ(screen.Refused(), "container");
    screen.container = false;
    screen.Update();
    EXPECT_EQ(screen.Refused(), "weight");
    screen.weight = "3";
    screen.newNoun = "tin box";
    screen.Update();
    EXPECT_EQ(screen.Refused(), "noun");
    screen.newNoun = "";
    EXPECT_TRUE(screen.Update());
}

TEST_F(ObjectScreenTest, AddsAnObjectThatUndoTakesBack) {
    ObjectScreen screen = OpenNew(7);
    screen.description = "a box\nof <INK=2>tin";
    screen.noun.ChooseText("LAMP");
    screen.adjective.ChooseText("RED");
    screen.initialPlace = InitialPlace::InRoom;
    screen.room.text = "5";
    screen.container = true;
    screen.wearable = true;
    screen.weight = " 12 ";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(7,
                     "objdesc, objnoun, objnumnoun, objadject, objnumadject, objloc, objlocdesc, "
                     "objweight, objattrn, objattr"),
              "a box\u008Cof <INK=2>tin|BEACON|50|RED|60|5|In Room 5.|12|3|CWR")
        << "the noun is the first of its number";
    EXPECT_EQ(desk_.document.UndoName(), "add object 7");
    desk_.document.Undo();
    EXPECT_EQ(Stored(7, "objnum"), "0 records");
}

TEST_F(ObjectScreenTest, EditsAnObjectAndUndoTakesItBack) {
    ObjectScreen screen = Open();
    screen.weight = "10";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "objweight, objloc, objattr"), "10|253|WR");
    EXPECT_EQ(desk_.document.UndoName(), "edit object 3");
    desk_.document.Undo();
    EXPECT_EQ(Stored(3, "objweight"), "9");
}

TEST_F(ObjectScreenTest, EachPlaceHasItsNumberAndWords) {
    const std::pair<InitialPlace, const char*> places[] = {
        {InitialPlace::NotCreated, "252|Not created."},
        {InitialPlace::Carried, "254|Carried."},
        {InitialPlace::Worn, "253|Worn."},
    };
    for (const auto& [place, stored] : places) {
        ObjectScreen screen = Open();
        screen.initialPlace = place;
        EXPECT_TRUE(screen.Update());
        EXPECT_EQ(Stored(3, "objloc, objlocdesc"), stored);
    }
}

TEST_F(ObjectScreenTest, AWordThatTheVocabularyHasLostBecomesNoWord) {
    desk_.Adventure().DeleteFrom(TableNum::Vocabulary, "vocnum=50");
    ObjectScreen screen = Open();
    EXPECT_EQ(screen.noun.Chosen(), nullptr);
    screen.weight = "1";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "objnoun, objnumnoun"), "_|255");
}

TEST_F(ObjectScreenTest, UpdateWithoutAChangeStoresNothing) {
    EXPECT_TRUE(Open().Update());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
    EXPECT_TRUE(OpenNew().Update());
    EXPECT_EQ(Stored(4, "objnum"), "0 records");
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(MarloObjectScreenTest, DoesNotUseWeightAdjectiveAndAttributes) {
    ObjectScreen screen = Open();
    EXPECT_FALSE(screen.HasAttributes());
    screen.description = "a lamp";
    screen.weight = "99";
    screen.container = true;
    screen.adjective.index = -1;
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(3, "objdesc, objadject, objnumadject, objweight, objattrn, objattr"),
              "a lamp|RED|60|9|2|WR");
}

TEST_F(MarloObjectScreenTest, GivesANewObjectTheUsualOnes) {
    ObjectScreen screen = OpenNew();
    screen.description = "a lamp";
    screen.initialPlace = InitialPlace::NotCreated;
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(4, "objadject, objnumadject, objweight, objattrn, objattr"), "_|255|1|0|");
}

}  // namespace
}  // namespace fabula::authoring
