#include "store/cursor.h"

#include <fstream>
#include <limits>

#include <gtest/gtest.h>

#include "support/raw_database.h"
#include "support/template_adventure.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

/// An adventure whose messages are 0 "zero", 1 "one", 2 "two", 3 "three".
class CursorTest : public testing::Test {
  protected:
    CursorTest() {
        Cursor& messages = adventure_->OpenTable(TableNum::Messages, "*");
        int number = 0;
        for (const char* text : {"zero", "one", "two", "three"}) {
            messages.AddNew();
            messages.SetField("msgnum", number++);
            messages.SetField("msgmsg", text);
            messages.Update();
        }
    }

    Cursor& Messages(std::string_view where = "") {
        return adventure_->OpenTable(TableNum::Messages, "*", where);
    }

    /// What a cursor that is opened anew gives as the text of a message.
    std::string Stored(int number) {
        PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
        return query.First({number}) ? std::string(query.Text(0)) : "no such message";
    }

    int StoredCount() { return adventure_->OpenTable(TableNum::Free25, "* from messages").RecordCount(); }

    std::string UpdateErrorOf(Cursor& cursor) {
        try {
            cursor.Update();
        } catch (const Error& error) {
            return error.what();
        }
        return "no error";
    }

    OpenedAdventure adventure_;
};

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
    ASSERT_EQ(messages.Fields().size(), 2u);
    EXPECT_EQ(messages.Fields()[0].name, "msgnum");
    EXPECT_EQ(messages.Fields()[1].name, "msgmsg");
}

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

TEST_F(CursorTest, ASmallNumberTakesSixteenBits) {
    Cursor& messages = Messages();
    messages.SetField("msgnum", 32767);
    messages.Update();
    EXPECT_EQ(Stored(32767), "zero");
    messages.SetField("msgnum", 32768);
    EXPECT_EQ(UpdateErrorOf(messages),
              "Could not store the record: Messages.msgnum can't hold the number 32768.");
    EXPECT_EQ(Stored(32767), "zero");
    messages.SetField("msgnum", -32769);
    EXPECT_EQ(UpdateErrorOf(messages),
              "Could not store the record: Messages.msgnum can't hold the number -32769.");
}

TEST_F(CursorTest, ANumberTakesThirtyTwoBits) {
    Cursor& locations = adventure_->OpenTable(TableNum::Locations, "*");
    locations.SetField("locnum", 2147483647);
    locations.Update();
    locations.SetField("locnum", std::int64_t{2147483648});
    EXPECT_EQ(UpdateErrorOf(locations),
              "Could not store the record: Locations.locnum can't hold the number 2147483648.");
}

TEST_F(CursorTest, ATruthFieldTakesZeroAndOne) {
    Cursor& flags = adventure_->OpenTable(TableNum::Flags, "*", "flgnum=0");
    flags.SetField("flgchg", 1);
    flags.Update();
    EXPECT_TRUE(flags.Truth("flgchg"));
    flags.SetField("flgchg", 2);
    EXPECT_EQ(UpdateErrorOf(flags), "Could not store the record: Flags.flgchg can't hold the number 2.");
}

TEST_F(CursorTest, AByteTakesZeroToTwoHundredAndFiftyFive) {
    Cursor& fields = adventure_->OpenTable(TableNum::Tables, "*", "fieldname='msgmsg'");
    fields.SetField("fbbexp", 255);
    fields.Update();
    fields.SetField("fbbexp", -1);
    EXPECT_EQ(UpdateErrorOf(fields), "Could not store the record: Tables.fbbexp can't hold the number -1.");
}

TEST_F(CursorTest, ATextTakesAsManyCharactersAsItsFieldHas) {
    Cursor& words = adventure_->OpenTable(TableNum::Vocabulary, "*");
    const std::string thirty =
        "\u00c4\u00c4\u00c4\u00c4\u00c4\u00c4\u00c4\u00c4\u00c4\u00c4"
        "ABCDEFGHIJKLMNOPQRST";
    words.SetField("Word", thirty);
    words.Update();
    EXPECT_EQ(words.Text("Word"), thirty);
    words.SetField("Word", thirty + "U");
    EXPECT_EQ(UpdateErrorOf(words),
              "Could not store the record: Vocabulary.Word can't hold a text of more than 30 characters.");
}

TEST_F(CursorTest, ALongTextHasNoLimit) {
    Cursor& messages = Messages();
    const std::string megabyte(1 << 20, 'x');
    messages.SetField("msgmsg", megabyte);
    messages.Update();
    EXPECT_EQ(Stored(0), megabyte);
}

TEST_F(CursorTest, ATextBeyondWhatTheStoreTakesIsRefusedAndNotLost) {
    Cursor& messages = Messages();
    messages.SetField("msgmsg",
                      std::string(static_cast<std::size_t>(kLargestBinary) + 2 * 1024 * 1024, 'x'));
    EXPECT_THROW(messages.Update(), Error);
    EXPECT_EQ(Stored(0), "zero");
}

TEST_F(CursorTest, AValueOfAnotherKindIsRefused) {
    Cursor& messages = Messages();
    messages.SetField("msgnum", "7");
    EXPECT_EQ(UpdateErrorOf(messages), "Could not store the record: Messages.msgnum holds numbers only.");
    messages.CancelUpdate();
    messages.SetField("msgnum", 7.5);
    EXPECT_EQ(UpdateErrorOf(messages), "Could not store the record: Messages.msgnum holds numbers only.");
    messages.CancelUpdate();
    messages.SetField("msgmsg", 7);
    EXPECT_EQ(UpdateErrorOf(messages), "Could not store the record: Messages.msgmsg holds text only.");
}

TEST_F(CursorTest, ARefusedRecordStaysPendingAndMayBeMended) {
    Cursor& messages = Messages();
    messages.SetField("msgnum", 99999);
    EXPECT_THROW(messages.Update(), Error);
    EXPECT_TRUE(messages.EditMode());
    messages.SetField("msgnum", 9);
    messages.Update();
    EXPECT_EQ(Stored(9), "zero");
}

TEST_F(CursorTest, TextOfEveryKindComesBackAsItWentIn) {
    using namespace std::string_literals;
    const std::string odd = "quote ' \" \\ ; -- \0 \u008c \u007f \U0001f409 \xff"s;
    Cursor& messages = Messages();
    messages.SetField("msgmsg", odd);
    messages.Update();
    EXPECT_EQ(Messages("msgnum=0").Text("msgmsg"), odd);
}

TEST_F(CursorTest, AFloatingFieldTakesWholeNumbersToo) {
    adventure_.Close();
    test::RawDatabase(adventure_.File())
        .Run(
            "DROP TABLE Sounds; CREATE TABLE Sounds (storekey INTEGER PRIMARY KEY, sndfreq REAL) STRICT;"
            "DELETE FROM Tables WHERE tablenum=3;"
            "INSERT INTO Tables (tablenum, fieldname, fieldtype) VALUES (3, 'sndfreq', 'addouble')");
    adventure_.Reopen();
    Cursor& sounds = adventure_->OpenTable(TableNum::Sounds, "*", "", "sndfreq");
    sounds.AddNew();
    sounds.SetField("sndfreq", 440);
    sounds.Update();
    EXPECT_EQ(sounds.Field("sndfreq"), text::Value(440.0));
    EXPECT_THROW(sounds.Number("sndfreq"), std::logic_error);
    sounds.Requery();
    EXPECT_EQ(sounds.Field("sndfreq"), text::Value(440.0));
}

TEST_F(CursorTest, AFileGoesIntoOneFieldAndItsPathIntoAnother) {
    const auto file = adventure_.Folder() / "room.bmp";
    std::ofstream(file, std::ios::binary) << std::string("BM\0\1", 4);
    Cursor& locations = adventure_->OpenTable(TableNum::Locations, "*");
    locations.StoreFileInField(file, "picgraphic", "oldpicloc");
    EXPECT_TRUE(locations.EditMode());
    locations.Update();
    const Cursor& stored = adventure_->OpenTable(TableNum::Locations, "*");
    EXPECT_EQ(stored.Field("picgraphic"),
              text::Value(text::Blob{std::byte{'B'}, std::byte{'M'}, std::byte{0}, std::byte{1}}));
    EXPECT_EQ(stored.Text("oldpicloc"), file.string());
}

TEST_F(CursorTest, AFileThatCannotBeReadLeavesTheRecordAsItWas) {
    Cursor& locations = adventure_->OpenTable(TableNum::Locations, "*");
    EXPECT_THROW(locations.StoreFileInField(adventure_.Folder() / "nothing.bmp", "picgraphic", "oldpicloc"),
                 Error);
    EXPECT_THROW(locations.StoreFileInField(adventure_.Folder().Path(), "picgraphic", "oldpicloc"), Error);
    EXPECT_FALSE(locations.EditMode());
}

TEST_F(CursorTest, AFileOfTooManyBytesIsRefused) {
    const auto file = adventure_.Folder() / "huge.bmp";
    std::ofstream(file).close();
    std::filesystem::resize_file(file, static_cast<std::uintmax_t>(kLargestBinary) + 1);
    Cursor& locations = adventure_->OpenTable(TableNum::Locations, "*");
    EXPECT_THROW(locations.StoreFileInField(file, "picgraphic", "oldpicloc"), Error);
    EXPECT_FALSE(locations.EditMode());
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
