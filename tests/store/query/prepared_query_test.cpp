#include "store/query/prepared_query.h"

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "support/games/template_adventure.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

/// An adventure whose messages are 1 "one", 2 "two", 2 "also two", 3 without a text.
class PreparedQueryTest : public testing::Test {
  protected:
    PreparedQueryTest() {
        Add(1, std::string("one"));
        Add(2, std::string("two"));
        Add(2, std::string("also two"));
        Add(3, text::Value());
    }

    void Add(int number, const text::Value& text) {
        Cursor& messages = adventure_->OpenTable(TableNum::Messages, "*");
        messages.AddNew();
        messages.SetField("msgnum", number);
        messages.SetField("msgmsg", text);
        messages.Update();
    }

    OpenedAdventure adventure_;
};

TEST_F(PreparedQueryTest, LooksUpWithAValueForEachMark) {
    PreparedQuery query =
        adventure_->Prepare(TableNum::Messages, "msgmsg, msgnum", "msgnum=? and msgmsg=?");
    ASSERT_TRUE(query.First({2, "TWO"}));
    EXPECT_EQ(query.Text(0), "two");
    EXPECT_EQ(query.Number(1), 2);
    EXPECT_FALSE(query.First({1, "two"}));
}

TEST_F(PreparedQueryTest, IsUsedAgainWithOtherValues) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    EXPECT_TRUE(query.First({1}));
    EXPECT_EQ(query.Text(0), "one");
    EXPECT_FALSE(query.First({7}));
    EXPECT_TRUE(query.First({2}));
    EXPECT_EQ(query.Text(0), "two");
}

TEST_F(PreparedQueryTest, NextGoesThroughAllRecordsInOrder) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum>=?");
    ASSERT_TRUE(query.First({2}));
    EXPECT_EQ(query.Text(0), "two");
    ASSERT_TRUE(query.Next());
    EXPECT_EQ(query.Text(0), "also two");
    ASSERT_TRUE(query.Next());
    EXPECT_EQ(query.Text(0), "");
    EXPECT_FALSE(query.Next());
}

TEST_F(PreparedQueryTest, TakesTheTablesDefaultOrderOrTheOneGiven) {
    PreparedQuery usual = adventure_->Prepare(TableNum::Messages, "msgnum", "");
    ASSERT_TRUE(usual.First({}));
    EXPECT_EQ(usual.Number(0), 1);
    PreparedQuery reversed = adventure_->Prepare(TableNum::Messages, "msgnum", "", "msgnum desc");
    ASSERT_TRUE(reversed.First({}));
    EXPECT_EQ(reversed.Number(0), 3);
}

TEST_F(PreparedQueryTest, KeepsTheConstantsOfItsFilter) {
    PreparedQuery query =
        adventure_->Prepare(TableNum::Messages, "msgmsg", "msgmsg='also two' and msgnum=?");
    EXPECT_FALSE(query.First({1}));
    EXPECT_TRUE(query.First({2}));
    EXPECT_EQ(query.Text(0), "also two");
}

TEST_F(PreparedQueryTest, ANullReadsAsAnEmptyTextAndAsZero) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg, msgmsg", "msgnum=3");
    ASSERT_TRUE(query.First({}));
    EXPECT_EQ(query.Text(0), "");
    EXPECT_EQ(query.Number(1), 0);
}

TEST_F(PreparedQueryTest, AnEmptyValueIsTheEmptyTextAndNotNull) {
    Add(4, std::string());
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgnum", "msgmsg=?");
    ASSERT_TRUE(query.First({std::string_view()}));
    EXPECT_EQ(query.Number(0), 4);
}

TEST_F(PreparedQueryTest, AValueIsNeverPartOfTheQuery) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgmsg=?");
    EXPECT_FALSE(query.First({"x' or 'a'='a"}));
    EXPECT_FALSE(query.First({"it's"}));
}

TEST_F(PreparedQueryTest, SeesWhatWasWrittenSince) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    EXPECT_FALSE(query.First({9}));
    Add(9, std::string("nine"));
    ASSERT_TRUE(query.First({9}));
    EXPECT_EQ(query.Text(0), "nine");
}

TEST_F(PreparedQueryTest, AnotherNumberOfValuesIsAFaultOfTheProgram) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    EXPECT_THROW(query.First({}), std::logic_error);
    EXPECT_THROW(query.First({1, 2}), std::logic_error);
    EXPECT_TRUE(query.First({1}));
}

TEST_F(PreparedQueryTest, ABadSelectionIsAnError) {
    EXPECT_THROW(adventure_->Prepare(TableNum::Messages, "msgtext", ""), FilterError);
    EXPECT_THROW(adventure_->Prepare(TableNum::Messages, "*", "msgnum=?;"), FilterError);
    EXPECT_THROW(adventure_->Prepare(TableNum::Messages, "*", "", "?"), FilterError);
}

TEST_F(PreparedQueryTest, MayBeMoved) {
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    PreparedQuery moved = std::move(query);
    ASSERT_TRUE(moved.First({1}));
    moved = adventure_->Prepare(TableNum::Messages, "msgnum", "msgnum=?");
    ASSERT_TRUE(moved.First({2}));
    EXPECT_EQ(moved.Number(0), 2);
}

TEST_F(PreparedQueryTest, AnotherProgramMayWriteOnceTheLookUpIsReset) {
    const auto other = Adventure::Open(adventure_.File());
    other->WaitForOthers(std::chrono::milliseconds(50));
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    ASSERT_TRUE(query.First({1}));
    EXPECT_THROW(other->DeleteFrom(TableNum::Messages, "msgnum=3"), Error);
    query.Reset();
    EXPECT_EQ(other->DeleteFrom(TableNum::Messages, "msgnum=3"), 1);
}

TEST_F(PreparedQueryTest, ReadToItsEndLeavesTheFileFree) {
    const auto other = Adventure::Open(adventure_.File());
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    ASSERT_TRUE(query.First({1}));
    EXPECT_FALSE(query.Next());
    EXPECT_EQ(other->DeleteFrom(TableNum::Messages, "msgnum=3"), 1);
}

}  // namespace
}  // namespace fabula::store
