#include "store/create.h"

#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include "platform/random_source.h"
#include "platform/scripted_operator.h"
#include "store/adventure.h"
#include "support/child_process.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::store {
namespace {

using test::ReadBytes;
using test::WriteBytes;
using Lines = std::vector<std::string>;

std::filesystem::path ProjectData() {
    return std::filesystem::path(FABULA_SOURCE_DIR) / "data" / "Fabula.ini";
}

class Create : public testing::Test {
  protected:
    Create() {
        std::filesystem::create_directory(folder_ / "data");
        std::filesystem::create_directory(folder_ / "games");
        const std::string data = ReadBytes(ProjectData());
        for (const std::string_view line : text::Split(data, "\n"))
            lines_.emplace_back(line);
    }

    std::filesystem::path DataFile() const { return folder_.Path() / "data" / "Fabula.ini"; }

    void WriteData() const {
        std::string bytes;
        for (const std::string& line : lines_)
            bytes += (bytes.empty() ? "" : "\n") + line;
        WriteBytes(DataFile(), bytes);
    }

    /// The place of a line in the data; of a section, "::NAME".
    std::size_t Find(const std::string& line) const {
        const auto found = std::find(lines_.begin(), lines_.end(), line);
        if (found == lines_.end()) throw std::logic_error("the data has no line " + line);
        return static_cast<std::size_t>(found - lines_.begin());
    }

    /// Puts `content` in place of what stands in a section.
    void Replace(const std::string& section, const Lines& content) {
        const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(Find("::" + section)) + 1;
        const auto place = lines_.erase(begin, std::find(begin, lines_.end(), "::END"));
        lines_.insert(place, content.begin(), content.end());
    }

    void RemoveSection(const std::string& section) {
        const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(Find("::" + section));
        lines_.erase(begin, std::find(begin, lines_.end(), "::END") + 1);
    }

    static frmSetup SetupFor(AdventureKind kind) {
        frmSetup setup;
        setup.ChooseType(kind);
        return setup;
    }

    bool MakeWith(const std::filesystem::path& data, const frmSetup& setup = {}, bool replace = false) {
        const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
        platform::NoEvents events;
        return CreateAdventure(replace, file_, setup, {person_, clock, events, data});
    }
    bool Make(const frmSetup& setup = {}, bool replace = false) {
        WriteData();
        return MakeWith(DataFile(), setup, replace);
    }

    /// What creation says of the data, without the part that names the file.
    std::string ErrorOf(const frmSetup& setup = {}) {
        const std::string start = "The default data " + DataFile().string() + " ";
        try {
            Make(setup);
        } catch (const Error& error) {
            const std::string message = error.what();
            return message.rfind(start, 0) == 0 ? message.substr(start.size()) : message;
        }
        return "no error";
    }

    /// What creation says of a section with this content. Its lines are told as "@1" for the first, and so
    /// on.
    std::string ErrorIn(const std::string& section, const Lines& content) {
        Replace(section, content);
        const std::size_t first = Find("::" + section) + 1;
        std::string error = ErrorOf();
        for (std::size_t i = content.size(); i >= 1; --i) {
            const std::string at = "line " + std::to_string(first + i) + ":";
            if (const auto found = error.find(at); found != std::string::npos)
                error.replace(found, at.size(), "line @" + std::to_string(i) + ":");
        }
        return error;
    }

    std::unique_ptr<Adventure> Open() const { return Adventure::Open(file_, OpenMode::ReadOnly); }

    std::vector<std::string> FilesInGames() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path() / "games"))
            names.push_back(entry.path().filename());
        return names;
    }

    test::TempFolder folder_;
    const std::filesystem::path file_ = folder_ / "games/island.fbd";
    Lines lines_;
    platform::ScriptedOperator person_;
};

/// Every value of every table, one a line.
Lines Everything(Adventure& adventure) {
    Lines values;
    for (const TableEntry& table : AllTables()) {
        for (Cursor& cursor = adventure.OpenTable(table.number, "*"); !cursor.Eof(); cursor.MoveNext()) {
            for (const Field& field : cursor.Fields())
                values.push_back(std::string(table.name) + "." + field.name + "=" +
                                 text::ToText(cursor.Field(field.name)));
        }
    }
    return values;
}

TEST_F(Create, MakesAFileThatOpens) {
    EXPECT_TRUE(MakeWith(ProjectData()));
    EXPECT_GT(Open()->OpenTable(TableNum::CondActs, "*").RecordCount(), 0);
    EXPECT_TRUE(person_.Boxes().empty());
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, SetsTheSettingsThatHaveNoColumn) {
    frmSetup setup;
    setup.ChooseGraphics(true);
    MakeWith(ProjectData(), setup);
    const auto adventure = Open();
    const Cursor& settings = adventure->OpenTable(TableNum::Adventure, "*");
    EXPECT_EQ(settings.Text("savename"), "island");
    EXPECT_EQ(settings.Text("DateCreated"), "2026-03-04 05:06:07");
    EXPECT_EQ(settings.Number("unmarloed"), 0);
    EXPECT_EQ(settings.Text("advcontactinfo"), " ");
    EXPECT_TRUE(settings.Truth("graphics"));
    EXPECT_FALSE(settings.Truth("charsets"));
    EXPECT_FALSE(settings.Truth("graphicsindb"));
    EXPECT_FALSE(settings.Truth("graphicsadded"));
    EXPECT_EQ(settings.Field("advpicgraphic"), text::Value(text::Blob{}));
    EXPECT_EQ(settings.Field("defpicgraphic"), text::Value(text::Blob{}));
    EXPECT_EQ(settings.Text("oldadvpicloc"), " ");
    EXPECT_EQ(settings.Text("olddefpicloc"), " ");
    EXPECT_EQ(settings.Text("source"), "Unknown");
}

TEST_F(Create, TheSystemRecordHoldsTheDataOfTheDefaults) {
    Replace("INFO", {"Tables=2001-02-03", "Delimiter=|", "ExportVersion=4.5.6"});
    Make();
    const auto adventure = Open();
    const Cursor& system = adventure->OpenTable(TableNum::System, "*");
    EXPECT_EQ(system.RecordCount(), 1);
    EXPECT_EQ(system.Text("sysinidate"), "2001-02-03");
    EXPECT_EQ(system.Text("sysexportversion"), "4.5.6");
    EXPECT_EQ(system.Text("ideversion"), " ");
    EXPECT_EQ(system.Text("engversion"), " ");
}

struct TypedSections {
    AdventureKind kind;
    const char* prefix;
};

class EachType : public Create, public testing::WithParamInterface<TypedSections> {};

TEST_P(EachType, ReadsItsOwnTypedSectionsAndTheCommonOnes) {
    const std::string prefix = GetParam().prefix;
    Replace(prefix + "LOCATIONS", {"/0", "0||||| ", "A room of this type."});
    Replace(prefix + "SYSMESS", {"/0", "A message of this type."});
    Replace("VELPROCDESC", {"0|a common text"});
    Make(SetupFor(GetParam().kind));
    const auto adventure = Open();
    EXPECT_EQ(adventure->OpenTable(TableNum::Locations, "*").Text("locdesc"), "A room of this type.");
    EXPECT_EQ(adventure->OpenTable(TableNum::SystemMessages, "*").Text("smsgmsg"),
              "A message of this type.");
    EXPECT_EQ(adventure->OpenTable(TableNum::ProcDesc, "*").Text("pmsgmsg"), "a common text");
    EXPECT_EQ(adventure->AdventureType(), NameOf(GetParam().kind));
}

TEST_P(EachType, NeedsEveryOneOfItsTypedSections) {
    const Lines complete = lines_;
    for (const char* stem :
         {"LOCATIONS", "MESSAGES", "OBJECT", "ADVENTURE", "PROCESSTABLES", "SYSMESS", "VOCABULARY"}) {
        lines_ = complete;
        const std::string section = std::string(GetParam().prefix) + stem;
        RemoveSection(section);
        EXPECT_EQ(ErrorOf(SetupFor(GetParam().kind)), "has no section ::" + section + ".");
        EXPECT_TRUE(FilesInGames().empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Types, EachType,
                         testing::Values(TypedSections{AdventureKind::Fabula, "FABULA"},
                                         TypedSections{AdventureKind::Vel, "VEL"},
                                         TypedSections{AdventureKind::Marlo, "MARLO"}),
                         [](const auto& type) { return std::string(type.param.prefix); });

TEST_F(Create, MarloUsesCharacterSets) {
    MakeWith(ProjectData(), SetupFor(AdventureKind::Marlo));
    EXPECT_TRUE(Open()->CharSetsOn());
}

TEST_F(Create, NeedsEverySchemaSection) {
    const Lines complete = lines_;
    for (const TableEntry& table : AllTables()) {
        lines_ = complete;
        const std::string section = "VEL" + std::string(table.sectionStem) + "DB";
        RemoveSection(section);
        EXPECT_EQ(ErrorOf(), "has no section ::" + section + ".");
        EXPECT_TRUE(FilesInGames().empty());
    }
}

TEST_F(Create, NeedsEveryCommonSection) {
    const Lines complete = lines_;
    for (const char* section : {"INFO", "VELFLAGS", "VELCONDACT", "VELDATABASE", "VELPACKAGE",
                                "VELPROCDESC", "VELHEADER", "VELCODES", "VELCOMMANDS", "VELCHARACTERS"}) {
        lines_ = complete;
        RemoveSection(section);
        EXPECT_EQ(ErrorOf(), std::string("has no section ::") + section + ".");
        EXPECT_TRUE(FilesInGames().empty());
    }
}

TEST_F(Create, AMissingFileOfDataIsAnError) {
    try {
        MakeWith(folder_ / "nothing.ini");
        FAIL() << "it was created";
    } catch (const Error& error) {
        EXPECT_EQ(error.what(), "Could not read the default data: there is no file " +
                                    (folder_ / "nothing.ini").string() + ".");
    }
    EXPECT_TRUE(FilesInGames().empty());
}

TEST_F(Create, ASectionWithoutAnEndIsAnError) {
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(Find("::VELTABLESDB")) - 2);
    EXPECT_EQ(ErrorOf(), "is wrong in section ::INFO at line 7: the section has no end.");
}

TEST_F(Create, ASectionThatStandsThereTwiceIsAnError) {
    lines_.push_back("::VELHEADER");
    lines_.push_back("::END");
    EXPECT_EQ(ErrorOf(), "is wrong in section ::VELHEADER at line " + std::to_string(lines_.size() - 1) +
                             ": the section stands there twice.");
}

TEST_F(Create, MalformedRowsTellSectionAndLine) {
    EXPECT_EQ(ErrorIn("VELCONDACT", {"101|Condition|AT"}),
              "is wrong in section ::VELCONDACT at line @1: it has too few columns.");
    EXPECT_FALSE(std::filesystem::exists(file_));
}

class MalformedRow : public Create {};

TEST_F(MalformedRow, ANumberThatIsNone) {
    EXPECT_EQ(ErrorIn("VELPROCDESC", {"0|fine", "one|not fine"}),
              "is wrong in section ::VELPROCDESC at line @2: 'one' is no number.");
}

TEST_F(MalformedRow, ANumberBeyondItsField) {
    EXPECT_EQ(
        ErrorIn("VELPROCDESC", {"40000|far"}),
        "is wrong in section ::VELPROCDESC at line @1: ProcDesc.pmsgnum can't hold the number 40000.");
}

TEST_F(MalformedRow, ANumberBeyondAllNumbers) {
    EXPECT_EQ(ErrorIn("VELPROCDESC", {"99999999999999999999|far"}),
              "is wrong in section ::VELPROCDESC at line @1: ProcDesc.pmsgnum can't hold the number "
              "9223372036854775807.");
}

TEST_F(MalformedRow, ATextTooLongForItsField) {
    EXPECT_EQ(
        ErrorIn("FABULAVOCABULARY", {"2|" + std::string(31, 'X') + "|0|Verb"}),
        "is wrong in section ::FABULAVOCABULARY at line @1: Vocabulary.Word can't hold a text of more than "
        "30 characters.");
}

TEST_F(MalformedRow, ATruthValueThatIsNone) {
    EXPECT_EQ(ErrorIn("VELFLAGS", {"/0", "System|Switch|0|maybe|text"}),
              "is wrong in section ::VELFLAGS at line @2: 'maybe' is not True or False.");
}

TEST_F(MalformedRow, ARecordWithoutANumber) {
    EXPECT_EQ(ErrorIn("FABULAMESSAGES", {"text"}),
              "is wrong in section ::FABULAMESSAGES at line @1: there is no line \"/n\" before it.");
}

TEST_F(MalformedRow, ARecordsNumberThatIsNone) {
    EXPECT_EQ(ErrorIn("FABULAMESSAGES", {"/", "text"}),
              "is wrong in section ::FABULAMESSAGES at line @1: '' is no number.");
    EXPECT_EQ(
        ErrorIn("FABULAMESSAGES", {"/40000", "text"}),
        "is wrong in section ::FABULAMESSAGES at line @1: Messages.msgnum can't hold the number 40000.");
}

TEST_F(MalformedRow, ACharacterWithoutEightValues) {
    EXPECT_EQ(ErrorIn("VELCHARACTERS", {"0|65|Default|1 2 3 4 5 6 7"}),
              "is wrong in section ::VELCHARACTERS at line @1: a character has eight values.");
    EXPECT_EQ(ErrorIn("VELCHARACTERS", {"0|65|Default|1 2 3 4 5 6 7 256"}),
              "is wrong in section ::VELCHARACTERS at line @1: a value is from 0 to 255.");
    EXPECT_EQ(
        ErrorIn("VELCHARACTERS", {"0|65|A name of twenty-one.|1 2 3 4 5 6 7 8"}),
        "is wrong in section ::VELCHARACTERS at line @1: Characters.charsetname can't hold a text of more "
        "than 20 characters.");
    EXPECT_EQ(ErrorIn("VELCHARACTERS", {"99999999|65|Default|1 2 3 4 5 6 7 8"}),
              "is wrong in section ::VELCHARACTERS at line @1: Characters.charkey can't hold the number "
              "99999999065.");
}

TEST_F(MalformedRow, ASizeThatIsNoNumber) {
    EXPECT_EQ(ErrorIn("VELHEADERDB", {"hdrkey|advarwchar|wide|N|2|1|N"}),
              "is wrong in section ::VELHEADERDB at line @1: 'wide' is no number.");
}

TEST_F(MalformedRow, AFieldThatStandsThereTwice) {
    EXPECT_EQ(ErrorIn("VELHEADERDB", {"hdrkey|advarwchar|0|N|2|1|N", "HDRKEY|advarwchar|0|N|2|1|N"}),
              "is wrong in section ::VELHEADERDB at line @2: the field stands there twice.");
}

TEST_F(MalformedRow, AFieldsNameThatIsAStatement) {
    EXPECT_EQ(
        ErrorIn("VELSOUNDSDB", {"a INTEGER); DROP TABLE Tables; --|adinteger|0|N|2|1|N"}),
        "is wrong in section ::VELSOUNDSDB at line @1: 'a INTEGER); DROP TABLE Tables; --' is no name of a "
        "field.");
    EXPECT_EQ(ErrorIn("VELSOUNDSDB", {"|adinteger|0|N|2|1|N"}),
              "is wrong in section ::VELSOUNDSDB at line @1: '' is no name of a field.");
    EXPECT_EQ(ErrorIn("VELSOUNDSDB", {"storekey|adinteger|0|N|2|1|N"}),
              "is wrong in section ::VELSOUNDSDB at line @1: 'storekey' is no name of a field.");
}

TEST_F(Create, ABadTypeTagIsToldAndTheFieldSkipped) {
    Replace("VELSOUNDSDB", {"sndnum|adinteger|0|Y|0|1|N", "sndfreq|adwhatever|0|Y|0|0|N",
                            "sndname|ADVARWCHAR|20|Y|0|0|N"});
    EXPECT_TRUE(Make());
    ASSERT_EQ(person_.Boxes().size(), 1u);
    EXPECT_EQ(person_.Boxes()[0].text, "Invalid option: sndfreq|adwhatever|0|Y|0|0|N");
    EXPECT_EQ(person_.Boxes()[0].title, "Error");
    const auto adventure = Open();
    const TableSchema& sounds = adventure->Schema(TableNum::Sounds);
    ASSERT_EQ(sounds.fields.size(), 2u);
    EXPECT_EQ(sounds.fields[1].name, "sndname");
    EXPECT_EQ(sounds.fields[1].type, FieldType::VarWChar);
    EXPECT_EQ(sounds.fields[1].size, 20);
}

TEST_F(Create, ALongTextOfSizeNoneGetsNoSize) {
    MakeWith(ProjectData());
    const auto adventure = Open();
    const TableSchema& messages = adventure->Schema(TableNum::Messages);
    const Field& text = messages.fields[*messages.Find("msgmsg")];
    EXPECT_EQ(text.type, FieldType::LongVarWChar);
    EXPECT_EQ(text.size, 0);
}

TEST_F(Create, ASchemaRowMayLeaveOutItsLaterColumns) {
    Replace("VELSOUNDSDB", {"sndnum|adinteger|0|Y|0|1|N"});
    Make();
    const auto adventure = Open();
    const Cursor& field = adventure->OpenTable(TableNum::Tables, "*", "tablenum=3");
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
    MakeWith(ProjectData());
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
    MakeWith(ProjectData());
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

TEST_F(Create, LinesMayEndInTheWayOfOtherSystems) {
    Make();
    const Lines plain = Everything(*Open());
    for (std::string& line : lines_)
        line += '\r';
    Make({}, true);
    EXPECT_EQ(Everything(*Open()), plain);
}

struct Marker {
    const char* marker;
    const char* edit;
};

class StoredLines : public Create, public testing::WithParamInterface<Marker> {};

TEST_P(StoredLines, GiveTheSameAdventureAsThePlainFile) {
    Make();
    const Lines plain = Everything(*Open());
    platform::SeededRandom random(1);
    const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
    lines_[0] = GetParam().marker;
    for (std::size_t i = 1; i < lines_.size(); ++i)
        lines_[i] = text::StrEdit(lines_[i], GetParam().edit, random, clock);
    ASSERT_NE(lines_[1], "::INFO");
    Make({}, true);
    EXPECT_EQ(Everything(*Open()), plain);
}

INSTANTIATE_TEST_SUITE_P(Markers, StoredLines,
                         testing::Values(Marker{"SCRAMBLED", "scramble"},
                                         Marker{"SCRAMBLECED", "scramblec"}, Marker{"ENCODED", "encode"},
                                         Marker{"  CRYPTED  ", "crypt"}));

TEST_F(Create, AnyOtherFirstLineMeansPlainText) {
    lines_[0] = "Default data of the system";
    EXPECT_TRUE(Make());
}

TEST_F(Create, AnExistingFileIsReplacedAfterYes) {
    WriteBytes(file_, "old");
    person_.AnswerNext(true);
    EXPECT_TRUE(MakeWith(ProjectData()));
    ASSERT_EQ(person_.Boxes().size(), 1u);
    EXPECT_EQ(person_.Boxes()[0].text, "All information in " + file_.string() + " will be deleted.");
    EXPECT_EQ(person_.Boxes()[0].title, "Warning");
    EXPECT_GT(Open()->OpenTable(TableNum::Flags, "*").RecordCount(), 0);
}

TEST_F(Create, AnExistingFileStaysAfterNo) {
    WriteBytes(file_, "old");
    person_.AnswerNext(false);
    EXPECT_FALSE(MakeWith(ProjectData()));
    EXPECT_EQ(ReadBytes(file_), "old");
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, AnExistingFileIsReplacedAtOnceOnRequest) {
    WriteBytes(file_, "old");
    EXPECT_TRUE(MakeWith(ProjectData(), {}, true));
    EXPECT_TRUE(person_.Boxes().empty());
    EXPECT_GT(Open()->OpenTable(TableNum::Flags, "*").RecordCount(), 0);
}

TEST_F(Create, AFailureLeavesTheOldFile) {
    WriteBytes(file_, "old");
    person_.AnswerNext(true);
    Replace("VELFLAGS", {"nonsense"});
    EXPECT_THROW(Make(), Error);
    EXPECT_EQ(ReadBytes(file_), "old");
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, AFullDiskLeavesTheOldFileAndNothingBesideIt) {
    WriteBytes(file_, "old");
    EXPECT_EQ(test::RunInChild([&] {
                  test::LimitFileSize(64 * 1024);
                  try {
                      MakeWith(ProjectData(), {}, true);
                  } catch (const Error&) {
                      return 0;
                  }
                  return 1;
              }),
              0);
    EXPECT_EQ(ReadBytes(file_), "old");
    EXPECT_EQ(FilesInGames(), std::vector<std::string>{"island.fbd"});
}

TEST_F(Create, AFolderThatIsNotThereIsAnError) {
    const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
    platform::NoEvents events;
    const auto lost = folder_ / "nowhere/game.fbd";
    EXPECT_THROW(CreateAdventure(false, lost, {}, {person_, clock, events, ProjectData()}), Error);
    const auto longName = folder_.Path() / (std::string(300, 'x') + ".fbd");
    EXPECT_THROW(CreateAdventure(false, longName, {}, {person_, clock, events, ProjectData()}), Error);
}

TEST_F(Create, GivesTheWindowATurnForEveryLineOfData) {
    struct Counter final : platform::EventPump {
        void Pump() override { ++turns; }
        int turns = 0;
    } events;
    const platform::FixedClock clock({2026, 3, 4, 5, 6, 7});
    CreateAdventure(false, file_, {}, {person_, clock, events, ProjectData()});
    EXPECT_GT(events.turns, 1000);
}

}  // namespace
}  // namespace fabula::store
