#include "authoring/document/document.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "authoring/document/screen_context.h"
#include "platform/error.h"
#include "support/child_process.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class DocumentTest : public testing::Test {
  protected:
    DocumentTest() : document_(Made(folder_ / "game.fbd")) {}

    static std::filesystem::path Made(const std::filesystem::path& file) {
        test::MakeAdventure(file);
        return file;
    }

    void AddMessage(int number) {
        Change change(document_, "add message " + std::to_string(number));
        store::Cursor& messages = document_.Adventure().OpenTable(TableNum::Messages, "def");
        messages.AddNew();
        messages.SetField("msgnum", std::int64_t{number});
        messages.SetField("msgmsg", std::string("text"));
        messages.Update();
        change.Commit();
    }
    int Messages() { return document_.Adventure().OpenTable(TableNum::Messages, "def").RecordCount(); }

    test::TempFolder folder_;
    Document document_;
};

TEST_F(DocumentTest, IsOpenForChangeOnce) {
    try {
        Document(document_.File());
        FAIL() << "it was opened twice";
    } catch (const store::OpenError& error) {
        EXPECT_EQ(error.Reason(), store::Refusal::OpenForChange);
    }
    Document reader(document_.File(), store::OpenMode::ReadOnly);
    EXPECT_TRUE(reader.IsReadOnly());
    EXPECT_FALSE(document_.IsReadOnly());
    AddMessage(0);
}

TEST_F(DocumentTest, OpenForReadingRefusesChangesAndGoesOnWithACopyThatTakesThem) {
    AddMessage(0);
    Document reader(document_.File(), store::OpenMode::ReadOnly);
    EXPECT_THROW(
        {
            Change change(reader, "delete all messages");
            reader.Adventure().DeleteFrom(TableNum::Messages);
            change.Commit();
        },
        Error);
    EXPECT_EQ(Messages(), 1);
    reader.SaveAs(folder_ / "copy.fbd");
    EXPECT_FALSE(reader.IsReadOnly());
    Change change(reader, "delete all messages");
    EXPECT_EQ(reader.Adventure().DeleteFrom(TableNum::Messages), 1);
    change.Commit();
    EXPECT_EQ(reader.UndoName(), "delete all messages");
    EXPECT_EQ(Messages(), 1);
}

TEST_F(DocumentTest, OnAFullDiskCanOnlyBeReadAndSaysSoAtOnce) {
    const auto file = Made(folder_ / "other.fbd");
    EXPECT_EQ(test::RunInChild([&] {
                  test::LimitFileSize(0);
                  try {
                      Document full(file);
                  } catch (const store::OpenError& error) {
                      if (error.Reason() != store::Refusal::CannotBeWritten) return 1;
                      return Document(file, store::OpenMode::ReadOnly).IsReadOnly() ? 0 : 2;
                  }
                  return 3;
              }),
              0);
}

TEST_F(DocumentTest, HasNothingToUndoAtFirst) {
    EXPECT_EQ(document_.UndoName(), std::nullopt);
    EXPECT_EQ(document_.RedoName(), std::nullopt);
    EXPECT_TRUE(document_.Undo().empty());
    EXPECT_TRUE(document_.Redo().empty());
}

TEST_F(DocumentTest, UndoesAndRedoesInTheirOrder) {
    AddMessage(0);
    AddMessage(1);
    EXPECT_EQ(document_.UndoName(), "add message 1");
    EXPECT_EQ(document_.Undo(), (std::set{TableNum::Messages}));
    EXPECT_EQ(Messages(), 1);
    EXPECT_EQ(document_.UndoName(), "add message 0");
    EXPECT_EQ(document_.RedoName(), "add message 1");
    document_.Undo();
    EXPECT_EQ(Messages(), 0);
    document_.Redo();
    document_.Redo();
    EXPECT_EQ(Messages(), 2);
    EXPECT_EQ(document_.RedoName(), std::nullopt);
}

TEST_F(DocumentTest, RemembersWhereAChangeWasMade) {
    const Place messages{TableNum::Messages, 0, 2};
    AddMessage(0);
    AddMessage(1);
    AddMessage(2);
    EXPECT_EQ(document_.UndoPlace(), std::nullopt);
    document_.PlaceLatest(2, messages);
    EXPECT_EQ(document_.UndoPlace(), messages);
    document_.Undo();
    EXPECT_EQ(document_.RedoPlace(), messages);
    EXPECT_EQ(document_.UndoPlace(), messages);
    document_.Undo();
    EXPECT_EQ(document_.UndoPlace(), std::nullopt);
}

/// What the log of changes takes on the disk: the one open file that has no name any more.
std::uintmax_t LogSize() {
    std::uintmax_t size = 0;
    for (const auto& open : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        if (std::filesystem::read_symlink(open.path(), gone).string().ends_with(" (deleted)"))
            size += std::filesystem::file_size(open.path(), gone);
    }
    return size;
}

TEST_F(DocumentTest, LogOfChangesGrowsNoMoreWhenTheOldestAreForgotten) {
    const auto writeMessage = [this](int number) {
        Change change(document_, "write a message");
        store::Cursor& messages = document_.Adventure().OpenTable(TableNum::Messages, "def");
        messages.SetField("msgmsg", std::string(5000, static_cast<char>('a' + number % 26)));
        messages.Update();
        change.Commit();
    };
    AddMessage(0);
    int number = 0;
    for (; number < static_cast<int>(Document::kMostChanges); ++number)
        writeMessage(number);
    const std::uintmax_t full = LogSize();
    EXPECT_GT(full, 5'000'000U);
    for (; number < static_cast<int>(Document::kMostChanges) + 200; ++number)
        writeMessage(number);
    EXPECT_LE(LogSize(), full + 100'000);
}

TEST_F(DocumentTest, ANewChangeEndsWhatCouldBeRedone) {
    AddMessage(0);
    document_.Undo();
    AddMessage(5);
    EXPECT_EQ(document_.RedoName(), std::nullopt);
    EXPECT_EQ(document_.UndoName(), "add message 5");
}

TEST_F(DocumentTest, AChangeWithoutCommitHasNeverBeen) {
    {
        const Change change(document_, "delete the vocabulary");
        document_.Adventure().DeleteFrom(TableNum::Vocabulary);
    }
    EXPECT_GT(document_.Adventure().OpenTable(TableNum::Vocabulary, "def").RecordCount(), 0);
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(DocumentTest, AChangeWithinAChangeIsPartOfIt) {
    {
        Change outer(document_, "delete word LAMP");
        AddMessage(0);
        AddMessage(1);
        outer.Commit();
    }
    EXPECT_EQ(document_.UndoName(), "delete word LAMP");
    document_.Undo();
    EXPECT_EQ(Messages(), 0);
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(DocumentTest, AChangeWithTheLatestIsUndoneWithIt) {
    AddMessage(0);
    AddMessage(1);
    {
        Change more(document_, Change::WithLatest{});
        store::Cursor& messages = document_.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=1");
        messages.SetField("msgmsg", std::string("another text"));
        messages.Update();
        store::Cursor& flags = document_.Adventure().OpenTable(TableNum::Flags, "def", "flgnum=11");
        flags.SetField("flgdesc", std::string("told"));
        flags.Update();
        more.Commit();
    }
    EXPECT_EQ(document_.UndoName(), "add message 1");
    EXPECT_EQ(document_.Undo(), (std::set{TableNum::Messages, TableNum::Flags}));
    EXPECT_EQ(Messages(), 1);
    EXPECT_EQ(document_.Adventure().OpenTable(TableNum::Flags, "def", "flgnum=11").Text("flgdesc"), "");
    document_.Redo();
    EXPECT_EQ(document_.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=1").Text("msgmsg"),
              "another text");
    document_.Undo();
    EXPECT_EQ(document_.UndoName(), "add message 0");
}

TEST_F(DocumentTest, AChangeWithTheLatestThatIsNotCommittedLeavesTheLatest) {
    AddMessage(0);
    {
        const Change more(document_, Change::WithLatest{});
        document_.Adventure().DeleteFrom(TableNum::Vocabulary);
    }
    EXPECT_EQ(document_.Undo(), (std::set{TableNum::Messages}));
}

TEST_F(DocumentTest, AChangeWithTheLatestNeedsOne) {
    EXPECT_THROW(Change(document_, Change::WithLatest{}), std::logic_error);
    AddMessage(0);
    EXPECT_EQ(document_.UndoName(), "add message 0");
}

TEST_F(DocumentTest, AChangeIsOverWithItsCommit) {
    Change first(document_, "edit the settings");
    first.Commit();
    AddMessage(0);
    EXPECT_EQ(document_.UndoName(), "add message 0");
}

TEST_F(DocumentTest, AChangeThatChangesNothingIsNoStep) {
    Change change(document_, "edit message 0");
    change.Commit();
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(DocumentTest, UndoOfTheSettingsIsKnownAtOnce) {
    Change change(document_, "edit the settings");
    store::Cursor& settings = document_.Adventure().OpenTable(TableNum::Adventure, "def");
    settings.SetField("adventype", std::string("VEL"));
    settings.Update();
    change.Commit();
    document_.Adventure().ReadSettings();
    document_.Undo();
    EXPECT_EQ(document_.Adventure().AdventureType(), "Fabula");
}

TEST_F(DocumentTest, NextKeysAreOneAboveTheHighest) {
    platform::ScriptedDialogs dialogs;
    ScreenContext context{document_, dialogs};
    ReadNextKeys(context);
    const int words = context.nextWord;
    EXPECT_EQ(context.nextEntry, 0);
    Change change(document_, "add a word");
    store::Cursor& vocabulary = document_.Adventure().OpenTable(TableNum::Vocabulary, "def");
    vocabulary.AddNew();
    vocabulary.SetField("vocindex", std::int64_t{words + 10});
    vocabulary.SetField("word", std::string("LAMP"));
    vocabulary.Update();
    change.Commit();
    ReadNextKeys(context);
    EXPECT_EQ(context.nextWord, words + 11);
}

TEST(NumberAfter, TheHighestStays) {
    EXPECT_EQ(NumberAfter(-1), 0);
    EXPECT_EQ(NumberAfter(2147483646), 2147483647);
    EXPECT_EQ(NumberAfter(2147483647), 2147483647);
}

TEST(Document, OfAFileThatIsNoAdventureIsRefused) {
    test::TempFolder folder;
    EXPECT_THROW(Document(folder / "none.fbd"), store::OpenError);
}

TEST(Refuse, TellsInABoxTitledError) {
    platform::ScriptedDialogs dialogs;
    EXPECT_FALSE(Refuse(dialogs, "Must have a Save Name"));
    EXPECT_EQ(dialogs.Boxes().at(0).text, "Must have a Save Name");
    EXPECT_EQ(dialogs.Boxes().at(0).title, "Error");
}

}  // namespace
}  // namespace fabula::authoring
