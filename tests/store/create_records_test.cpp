#include <gtest/gtest.h>

#include "store/create_fixture.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

using test::WriteBytes;

TEST_F(Create, ABadTypeTagIsToldAndTheFieldSkipped) {
    Replace("VELSOUNDSDB", {"sndnum|adinteger|0|Y|0|1|N", "sndfreq|adinteger|0|Y|0|0|N",
                            "sndpitch|adwhatever|0|Y|0|0|N", "sndname|ADVARWCHAR|20|Y|0|0|N"});
    Make();
    ASSERT_EQ(person_.Boxes().size(), 1u);
    EXPECT_EQ(person_.Boxes()[0].text, "Invalid option: sndpitch|adwhatever|0|Y|0|0|N");
    EXPECT_EQ(person_.Boxes()[0].title, "Error");
    const auto adventure = Open();
    const TableSchema& sounds = adventure->Schema(TableNum::Sounds);
    ASSERT_EQ(sounds.fields.size(), 3u);
    EXPECT_EQ(sounds.fields[2].name, "sndname");
    EXPECT_EQ(sounds.fields[2].type, FieldType::VarWChar);
    EXPECT_EQ(sounds.fields[2].size, 20);
}

TEST_F(Create, ALongTextOfSizeNoneGetsNoSize) {
    MakeWith(test::DefaultData());
    const auto adventure = Open();
    const TableSchema& messages = adventure->Schema(TableNum::Messages);
    const Field& text = messages.fields[*messages.Find("msgmsg")];
    EXPECT_EQ(text.type, FieldType::LongVarWChar);
    EXPECT_EQ(text.size, 0);
}

TEST_F(Create, ASchemaRowMayLeaveOutItsLaterColumns) {
    Replace("VELSOUNDSDB", {"sndnum|adinteger|0|Y|0|1|N", "sndfreq|adinteger|0|Y|0|0|N"});
    Make();
    const auto adventure = Open();
    const Cursor& field = adventure->OpenTable(TableNum::Tables, "*", "tablenum=3 and fieldname='sndnum'");
    EXPECT_EQ(field.RecordCount(), 1);
    EXPECT_EQ(field.Text("search"), "Y");
    EXPECT_EQ(field.Number("export"), 1);
    for (const char* name :
         {"allowadd", "allowaddbef", "AllowDelete", "allowedit", "allowload", "allowsave", "allowprint",
          "allowprpre", "allowkeychg", "allowimpexp", "allowexp", "allowchgsort"}) {
        EXPECT_EQ(field.Text(name), "N") << name;
    }
    EXPECT_EQ(field.Number("gridwidth"), 0);
    EXPECT_EQ(field.Number("fbbexp"), 0);
    EXPECT_EQ(field.Text("altname"), "");
}

TEST_F(Create, TheFieldsOfTablesAreRecordsOfTablesToo) {
    MakeWith(test::DefaultData());
    const auto adventure = Open();
    EXPECT_EQ(adventure->OpenTable(TableNum::Tables, "*", "tablenum=12").RecordCount(), 25);
    Cursor& keys = adventure->OpenTable(TableNum::Tables, "*", "", "tablekey");
    for (int expected = 1; !keys.Eof(); keys.MoveNext(), ++expected)
        ASSERT_EQ(keys.Number("tablekey"), expected);
}

TEST_F(Create, ADescriptionJoinsItsLinesAndAnEmptyLineIsALineEnd) {
    Replace("FABULALOCATIONS", {"/0", "2|NORTH 1|12 1|room.bmp|Room0|A room", "You are in", "a room.", "",
                                "It is dark.", "", "", "Very."});
    Make();
    const auto adventure = Open();
    const Cursor& room = adventure->OpenTable(TableNum::Locations, "*");
    EXPECT_EQ(room.Number("numexits"), 2);
    EXPECT_EQ(room.Text("exits"), "NORTH 1");
    EXPECT_EQ(room.Text("numericexits"), "12 1");
    EXPECT_EQ(room.Text("picloc"), "room.bmp");
    EXPECT_EQ(room.Text("pickey"), "Room0");
    EXPECT_EQ(room.Text("locshortdesc"), "A room");
    EXPECT_EQ(room.Text("locdesc"), "You are in a room.\u008cIt is dark.\u008c\u008cVery.");
    EXPECT_EQ(room.Field("picgraphic"), text::Value(text::Blob{std::byte{1}}));
    EXPECT_EQ(room.Text("oldpicloc"), " ");
}

TEST_F(Create, ARoomWithoutExitsHasNone) {
    MakeWith(test::DefaultData());
    const auto adventure = Open();
    const Cursor& room = adventure->OpenTable(TableNum::Locations, "*");
    EXPECT_EQ(room.Number("numexits"), 0);
    EXPECT_EQ(room.Text("exits"), "");
    EXPECT_EQ(room.Text("numericexits"), "");
}

TEST_F(Create, SystemMessagesJoinTheirLinesByLineEnds) {
    Replace("FABULASYSMESS", {"/0", "one", "two", "/1", "", "/2", "/5", "last", ""});
    Make();
    const auto adventure = Open();
    Cursor& messages = adventure->OpenTable(TableNum::SystemMessages, "*");
    EXPECT_EQ(messages.RecordCount(), 4);
    EXPECT_EQ(messages.Text("smsgmsg"), "one\u008ctwo");
    messages.MoveNext();
    EXPECT_EQ(messages.Text("smsgmsg"), "");
    messages.MoveNext();
    EXPECT_EQ(messages.Text("smsgmsg"), "");
    messages.MoveNext();
    EXPECT_EQ(messages.Number("smsgnum"), 5);
    EXPECT_EQ(messages.Text("smsgmsg"), "last\u008c");
}

TEST_F(Create, EntriesAndWordsAreCounted) {
    Replace("FABULAPROCESSTABLES", {"0|_|_|255|255|1|DESC", "1|GO|_|20|255|2|AT 3"});
    Replace("FABULAVOCABULARY", {"255|_|7|Reserved", "20|GO|0|Verb"});
    Make();
    const auto adventure = Open();
    const Cursor& entry = adventure->OpenTable(TableNum::ProcessTables, "*", "canum=2");
    EXPECT_EQ(entry.Number("estype"), 1);
    EXPECT_EQ(entry.Text("w1"), "GO");
    EXPECT_EQ(entry.Number("w1num"), 20);
    EXPECT_EQ(entry.Number("numcas"), 2);
    EXPECT_EQ(entry.Text("CondActs"), "AT 3");
    EXPECT_EQ(entry.Text("numericcondacts"), "");
    EXPECT_EQ(adventure->OpenTable(TableNum::Vocabulary, "*", "vocindex=2").Text("Word"), "GO");
}

TEST_F(Create, AnObjectTakesItsNumberFromTheLineBefore) {
    Replace("FABULAOBJECT", {"/0", "a lamp|LAMP|50|_|255|Carried.|254|3|1|C"});
    Make();
    const auto adventure = Open();
    const Cursor& object = adventure->OpenTable(TableNum::Objects, "*");
    EXPECT_EQ(object.Number("objnum"), 0);
    EXPECT_EQ(object.Text("objdesc"), "a lamp");
    EXPECT_EQ(object.Number("objnumnoun"), 50);
    EXPECT_EQ(object.Number("objnumadject"), 255);
    EXPECT_EQ(object.Number("objloc"), 254);
    EXPECT_EQ(object.Text("objattr"), "C");
}

TEST_F(Create, TheLastColumnOfAFlagIsFreeText) {
    Replace("VELFLAGS", {"/0", "System|Switch|0|True|one | two|three"});
    Make();
    EXPECT_EQ(Open()->OpenTable(TableNum::Flags, "*").Text("flgdesc"), "one | two|three");
}

TEST_F(Create, FlagsThatAreMissingBelowTheHighestAreAdded) {
    Replace("VELFLAGS", {"/1", "System|Counter|0|True|one", "/4", "System|Counter|0|True|four"});
    Make();
    const auto adventure = Open();
    Cursor& flags = adventure->OpenTable(TableNum::Flags, "*");
    EXPECT_EQ(flags.RecordCount(), 5);
    for (int number = 0; number < 5; ++number, flags.MoveNext())
        ASSERT_EQ(flags.Number("flgnum"), number);
    const Cursor& added = adventure->OpenTable(TableNum::Flags, "*", "flgnum=3");
    EXPECT_EQ(added.Text("flgtype"), "User");
    EXPECT_EQ(added.Text("flguse"), "Unknown");
    EXPECT_EQ(added.Number("flgmod"), 2);
    EXPECT_TRUE(added.Truth("flgchg"));
}

TEST_F(Create, AHeaderWithoutDataHoldsTheDummyRecord) {
    Replace("VELHEADER", {});
    Make();
    const auto adventure = Open();
    const Cursor& header = adventure->OpenTable(TableNum::Header, "*");
    EXPECT_EQ(header.RecordCount(), 1);
    EXPECT_EQ(header.Text("hdrkey"), "Dummy record");
}

TEST_F(Create, CharacterSixtyFiveOfSetOneHasTheKey1065) {
    Replace("VELCHARACTERS", {"1|65|Runes|&h00 &hff 1 2 3 4 5 &H10"});
    Make();
    const auto adventure = Open();
    const Cursor& character = adventure->OpenTable(TableNum::Characters, "*");
    EXPECT_EQ(character.Number("charkey"), 1065);
    EXPECT_EQ(character.Text("charset"), "SET 0001");
    EXPECT_EQ(character.Number("charsetnum"), 1);
    EXPECT_EQ(character.Number("charnum"), 65);
    EXPECT_EQ(character.Text("charsetname"), "Runes");
    EXPECT_EQ(character.Text("charvals"), "0 255 1 2 3 4 5 16");
}

TEST_F(Create, TemplatesAreTakenFromTheFolderBesideTheDataWithoutTheMaintenanceOne) {
    const auto templates = folder_ / "data/templates";
    std::filesystem::create_directory(templates);
    WriteBytes(templates / "wide.tpl", "! a comment\r\nABSMOVE 0 0\r\nEND\r\n");
    WriteBytes(templates / "else.tpl", "END");
    WriteBytes(templates / "notes.txt", "END");
    Make();
    const auto adventure = Open();
    const Cursor& stored = adventure->OpenTable(TableNum::Templates, "*");
    EXPECT_EQ(stored.RecordCount(), 1);
    EXPECT_EQ(stored.Text("tempname"), "wide");
    EXPECT_EQ(stored.Text("commands"), "ABSMOVE 0 0 END");
}

}  // namespace
}  // namespace fabula::store
