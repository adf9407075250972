#include <limits>

#include <gtest/gtest.h>

#include "store/query/cursor_fixture.h"

namespace fabula::store {
namespace {

TEST_F(CursorTest, AnEmptyResultIsBothAtItsEndAndAtItsBeginning) {
    const Cursor& none = Messages("msgnum=9");
    EXPECT_TRUE(none.Eof());
    EXPECT_TRUE(none.Bof());
    EXPECT_EQ(none.RecordCount(), 0);
    EXPECT_EQ(none.AbsolutePosition(), 0);
}

TEST_F(CursorTest, MovingOnAnEmptyResultChangesNothing) {
    Cursor& none = Messages("msgnum=9");
    none.MovePrevious();
    EXPECT_TRUE(none.Eof() && none.Bof());
    none.MoveNext();
    EXPECT_TRUE(none.Eof() && none.Bof());
    none.MoveFirst();
    EXPECT_TRUE(none.Eof() && none.Bof());
    none.MoveLast();
    EXPECT_TRUE(none.Eof() && none.Bof());
}

TEST_F(CursorTest, OpensOnTheFirstRecord) {
    const Cursor& messages = Messages();
    EXPECT_FALSE(messages.Eof());
    EXPECT_FALSE(messages.Bof());
    EXPECT_EQ(messages.RecordCount(), 4);
    EXPECT_EQ(messages.AbsolutePosition(), 1);
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
}

TEST_F(CursorTest, MoveNextPastTheLastSetsEofWithoutError) {
    Cursor& messages = Messages();
    messages.MoveLast();
    EXPECT_EQ(messages.Text("msgmsg"), "three");
    EXPECT_FALSE(messages.Eof());
    messages.MoveNext();
    EXPECT_TRUE(messages.Eof());
    messages.MoveNext();
    EXPECT_TRUE(messages.Eof());
    messages.MovePrevious();
    EXPECT_EQ(messages.Text("msgmsg"), "three");
}

TEST_F(CursorTest, MovePreviousBeforeTheFirstSetsBofWithoutError) {
    Cursor& messages = Messages();
    messages.MovePrevious();
    EXPECT_TRUE(messages.Bof());
    EXPECT_FALSE(messages.Eof());
    messages.MovePrevious();
    messages.MoveNext();
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
}

TEST_F(CursorTest, AbsolutePositionCountsFromOneAndComesBackToAPlace) {
    Cursor& messages = Messages();
    messages.SetAbsolutePosition(3);
    EXPECT_EQ(messages.Text("msgmsg"), "two");
    EXPECT_EQ(messages.AbsolutePosition(), 3);
    messages.MoveNext();
    EXPECT_EQ(messages.AbsolutePosition(), 4);
    messages.MoveNext();
    EXPECT_EQ(messages.AbsolutePosition(), 0);
}

TEST_F(CursorTest, APlaceThatDoesNotExistIsAFaultOfTheProgram) {
    Cursor& messages = Messages();
    EXPECT_THROW(messages.SetAbsolutePosition(0), std::logic_error);
    EXPECT_THROW(messages.SetAbsolutePosition(5), std::logic_error);
    EXPECT_EQ(messages.AbsolutePosition(), 1);
}

TEST_F(CursorTest, FieldsAreNamedWithoutRegardToCase) {
    Cursor& messages = Messages();
    EXPECT_EQ(messages.Number("MSGNUM"), 0);
    EXPECT_EQ(messages.Field("MsgMsg"), text::Value(std::string("zero")));
    messages.SetField("MSGMSG", "nought");
    messages.Update();
    EXPECT_EQ(Stored(0), "nought");
}

TEST_F(CursorTest, AFieldThatTheCursorDoesNotHaveIsAFaultOfTheProgram) {
    Cursor& messages = Messages();
    EXPECT_THROW(messages.Field("locnum"), std::logic_error);
    EXPECT_THROW(messages.SetField("locnum", 1), std::logic_error);
    EXPECT_THROW(messages.Field("storekey"), std::logic_error);
}

TEST_F(CursorTest, ReadingWithoutACurrentRecordIsAFaultOfTheProgram) {
    Cursor& messages = Messages();
    messages.MovePrevious();
    EXPECT_THROW(messages.Text("msgmsg"), std::logic_error);
    messages.MoveLast();
    messages.MoveNext();
    EXPECT_THROW(messages.Number("msgnum"), std::logic_error);
    EXPECT_THROW(messages.SetField("msgnum", 1), std::logic_error);
    EXPECT_THROW(messages.Delete(), std::logic_error);
}

TEST_F(CursorTest, AFieldOfAnotherClassIsAFaultOfTheProgram) {
    const Cursor& messages = Messages();
    EXPECT_THROW(messages.Text("msgnum"), std::logic_error);
    EXPECT_THROW(messages.Number("msgmsg"), std::logic_error);
}

TEST_F(CursorTest, ColumnsReadByTheirPlaceInTheFieldList) {
    const Cursor& messages = adventure_->OpenTable(TableNum::Messages, "msgmsg, msgnum", "msgnum=2");
    EXPECT_EQ(messages.Column("msgmsg"), 0u);
    EXPECT_EQ(messages.Column("msgnum"), 1u);
    EXPECT_EQ(messages.Text(0), "two");
    EXPECT_EQ(messages.Number(1), 2);
}

TEST_F(CursorTest, AStarNeverShowsTheStoresOwnKey) {
    const Cursor& messages = Messages();
    ASSERT_EQ(messages.Fields().size(), 3u);
    EXPECT_EQ(messages.Fields()[0].name, "msgnum");
    EXPECT_EQ(messages.Fields()[1].name, "msgmsg");
    EXPECT_EQ(messages.Fields()[2].name, "comment");
}

TEST_F(CursorTest, FindMovesToTheFirstMatchBehindTheCurrentRecord) {
    Cursor& messages = Messages();
    messages.Find("msgmsg like 't*'");
    EXPECT_EQ(messages.Text("msgmsg"), "two");
    messages.Find("msgmsg like 't*'");
    EXPECT_EQ(messages.Text("msgmsg"), "three");
    messages.Find("msgmsg like 't*'");
    EXPECT_TRUE(messages.Eof());
}

TEST_F(CursorTest, FindDoesNotLookAtTheCurrentRecord) {
    Cursor& messages = Messages();
    messages.Find("msgmsg='zero'");
    EXPECT_TRUE(messages.Eof());
}

TEST_F(CursorTest, FindWithAStartBeginsAtThatPlace) {
    Cursor& messages = Messages();
    messages.MoveLast();
    messages.Find("msgmsg='zero'", 1);
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
    messages.Find("msgmsg like '*o*'", 2);
    EXPECT_EQ(messages.Text("msgmsg"), "one");
}

TEST_F(CursorTest, FindWithAStartOutsideTheResultEndsQuietly) {
    Cursor& messages = Messages();
    messages.Find("msgnum>=0", 99);
    EXPECT_TRUE(messages.Eof());
    messages.Find("msgnum>=0", std::numeric_limits<int>::min());
    EXPECT_EQ(messages.AbsolutePosition(), 1);
}

TEST_F(CursorTest, FindBehindADeletedRecordBeginsAtItsNeighbour) {
    Cursor& messages = Messages();
    messages.Delete();
    messages.Find("msgnum>=0");
    EXPECT_EQ(messages.Text("msgmsg"), "one");
}

TEST_F(CursorTest, FindSeesWhatUpdateStored) {
    Cursor& messages = Messages();
    messages.MoveLast();
    messages.SetField("msgmsg", "trois");
    messages.Update();
    messages.Find("msgmsg='TROIS'", 1);
    EXPECT_EQ(messages.AbsolutePosition(), 4);
}

TEST_F(CursorTest, AMalformedCriterionLeavesTheCursorWhereItWas) {
    Cursor& messages = Messages();
    messages.MoveNext();
    EXPECT_THROW(messages.Find("msgmsg='it's'"), FilterError);
    EXPECT_EQ(messages.Text("msgmsg"), "one");
}

TEST_F(CursorTest, RequeryReadsTheRecordsAgainAndStandsOnTheFirst) {
    Cursor& messages = Messages();
    messages.MoveLast();
    Cursor& other = adventure_->OpenTable(TableNum::Free22, "* from messages", "msgnum=0");
    other.SetField("msgmsg", "nought");
    other.Update();
    EXPECT_EQ(messages.Text("msgmsg"), "three");
    messages.Requery();
    EXPECT_EQ(messages.AbsolutePosition(), 1);
    EXPECT_EQ(messages.Text("msgmsg"), "nought");
}

TEST_F(CursorTest, RequeryBringsANewRecordToItsPlaceInTheOrder) {
    Cursor& messages = Messages();
    messages.AddNew();
    messages.SetField("msgnum", -1);
    messages.Update();
    EXPECT_EQ(messages.AbsolutePosition(), 5);
    messages.Requery();
    EXPECT_EQ(messages.Number("msgnum"), -1);
}

TEST_F(CursorTest, ASnapshotDoesNotSeeWhatAnotherCursorDoes) {
    Cursor& messages = Messages();
    adventure_->DeleteFrom(TableNum::Messages);
    EXPECT_EQ(messages.RecordCount(), 4);
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
}

TEST_F(CursorTest, AnEditOfARecordThatIsGoneIsRefusedAndStaysPending) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", "nought");
    adventure_->DeleteFrom(TableNum::Messages, "msgnum=0");
    EXPECT_EQ(UpdateErrorOf(messages),
              "Could not store the record: it was deleted from Messages in the meantime.");
    EXPECT_TRUE(messages.EditMode());
    EXPECT_EQ(StoredCount(), 3);
}

TEST(ClosedCursor, IsEmptyAndRefusesWork) {
    Cursor cursor;
    EXPECT_FALSE(cursor.IsOpen());
    EXPECT_TRUE(cursor.Eof() && cursor.Bof());
    EXPECT_THROW(cursor.AddNew(), std::logic_error);
    EXPECT_THROW(cursor.Find("msgnum=1"), std::logic_error);
    EXPECT_THROW(cursor.Requery(), std::logic_error);
    EXPECT_THROW(cursor.Delete(), std::logic_error);
}

}  // namespace
}  // namespace fabula::store
