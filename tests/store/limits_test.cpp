// Files and filters that were made to hang the program, too little memory, and a second program.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/adventure.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

class Limits : public testing::Test {
  protected:
    Limits() { test::MakeAdventure(file_); }

    /// Gives a table of the file so many records that are all the same.
    void Fill(const std::string& table, const std::string& fields, const std::string& values, int count) {
        test::RawDatabase(file_).Run(
            "PRAGMA synchronous=OFF; WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n LIMIT " +
            std::to_string(count) + ") INSERT INTO " + table + "(" + fields + ") SELECT " + values +
            " FROM n");
    }
    static std::string ErrorOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const Error& error) {
            return error.what();
        }
        return "no error";
    }

    test::TempFolder folder_;
    const std::filesystem::path file_ = folder_ / "game.fbd";
};

/// 400 comparisons that each record passes.
std::string LongFilter() {
    std::string filter = "msgnum<>1";
    for (int i = 0; i < 400; ++i)
        filter += " and msgnum<>" + std::to_string(-i - 2);
    return filter;
}

TEST_F(Limits, AQueryOverAFileThatWasMadeToBeSlowEndsInASentence) {
    Fill("Messages", "msgnum", "7", 200'000);
    const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly);
    EXPECT_EQ(ErrorOf([&] { adventure->OpenTable(TableNum::Messages, "msgnum", LongFilter()); }),
              "Could not read the adventure: it takes more steps than any adventure needs.");
}

TEST_F(Limits, AfterAQueryThatWasEndedTheNextOneWorks) {
    Fill("Messages", "msgnum", "7", 200'000);
    const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly);
    EXPECT_THROW(adventure->OpenTable(TableNum::Messages, "msgnum", LongFilter()), Error);
    EXPECT_EQ(adventure->OpenTable(TableNum::Adventure, "adventype").Text("adventype"), "Fabula");
}

TEST_F(Limits, ManyShortQueriesAreNoLongOne) {
    const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly);
    PreparedQuery query = adventure->Prepare(TableNum::Flags, "flgnum", "");
    for (int i = 0; i < 20'000; ++i)
        ASSERT_TRUE(query.First({}));
}

TEST_F(Limits, AListOfFieldsThatWasMadeToBeSlowIsRefusedAtOpening) {
    Fill("Tables", "tablenum, fieldname, fieldtype", "2, 'msgmsg', 'T'", 30'000);
    EXPECT_THROW(Adventure::Open(file_, OpenMode::ReadOnly), OpenError);
}

TEST_F(Limits, TooLittleMemoryForATextEndsInASentence) {
    Fill("Messages", "msgnum, msgmsg", "7, printf('%.*c', 20000000, 'x')", 1);
    EXPECT_EQ(test::RunInChild([&] {
                  const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly);
                  sqlite3_hard_heap_limit64(sqlite3_memory_used() + 3'000'000);
                  const std::string error = ErrorOf([&] { adventure->OpenTable(TableNum::Messages, "*"); });
                  return error == "Could not read the adventure: there is not enough memory." ? 0 : 1;
              }),
              0);
}

TEST_F(Limits, TooLittleMemoryForALookUpEndsInASentence) {
    Fill("Messages", "msgnum, msgmsg", "7, printf('%.*c', 20000000, 'x')", 1);
    EXPECT_EQ(test::RunInChild([&] {
                  const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly);
                  PreparedQuery query = adventure->Prepare(TableNum::Messages, "msgmsg", "msgnum=7");
                  sqlite3_hard_heap_limit64(sqlite3_memory_used() + 3'000'000);
                  const std::string error = ErrorOf([&] {
                      query.First({});
                      query.Text(0);
                  });
                  return error == "Could not read the adventure: there is not enough memory." ? 0 : 1;
              }),
              0);
}

TEST_F(Limits, TheDatabaseTakesNoMoreMemoryThanIsSaid) {
    const auto adventure = Adventure::Open(file_, OpenMode::ReadOnly);
    const sqlite3_int64 most = sqlite3_hard_heap_limit64(-1);
    EXPECT_GT(most, 0);
    EXPECT_LE(most, sqlite3_int64{2} * 1024 * 1024 * 1024);
}

TEST_F(Limits, ASecondWriterWaitsForItsTurn) {
    const auto adventure = Adventure::Open(file_);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t other = test::StartChild([&] {
        const test::RawDatabase raw(file_);
        raw.Run("BEGIN IMMEDIATE; DELETE FROM Messages");
        if (write(ends[1], "+", 1) != 1) return 1;
        usleep(800'000);  // longer than half a second, far from two
        raw.Run("COMMIT");
        return 0;
    });
    char byte = 0;
    ASSERT_EQ(read(ends[0], &byte, 1), 1);
    EXPECT_EQ(ErrorOf([&] { adventure->DeleteFrom(TableNum::Messages); }), "no error");
    int status = 0;
    waitpid(other, &status, 0);
    close(ends[0]);
    close(ends[1]);
}

TEST_F(Limits, AWriterThatWaitsInVainIsToldWhy) {
    const auto adventure = Adventure::Open(file_);
    adventure->WaitForOthers(std::chrono::milliseconds(50));
    const test::RawDatabase raw(file_);
    raw.Run("BEGIN IMMEDIATE; DELETE FROM Messages");
    EXPECT_EQ(ErrorOf([&] { adventure->DeleteFrom(TableNum::Messages); }),
              "Could not delete records: it is in use by another program.");
}

}  // namespace
}  // namespace fabula::store
