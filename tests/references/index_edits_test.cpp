#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "records.h"
#include "references/index.h"
#include "store/file/change_set.h"
#include "support/games/template_adventure.h"

namespace fabula::references {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

/// Edits a small game at random, as an author's screens, an import and Undo might.
class RandomEdits {
  public:
    RandomEdits(Adventure& adventure, unsigned seed) : adventure_(adventure), random_(seed) {}

    /// The change set of one edit.
    std::string Edit() {
        const store::ChangeRecorder recorder(adventure_);
        if (Below(5) == 0 && !made_.empty()) {
            const std::string latest = made_.back();
            made_.pop_back();
            store::TakeBack(adventure_, latest);
            return latest;
        }
        for (int i = Below(3); i >= 0; --i)
            EditRecord();
        made_.push_back(recorder.Changes());
        return made_.back();
    }

  private:
    int Below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }

    std::string Line() {
        static const char* kPieces[] = {"AT 5",      "SET 60",  "LET 70 4",    "MESSGF 70", "PLUS 70 1",
                                        "MESSAGE 3", "GET 2",   "GOTO 6",      "EQ 38 5",   "PROCESS 3",
                                        "BAD WORDS", "SYSMESS", "COPYFF 60 61"};
        std::string line;
        for (int i = Below(5); i > 0; --i)
            line.append(kPieces[Below(static_cast<int>(std::size(kPieces)))]).append(" ");
        return line;
    }

    void Change(TableNum table, const std::string& where, const std::string& field, text::Value value) {
        Cursor& records = adventure_.OpenTable(table, "def", where);
        if (records.Eof()) return;
        records.SetField(field, std::move(value));
        records.Update();
    }

    void EditRecord() {
        const int number = Below(20);
        const std::string key = std::to_string(number);
        switch (Below(11)) {
            case 0:
                return test::PutEntry(adventure_, number, Below(4), Below(9), 255, Line());
            case 1:
                return Change(TableNum::ProcessTables, "canum=" + key, "condacts", Line());
            case 2:
                return Change(TableNum::ProcessTables, "canum=" + key, "canum", std::int64_t{Below(20)});
            case 3:
                adventure_.DeleteFrom(TableNum::ProcessTables, "canum=" + key);
                return;
            case 4:
                return test::PutLocation(adventure_, number, "N 4", "2 " + key);
            case 5:
                adventure_.DeleteFrom(TableNum::Locations, "locnum=" + key);
                return;
            case 6:
                return test::PutObject(adventure_, number, Below(9), Below(9), 255, Below(2) == 0);
            case 7:
                return Change(TableNum::Objects, "objnum=" + key, "objloc", std::int64_t{Below(9)});
            case 8:
                return test::PutPicture(adventure_, number, "GOSUB sc=0 " + key + " END");
            case 9:
                return Change(TableNum::Adventure, "", "startloc", std::int64_t{Below(9)});
            default:
                return test::PutWord(adventure_, 500 + number, "WORD", number, 2);
        }
    }

    Adventure& adventure_;
    std::mt19937 random_;
    std::vector<std::string> made_;
};

TEST(ReferenceIndex, KeptThroughAThousandEditsEqualsOneMadeAnew) {
    test::OpenedAdventure file;
    const auto game = file->CopyInMemory();
    RandomEdits edits(*game, 18);
    Index kept(*game);
    for (int i = 1; i <= 1000; ++i) {
        kept.Update(*game, edits.Edit());
        if (i % 50 == 0) {
            ASSERT_TRUE(kept == Index(*game)) << "after edit " << i;
        }
    }
    EXPECT_FALSE(kept.AllUses().empty());
}

TEST(ReferenceIndex, StaysAsItWasWhenAnEditIsTakenBack) {
    test::OpenedAdventure game;
    test::PutEntry(*game, 1, 0, 255, 255, "SET 60");
    Index index(*game);
    std::string changes;
    {
        const store::ChangeRecorder recorder(*game);
        game->DeleteFrom(TableNum::ProcessTables, "canum=1");
        changes = recorder.Changes();
    }
    index.Update(*game, changes);
    EXPECT_EQ(index.CountOf({Kind::Flag, 60}), 0);
    store::TakeBack(*game, changes);
    index.Update(*game, changes);
    EXPECT_EQ(test::UsesOf(index, Kind::Flag, 60), "entry 1 condacts 1 sets\n");
}

TEST(ReferenceIndex, ReadsAllAgainWhenTheCatalogueChanges) {
    test::OpenedAdventure game;
    test::PutEntry(*game, 1, 0, 255, 255, "SET 60");
    Index index(*game);
    std::string changes;
    {
        const store::ChangeRecorder recorder(*game);
        game->DeleteFrom(TableNum::CondActs, "caname='SET'");
        changes = recorder.Changes();
    }
    index.Update(*game, changes);
    EXPECT_EQ(index.CountOf({Kind::Flag, 60}), 0) << "SET is no action any more";
}

}  // namespace
}  // namespace fabula::references
