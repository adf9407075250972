#include <optional>

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

constexpr std::chrono::milliseconds kNotLong(50);

class TransactionTest : public testing::Test {
  protected:
    static void Add(Adventure& adventure, int number, const std::string& text = "text") {
        Cursor& messages = adventure.OpenTable(TableNum::Free22, "* from messages", "msgnum=-1");
        messages.AddNew();
        messages.SetField("msgnum", number);
        messages.SetField("msgmsg", text);
        messages.Update();
    }
    void Add(int number) { Add(*adventure_, number); }

    /// The numbers of the messages as the file has them.
    std::string Stored() {
        adventure_.Reopen();
        std::string numbers;
        for (Cursor& all = adventure_->OpenTable(TableNum::Messages, "*"); !all.Eof(); all.MoveNext())
            numbers += (numbers.empty() ? "" : " ") + std::to_string(all.Number("msgnum"));
        return numbers;
    }

    OpenedAdventure adventure_;
};

TEST_F(TransactionTest, KeepsItsWorkWhenCommitted) {
    {
        Transaction transaction(*adventure_);
        Add(1);
        Add(2);
        transaction.Commit();
    }
    EXPECT_EQ(Stored(), "1 2");
}

TEST_F(TransactionTest, UndoesItsWorkWhenNot) {
    Add(1);
    {
        Transaction transaction(*adventure_);
        Add(2);
        adventure_->DeleteFrom(TableNum::Messages, "msgnum=1");
    }
    EXPECT_EQ(adventure_->OpenTable(TableNum::Messages, "*").Number("msgnum"), 1);
    EXPECT_EQ(Stored(), "1");
}

TEST_F(TransactionTest, UndoesItsWorkWhenAnExceptionPasses) {
    EXPECT_THROW(
        {
            Transaction transaction(*adventure_);
            Add(1);
            throw Error("something went wrong");
        },
        Error);
    EXPECT_EQ(Stored(), "");
}

TEST_F(TransactionTest, ClosingTheFileWithoutCommitUndoesTheWork) {
    const auto other = Adventure::Open(adventure_.File());
    {
        Transaction transaction(*other);
        Add(*other, 1);
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(TransactionTest, AnInnerOneIsUndoneAlone) {
    {
        Transaction outer(*adventure_);
        Add(1);
        {
            Transaction inner(*adventure_);
            Add(2);
        }
        Add(3);
        outer.Commit();
    }
    EXPECT_EQ(Stored(), "1 3");
}

TEST_F(TransactionTest, AnInnerOneIsKeptOnlyIfTheOuterOneIs) {
    {
        Transaction outer(*adventure_);
        {
            Transaction inner(*adventure_);
            Add(1);
            inner.Commit();
        }
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(TransactionTest, ThreeDeepTheMiddleOneUndoesTheInnermost) {
    {
        Transaction outer(*adventure_);
        Add(1);
        {
            Transaction middle(*adventure_);
            Add(2);
            {
                Transaction inner(*adventure_);
                Add(3);
                inner.Commit();
            }
        }
        {
            Transaction middle(*adventure_);
            Add(4);
            middle.Commit();
        }
        outer.Commit();
    }
    EXPECT_EQ(Stored(), "1 4");
}

TEST_F(TransactionTest, AnotherFollowsOneThatWasUndone) {
    { Transaction undone(*adventure_); }
    Transaction transaction(*adventure_);
    Add(1);
    transaction.Commit();
    EXPECT_EQ(Stored(), "1");
}

TEST_F(TransactionTest, AnotherProgramSeesNothingBeforeTheCommit) {
    const auto other = Adventure::Open(adventure_.File());
    Transaction transaction(*adventure_);
    Add(1);
    EXPECT_TRUE(other->OpenTable(TableNum::Messages, "*").Eof());
    transaction.Commit();
    EXPECT_EQ(other->OpenTable(TableNum::Messages, "*").RecordCount(), 1);
}

TEST_F(TransactionTest, TwoProgramsDoNotWriteAtOnce) {
    const auto other = Adventure::Open(adventure_.File());
    other->WaitForOthers(kNotLong);
    Transaction transaction(*adventure_);
    try {
        const Transaction second(*other);
        ADD_FAILURE() << "both write";
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "Could not write to the adventure: it is in use by another program.");
    }
}

TEST_F(TransactionTest, AReaderCannotBeginOne) {
    adventure_.Reopen(OpenMode::ReadOnly);
    EXPECT_THROW(Transaction{*adventure_}, Error);
    const ReadTransaction reading(*adventure_);
    EXPECT_GT(adventure_->OpenTable(TableNum::Flags, "*").RecordCount(), 0);
}

TEST_F(TransactionTest, AFailureToCommitUndoesTheWork) {
    const auto other = Adventure::Open(adventure_.File());
    adventure_->WaitForOthers(kNotLong);
    {
        PreparedQuery reading = other->Prepare(TableNum::Flags, "flgnum", "");
        ASSERT_TRUE(reading.First({}));
        Transaction transaction(*adventure_);
        Add(1);
        EXPECT_THROW(transaction.Commit(), Error);
    }
    EXPECT_EQ(Stored(), "");
}

// A full disk makes the database undo everything at once, whatever is still open above it.
TEST_F(TransactionTest, NothingIsKeptOfAStepThatAFullDiskHasUndone) {
    adventure_.Close();
    const int result = test::RunInChild([&] {
        const auto adventure = Adventure::Open(adventure_.File());
        test::LimitFileSize(2 * 1024 * 1024);
        Transaction outer(*adventure);
        Add(*adventure, 1);
        bool failed = false;
        for (int number = 2; number < 8; ++number) {
            try {
                Transaction inner(*adventure);
                Add(*adventure, number, number == 3 ? std::string(8 << 20, 'x') : "small");
                inner.Commit();
            } catch (const Error&) {
                failed = true;
            }
        }
        if (!failed) return 1;
        try {
            outer.Commit();
        } catch (const Error&) {
            return 0;
        }
        return 2;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Stored(), "");
}

TEST_F(TransactionTest, AReadTransactionSeesOneStateOfTheFile) {
    const auto other = Adventure::Open(adventure_.File());
    adventure_->WaitForOthers(kNotLong);
    Add(1);
    const ReadTransaction reading(*other);
    EXPECT_EQ(other->OpenTable(TableNum::Messages, "*").RecordCount(), 1);
    EXPECT_THROW(Add(2), Error);
    EXPECT_EQ(other->OpenTable(TableNum::Messages, "*").RecordCount(), 1);
}

TEST_F(TransactionTest, AReadTransactionFreesTheFileAtItsEnd) {
    const auto other = Adventure::Open(adventure_.File());
    {
        const ReadTransaction reading(*other);
        const ReadTransaction nested(*other);
        other->OpenTable(TableNum::Messages, "*");
    }
    Add(1);
    EXPECT_EQ(Stored(), "1");
}

TEST_F(TransactionTest, AReadTransactionMayStandInsideATransactionAndHoldAnother) {
    {
        Transaction outer(*adventure_);
        const ReadTransaction reading(*adventure_);
        Add(1);
        Transaction inner(*adventure_);
        Add(2);
        inner.Commit();
        outer.Commit();
    }
    EXPECT_EQ(Stored(), "1 2");
}

TEST_F(TransactionTest, AChangeInsideAReadTransactionIsAFaultOfTheProgram) {
    Add(1);
    {
        const ReadTransaction reading(*adventure_);
        EXPECT_THROW(Add(2), std::logic_error);
        EXPECT_THROW(adventure_->DeleteFrom(TableNum::Messages), std::logic_error);
        EXPECT_THROW(adventure_->OpenTable(TableNum::Messages, "*").Delete(), std::logic_error);
        EXPECT_THROW(Transaction{*adventure_}, std::logic_error);
    }
    EXPECT_EQ(Stored(), "1");
}

}  // namespace
}  // namespace fabula::store
