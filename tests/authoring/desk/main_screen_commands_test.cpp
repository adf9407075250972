// The commands of the main window, one after the other, on one stand: when they are on, what they do, and
// where the grid goes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk/main_screen.h"
#include "authoring/main_screen_stand.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// The keys of the commands that can be used.
std::vector<std::string> Enabled(const MainScreen& main) {
    std::vector<std::string> keys;
    for (const CommandEntry& entry : AllCommands()) {
        if (main.StateOf(entry.id).enabled) keys.emplace_back(entry.key);
    }
    return keys;
}

// Places of fields of the vocabulary in the screen of Sort.
constexpr std::size_t kIndexField = 0;
constexpr std::size_t kWordField = 2;

class CommandsTest : public testing::Test, public test::MainScreenStand {
  protected:
    void SortBy(std::vector<SortLevel> levels) {
        SortScreen screen = main->OpenSort();
        screen.levels = std::move(levels);
        ASSERT_TRUE(screen.Update());
        main->SortClosed();
    }
    ActionState StateOf(Command command) const { return main->StateOf(command); }
    bool IsEnabled(Command command) const { return main->StateOf(command).enabled; }
    int Records(TableNum table) { return Adventure().OpenTable(table, "def").RecordCount(); }
};

TEST_F(CommandsTest, WithoutAnAdventureAreOff) {
    EXPECT_THAT(Enabled(*main), ElementsAre("NewAdv", "Open", "In", "Decomp", "Exit", "Trace", "Palette",
                                            "Help", "HelpContents", "AboutAdventure", "About"));
    EXPECT_EQ(StateOf(Command::Verify).why, "No adventure is open.");
}

TEST_F(CommandsTest, AreOffAgainWhenTheAdventureIsClosed) {
    const auto before = Enabled(*main);
    OpenNew();
    EXPECT_NE(Enabled(*main), before);
    main->Run(Command::Close);
    EXPECT_EQ(Enabled(*main), before);
}

TEST_F(CommandsTest, AWordIsTypedIntoItsCell) {
    EXPECT_EQ(main->TypedColumn(), std::nullopt);
    OpenNew();
    main->Show({TableNum::Messages});
    EXPECT_EQ(main->TypedColumn(), std::nullopt);
    EXPECT_FALSE(main->MayType(0));
    main->Show({TableNum::Vocabulary});
    ASSERT_TRUE(main->TypedColumn());
    const int column = *main->TypedColumn();
    EXPECT_EQ(main->Grid().Columns()[static_cast<std::size_t>(column)].field, "Word");
    for (int row = 0; row < main->Grid().RowCount(); ++row) {
        const bool isReserved = main->Grid().CellText(row, column + 1) == "RESERVED";
        EXPECT_EQ(main->MayType(row), !isReserved) << main->Grid().CellText(row, column);
        if (!isReserved) main->SelectRow(row);
    }
    const int key = main->Grid().KeyOf(main->CurrentRow());
    EXPECT_TRUE(main->StoreTyped("shout"));
    EXPECT_EQ(main->Grid().KeyOf(main->CurrentRow()), key);
    EXPECT_EQ(main->Grid().CellText(main->CurrentRow(), column), "SHOUT");
    EXPECT_EQ(main->Message().substr(0, 21), "Done: edit word SHOUT");
    EXPECT_FALSE(main->StoreTyped("two words"));
    EXPECT_EQ(dialogs.Boxes().back().text, "The word cannot hold spaces");
    EXPECT_EQ(main->Grid().CellText(main->CurrentRow(), column), "SHOUT");
}

TEST_F(CommandsTest, FollowTheTableInTheGrid) {
    OpenNew();
    main->Show({TableNum::Locations});
    EXPECT_THAT(
        Enabled(*main),
        ElementsAre("NewAdv", "Open", "SaveAs", "Restore", "Close", "In", "Export", "Decomp", "Import",
                    "BatImp", "BatExp", "Print", "Preview", "Package", "Exit", "NewTab", "Edit", "Delete",
                    "Find", "FindNext", "Filter", "Replace", "GoToAnything", "GoToNamed", "Uses", "GoBack",
                    "GoForward", "Renumber", "UsesColumn", "OpenInTab", "Run", "Trace", "Verify",
                    "Findings", "Settings", "CharTable", "LstRecs", "ShortDesc", "KeyChange", "TravelTable",
                    "Palette", "Help", "HelpContents", "AboutAdventure", "About"));
    main->Show({TableNum::Vocabulary});
    EXPECT_TRUE(IsEnabled(Command::Sort));
    EXPECT_TRUE(IsEnabled(Command::Edit));
    EXPECT_FALSE(IsEnabled(Command::AddBefore));
    EXPECT_EQ(StateOf(Command::AddBefore).why, "Vocabulary does not offer this.");
    main->Show({TableNum::Flags});
    EXPECT_FALSE(IsEnabled(Command::Delete));
    EXPECT_FALSE(IsEnabled(Command::Sort));
}

TEST_F(CommandsTest, OnCharactersEditAndLoadAndSaveSets) {
    OpenNew(AdventureKind::Marlo);
    main->Show({TableNum::Characters});
    for (const Command command : {Command::Edit, Command::Add, Command::Load, Command::Save})
        EXPECT_TRUE(IsEnabled(command));
    EXPECT_TRUE(IsEnabled(Command::CharacterTable));
}

TEST_F(CommandsTest, NeedARecordToEditOrDelete) {
    OpenNew();
    main->Show({TableNum::Messages});
    EXPECT_EQ(StateOf(Command::Edit).why, "No record is selected.");
    EXPECT_EQ(StateOf(Command::Delete).why, "No record is selected.");
    EXPECT_TRUE(IsEnabled(Command::Add));
}

TEST_F(CommandsTest, ToLoadAPictureNeedALocationOrAPicture) {
    OpenNew();
    main->Show({TableNum::Messages});
    EXPECT_EQ(StateOf(Command::ImportGraphic).why, "Select the location or the picture that it goes into.");
    EXPECT_EQ(main->PictureTarget(), std::nullopt);
    main->Show({TableNum::Locations});
    EXPECT_TRUE(IsEnabled(Command::ImportGraphic));
    EXPECT_EQ(main->PictureTarget(), 0);
}

TEST_F(CommandsTest, OfTheSettingsHaveNoFind) {
    OpenNew();
    main->Show({TableNum::Adventure});
    EXPECT_FALSE(IsEnabled(Command::Find));
    EXPECT_FALSE(IsEnabled(Command::FindNext));
    EXPECT_EQ(StateOf(Command::Find).why, "The settings have no Find.");
}

TEST_F(CommandsTest, AreOffWhileTheGameRuns) {
    OpenNew();
    main->BeginTrial();
    EXPECT_THAT(Enabled(*main), IsEmpty());
    EXPECT_EQ(StateOf(Command::Open).why, "The game is being tested.");
}

TEST_F(CommandsTest, NameTheRecordsOfTheTable) {
    OpenNew();
    main->Show({TableNum::Locations});
    EXPECT_EQ(StateOf(Command::Add).text, "Add Location (CTRL/N)");
    EXPECT_EQ(StateOf(Command::Add).menuText, "&Add Location");
    main->Show({TableNum::ProcessTables, kOtherProcesses});
    EXPECT_EQ(StateOf(Command::Delete).text, "Delete Process Record 3 or above");
}

TEST_F(CommandsTest, ThatChangeAreOffInAnAdventureThatIsOpenToReadUntilItIsCopied) {
    const auto file = Make("shared.fbd");
    const auto elsewhere = store::Adventure::OpenForChange(file);
    dialogs.AnswerNext(true);
    ASSERT_TRUE(main->OpenFile(file));
    main->Show({TableNum::Locations});
    main->SelectRow(0);
    const std::vector<Command> changing = {Command::Restore,     Command::ImportGraphic,
                                           Command::BatchImport, Command::Add,
                                           Command::Edit,        Command::Delete,
                                           Command::Sort,        Command::Renumber,
                                           Command::Settings,    Command::ShortDescriptions,
                                           Command::KeyChange,   Command::TravelTable};
    for (const Command command : changing) {
        EXPECT_EQ(StateOf(command).why,
                  "The adventure is open to read only; Save As makes a copy that can be changed.")
            << EntryOf(command).key;
    }
    for (const Command command : {Command::SaveAs, Command::Close, Command::Export, Command::Preview,
                                  Command::Find, Command::Replace, Command::Run, Command::Verify})
        EXPECT_TRUE(IsEnabled(command)) << EntryOf(command).key;
    dialogs.AnswerFile(folder / "own.fbd");
    ASSERT_TRUE(main->SaveAs());
    for (const Command command : {Command::Add, Command::Edit, Command::Delete, Command::Settings})
        EXPECT_TRUE(IsEnabled(command)) << EntryOf(command).key;
}

TEST_F(CommandsTest, DoNothingWhenTheyAreOff) {
    EXPECT_EQ(main->Run(Command::Add), std::nullopt);
    EXPECT_EQ(main->Run(Command::Undo), std::nullopt);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CommandsTest, AddGivesTheScreenOfANewRecord) {
    OpenNew();
    main->Show({TableNum::Messages});
    const auto request = main->Run(Command::Add);
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->screen, Screen::Text);
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(request->key.key, 0);
}

TEST_F(CommandsTest, EditGivesTheScreenOfTheCurrentRecord) {
    OpenNew();
    main->Show({TableNum::SystemMessages});
    main->SelectRow(7);
    const auto request = main->Run(Command::Edit);
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->key.key, 7);
    EXPECT_FALSE(request->key.isNew);
    EXPECT_EQ(request->table, TableNum::SystemMessages);
}

TEST_F(CommandsTest, SettingsCanBeEditedFromEveryTable) {
    OpenNew();
    main->Show({TableNum::Flags});
    main->SelectRow(2);
    const auto request = main->Run(Command::Settings);
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->screen, Screen::Settings);
    main->ScreenClosed(*request);
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Flags});
    EXPECT_EQ(main->CurrentContext().currentTable, TableNum::Flags);
    EXPECT_EQ(main->CurrentRow(), 2);
}

TEST_F(CommandsTest, AddingSelectsTheNewRecordAndTellsOfIt) {
    OpenNew();
    AddMessage("one");
    AddMessage("two");
    EXPECT_EQ(main->Grid().RowCount(), 2);
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->Message(), "Done: add message 1");
    EXPECT_EQ(main->TableStatus(), "Messages - 2 records");
}

TEST_F(CommandsTest, AScreenThatStoresNothingChangesNothing) {
    OpenNew();
    AddMessage("one");
    const auto request = main->Run(Command::Edit);
    main->ScreenClosed(*request);
    EXPECT_EQ(main->Message(), "");
    EXPECT_EQ(main->CurrentRow(), 0);
    EXPECT_EQ(StateOf(Command::Undo).text, "Undo add message 0");
}

TEST_F(CommandsTest, AddingFlagsNeedsNoScreen) {
    OpenNew();
    main->Show({TableNum::Flags});
    const int before = main->Grid().RowCount();
    dialogs.AnswerNext(true);
    EXPECT_EQ(main->Run(Command::Add), std::nullopt);
    EXPECT_THAT(Boxes(), ElementsAre("Confirm add of flags 1025 to 1049"));
    EXPECT_EQ(main->Grid().RowCount(), before + 25);
}

TEST_F(CommandsTest, DeletingGoesToTheRecordBehind) {
    OpenNew();
    for (int number = 0; number < 4; ++number)
        StoreMessage(number, "text " + std::to_string(number));
    main->Show({TableNum::Messages});
    main->SelectRow(1);
    dialogs.AnswerNext(true);
    main->Run(Command::Delete);
    EXPECT_EQ(main->Grid().RowCount(), 3);
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->CurrentContext().currentEntry, 2);
    EXPECT_EQ(main->Message(), "Done: delete message 1");
}

TEST_F(CommandsTest, DeletingTheLastRecordGoesToTheOneBefore) {
    OpenNew();
    StoreMessage(0, "one");
    StoreMessage(1, "two");
    main->Show({TableNum::Messages});
    main->SelectRow(1);
    dialogs.AnswerNext(true);
    main->Run(Command::Delete);
    EXPECT_EQ(main->CurrentRow(), 0);
    dialogs.AnswerNext(true);
    main->Run(Command::Delete);
    EXPECT_EQ(main->CurrentRow(), -1);
}

TEST_F(CommandsTest, ADeletionThatIsNotConfirmedChangesNothing) {
    OpenNew();
    StoreMessage(0, "one");
    main->Show({TableNum::Messages});
    dialogs.AnswerNext(false);
    main->Run(Command::Delete);
    EXPECT_EQ(main->Grid().RowCount(), 1);
    EXPECT_EQ(main->Message(), "");
}

TEST_F(CommandsTest, UndoAndRedoNameTheirChange) {
    OpenNew();
    EXPECT_EQ(StateOf(Command::Undo).why, "There is nothing to undo.");
    EXPECT_EQ(StateOf(Command::Redo).why, "There is nothing to redo.");
    AddMessage("one");
    EXPECT_EQ(StateOf(Command::Undo).text, "Undo add message 0");
    EXPECT_EQ(StateOf(Command::Undo).menuText, "&Undo add message 0");
    main->Run(Command::Undo);
    EXPECT_EQ(main->Grid().RowCount(), 0);
    EXPECT_EQ(main->Message(), "Undone: add message 0");
    EXPECT_EQ(StateOf(Command::Redo).text, "Redo add message 0");
    main->Run(Command::Redo);
    EXPECT_EQ(main->Grid().RowCount(), 1);
    EXPECT_EQ(main->Message(), "Done again: add message 0");
}

TEST_F(CommandsTest, UndoShowsAnAmpersandInAMenuAsItIs) {
    OpenNew();
    Change change(main->CurrentContext().document, "delete word A&B");
    Adventure().DeleteFrom(TableNum::Vocabulary, "vocindex=2");
    change.Commit();
    EXPECT_EQ(StateOf(Command::Undo).menuText, "&Undo delete word A&&B");
}

TEST_F(CommandsTest, UndoGoesToTheTableAndTheRowThatChanged) {
    OpenNew();
    for (int number = 0; number < 4; ++number)
        StoreMessage(number, "text " + std::to_string(number));
    main->Show({TableNum::Messages});
    main->SelectRow(1);
    dialogs.AnswerNext(true);
    main->Run(Command::Delete);
    main->Show({TableNum::Flags});
    main->Run(Command::Undo);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::Messages}));
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->CurrentContext().currentEntry, 1);
    EXPECT_EQ(main->Message(), "Undone: delete message 1");
    EXPECT_EQ(Setting("CurrentSet"), "2");
}

TEST_F(CommandsTest, RedoGoesToTheTableAndTheRowThatChanged) {
    OpenNew();
    for (int number = 0; number < 4; ++number)
        StoreMessage(number, "text " + std::to_string(number));
    AddMessage("the last");
    main->Run(Command::Undo);
    main->Show({TableNum::Flags});
    main->Run(Command::Redo);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::Messages}));
    EXPECT_EQ(main->CurrentContext().currentEntry, 4);
    EXPECT_EQ(main->Message(), "Done again: add message 4");
}

TEST_F(CommandsTest, UndoGoesToTheRowThatChangedInTheSameTable) {
    OpenNew();
    for (int number = 0; number < 5; ++number)
        StoreMessage(number, "text");
    main->Show({TableNum::Messages});
    const auto request = [&] {
        main->SelectRow(1);
        return main->Run(Command::Edit);
    }();
    {
        Change change(main->CurrentContext().document, "edit message 1");
        store::Cursor& message = Adventure().OpenTable(TableNum::Messages, "def", "msgnum=1");
        message.SetField("msgmsg", std::string("other"));
        message.Update();
        change.Commit();
    }
    main->ScreenClosed(*request);
    main->SelectRow(4);
    main->Run(Command::Undo);
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->Grid().CellText(1, 1), "text");
}

TEST_F(CommandsTest, UndoGoesToTheProcessTableThatChanged) {
    OpenNew();
    for (int entry = 0; entry < 3; ++entry) {
        store::Cursor& entries = Adventure().OpenTable(TableNum::ProcessTables, "def");
        entries.AddNew();
        entries.SetField("canum", std::int64_t{entry});
        entries.SetField("estype", std::int64_t{1});
        entries.Update();
    }
    main->Show({TableNum::ProcessTables, 1});
    main->SelectRow(1);
    dialogs.AnswerNext(true);
    main->Run(Command::Delete);
    main->Show({TableNum::ProcessTables, 2});
    main->Run(Command::Undo);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::ProcessTables, 1}));
    EXPECT_EQ(main->Grid().RowCount(), 3);
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->CurrentContext().currentESNum, 1);
}

TEST_F(CommandsTest, UndoOfAChangeThatNoColumnShowsGoesToItsRecord) {
    OpenNew();
    for (int number = 0; number < 3; ++number)
        StoreMessage(number, "text");
    main->Show({TableNum::Vocabulary});
    main->SelectRow(3);
    const int key = main->CurrentContext().currentEntry;
    SortBy({{kIndexField}});
    main->Show({TableNum::Messages});
    main->Run(Command::Undo);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::Vocabulary}));
    EXPECT_EQ(main->CurrentContext().currentEntry, key);
}

TEST_F(CommandsTest, UndoOfTheSettingsShowsTheTreeThatFitsThem) {
    OpenNew();
    {
        Change change(main->CurrentContext().document, "edit the settings");
        store::Cursor& record = Adventure().OpenTable(TableNum::Adventure, "def");
        record.SetField("charsets", std::int64_t{1});
        record.Update();
        change.Commit();
    }
    main->Refresh();
    main->Show({TableNum::Characters});
    EXPECT_NE(main->CurrentNode(), nullptr);
    main->Run(Command::Undo);
    EXPECT_EQ(NodeOf(main->Tree(), {TableNum::Characters}), nullptr);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::ProcessTables, 0}));
}

TEST_F(CommandsTest, SortStoresTheOrderAndStaysOnTheRecord) {
    OpenNew();
    main->Show({TableNum::Vocabulary});
    main->SelectRow(2);
    const int key = main->CurrentContext().currentEntry;
    SortBy({{kWordField, true}});
    EXPECT_EQ(main->Grid().CellText(0, 1), "WITH");
    EXPECT_EQ(main->CurrentContext().currentEntry, key);
    EXPECT_EQ(main->Message(), "Done: sort Vocabulary by word desc");
    EXPECT_EQ(StateOf(Command::Undo).text, "Undo sort Vocabulary by word desc");
    Restart();
    main->Show({TableNum::Vocabulary});
    EXPECT_EQ(main->Grid().CellText(0, 1), "WITH");
}

TEST_F(CommandsTest, SortThatChangesNothingLeavesTheClickedColumn) {
    OpenNew();
    main->Show({TableNum::Vocabulary});
    main->ClickColumn(1);
    main->OpenSort();
    main->SortClosed();
    EXPECT_FALSE(IsEnabled(Command::Undo));
    EXPECT_EQ(main->Grid().SortColumn(), 1);
}

TEST_F(CommandsTest, SortProposesTheOrderOfTheColumnThatWasClicked) {
    OpenNew();
    main->Show({TableNum::Objects});
    main->ClickColumn(6);
    main->ClickColumn(6);
    SortScreen screen = main->OpenSort();
    EXPECT_TRUE(screen.Update());
    main->SortClosed();
    EXPECT_EQ(Adventure().Sorts().objects, "objweight desc, objnum");
    EXPECT_EQ(main->Grid().SortColumn(), std::nullopt);
}

TEST_F(CommandsTest, FindGoesToTheRowAndAFailureStays) {
    OpenNew();
    StoreMessage(0, "a door");
    StoreMessage(1, "a lamp");
    main->Show({TableNum::Messages});
    main->Finder().text = "lamp";
    main->Run(Command::Find);
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->CurrentContext().currentEntry, 1);
    main->Finder().text = "ghost";
    main->Run(Command::FindNext);
    EXPECT_THAT(Boxes(), ElementsAre("ghost not found"));
    EXPECT_EQ(main->CurrentRow(), 1);
}

TEST_F(CommandsTest, FindNamesTheTableByItsCaption) {
    OpenNew(AdventureKind::Vel);
    main->Show({TableNum::CondActs});
    main->Finder().Choose(std::nullopt);
    main->Finder().text = "GET";
    main->Run(Command::Find);
    EXPECT_THAT(Boxes(), ElementsAre("No Field to find 'GET' in Conditions and Actions"));
}

TEST_F(CommandsTest, TraceIsSwitchedOnAndOff) {
    EXPECT_FALSE(StateOf(Command::Trace).checked);
    main->Run(Command::Trace);
    EXPECT_TRUE(StateOf(Command::Trace).checked);
    main->Run(Command::Trace);
    EXPECT_FALSE(StateOf(Command::Trace).checked);
}

TEST_F(CommandsTest, LastRecordKeysShowsAReport) {
    OpenNew();
    main->Run(Command::LastRecordKeys);
    EXPECT_THAT(dialogs.Reports().at(0).text,
                testing::StartsWith("Listing of Last Record Key for Database Tables of Adventure: "));
}

TEST_F(CommandsTest, AFailureIsToldInABox) {
    OpenNew();
    StoreMessage(0, "one");
    main->Show({TableNum::Messages});
    std::filesystem::resize_file(folder / "game.fbd", 100);
    main->Show({TableNum::Locations});
    ASSERT_EQ(dialogs.Boxes().size(), 1U);
    EXPECT_EQ(dialogs.Boxes()[0].title, "Error");
}

/// What the views show and keep.

}  // namespace
}  // namespace fabula::authoring
