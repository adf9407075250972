#include <gtest/gtest.h>

#include "store/adventure.h"
#include "support/games/template_adventure.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

class OpenTable : public testing::Test {
  protected:
    void AddMessage(int number, const char* text) {
        Cursor& messages = adventure_->OpenTable(TableNum::Free25, "* from messages");
        messages.AddNew();
        messages.SetField("msgnum", number);
        messages.SetField("msgmsg", text);
        messages.Update();
    }

    void AddWord(int index, int number, const char* word, int type) {
        Cursor& words = adventure_->OpenTable(TableNum::Free25, "* from vocabulary");
        words.AddNew();
        words.SetField("vocindex", index);
        words.SetField("vocnum", number);
        words.SetField("word", word);
        words.SetField("voctypen", type);
        words.Update();
    }

    /// An adventure with the words LOOK, look-alikes and nothing else.
    void ReplaceWords() {
        adventure_->DeleteFrom(TableNum::Vocabulary);
        AddWord(1, 60, "LOOK", 0);
        AddWord(2, 70, "LAMP", 2);
        AddWord(3, 50, "TORCH", 2);
        AddWord(4, 50, "BEAM", 2);
        AddWord(5, 60, "EXAMINE", 0);
    }

    void AddEntry(int canum, int process, int verb, int noun) {
        Cursor& entries = adventure_->OpenTable(TableNum::Free25, "* from ProcessTables");
        entries.AddNew();
        entries.SetField("canum", canum);
        entries.SetField("estype", process);
        entries.SetField("w1num", verb);
        entries.SetField("w2num", noun);
        entries.Update();
    }

    static std::string Numbers(Cursor& cursor, std::string_view field) {
        std::string numbers;
        for (; !cursor.Eof(); cursor.MoveNext())
            numbers += (numbers.empty() ? "" : " ") + std::to_string(cursor.Number(field));
        return numbers;
    }

    static std::string Texts(Cursor& cursor, std::string_view field) {
        std::string texts;
        for (; !cursor.Eof(); cursor.MoveNext())
            texts += (texts.empty() ? "" : " ") + std::string(cursor.Text(field));
        return texts;
    }

    std::string ErrorOf(TableNum table, std::string_view fields, std::string_view where = "",
                        std::string_view order = "") {
        try {
            adventure_->OpenTable(table, fields, where, order);
        } catch (const FilterError& error) {
            return error.what();
        }
        return "no error";
    }

    OpenedAdventure adventure_;
};

template <typename Parameter>
std::string NumberOf(const testing::TestParamInfo<Parameter>& parameter) {
    return std::to_string(parameter.param.number);
}

struct NumberAndTable {
    int number;
    const char* name;
    const char* firstField;
};

class EveryTable : public OpenTable, public testing::WithParamInterface<NumberAndTable> {};

TEST_P(EveryTable, OpensByItsNumber) {
    const auto number = static_cast<TableNum>(GetParam().number);
    const Cursor& cursor = adventure_->OpenTable(number, "def");
    EXPECT_TRUE(cursor.IsOpen());
    EXPECT_EQ(adventure_->Info(number).tablename, GetParam().name);
    EXPECT_EQ(cursor.Fields().front().name, GetParam().firstField);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, EveryTable,
    testing::Values(NumberAndTable{1, "Locations", "locnum"}, NumberAndTable{2, "Messages", "msgnum"},
                    NumberAndTable{3, "Sounds", "sndnum"}, NumberAndTable{4, "Objects", "objnum"},
                    NumberAndTable{5, "Adventure", "advnum"}, NumberAndTable{6, "ProcessTables", "canum"},
                    NumberAndTable{7, "SystemMessages", "smsgnum"},
                    NumberAndTable{8, "Vocabulary", "vocindex"}, NumberAndTable{9, "Flags", "flgnum"},
                    NumberAndTable{10, "CondActs", "canum"}, NumberAndTable{11, "DataBases", "dbnum"},
                    NumberAndTable{12, "Tables", "tablekey"}, NumberAndTable{14, "Package", "PkgInclude"},
                    NumberAndTable{15, "ProcDesc", "pmsgnum"}, NumberAndTable{17, "Header", "hdrkey"},
                    NumberAndTable{30, "System", "systemnum"}, NumberAndTable{31, "Codes", "codenum"},
                    NumberAndTable{32, "Commands", "conum"}, NumberAndTable{33, "Characters", "charkey"},
                    NumberAndTable{34, "Pictures", "locnum"}, NumberAndTable{35, "Templates", "Tempname"},
                    NumberAndTable{16, "ProcessTables", "canum"},
                    NumberAndTable{18, "Vocabulary", "vocindex"}, NumberAndTable{19, "Tables", "tablekey"},
                    NumberAndTable{21, "Locations", "locnum"}),
    NumberOf<NumberAndTable>);

class UnusedNumber : public OpenTable, public testing::WithParamInterface<int> {};

TEST_P(UnusedNumber, DoesNothingAndRaisesNothing) {
    const auto number = static_cast<TableNum>(GetParam());
    const Cursor& cursor = adventure_->OpenTable(number, "def");
    EXPECT_FALSE(cursor.IsOpen());
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(adventure_->Info(number).lastselect, "");
}

INSTANTIATE_TEST_SUITE_P(Numbers, UnusedNumber, testing::Values(13, 20, 26, 27, 28, 29),
                         testing::PrintToStringParamName());

struct NumberAndOrder {
    int number;
    const char* order;
};

class DefaultOrder : public OpenTable, public testing::WithParamInterface<NumberAndOrder> {};

TEST_P(DefaultOrder, AppliesWhenNoOrderIsGiven) {
    const auto number = static_cast<TableNum>(GetParam().number);
    adventure_->OpenTable(number, "*");
    EXPECT_EQ(adventure_->Info(number).lastorder, GetParam().order);
    adventure_->OpenTable(number, "def");
    EXPECT_EQ(adventure_->Info(number).lastorder, GetParam().order);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, DefaultOrder,
    testing::Values(
        NumberAndOrder{1, " order by locnum"}, NumberAndOrder{2, " order by msgnum"},
        NumberAndOrder{3, " order by sndnum"}, NumberAndOrder{4, " order by objnum"}, NumberAndOrder{5, ""},
        NumberAndOrder{6, " order by estype, w1num, w2num, canum"}, NumberAndOrder{7, " order by smsgnum"},
        NumberAndOrder{8, " order by voctypen, vocnum, word"}, NumberAndOrder{9, " order by flgnum"},
        NumberAndOrder{10, " order by canum"}, NumberAndOrder{11, " order by dbtreesort"},
        NumberAndOrder{12, " order by tablenum, fieldname"},
        NumberAndOrder{14, " order by PkgType, PkgName"}, NumberAndOrder{15, " order by pmsgnum"},
        NumberAndOrder{17, " order by hdrkey"}, NumberAndOrder{30, ""},
        NumberAndOrder{31, " order by codenum"}, NumberAndOrder{32, " order by conum"},
        NumberAndOrder{33, " order by charkey"}, NumberAndOrder{34, " order by locnum"},
        NumberAndOrder{35, " order by tempname"}, NumberAndOrder{16, " order by w1num, w2num, canum"},
        NumberAndOrder{18, " order by vocnum, word"}, NumberAndOrder{21, " order by locnum"}),
    NumberOf<NumberAndOrder>);

TEST_F(OpenTable, AMessageThatDoesNotExistGivesACursorAtItsEnd) {
    EXPECT_TRUE(adventure_->OpenTable(TableNum::Messages, "def", "msgnum=5").Eof());
}

TEST_F(OpenTable, TheSettingsAreOneRecordWithoutAnOrderClause) {
    EXPECT_EQ(adventure_->OpenTable(TableNum::Adventure, "def").RecordCount(), 1);
    EXPECT_EQ(adventure_->Info(TableNum::Adventure).lastorder, "");
}

TEST_F(OpenTable, AFreeCursorIsNamedAfterTheWordBehindFrom) {
    const Cursor& words = adventure_->OpenTable(TableNum::Free22, "* from vocabulary", "vocindex=3");
    EXPECT_LE(words.RecordCount(), 1);
    const TableInfo& info = adventure_->Info(TableNum::Free22);
    EXPECT_EQ(info.tablename, "vocabulary");
    EXPECT_EQ(info.lastselect, "* from vocabulary");
    EXPECT_EQ(info.lastwhere, " where vocindex=3");
    EXPECT_EQ(info.lastorder, "");
}

TEST_F(OpenTable, AFreeCursorMayHoldTheWholeStatement) {
    ReplaceWords();
    Cursor& words = adventure_->OpenTable(
        TableNum::Free23, "word, vocnum from Vocabulary where voctypen=2 order by vocnum desc, word");
    EXPECT_EQ(Texts(words, "word"), "LAMP BEAM TORCH");
    const TableInfo& info = adventure_->Info(TableNum::Free23);
    EXPECT_EQ(info.tablename, "Vocabulary");
    EXPECT_EQ(info.lastwhere, " where voctypen=2 ");
    EXPECT_EQ(info.lastorder, " order by vocnum desc, word");
}

TEST_F(OpenTable, AFreeCursorWithoutAnOrderReadsInOrderOfCreation) {
    ReplaceWords();
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Free24, "* from VOCABULARY"), "word"),
              "LOOK LAMP TORCH BEAM EXAMINE");
}

TEST_F(OpenTable, AFreeCursorTakesDefForAllFields) {
    EXPECT_EQ(adventure_->OpenTable(TableNum::Free22, "def from messages").Fields().size(), 3u);
}

TEST_F(OpenTable, AFreeCursorOnNoTableIsAnError) {
    EXPECT_EQ(ErrorOf(TableNum::Free22, "* from monsters"),
              "at 8: expected a table; there is none called 'monsters'");
    EXPECT_EQ(ErrorOf(TableNum::Free22, "*"), "at 2: expected 'from' and a table");
    EXPECT_EQ(ErrorOf(TableNum::Free22, "* from sqlite_schema"),
              "at 8: expected a table; there is none called 'sqlite_schema'");
}

TEST_F(OpenTable, TableNamesIgnoreCase) {
    EXPECT_TRUE(adventure_->OpenTable(TableNum::Free22, "* from pRoCeSsTaBlEs").IsOpen());
}

TEST_F(OpenTable, SoundsHaveACaption) {
    EXPECT_EQ(adventure_->Info(TableNum::Sounds).tabledesc, "Tones used in Beep");
    EXPECT_EQ(adventure_->Info(TableNum::Messages).tabledesc, "");
}

TEST_F(OpenTable, InfoRemembersTheLatestOpen) {
    adventure_->OpenTable(TableNum::Messages, "msgmsg", "msgnum>=0", "msgnum desc");
    const TableInfo& info = adventure_->Info(TableNum::Messages);
    EXPECT_EQ(info.tablename, "Messages");
    EXPECT_EQ(info.lastselect, "msgmsg");
    EXPECT_EQ(info.lastwhere, " where msgnum>=0");
    EXPECT_EQ(info.lastorder, " order by msgnum desc");
    adventure_->OpenTable(TableNum::Messages, "def");
    EXPECT_EQ(info.lastselect, "def");
    EXPECT_EQ(info.lastwhere, "");
    EXPECT_EQ(info.lastorder, " order by msgnum");
}

TEST_F(OpenTable, TheLatestOpenMayBeRepeatedFromItsInfo) {
    AddMessage(1, "one");
    AddMessage(2, "two");
    adventure_->OpenTable(TableNum::Messages, "msgmsg", "msgnum>=2", "msgnum desc");
    const TableInfo& info = adventure_->Info(TableNum::Messages);
    const std::string_view where = info.lastwhere;
    const std::string_view order = info.lastorder;
    Cursor& again =
        adventure_->OpenTable(TableNum::Messages, info.lastselect, where.substr(7), order.substr(10));
    EXPECT_EQ(Texts(again, "msgmsg"), "two");
    EXPECT_EQ(info.lastselect, "msgmsg");
    EXPECT_EQ(info.lastwhere, " where msgnum>=2");
    EXPECT_EQ(info.lastorder, " order by msgnum desc");
}

TEST_F(OpenTable, AnOrderThatIsGivenAlwaysWins) {
    AddMessage(1, "one");
    AddMessage(2, "two");
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::Messages, "def", "", "msgnum desc"), "msgnum"),
              "2 1");
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::Messages, "def"), "msgnum"), "1 2");
}

TEST_F(OpenTable, AFailedOpenLeavesTheCursorAndItsInfoAsTheyWere) {
    AddMessage(1, "one");
    Cursor& messages = adventure_->OpenTable(TableNum::Messages, "*");
    EXPECT_THROW(adventure_->OpenTable(TableNum::Messages, "*", "msgnum='x'"), FilterError);
    EXPECT_EQ(messages.Text("msgmsg"), "one");
    EXPECT_EQ(adventure_->Info(TableNum::Messages).lastwhere, "");
}

TEST_F(OpenTable, TheHighestKeyComesFirstInDescendingOrder) {
    AddMessage(0, "zero");
    AddMessage(11, "eleven");
    AddMessage(9, "nine");
    EXPECT_EQ(adventure_->OpenTable(TableNum::Messages, "*", "msgnum>=0", "msgnum desc").Number("msgnum"),
              11);
}

TEST_F(OpenTable, EveryTableNumberHasItsOwnCursor) {
    AddMessage(1, "one");
    AddMessage(2, "two");
    Cursor& main = adventure_->OpenTable(TableNum::Messages, "*");
    main.MoveNext();
    Cursor& free = adventure_->OpenTable(TableNum::Free22, "* from messages");
    EXPECT_EQ(free.Number("msgnum"), 1);
    EXPECT_EQ(main.Number("msgnum"), 2);
    EXPECT_EQ(&adventure_->Table(TableNum::Messages), &main);
    EXPECT_EQ(&adventure_->OpenTable(TableNum::Messages, "*"), &main);
}

TEST_F(OpenTable, ASecondCursorWalksWhileTheMainOneStands) {
    Cursor& main = adventure_->OpenTable(TableNum::Locations, "*");
    Cursor& walk = adventure_->OpenTable(TableNum::LocationsWalk, "*");
    walk.MoveLast();
    walk.MoveNext();
    EXPECT_TRUE(walk.Eof());
    EXPECT_EQ(main.AbsolutePosition(), 1);
}

TEST_F(OpenTable, ProcessEntriesComeByProcessOrByWord) {
    adventure_->DeleteFrom(TableNum::ProcessTables);
    AddEntry(1, 1, 10, 20);
    AddEntry(2, 0, 30, 5);
    AddEntry(3, 0, 10, 20);
    AddEntry(4, 0, 10, 7);
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::ProcessTables, "def"), "canum"), "4 3 2 1");
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::ProcessTablesWalk, "def"), "canum"), "4 1 3 2");
}

TEST_F(OpenTable, WordsComeByTypeOrByNumber) {
    ReplaceWords();
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Vocabulary, "def"), "word"),
              "EXAMINE LOOK BEAM TORCH LAMP");
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::VocabularyWalk, "def"), "word"),
              "BEAM TORCH EXAMINE LOOK LAMP");
}

TEST_F(OpenTable, TheSessionsSortOrdersApply) {
    ReplaceWords();
    adventure_->Sorts().vocabulary = "word desc";
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Vocabulary, "def"), "word"),
              "TORCH LOOK LAMP EXAMINE BEAM");
    EXPECT_EQ(adventure_->Info(TableNum::Vocabulary).lastorder, " order by word desc");
    adventure_->Sorts().objects = "objnoun";
    adventure_->Sorts().tables = "tablekey";
    adventure_->Sorts().condacts = "caname";
    adventure_->Sorts().commands = "coname";
    for (const TableNum table :
         {TableNum::Objects, TableNum::Tables, TableNum::CondActs, TableNum::Commands}) {
        adventure_->OpenTable(table, "def");
    }
    EXPECT_EQ(adventure_->Info(TableNum::Objects).lastorder, " order by objnoun");
    EXPECT_EQ(adventure_->Info(TableNum::Tables).lastorder, " order by tablekey");
    EXPECT_EQ(adventure_->Info(TableNum::CondActs).lastorder, " order by caname");
    EXPECT_EQ(adventure_->Info(TableNum::Commands).lastorder, " order by coname");
}

TEST_F(OpenTable, TheSortOrdersOfTheSettingsAreReadAtOpening) {
    Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "*");
    settings.SetField("sortvocabulary", "word desc");
    settings.SetField("sortobjects", "objweight, objnum");
    settings.Update();
    adventure_.Reopen();
    EXPECT_EQ(adventure_->Sorts().vocabulary, "word desc");
    EXPECT_EQ(adventure_->Sorts().objects, "objweight, objnum");
    EXPECT_EQ(adventure_->Sorts().commands, "conum");
}

TEST_F(OpenTable, ASortOrderOfTheSettingsThatIsNoneGivesWayToTheUsualOne) {
    Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "*");
    settings.SetField("sortvocabulary", "word; drop table Vocabulary");
    settings.SetField("sortobjects", text::Value());
    settings.SetField("sortcondacts", " ");
    settings.Update();
    adventure_.Reopen();
    EXPECT_EQ(adventure_->Sorts().vocabulary, "voctypen, vocnum, word");
    EXPECT_EQ(adventure_->Sorts().objects, "objnum");
    EXPECT_EQ(adventure_->Sorts().condacts, "canum");
    EXPECT_GT(adventure_->OpenTable(TableNum::Vocabulary, "*").RecordCount(), 0);
}

TEST_F(OpenTable, ALowerCaseTextFindsTheWordInCapitals) {
    ReplaceWords();
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Vocabulary, "*", "word='look'"), "Word"), "LOOK");
}

TEST_F(OpenTable, APlayersApostropheNeverBreaksAQuery) {
    ReplaceWords();
    AddWord(6, 80, "O'CLOCK", 2);
    const std::string typed = "o'clock";
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Vocabulary, "*", "word=" + QuoteText(typed)), "Word"),
              "O'CLOCK");
    const std::string hostile = "x' or 'a'='a";
    EXPECT_TRUE(adventure_->OpenTable(TableNum::Vocabulary, "*", "word=" + QuoteText(hostile)).Eof());
}

TEST_F(OpenTable, ACondactIsSelectedOnlyIfItsDialectFieldIsTrue) {
    Cursor& condacts = adventure_->OpenTable(TableNum::CondActs, "*", "caname='AT'");
    condacts.SetField("Marlo", 0);
    condacts.SetField("Fabula", 1);
    condacts.Update();
    EXPECT_EQ(adventure_->OpenTable(TableNum::CondActs, "*", "caname='AT' and Fabula").RecordCount(), 1);
    EXPECT_TRUE(adventure_->OpenTable(TableNum::CondActs, "*", "caname='AT' and Marlo").Eof());
}

TEST_F(OpenTable, AFieldMayBeComparedWithAField) {
    Cursor& codes = adventure_->OpenTable(TableNum::Codes, "*", "", "codenum");
    codes.SetField("fontsize", codes.Field("codenum"));
    codes.Update();
    const Cursor& same = adventure_->OpenTable(TableNum::Codes, "*", "codenum=fontsize", "codenum");
    EXPECT_GE(same.RecordCount(), 1);
}

TEST_F(OpenTable, AnAsteriskInALikeFilterIsAWildcard) {
    AddMessage(16, "Press any key to go on.");
    EXPECT_EQ(adventure_->OpenTable(TableNum::Messages, "*", "msgnum=16 and msgmsg like '*any key*'")
                  .RecordCount(),
              1);
}

TEST_F(OpenTable, AnEmptyTextIsComparedWithTwoQuotes) {
    AddMessage(1, "");
    AddMessage(2, "two");
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::Messages, "*", "msgmsg=''"), "msgnum"), "1");
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::Messages, "*", "msgmsg<>''"), "msgnum"), "2");
}

TEST_F(OpenTable, KeysMayBeDouble) {
    AddMessage(5, "first");
    AddMessage(5, "second");
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Messages, "*", "msgnum=5"), "msgmsg"), "first second");
}

TEST_F(OpenTable, RecordsThatAnOrderLeavesLevelStandInTheOrderOfCreation) {
    AddMessage(5, "b");
    AddMessage(5, "a");
    AddMessage(5, "c");
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Messages, "*", "", "msgnum desc"), "msgmsg"), "b a c");
}

TEST_F(OpenTable, AnOrderOfTextIgnoresCase) {
    AddMessage(1, "b");
    AddMessage(2, "A");
    AddMessage(3, "C");
    EXPECT_EQ(Texts(adventure_->OpenTable(TableNum::Messages, "*", "", "msgmsg"), "msgmsg"), "A b C");
}

TEST_F(OpenTable, BadFieldListsAndOrdersAreErrors) {
    EXPECT_EQ(ErrorOf(TableNum::Messages, "msgnum, storekey"), "at 9: expected a field of Messages");
    EXPECT_EQ(ErrorOf(TableNum::Messages, ""), "at 1: expected a field of Messages");
    EXPECT_EQ(ErrorOf(TableNum::Messages, "*", "storekey=1"),
              "at 1: expected a field, a value or '('; there is no field 'storekey' in Messages");
    EXPECT_EQ(ErrorOf(TableNum::Messages, "*", "", "rowid"), "at 1: expected a field of Messages");
    EXPECT_EQ(ErrorOf(TableNum::Messages, "*", "msgnum=?"), "at 8: expected a value or a field");
}

TEST_F(OpenTable, ANumberBeyondTheHighestIsAFaultOfTheProgram) {
    EXPECT_THROW(adventure_->OpenTable(static_cast<TableNum>(36), "*"), std::logic_error);
    EXPECT_THROW(adventure_->OpenTable(static_cast<TableNum>(-1), "*"), std::logic_error);
}

TEST_F(OpenTable, DeleteFromTakesAFilterOrEmptiesTheTable) {
    AddMessage(1, "one");
    AddMessage(2, "two");
    AddMessage(3, "three");
    EXPECT_EQ(adventure_->DeleteFrom(TableNum::Messages, "msgmsg='TWO'"), 1);
    EXPECT_EQ(Numbers(adventure_->OpenTable(TableNum::Messages, "*"), "msgnum"), "1 3");
    EXPECT_EQ(adventure_->DeleteFrom(TableNum::Messages, "msgnum=7"), 0);
    EXPECT_EQ(adventure_->DeleteFrom(TableNum::Messages), 2);
    EXPECT_TRUE(adventure_->OpenTable(TableNum::Messages, "*").Eof());
    EXPECT_THROW(adventure_->DeleteFrom(TableNum::Messages, "1=1; drop table Flags"), FilterError);
}

TEST_F(OpenTable, TheSessionKnowsItsFileAndSettings) {
    EXPECT_EQ(adventure_->CurrentFile(), adventure_.File());
    EXPECT_EQ(adventure_->GameDir(), adventure_.Folder().Path());
    EXPECT_EQ(adventure_->AdventureType(), "Fabula");
    EXPECT_EQ(adventure_->AdventureTypeLower(), "fabula");
    EXPECT_FALSE(adventure_->GraphicsOn());
    EXPECT_FALSE(adventure_->CharSetsOn());
}

TEST_F(OpenTable, TheSettingsAreReadAgainOnRequest) {
    Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "*");
    settings.SetField("adventype", "VEL");
    settings.SetField("graphics", 1);
    settings.SetField("charsets", 1);
    settings.Update();
    EXPECT_EQ(adventure_->AdventureType(), "Fabula");
    adventure_->ReadSettings();
    EXPECT_EQ(adventure_->AdventureType(), "VEL");
    EXPECT_EQ(adventure_->AdventureTypeLower(), "vel");
    EXPECT_TRUE(adventure_->GraphicsOn());
    EXPECT_TRUE(adventure_->CharSetsOn());
}

TEST_F(OpenTable, TwoAdventuresDoNotNoticeEachOther) {
    const OpenedAdventure other(AdventureKind::Marlo);
    AddMessage(1, "one");
    EXPECT_TRUE(other->OpenTable(TableNum::Messages, "*").Eof());
    EXPECT_EQ(other->AdventureType(), "Marlo");
    EXPECT_EQ(adventure_->AdventureType(), "Fabula");
}

TEST_F(OpenTable, AClosedAdventureIsOneFile) {
    AddMessage(1, "one");
    adventure_.Close();
    int files = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator(adventure_.Folder().Path()))
        ++files;
    EXPECT_EQ(files, 1);
}

TEST_F(OpenTable, AReaderCannotChangeTheFile) {
    adventure_.Reopen(OpenMode::ReadOnly);
    Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "*");
    settings.SetField("author", "somebody");
    EXPECT_THROW(settings.Update(), Error);
    EXPECT_THROW(adventure_->DeleteFrom(TableNum::Codes), Error);
}

}  // namespace
}  // namespace fabula::store
