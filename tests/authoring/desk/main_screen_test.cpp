#include "authoring/desk/main_screen.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/files/backups.h"
#include "authoring/main_screen_stand.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using State = MainScreen::State;

class MainWindowTest : public testing::Test, public test::MainScreenStand {
  protected:
    bool New(const char* name, const store::AdventureSetup& setup = {}, bool starter = false) {
        return main->NewAdventure(folder / name, setup, starter);
    }
    std::string Text(TableNum table, const char* field) {
        return std::string(Adventure().OpenTable(table, "def").Text(field));
    }
};

TEST_F(MainWindowTest, StartsWithoutAnAdventure) {
    settings.Set("Startup", "File", "");
    main->Start();
    EXPECT_EQ(main->GetState(), State::NoAdventure);
    EXPECT_EQ(main->Title(), "Fabula IDE");
    EXPECT_THAT(main->Tree(), IsEmpty());
    EXPECT_EQ(main->Grid().RowCount(), 0);
    EXPECT_EQ(main->CurrentRow(), -1);
    EXPECT_EQ(main->AdventureStatus(), "");
    EXPECT_EQ(main->TableStatus(), "");
}

TEST_F(MainWindowTest, StartsWithoutAMessageWhenTheLastFileIsGone) {
    main->Start();
    const auto boxes = Boxes();
    settings.Set("Startup", "File", (folder / "gone.fbd").string());
    main->Start();
    EXPECT_EQ(main->GetState(), State::NoAdventure);
    EXPECT_EQ(Boxes(), boxes);
}

TEST_F(MainWindowTest, StartsWithABoxWhenTheLastFileIsDamaged) {
    const std::filesystem::path file = folder / "bad.fbd";
    std::ofstream(file) << "no adventure";
    settings.Set("Startup", "File", file.string());
    main->Start();
    EXPECT_EQ(main->GetState(), State::NoAdventure);
    EXPECT_EQ(dialogs.Boxes().at(0).title, "Error");
}

TEST_F(MainWindowTest, StartsWhereTheAuthorWas) {
    OpenNew();
    StoreMessage(0, "one");
    StoreMessage(1, "two");
    main->Show({TableNum::Messages});
    main->SelectRow(1);
    Restart();
    EXPECT_EQ(main->GetState(), State::Open);
    EXPECT_EQ(main->Title(), "Fabula IDE - game");
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Messages});
    EXPECT_EQ(main->CurrentRow(), 1);
    EXPECT_EQ(main->CurrentContext().currentEntry, 1);
}

TEST_F(MainWindowTest, StartsInTheProcessTableThatWasLastInView) {
    OpenNew();
    main->Show({TableNum::ProcessTables, kOtherProcesses});
    Restart();
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::ProcessTables, kOtherProcesses}));
    EXPECT_EQ(main->CurrentContext().currentESNum, kOtherProcesses);
}

TEST_F(MainWindowTest, AGameThatIsOpenedForTheFirstTimeShowsItsPlaces) {
    OpenNew();
    main->Show({TableNum::Messages});
    main->OpenFile(Make("other.fbd"));
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Locations});
    EXPECT_EQ(main->CurrentRow(), 0);
    main->Show({TableNum::Flags});
    Restart();
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Flags})
        << "after that it opens where the author was";
}

TEST_F(MainWindowTest, TellsAnotherVersionOfTheProgramInTheStatusLineAtTheStart) {
    OpenNew();
    const std::size_t boxes = dialogs.Boxes().size();
    Restart();
    EXPECT_EQ(main->Message(),
              "Opened game.fbd. IDEVersion changed from space to 1.2.3. Version 1.2.3 added to "
              "VersionNumbers.dat.");
    EXPECT_EQ(dialogs.Boxes().size(), boxes) << "no box stands before the author has done anything";
    Restart();
    EXPECT_EQ(main->Message(), "Opened game.fbd.");
}

TEST_F(MainWindowTest, RemembersItsFileAtTheEnd) {
    OpenNew();
    settings.Set("Startup", "File", "");
    main->End();
    EXPECT_EQ(Setting("File"), (folder / "game.fbd").string());
}

TEST_F(MainWindowTest, CleansUpAtTheEnd) {
    std::filesystem::create_directories(paths.state);
    const std::filesystem::path trace = paths.state / "old.trc";
    const std::filesystem::path other = paths.state / "notes.txt";
    std::ofstream(trace) << "x";
    std::ofstream(other) << "x";
    const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24 * 4000);
    clock.Set({2040, 1, 1});
    std::filesystem::last_write_time(trace, longAgo);
    std::filesystem::last_write_time(other, longAgo);
    main->End();
    EXPECT_FALSE(std::filesystem::exists(trace));
    EXPECT_TRUE(std::filesystem::exists(other));
}

TEST_F(MainWindowTest, AsksForTheFileOfANewAdventure) {
    dialogs.AnswerFile(folder / "new.fbd");
    EXPECT_EQ(main->AskNewFile(), folder / "new.fbd");
    const platform::FileQuestion& question = dialogs.Questions().at(0);
    EXPECT_EQ(question.title, "Create a Fabula Database");
    EXPECT_EQ(question.filter, "Fabula Database|*.fbd");
    EXPECT_EQ(question.extension, "fbd");
    EXPECT_TRUE(question.forWriting);
    EXPECT_FALSE(question.asksToOverwrite);
    for (const auto& [typed, made] : {std::pair("story.txt", "story.txt.fbd"), {"LOUD.FBD", "LOUD.FBD"}}) {
        dialogs.AnswerFile(folder / typed);
        EXPECT_EQ(main->AskNewFile(), folder / made);
    }
}

TEST_F(MainWindowTest, OpensANewAdventureOnItsSettings) {
    EXPECT_TRUE(New("first.fbd"));
    EXPECT_THAT(Boxes(), ElementsAre("first.fbd DataBase Created"));
    EXPECT_EQ(main->GetState(), State::Open);
    EXPECT_EQ(main->Title(), "Fabula IDE - first");
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Adventure});
    EXPECT_EQ(Setting("CurrentSet"), "5");
    EXPECT_EQ(Setting("File"), (folder / "first.fbd").string());
    EXPECT_FALSE(main->Tree().empty());
    EXPECT_EQ(main->RecentFiles().at(0), folder / "first.fbd");
}

TEST_F(MainWindowTest, OffersToReadAnAdventureThatIsOpenForChangeElsewhere) {
    const std::filesystem::path file = Make("shared.fbd");
    const auto elsewhere = store::Adventure::OpenForChange(file);
    dialogs.AnswerNext(false);
    EXPECT_FALSE(main->OpenFile(file));
    EXPECT_EQ(main->GetState(), State::NoAdventure);
    dialogs.AnswerNext(true);
    EXPECT_TRUE(main->OpenFile(file));
    EXPECT_EQ(Boxes().back(),
              "Could not open " + file.string() +
                  ": it is open for change in another window or program. Open it to read only?");
    EXPECT_TRUE(main->CurrentContext().document.IsReadOnly());
    main->ResizeColumn(0, 500);
}

TEST_F(MainWindowTest, OpensAFileThatCannotBeWrittenToReadAndSaysSo) {
    const std::filesystem::path file = Make("fixed.fbd");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_TRUE(main->OpenFile(file));
    EXPECT_EQ(Boxes().back(),
              "Could not open " + file.string() +
                  ": it can only be read. It is opened to read only; Save As makes a copy that "
                  "can be changed.");
    EXPECT_TRUE(main->CurrentContext().document.IsReadOnly());
    EXPECT_EQ(main->Title(), "Fabula IDE - fixed (read only)");
    dialogs.AnswerFile(folder / "own.fbd");
    EXPECT_TRUE(main->SaveAs());
    EXPECT_EQ(main->Title(), "Fabula IDE - own");
    EXPECT_FALSE(main->CurrentContext().document.IsReadOnly());
    StoreMessage(1, "changed");
}

TEST_F(MainWindowTest, MarksANewAdventureAsNew) {
    New("first.fbd");
    EXPECT_EQ(Text(TableNum::Adventure, "source"), "New");
    EXPECT_EQ(Text(TableNum::Adventure, "savename"), "first");
    EXPECT_TRUE(Adventure().OpenTable(TableNum::System, "def").Truth("flagchange"));
    EXPECT_FALSE(main->StateOf(Command::Undo).enabled);
}

TEST_F(MainWindowTest, MakesANewAdventureOfTheTypeThatWasChosen) {
    store::AdventureSetup setup;
    setup.ChooseType(AdventureKind::Marlo);
    setup.ChooseGraphics(true);
    EXPECT_TRUE(New("old.fbd", setup));
    EXPECT_EQ(main->AdventureStatus(), "Adventure Type: Marlo     Graphics: ON    CharSets: ON");
}

TEST_F(MainWindowTest, GivesANewAdventureTheStarterWhenItIsWanted) {
    New("bare.fbd");
    EXPECT_EQ(Adventure().OpenTable(TableNum::ProcessTables, "def").RecordCount(), 0);
    New("started.fbd", {}, true);
    EXPECT_GT(Adventure().OpenTable(TableNum::ProcessTables, "def").RecordCount(), 10);
}

TEST_F(MainWindowTest, AsksBeforeANewAdventureReplacesAFile) {
    Make("there.fbd");
    OpenNew();
    dialogs.AnswerNext(false);
    EXPECT_FALSE(New("there.fbd"));
    EXPECT_EQ(dialogs.Boxes().back().text,
              "All information in " + (folder / "there.fbd").string() + " will be deleted.");
    EXPECT_EQ(dialogs.Boxes().back().title, "Warning");
    EXPECT_EQ(main->Title(), "Fabula IDE - game");
}

TEST_F(MainWindowTest, ReplacesTheOpenAdventureByANewOne) {
    OpenNew();
    StoreMessage(0, "old");
    dialogs.AnswerNext(true);
    EXPECT_TRUE(New("game.fbd"));
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "def").RecordCount(), 0);
}

TEST_F(MainWindowTest, KeepsTheOpenAdventureWhenItIsNotToBeReplaced) {
    OpenNew();
    StoreMessage(0, "old");
    dialogs.AnswerNext(false);
    EXPECT_FALSE(New("game.fbd"));
    EXPECT_EQ(main->GetState(), State::Open);
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "def").RecordCount(), 1);
}

TEST_F(MainWindowTest, UndoesAsBeforeWhenTheOpenAdventureIsNotToBeReplaced) {
    OpenNew();
    StoreMessage(0, "old");
    dialogs.AnswerNext(false);
    EXPECT_FALSE(New("game.fbd"));
    EXPECT_EQ(dialogs.Boxes().back().text,
              "All information in " + (folder / "game.fbd").string() + " will be deleted.");
    EXPECT_EQ(main->CurrentContext().document.UndoName(), "add message 0");
}

TEST_F(MainWindowTest, KeepsTheOpenAdventureWhenANewOneCannotBeMade) {
    OpenNew();
    EXPECT_FALSE(main->NewAdventure(folder / "no such folder" / "new.fbd", {}, false));
    EXPECT_EQ(dialogs.Boxes().back().title, "Error");
    EXPECT_EQ(main->Title(), "Fabula IDE - game");
    EXPECT_EQ(main->GetState(), State::Open);
}

TEST_F(MainWindowTest, AsksForAnAdventureToOpen) {
    dialogs.AnswerFile(Make("other.fbd"));
    EXPECT_TRUE(main->Open());
    const platform::FileQuestion& question = dialogs.Questions().at(0);
    EXPECT_EQ(question.title, "Open Existing Fabula Database");
    EXPECT_EQ(question.filter, "Fabula Database|*.fbd");
    EXPECT_FALSE(question.forWriting);
    EXPECT_EQ(main->Title(), "Fabula IDE - other");
    EXPECT_EQ(Setting("File"), (folder / "other.fbd").string());
}

TEST_F(MainWindowTest, OpensNothingWhenNoFileIsChosen) {
    OpenNew();
    dialogs.AnswerFile(std::nullopt);
    EXPECT_FALSE(main->Open());
    EXPECT_EQ(main->Title(), "Fabula IDE - game");
}

TEST_F(MainWindowTest, KeepsTheOpenAdventureWhenAnotherIsRefused) {
    OpenNew();
    main->Show({TableNum::Flags});
    const std::filesystem::path file = folder / "bad.fbd";
    std::ofstream(file) << "no adventure";
    EXPECT_FALSE(main->OpenFile(file));
    EXPECT_THAT(dialogs.Boxes(), SizeIs(1));
    EXPECT_EQ(dialogs.Boxes()[0].title, "Error");
    EXPECT_EQ(main->Title(), "Fabula IDE - game");
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Flags});
    EXPECT_EQ(Setting("File"), (folder / "game.fbd").string());
    EXPECT_THAT(main->RecentFiles(), ElementsAre(folder / "game.fbd"));
}

TEST_F(MainWindowTest, OpensTheOpenAdventureWithoutLosingItsChanges) {
    OpenNew();
    StoreMessage(0, "one");
    EXPECT_TRUE(main->OpenFile(folder / "game.fbd"));
    EXPECT_TRUE(main->StateOf(Command::Undo).enabled);
}

TEST_F(MainWindowTest, ClosesTheAdventureBeforeForTheNextOne) {
    OpenNew();
    main->OpenFile(Make("other.fbd"));
    EXPECT_NO_THROW(Document(folder / "game.fbd"));
}

TEST_F(MainWindowTest, ListsTheAdventuresOpenedLastTheLatestFirst) {
    main->OpenFile(Make("one.fbd"));
    main->OpenFile(Make("two.fbd"));
    main->OpenFile(folder / "one.fbd");
    EXPECT_THAT(main->RecentFiles(), ElementsAre(folder / "one.fbd", folder / "two.fbd"));
    EXPECT_EQ(settings.Get("MRUFiles", "1"), (folder / "one.fbd").string());
    EXPECT_EQ(settings.Get("MRUFiles", "2"), (folder / "two.fbd").string());
    Restart();
    EXPECT_THAT(main->RecentFiles(), ElementsAre(folder / "one.fbd", folder / "two.fbd"));
}

TEST_F(MainWindowTest, BacksUpTheAdventureThatItOpens) {
    OpenNew();
    EXPECT_FALSE(std::filesystem::is_empty(paths.state / "backups"));
}

TEST_F(MainWindowTest, KeepsACopyOfWhatWasChangedSinceTheLatestBackup) {
    EXPECT_EQ(main->KeepACopy(), "");
    OpenNew();
    EXPECT_EQ(main->KeepACopy(), "");
    clock.Set({2026, 3, 9, 11, 0, 0});
    StoreMessage(0, "A draught comes in.");
    const std::string told = main->KeepACopy();
    const auto copies = Backups(paths.state / "backups", clock).Of(folder / "game.fbd");
    ASSERT_EQ(copies.size(), 2u);
    EXPECT_EQ(told, "A copy of the adventure is at " + copies[0].string() + ".");
    EXPECT_EQ(
        Document(copies[0]).Adventure().OpenTable(TableNum::Messages, "def", "msgnum=0").Text("msgmsg"),
        "A draught comes in.");
}

TEST_F(MainWindowTest, KeepsWhatIsTypedBesideTheBackups) {
    OpenNew();
    const std::string told = main->KeepACopy("[Message 0: Text]\nA draught");
    const auto file =
        Backups(paths.state / "backups", clock).Of(folder / "game.fbd")[0].parent_path() / "game_typed.txt";
    EXPECT_EQ(told, "What stood in the fields of open windows is at " + file.string() + ".");
    EXPECT_EQ(platform::ReadWholeFile(file, 1000, "read it"), "[Message 0: Text]\nA draught");
}

TEST_F(MainWindowTest, EndsWhenAProgramUsesCharacterSetsAndTheOneBeforeDidNot) {
    OpenNew();
    EXPECT_TRUE(main->OpenFile(Make("marlo.fbd", AdventureKind::Marlo)));
    EXPECT_THAT(Boxes(), ElementsAre("Importing a program using Character Sets from a previous program not "
                                     "using Character Sets requires exiting program"));
    EXPECT_TRUE(main->MustExit());
    EXPECT_EQ(Setting("File"), (folder / "marlo.fbd").string());
}

TEST_F(MainWindowTest, GoesOnWhenTheFirstProgramUsesCharacterSets) {
    OpenNew(AdventureKind::Marlo);
    main->OpenFile(Make("plain.fbd"));
    main->OpenFile(folder / "game.fbd");
    EXPECT_FALSE(main->MustExit());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(MainWindowTest, SavesACopyAndGoesOnWithIt) {
    OpenNew();
    StoreMessage(0, "one");
    main->Show({TableNum::Messages});
    dialogs.AnswerFile(folder / "copy.fbd");
    EXPECT_TRUE(main->SaveAs());
    EXPECT_EQ(dialogs.Questions().at(0).title, "Save as a Fabula Database");
    EXPECT_EQ(main->Title(), "Fabula IDE - copy");
    EXPECT_EQ(Setting("File"), (folder / "copy.fbd").string());
    EXPECT_EQ(main->RecentFiles().at(0), folder / "copy.fbd");
    EXPECT_EQ(main->Grid().RowCount(), 1);
    StoreMessage(1, "two");
    Document old(folder / "game.fbd");
    EXPECT_EQ(old.Adventure().OpenTable(TableNum::Messages, "def").RecordCount(), 1);
}

TEST_F(MainWindowTest, UndoesAfterSaveAsWhatWasDoneBefore) {
    OpenNew();
    StoreMessage(0, "one");
    dialogs.AnswerFile(folder / "copy.fbd");
    main->SaveAs();
    main->Run(Command::Undo);
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "def").RecordCount(), 0);
    Document old(folder / "game.fbd");
    EXPECT_EQ(old.Adventure().OpenTable(TableNum::Messages, "def").RecordCount(), 1);
}

TEST_F(MainWindowTest, StaysWithItsFileWhenTheCopyFails) {
    OpenNew();
    dialogs.AnswerFile(folder / "no such folder" / "copy.fbd");
    EXPECT_FALSE(main->SaveAs());
    EXPECT_EQ(dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(main->Title(), "Fabula IDE - game");
}

TEST_F(MainWindowTest, DoesNotSaveOverTheOpenFile) {
    OpenNew();
    StoreMessage(0, "one");
    dialogs.AnswerFile(folder / "game.fbd");
    EXPECT_FALSE(main->SaveAs());
    EXPECT_EQ(dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(Adventure().OpenTable(TableNum::Messages, "def").RecordCount(), 1);
}

TEST_F(MainWindowTest, ClosesTheAdventure) {
    OpenNew();
    main->Close();
    EXPECT_EQ(main->GetState(), State::NoAdventure);
    EXPECT_EQ(main->Title(), "Fabula IDE");
    EXPECT_EQ(Setting("File"), "");
    EXPECT_THAT(main->Tree(), IsEmpty());
    EXPECT_EQ(main->Grid().RowCount(), 0);
    EXPECT_NO_THROW(Document(folder / "game.fbd"));
}

TEST_F(MainWindowTest, PutsSortOrdersBackForATestAndRestoresThemBehindIt) {
    OpenNew();
    main->Show({TableNum::Objects});
    main->ClickColumn(6);
    ASSERT_TRUE(main->OpenSort().Update());
    main->SortClosed();
    EXPECT_EQ(Adventure().Sorts().objects, "objweight, objnum");
    const auto run = main->BeginTrial();
    ASSERT_TRUE(run.has_value());
    EXPECT_EQ(run->file, folder / "game.fbd");
    EXPECT_FALSE(run->trace);
    EXPECT_EQ(Adventure().Sorts().objects, "objnum");
    EXPECT_EQ(main->GetState(), State::EngineRunning);
    main->EndTrial();
    EXPECT_EQ(Adventure().Sorts().objects, "objweight, objnum");
    EXPECT_EQ(main->GetState(), State::Open);
}

TEST_F(MainWindowTest, ComesBackFromATestToTheSameRow) {
    OpenNew();
    for (int number = 0; number < 5; ++number)
        StoreMessage(number, "text");
    main->Show({TableNum::Messages});
    main->SelectRow(3);
    main->BeginTrial();
    main->EndTrial();
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Messages});
    EXPECT_EQ(main->CurrentRow(), 3);
}

TEST_F(MainWindowTest, AsksInTraceModeWhetherToDebugImmediately) {
    OpenNew();
    main->Run(Command::Trace);
    dialogs.AnswerNext(true);
    auto run = main->BeginTrial();
    EXPECT_EQ(dialogs.Boxes().at(0).text, "Debug immediately");
    EXPECT_TRUE(run->trace);
    EXPECT_TRUE(run->debugAtOnce);
    main->EndTrial();
    dialogs.AnswerNext(false);
    run = main->BeginTrial();
    EXPECT_TRUE(run->trace);
    EXPECT_FALSE(run->debugAtOnce);
}

TEST_F(MainWindowTest, TestsNothingWithoutAnAdventureAndNoGameTwice) {
    EXPECT_EQ(main->BeginTrial(), std::nullopt);
    OpenNew();
    EXPECT_TRUE(main->BeginTrial().has_value());
    EXPECT_EQ(main->BeginTrial(), std::nullopt);
}

}  // namespace
}  // namespace fabula::authoring
