// A backup copy in the place of the open adventure.

#include <gtest/gtest.h>

#include "authoring/files/backups.h"
#include "authoring/main_screen_stand.h"
#include "platform/error.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

class Restoring : public testing::Test {
  protected:
    /// An adventure with the message "first", of which a copy was made, and then with "second". An older
    /// copy was made at its opening.
    void OpenWithABackup() {
        stand_.OpenNew();
        stand_.StoreMessage(0, "first");
        Keep();
        stand_.StoreMessage(1, "second");
    }
    void Keep() { Backups(stand_.paths.state / "backups", stand_.clock).Add(stand_.Adventure()); }
    std::string Messages() const {
        return test::RawDatabase(stand_.folder / "game.fbd")
            .Ask("SELECT group_concat(msgmsg) FROM Messages");
    }
    /// Chooses the latest copy.
    bool Restore(bool agree) {
        auto screen = stand_.main->OpenRestore();
        if (!screen) return false;
        stand_.dialogs.AnswerNext(agree);
        return stand_.main->Restore(screen->Copies().front());
    }

    test::MainScreenStand stand_;
};

TEST_F(Restoring, ShowsTheCopiesWithDateSizeAndWhatDiffers) {
    OpenWithABackup();
    const auto screen = stand_.main->OpenRestore();
    ASSERT_TRUE(screen);
    ASSERT_EQ(screen->Copies().size(), 2u);
    EXPECT_EQ(screen->MadeOf(0), "2026-03-09 10:30:00");
    const auto size = std::filesystem::file_size(screen->Copies()[0].file);
    EXPECT_EQ(screen->SizeOf(0), std::to_string((size + 1023) / 1024) + " KB");
    EXPECT_EQ(screen->ComparisonOf(0), "Messages: 1 in the copy, 2 now\n");
}

TEST_F(Restoring, SaysThatTheCountsAreTheSame) {
    stand_.OpenNew();
    Keep();
    EXPECT_EQ(stand_.main->OpenRestore()->ComparisonOf(0), "Each table has as many records as now.");
}

TEST_F(Restoring, TellsWhatIsWrongWithACopyThatCannotBeRead) {
    OpenWithABackup();
    const auto screen = stand_.main->OpenRestore();
    test::WriteBytes(screen->Copies()[0].file, "no adventure");
    EXPECT_TRUE(screen->ComparisonOf(0).starts_with("Could not open ")) << screen->ComparisonOf(0);
}

TEST_F(Restoring, SaysThatThereIsNoCopyYet) {
    ASSERT_TRUE(stand_.main->NewAdventure(stand_.folder / "fresh.fbd", {}, false));
    EXPECT_FALSE(stand_.main->OpenRestore());
    EXPECT_EQ(stand_.Boxes().back(), "There is no backup of fresh.fbd yet.");
}

TEST_F(Restoring, PutsTheCopyInPlaceAndKeepsWhatWasThere) {
    OpenWithABackup();
    EXPECT_TRUE(Restore(true));
    EXPECT_EQ(Messages(), "first");
    EXPECT_EQ(stand_.main->Title(), "Fabula IDE - game");
    EXPECT_TRUE(stand_.main->Message().starts_with("Restored the backup game_20260309_103000"));
    const auto again = stand_.main->OpenRestore();
    ASSERT_EQ(again->Copies().size(), 4u) << "the last was made at the opening of what was restored";
    EXPECT_EQ(test::RawDatabase(again->Copies()[1].file).Ask("SELECT group_concat(msgmsg) FROM Messages"),
              "first,second");
}

TEST_F(Restoring, AsksFirst) {
    OpenWithABackup();
    EXPECT_FALSE(Restore(false));
    EXPECT_EQ(Messages(), "first,second");
    EXPECT_EQ(Backups(stand_.paths.state / "backups", stand_.clock).Of(stand_.folder / "game.fbd").size(),
              2u);
}

TEST_F(Restoring, ACopyOfAnOlderFormIsBroughtUpToDate) {
    OpenWithABackup();
    test::RawDatabase(stand_.main->OpenRestore()->Copies()[0].file)
        .Run("ALTER TABLE Adventure DROP COLUMN source; DELETE FROM Tables WHERE fieldname='source'");
    EXPECT_TRUE(Restore(true));
    EXPECT_EQ(Messages(), "first");
    EXPECT_TRUE(stand_.Adventure().Schema(store::TableNum::Adventure).Find("source"));
}

TEST_F(Restoring, ADamagedCopyLeavesTheAdventureOpenAndAsItWas) {
    OpenWithABackup();
    test::WriteBytes(stand_.main->OpenRestore()->Copies()[0].file, "no adventure");
    EXPECT_FALSE(Restore(true));
    EXPECT_EQ(stand_.main->Title(), "Fabula IDE - game");
    EXPECT_EQ(Messages(), "first,second");
}

}  // namespace
}  // namespace fabula::authoring
