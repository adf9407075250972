#include <fstream>

#include <gtest/gtest.h>

#include "store/query/cursor_fixture.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

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
            "ALTER TABLE Sounds ADD COLUMN sndtone REAL;"
            "INSERT INTO Tables (tablenum, fieldname, fieldtype) VALUES (3, 'sndtone', 'addouble')");
    adventure_.Reopen();
    Cursor& sounds = adventure_->OpenTable(TableNum::Sounds, "*", "", "sndtone");
    sounds.AddNew();
    sounds.SetField("sndtone", 440);
    sounds.Update();
    EXPECT_EQ(sounds.Field("sndtone"), text::Value(440.0));
    EXPECT_THROW(sounds.Number("sndtone"), std::logic_error);
    sounds.Requery();
    EXPECT_EQ(sounds.Field("sndtone"), text::Value(440.0));
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

}  // namespace
}  // namespace fabula::store
