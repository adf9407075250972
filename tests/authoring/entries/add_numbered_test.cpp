#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/entries/entries.h"
#include "authoring/entry_commands.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using test::Delete;
using test::Desk;
using test::KeyOfNew;
using test::Store;
using testing::ElementsAre;
using testing::IsEmpty;

// Locations

TEST(AddLocation, OpensTheLocationScreenOnTheNumberAboveTheHighest) {
    Desk desk;
    desk.context.currentTable = TableNum::Locations;
    const auto request = Entries(desk.context).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Location);
    EXPECT_EQ(request->key.key, 1);
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST(AddLocation, OfAnEmptyTableIsNumberZero) {
    Desk desk;
    desk.Clear(TableNum::Locations);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 0);
}

TEST(AddLocation, AfterNumber251Is256) {
    Desk desk;
    desk.FillUp(TableNum::Locations, 252);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 256);
}

TEST(AddLocation, TakesTheLowestFreeNumber) {
    Desk desk;
    desk.FillUp(TableNum::Locations, 4);
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{7}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 4);
}

TEST(AddLocation, PassesOverTheWholeRangeOfThePlacesThatAreNone) {
    Desk desk;
    desk.FillUp(TableNum::Locations, 252);
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{254}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 256);
}

TEST(AddLocation, Number999IsTheLastOfAFabulaAdventure) {
    Desk desk;
    desk.FillUp(TableNum::Locations, 999);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 999);
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{999}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), std::nullopt);
    EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 locations"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Error");
}

TEST(AddLocation, Number251IsTheLastOfTheOtherTypes) {
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::Locations, 251);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 251);
        desk.Add(TableNum::Locations, {{"locnum", std::int64_t{251}}});
        EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 255 locations"));
    }
}

TEST(AddLocation, GetsAPictureWhenGraphicsAreOn) {
    Desk desk(AdventureKind::Fabula, true);
    desk.context.currentTable = TableNum::Locations;
    Entries entries(desk.context);
    const auto before = desk.Everything();
    const auto request = entries.AddEntry();
    Store(desk, *request, "add location 1");
    EXPECT_TRUE(entries.AfterScreen(*request));
    const auto colours = desk.Rows(TableNum::Adventure, "backcolor, textcolor");
    EXPECT_THAT(desk.Rows(TableNum::Pictures,
                          "locnum, locpaper, locink, loctype, drawstring, picname, roompicnum", "locnum=1"),
                ElementsAre("1|" + colours.at(0) + "|Subroutine|END||-1"));
    EXPECT_EQ(desk.document.UndoName(), "add location 1");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST(AddLocation, GetsNoPictureWithoutGraphics) {
    Desk desk;
    desk.context.currentTable = TableNum::Locations;
    const auto request = Entries(desk.context).AddEntry();
    Store(desk, *request, "add location 1");
    Entries(desk.context).AfterScreen(*request);
    EXPECT_THAT(desk.Rows(TableNum::Pictures, "locnum", "locnum=1"), IsEmpty());
}

TEST(AddLocation, ThatWasCancelledGetsNoPicture) {
    Desk desk(AdventureKind::Vel, true);
    desk.context.currentTable = TableNum::Locations;
    const auto before = desk.Everything();
    const auto request = Entries(desk.context).AddEntry();
    Entries(desk.context).AfterScreen(*request);
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST(AddLocation, KeepsThePictureThatIsThereAlready) {
    Desk desk(AdventureKind::Marlo, true);
    desk.Add(TableNum::Pictures,
             {{"locnum", std::int64_t{1}}, {"drawstring", std::string("LINE 1 1 END")}});
    desk.context.currentTable = TableNum::Locations;
    const auto request = Entries(desk.context).AddEntry();
    Store(desk, *request, "add location 1");
    Entries(desk.context).AfterScreen(*request);
    EXPECT_THAT(desk.Rows(TableNum::Pictures, "drawstring", "locnum=1"), ElementsAre("LINE 1 1 END"));
}

// Messages, system messages, objects

TEST(AddMessage, OpensTheTextScreenOnTheNumberOfTheRecords) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 3);
    desk.context.currentTable = TableNum::Messages;
    const auto request = Entries(desk.context).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Text);
    EXPECT_EQ(request->table, TableNum::Messages);
    EXPECT_EQ(request->key.key, 3);
}

TEST(AddMessage, FillsTheGapThatADeletionLeft) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 5);
    desk.dialogs.AnswerNext(true);
    Delete(desk, TableNum::Messages, 2);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), 2);
}

TEST(AddMessage, Number999IsTheLastOfAFabulaAdventure) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 999);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), 999);
    desk.FillUp(TableNum::Messages, 1000);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), std::nullopt);
    EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 messages"));
}

TEST(AddMessage, ToATableOf256RecordsShowsTheLimitOf255) {
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::Messages, 255);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), 255);
        desk.FillUp(TableNum::Messages, 256);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 255 messages"));
    }
}

TEST(AddSystemMessage, OpensTheTextScreenOnTheNumberOfTheRecords) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.context.currentTable = TableNum::SystemMessages;
        const auto request = Entries(desk.context).AddEntry();
        ASSERT_TRUE(request);
        EXPECT_EQ(request->screen, Screen::Text);
        EXPECT_EQ(request->key.key, 54);
    }
}

TEST(AddSystemMessage, HasTheLimitOfTheType) {
    Desk fabula;
    fabula.FillUp(TableNum::SystemMessages, 1000);
    EXPECT_EQ(KeyOfNew(fabula, TableNum::SystemMessages), std::nullopt);
    EXPECT_THAT(fabula.Boxes(), ElementsAre("You have reached the maximum of 999 system messages"));
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::SystemMessages, 256);
        EXPECT_EQ(KeyOfNew(desk, TableNum::SystemMessages), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 255 system messages"));
    }
}

TEST(AddObject, OpensTheObjectScreenOnTheNumberOfTheRecords) {
    Desk desk;
    desk.context.currentTable = TableNum::Objects;
    const auto request = Entries(desk.context).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Object);
    EXPECT_EQ(request->key.key, 0);
}

TEST(AddObject, Number999IsTheLastOfAFabulaAdventure) {
    Desk desk;
    desk.FillUp(TableNum::Objects, 999);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), 999);
    desk.FillUp(TableNum::Objects, 1000);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), std::nullopt);
    EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 objects"));
}

TEST(AddObject, The256thOfAnOlderTypeShowsTheLimitOf999AllTheSame) {
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::Objects, 254);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), 254);
        desk.FillUp(TableNum::Objects, 255);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 objects"));
    }
}

}  // namespace
}  // namespace fabula::authoring
