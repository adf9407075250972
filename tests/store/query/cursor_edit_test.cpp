#include <gtest/gtest.h>

#include "store/query/cursor_fixture.h"

namespace fabula::store {
namespace {

TEST_F(CursorTest, ANewRecordStartsWithAllFieldsNull) {
    Cursor& messages = Messages();
    messages.AddNew();
    EXPECT_TRUE(messages.EditMode());
    EXPECT_TRUE(messages.IsNull("msgnum"));
    EXPECT_TRUE(messages.IsNull("msgmsg"));
    EXPECT_EQ(messages.Number("msgnum"), 0);
    EXPECT_EQ(messages.Text("msgmsg"), "");
    EXPECT_EQ(messages.Field("msgmsg"), text::Value());
}

TEST_F(CursorTest, ANullFieldReadsAsNullAfterStoringToo) {
    Cursor& messages = Messages();
    messages.AddNew();
    messages.SetField("msgnum", 4);
    messages.Update();
    const Cursor& stored = Messages("msgnum=4");
    EXPECT_TRUE(stored.IsNull("msgmsg"));
    EXPECT_EQ(stored.Field("msgmsg"), text::Value());
    EXPECT_EQ(stored.Text("msgmsg"), "");
}

TEST_F(CursorTest, TheEmptyTextIsNotNull) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", "");
    messages.Update();
    const Cursor& stored = Messages("msgnum=0");
    EXPECT_FALSE(stored.IsNull("msgmsg"));
    EXPECT_EQ(stored.Field("msgmsg"), text::Value(std::string()));
}

TEST_F(CursorTest, NoBytesAreNotNull) {
    Cursor& locations = adventure_->OpenTable(TableNum::Locations, "*");
    locations.SetField("picgraphic", text::Blob{});
    locations.Update();
    EXPECT_EQ(adventure_->OpenTable(TableNum::Locations, "*").Field("picgraphic"),
              text::Value(text::Blob{}));
}

TEST_F(CursorTest, UpdateWritesANewRecordAndStandsOnIt) {
    Cursor& messages = Messages();
    messages.AddNew();
    messages.SetField("msgnum", 4);
    messages.SetField("msgmsg", "four");
    EXPECT_EQ(StoredCount(), 4);
    messages.Update();
    EXPECT_FALSE(messages.EditMode());
    EXPECT_EQ(messages.RecordCount(), 5);
    EXPECT_EQ(messages.AbsolutePosition(), 5);
    EXPECT_EQ(messages.Text("msgmsg"), "four");
    EXPECT_EQ(Stored(4), "four");
}

TEST_F(CursorTest, ANewRecordMayBeEditedAgainAtOnce) {
    Cursor& messages = Messages();
    messages.AddNew();
    messages.SetField("msgnum", 4);
    messages.Update();
    messages.SetField("msgmsg", "four");
    messages.Update();
    EXPECT_EQ(Stored(4), "four");
    EXPECT_EQ(StoredCount(), 5);
}

TEST_F(CursorTest, ANewRecordWithoutAnyFieldSetIsStored) {
    Cursor& messages = Messages();
    messages.AddNew();
    messages.Update();
    EXPECT_EQ(StoredCount(), 5);
}

TEST_F(CursorTest, SetFieldChangesTheRecordInMemoryOnlyUntilUpdate) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", "nought");
    EXPECT_TRUE(messages.EditMode());
    EXPECT_EQ(messages.Text("msgmsg"), "nought");
    EXPECT_EQ(messages.Number("msgnum"), 0);
    EXPECT_EQ(Stored(0), "zero");
    messages.Update();
    EXPECT_FALSE(messages.EditMode());
    EXPECT_EQ(messages.Text("msgmsg"), "nought");
    EXPECT_EQ(messages.AbsolutePosition(), 1);
    EXPECT_EQ(Stored(0), "nought");
}

TEST_F(CursorTest, AFieldMaySetToNull) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", text::Value());
    EXPECT_TRUE(messages.IsNull("msgmsg"));
    messages.Update();
    EXPECT_TRUE(Messages("msgnum=0").IsNull("msgmsg"));
}

TEST_F(CursorTest, CancelUpdateDropsThePendingRecord) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", "nought");
    messages.CancelUpdate();
    EXPECT_FALSE(messages.EditMode());
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
    messages.AddNew();
    messages.CancelUpdate();
    EXPECT_EQ(messages.RecordCount(), 4);
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
    EXPECT_EQ(StoredCount(), 4);
}

TEST_F(CursorTest, UpdateWithoutAPendingRecordDoesNothing) {
    Cursor& messages = Messages();
    messages.Update();
    EXPECT_EQ(messages.AbsolutePosition(), 1);
    EXPECT_EQ(StoredCount(), 4);
}

TEST_F(CursorTest, MovingDropsAPendingEdit) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", "nought");
    messages.MoveNext();
    EXPECT_FALSE(messages.EditMode());
    messages.MovePrevious();
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
}

TEST_F(CursorTest, OpeningTheTableAgainDropsAPendingEdit) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg", "nought");
    const Cursor& again = Messages();
    EXPECT_FALSE(again.EditMode());
    EXPECT_EQ(again.Text("msgmsg"), "zero");
}

TEST_F(CursorTest, AnEditOfOneRecordTouchesNoOtherWithTheSameKey) {
    Cursor& messages = Messages();
    messages.AddNew();
    messages.SetField("msgnum", 2);
    messages.SetField("msgmsg", "second two");
    messages.Update();
    messages.SetField("msgmsg", "changed");
    messages.Update();
    const Cursor& twos = Messages("msgnum=2 and msgmsg='two'");
    EXPECT_EQ(twos.RecordCount(), 1);
}

TEST_F(CursorTest, APartialFieldListWritesOnlyItsFields) {
    Cursor& texts = adventure_->OpenTable(TableNum::Messages, "msgmsg", "msgnum=1");
    texts.SetField("msgmsg", "uno");
    texts.Update();
    const Cursor& message = Messages("msgnum=1");
    EXPECT_EQ(message.RecordCount(), 1);
    EXPECT_EQ(message.Text("msgmsg"), "uno");
}

TEST_F(CursorTest, ANewRecordOfAPartialFieldListHasNullInTheOthers) {
    Cursor& texts = adventure_->OpenTable(TableNum::Messages, "msgmsg");
    texts.AddNew();
    texts.SetField("msgmsg", "no number");
    texts.Update();
    EXPECT_TRUE(Messages("msgmsg='no number'").IsNull("msgnum"));
}

TEST_F(CursorTest, DeleteRemovesTheCurrentRecordOnly) {
    Cursor& messages = Messages();
    messages.SetAbsolutePosition(2);
    messages.Delete();
    EXPECT_EQ(messages.RecordCount(), 3);
    EXPECT_EQ(Stored(1), "no such message");
    EXPECT_EQ(StoredCount(), 3);
}

TEST_F(CursorTest, AfterDeleteTheCursorStandsBetweenTheNeighbours) {
    Cursor& messages = Messages();
    messages.SetAbsolutePosition(2);
    messages.Delete();
    EXPECT_EQ(messages.AbsolutePosition(), 0);
    EXPECT_THROW(messages.Text("msgmsg"), std::logic_error);
    messages.MoveNext();
    EXPECT_EQ(messages.Text("msgmsg"), "two");

    messages.Delete();
    messages.MovePrevious();
    EXPECT_EQ(messages.Text("msgmsg"), "zero");
}

TEST_F(CursorTest, DeletingTheFirstRecordLeavesTheRestBehind) {
    Cursor& messages = Messages();
    messages.Delete();
    EXPECT_FALSE(messages.Eof());
    messages.MovePrevious();
    EXPECT_TRUE(messages.Bof());
    messages.MoveNext();
    EXPECT_EQ(messages.Text("msgmsg"), "one");
}

TEST_F(CursorTest, DeletingTheLastRecordLeavesTheRestBefore) {
    Cursor& messages = Messages();
    messages.MoveLast();
    messages.Delete();
    messages.MoveNext();
    EXPECT_TRUE(messages.Eof());
    messages.MovePrevious();
    EXPECT_EQ(messages.Text("msgmsg"), "two");
}

TEST_F(CursorTest, DeletingTheOnlyRecordLeavesAnEmptyResult) {
    Cursor& one = Messages("msgnum=1");
    one.Delete();
    EXPECT_TRUE(one.Eof() && one.Bof());
    one.MovePrevious();
    EXPECT_TRUE(one.Eof() && one.Bof());
    one.MoveNext();
    EXPECT_TRUE(one.Eof() && one.Bof());
}

TEST_F(CursorTest, ALoopMayDeleteEveryRecord) {
    Cursor& messages = Messages();
    while (!messages.Eof()) {
        messages.Delete();
        messages.MoveNext();
    }
    EXPECT_EQ(StoredCount(), 0);
}

}  // namespace
}  // namespace fabula::store
