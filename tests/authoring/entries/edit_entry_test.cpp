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
using test::Desk;
using test::Edit;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(EditEntry, OpensTheScreenOfTheTable) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 1);
    desk.FillUp(TableNum::Objects, 1);
    desk.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DESC");
    desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    const auto screenOf = [&](TableNum table, int key) {
        const auto request = Edit(desk, table, key);
        EXPECT_TRUE(request);
        EXPECT_EQ(request->key.key, key);
        EXPECT_FALSE(request->key.isNew);
        EXPECT_EQ(request->table, table);
        return request->screen;
    };
    EXPECT_EQ(screenOf(TableNum::Locations, 0), Screen::Location);
    EXPECT_EQ(screenOf(TableNum::Messages, 0), Screen::Text);
    EXPECT_EQ(screenOf(TableNum::Objects, 0), Screen::Object);
    EXPECT_EQ(screenOf(TableNum::ProcessTables, 4), Screen::ProcessEntry);
    EXPECT_EQ(screenOf(TableNum::SystemMessages, 5), Screen::Text);
    EXPECT_EQ(screenOf(TableNum::Flags, 11), Screen::Flag);
    EXPECT_EQ(screenOf(TableNum::ProcDesc, 3), Screen::Text);
    EXPECT_EQ(screenOf(TableNum::Adventure, 0), Screen::Settings);
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(EditEntry, OfARecordThatIsNotThereOpensNothing) {
    Desk desk;
    EXPECT_FALSE(Edit(desk, TableNum::Messages, 0));
    EXPECT_FALSE(Edit(desk, TableNum::Flags, 5000));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(EditEntry, OfAWordOpensItsScreen) {
    Desk desk;
    desk.AddWord(200, "LAMP", 60, 2);
    const auto request = Edit(desk, TableNum::Vocabulary, 200);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Word);
    EXPECT_FALSE(request->key.isNew);
}

TEST(EditEntry, OfAReservedWordIsRefused) {
    Desk desk;
    desk.AddWord(200, "IT", 60, 7);
    EXPECT_FALSE(Edit(desk, TableNum::Vocabulary, 200));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Words of type RESERVED cannot be edited"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Error");
}

TEST(EditEntry, OfAFlagThatIsNotTheAuthorsIsRefused) {
    Desk desk;
    EXPECT_FALSE(Edit(desk, TableNum::Flags, 0));
    EXPECT_THAT(desk.Boxes(), ElementsAre("That Flag cannot be edited"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Flag Information");
}

TEST(EditEntry, OfTheFirstThreeProcessDescriptionsIsRefused) {
    Desk desk;
    desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    for (const int process : {0, 1, 2}) {
        EXPECT_FALSE(Edit(desk, TableNum::ProcDesc, process));
        EXPECT_EQ(desk.Boxes().back(), "That Process table Description cannot be edited");
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Process Description Information");
    }
    EXPECT_TRUE(Edit(desk, TableNum::ProcDesc, 3));
}

TEST(EditEntry, OfAFixedCharacterIsRefused) {
    Desk desk;
    for (const int fixed : {32, 65, 127, 128, 143}) {
        EXPECT_FALSE(Edit(desk, TableNum::Characters, fixed));
        EXPECT_EQ(desk.Boxes().back(), "Character " + std::to_string(fixed) + " cannot be edited");
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Error");
    }
}

TEST(EditEntry, OfOtherCharactersOpensTheirEditor) {
    Desk desk;
    for (const int editable : {0, 15, 144, 164}) {
        const auto request = Edit(desk, TableNum::Characters, editable);
        ASSERT_TRUE(request);
        EXPECT_EQ(request->screen, Screen::Character);
        EXPECT_EQ(request->key.key, editable);
    }
    EXPECT_FALSE(Edit(desk, TableNum::Characters, 1032));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(EditEntry, OfAPictureOpensItsEditor) {
    Desk desk(AdventureKind::Fabula, true);
    desk.Clear(TableNum::Pictures);
    EXPECT_FALSE(Edit(desk, TableNum::Pictures, 0));
    desk.Add(TableNum::Pictures, {{"locnum", std::int64_t{0}}});
    const auto request = Edit(desk, TableNum::Pictures, 0);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Picture);
    EXPECT_FALSE(request->key.isNew);
}

TEST(EditEntry, OfAnyOtherTableIsRefusedWithItsName) {
    Desk desk;
    for (const auto& [table, name] :
         {std::pair{TableNum::Codes, "Codes"}, std::pair{TableNum::CondActs, "CondActs"},
          std::pair{TableNum::Commands, "Commands"}, std::pair{TableNum::Templates, "Templates"}}) {
        EXPECT_FALSE(Edit(desk, table, 1));
        EXPECT_EQ(desk.Boxes().back(), std::string(name) + " cannot be edited");
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Error");
    }
}

TEST(EditSettings, EndsTheProgramWhenCharacterSetsWereSwitched) {
    Desk desk;
    const auto request = Edit(desk, TableNum::Adventure, 0);
    ASSERT_TRUE(request);
    Change change(desk.document, "edit the settings");
    store::Cursor& settings = desk.Adventure().OpenTable(TableNum::Adventure, "def");
    settings.SetField("charsets", std::int64_t{1});
    settings.Update();
    change.Commit();
    EXPECT_FALSE(Entries(desk.context).AfterScreen(*request));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Changing Character Sets requires exiting program"));
}

TEST(EditSettings, GoesOnWhenTheyWereNot) {
    Desk desk;
    const auto request = Edit(desk, TableNum::Adventure, 0);
    EXPECT_TRUE(Entries(desk.context).AfterScreen(*request));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(AddPicture, OpensTheEditorForTheFirstLocationWithoutAPicture) {
    Desk desk(AdventureKind::Fabula, true);
    desk.Clear(TableNum::Locations);
    desk.Clear(TableNum::Pictures);
    for (const std::int64_t number : {0, 1, 5})
        desk.Add(TableNum::Locations, {{"locnum", number}});
    desk.context.currentTable = TableNum::Pictures;
    for (const int wanted : {0, 1, 5, 6}) {
        const auto request = Entries(desk.context).AddEntry();
        ASSERT_TRUE(request);
        EXPECT_EQ(request->screen, Screen::Picture);
        EXPECT_TRUE(request->key.isNew);
        EXPECT_EQ(request->key.key, wanted);
        desk.Add(TableNum::Pictures, {{"locnum", std::int64_t{wanted}}});
    }
}

TEST(AddEntry, ToATableThatTakesNoneDoesNothing) {
    Desk desk;
    desk.context.currentTable = TableNum::ProcDesc;
    EXPECT_FALSE(Entries(desk.context).AddEntry());
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

}  // namespace
}  // namespace fabula::authoring
