// Reads the default data as a linter would, by what a new adventure of each type holds. Half of the file is
// tables of what must be there, which the tests beside them read.

#include <algorithm>
#include <bit>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "store/adventure.h"
#include "store/schema/record_fields.h"
#include "support/games/template_adventure.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/markup.h"
#include "text/str_edit.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;

class Lint : public testing::TestWithParam<AdventureKind> {
  protected:
    Cursor& All(TableNum table, std::string_view where = "") {
        return adventure_->OpenTable(table, "*", where);
    }

    std::map<std::int64_t, std::string> Texts(TableNum table, const char* number, const char* text) {
        std::map<std::int64_t, std::string> texts;
        for (Cursor& cursor = All(table); !cursor.Eof(); cursor.MoveNext())
            texts[cursor.Number(number)] = cursor.Text(text);
        return texts;
    }

    OpenedAdventure adventure_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Types, Lint,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo),
                         [](const auto& type) { return std::string(NameOf(type.param)); });

struct TableFields {
    TableNum table;
    /// Names with their types: "name" for a number of any kind, "name$" for text of any kind, or the exact
    /// tag and size, "name=advarwchar(30)".
    const char* fields;
};

/// Every field that some part of the program asks for by its name.
constexpr TableFields kFields[] = {
    {TableNum::Locations,
     "locnum numexits exits$ numericexits$ picloc=advarwchar pickey$ locshortdesc=advarwchar "
     "locdesc=adlongvarwchar picgraphic=adlongvarbinary oldpicloc=advarwchar comment=adlongvarwchar"},
    {TableNum::Messages, "msgnum=adsmallint msgmsg=adlongvarwchar comment=adlongvarwchar"},
    {TableNum::SystemMessages, "smsgnum=adsmallint smsgmsg=adlongvarwchar comment=adlongvarwchar"},
    {TableNum::ProcDesc, "pmsgnum=adsmallint pmsgmsg=advarwchar comment=adlongvarwchar"},
    {TableNum::Sounds, "sndnum sndfreq"},
    {TableNum::Objects,
     "objnum objdesc$ objnoun=advarwchar(30) objnumnoun objadject=advarwchar(30) objnumadject "
     "objlocdesc$ objloc objweight objattrn objattr$ comment=adlongvarwchar"},
    {TableNum::Adventure,
     "advnum$ advname$ savename$ author$ DateCreated=addate Version$ startloc maxobj maxweight "
     "Font=adinteger "
     "FontSize BackColor textcolor defpickey$ defpicloc$ defsndchan defsnddev defsndvoice defsndvol "
     "defsndbal "
     "defsndbass defsnddevname$ defprintwidth unmarloed advdesc=adlongvarwchar advpicloc=advarwchar "
     "advcontactinfo=adlongvarwchar adventype=advarwchar(6) graphics=adboolean sound=adboolean "
     "charsets=adboolean advpicgraphic=adlongvarbinary defpicgraphic=adlongvarbinary "
     "graphicsindb=adboolean "
     "graphicsadded=adboolean oldadvpicloc=advarwchar olddefpicloc=advarwchar sortobjects=advarwchar "
     "sortvocabulary=advarwchar sorttables=advarwchar sortcondacts=advarwchar sortcommands=advarwchar "
     "source=advarwchar"},
    {TableNum::ProcessTables,
     "canum estype w1=advarwchar(30) w2=advarwchar(30) w1num w2num numcas "
     "CondActs=adlongvarwchar numericcondacts=adlongvarwchar comment=adlongvarwchar"},
    {TableNum::Vocabulary,
     "vocindex=adsmallint vocnum Word=advarwchar(30) voctype$ voctypen comment=adlongvarwchar"},
    {TableNum::Flags,
     "flgnum flgtype$ flguse$ flgmod flgdesc=adlongvarwchar flgchg=adboolean comment=adlongvarwchar"},
    {TableNum::CondActs,
     "canum catype$ caname$ casubname$ canumparam caparam1 caparam2 camaxval1 camaxval2 "
     "PageNum htmlpage$ Fabula=adboolean Vel=adboolean Marlo=adboolean PCVel=adboolean"},
    {TableNum::DataBases,
     "dbnum DBName$ dbtreename$ dbtreeparent$ dbtreekey$ dbtreeiconkey$ dbtreeiconname$ "
     "dbtreesort tabletype=advarwchar(5)"},
    {TableNum::Tables,
     "tablekey=adsmallint TableName$ TableNum fieldname$ fieldtype$ FieldSize search=advarwchar(1) "
     "see=adunsignedtinyint export=adunsignedtinyint Expand=advarwchar(1) allowadd=advarwchar(1) "
     "allowaddbef=advarwchar(1) AllowDelete=advarwchar(1) allowedit=advarwchar(1) allowload=advarwchar(1) "
     "allowsave=advarwchar(1) allowprint=advarwchar(1) allowprpre=advarwchar(1) allowkeychg=advarwchar(1) "
     "allowimpexp=advarwchar(1) allowexp=advarwchar(1) gridwidth=adsmallint fbbexp=adunsignedtinyint "
     "altname=advarwchar allowchgsort=advarwchar(1)"},
    {TableNum::Package,
     "PkgInclude=advarwchar(1) PkgType=advarwchar(7) PkgName=adlongvarwchar "
     "PkgPackage=advarwchar(12)"},
    {TableNum::Header, "hdrkey=advarwchar hdrmess=advarwchar"},
    {TableNum::System,
     "systemnum=adsmallint sysinidate=advarwchar sysexportversion=advarwchar(10) "
     "ideversion=advarwchar(15) engversion=advarwchar(15) flagchange=adboolean ifid=advarwchar(50)"},
    {TableNum::Codes,
     "codenum=adinteger voicename=advarwchar FontName=advarwchar FontSize=adinteger "
     "FabulaTag=advarwchar ACETag=advarwchar FabulaTagParam=adinteger FabulaTagVal=advarwchar(2)"},
    {TableNum::Commands,
     "conum coname$ ccsubname$ cdsubname$ cocmdparam codrwparam cval1$ cval2$ cval3$ dval1$ "
     "dval2$ dval3$ dval4$ dval5$ PageNum htmlpage$ Fabula=adboolean Vel=adboolean "
     "Marlo=adboolean"},
    {TableNum::Characters,
     "charkey CharSet$ charsetnum charnum charsetname=advarwchar(20) charvals$ comment=adlongvarwchar"},
    {TableNum::Pictures,
     "locnum loctype$ locpaper locink drawstring=adlongvarwchar picname$ roompicnum "
     "comment=adlongvarwchar"},
    {TableNum::Templates, "Tempname$ commands=adlongvarwchar"},
};

/// A field as it is, in the form of kFields as far as `wanted` asks.
std::string Described(const Field& field, std::string_view wanted) {
    const FieldClass fieldClass = ClassOf(field.type);
    if (wanted.find('=') == std::string_view::npos) {
        if (fieldClass == FieldClass::Number) return field.name;
        return fieldClass == FieldClass::Text ? field.name + "$" : field.name + " of another class";
    }
    std::string text = field.name + "=" + std::string(TagOf(field.type));
    const bool sized = field.type == FieldType::VarWChar && field.size != kDefaultTextSize;
    return sized ? text + "(" + std::to_string(field.size) + ")" : text;
}

TEST_P(Lint, EveryFieldThatTheProgramNamesHasItsType) {
    for (const TableFields& table : kFields) {
        const TableSchema& schema = adventure_->Schema(table.table);
        std::set<std::size_t> named;
        for (const std::string_view field : text::Split(table.fields, " ")) {
            const auto index = schema.Find(field.substr(0, field.find_first_of("=$")));
            EXPECT_TRUE(index) << schema.name << " lacks " << field;
            if (!index) continue;
            named.insert(*index);
            EXPECT_TRUE(text::EqualsNoCase(Described(schema.fields[*index], field), field))
                << schema.name << ": " << Described(schema.fields[*index], field) << " for " << field;
        }
        for (std::size_t i = 0; i < schema.fields.size(); ++i)
            EXPECT_TRUE(named.contains(i)) << schema.name << " has " << schema.fields[i].name << " too";
    }
}

TEST_P(Lint, EveryTableHasOneKeyFieldAndItIsTheOneOfTheProgram) {
    for (const TableEntry& table : AllTables()) {
        Cursor& keys = All(TableNum::Tables,
                           "export=1 and tablenum=" + std::to_string(static_cast<int>(table.number)));
        EXPECT_EQ(keys.RecordCount(), 1) << table.name;
        EXPECT_TRUE(text::EqualsNoCase(keys.Text("fieldname"), table.key)) << table.name;
        EXPECT_TRUE(text::EqualsNoCase(keys.Text("tablename"), table.name)) << table.name;
    }
}

TEST_P(Lint, TheTextOfATableIsOneOfItsFieldsAndATextThere) {
    for (const TableEntry& table : AllTables()) {
        const std::string_view text = TextField(table.number);
        if (text.empty()) continue;
        const TableSchema& schema = adventure_->Schema(table.number);
        const auto field = schema.Find(text);
        ASSERT_TRUE(field.has_value()) << table.name << "." << text;
        EXPECT_EQ(ClassOf(schema.fields[*field].type), FieldClass::Text) << table.name << "." << text;
    }
}

TEST_P(Lint, TheMarksOfAFieldAreYOrN) {
    for (Cursor& field = All(TableNum::Tables); !field.Eof(); field.MoveNext()) {
        for (const char* mark : {"search", "Expand", "allowadd", "allowaddbef", "AllowDelete", "allowedit",
                                 "allowload", "allowsave", "allowprint", "allowprpre", "allowkeychg",
                                 "allowimpexp", "allowexp", "allowchgsort"}) {
            EXPECT_TRUE(field.Text(mark) == "Y" || field.Text(mark) == "N")
                << field.Text("tablename") << "." << field.Text("fieldname") << " " << mark;
        }
        EXPECT_LE(field.Number("see"), 3);
        EXPECT_LE(field.Number("export"), 5);
        EXPECT_LE(field.Number("fbbexp"), 6);
    }
}

TEST_P(Lint, OnlyTheKeyFieldSaysWhatATableAllows) {
    for (Cursor& field = All(TableNum::Tables, "export<>1"); !field.Eof(); field.MoveNext()) {
        for (const char* mark :
             {"allowadd", "allowaddbef", "AllowDelete", "allowedit", "allowload", "allowsave", "allowprint",
              "allowprpre", "allowkeychg", "allowimpexp", "allowexp", "allowchgsort"}) {
            EXPECT_EQ(field.Text(mark), "N") << field.Text("tablename") << "." << field.Text("fieldname");
        }
    }
}

TEST_P(Lint, TheFiveSortOrdersAreThoseThatMayBeChanged) {
    std::set<std::string> tables;
    for (Cursor& field = All(TableNum::Tables, "allowchgsort='Y'"); !field.Eof(); field.MoveNext())
        tables.emplace(field.Text("tablename"));
    EXPECT_EQ(tables, (std::set<std::string>{"Objects", "Vocabulary", "CondActs", "Tables", "Commands"}));
}

TEST_P(Lint, BatchNamesAreUniqueWithinATable) {
    std::set<std::string> names;
    for (Cursor& field = All(TableNum::Tables, "fbbexp>0"); !field.Eof(); field.MoveNext()) {
        const std::string_view name =
            field.Text("altname").empty() ? field.Text("fieldname") : field.Text("altname");
        EXPECT_TRUE(
            names.insert(text::LowerCase(std::string(field.Text("tablename")) + "." + std::string(name)))
                .second)
            << field.Text("tablename") << " " << name;
    }
}

TEST_P(Lint, NoKeyIsDouble) {
    const std::map<TableNum, std::string> keys = {
        {TableNum::Locations, "locnum"},       {TableNum::Messages, "msgnum"},
        {TableNum::Objects, "objnum"},         {TableNum::ProcessTables, "canum"},
        {TableNum::SystemMessages, "smsgnum"}, {TableNum::Vocabulary, "vocindex"},
        {TableNum::Flags, "flgnum"},           {TableNum::CondActs, "canum"},
        {TableNum::Tables, "tablekey"},        {TableNum::ProcDesc, "pmsgnum"},
        {TableNum::Codes, "codenum"},          {TableNum::Commands, "conum"},
        {TableNum::Characters, "charkey"},     {TableNum::DataBases, "dbtreesort"}};
    for (const auto& [table, key] : keys) {
        std::set<std::int64_t> seen;
        for (Cursor& cursor = All(table); !cursor.Eof(); cursor.MoveNext())
            EXPECT_TRUE(seen.insert(cursor.Number(key)).second) << key << " " << cursor.Number(key);
    }
    for (const auto& [table, key] :
         {std::pair(TableNum::CondActs, "caname"), std::pair(TableNum::Commands, "coname"),
          std::pair(TableNum::Header, "hdrkey"), std::pair(TableNum::Templates, "tempname"),
          std::pair(TableNum::DataBases, "dbtreekey")}) {
        std::set<std::string> seen;
        for (Cursor& cursor = All(table); !cursor.Eof(); cursor.MoveNext())
            EXPECT_TRUE(seen.insert(text::LowerCase(cursor.Text(key))).second)
                << key << " " << cursor.Text(key);
    }
}

TEST_P(Lint, TheSettingsNameTheTypeAndStartInTheOneRoom) {
    const Cursor& settings = All(TableNum::Adventure);
    EXPECT_EQ(settings.Text("adventype"), NameOf(GetParam()));
    EXPECT_EQ(All(TableNum::Locations).RecordCount(), 1);
    EXPECT_EQ(All(TableNum::Adventure).Number("startloc"), All(TableNum::Locations).Number("locnum"));
    EXPECT_LE(All(TableNum::Adventure).Number("maxobj"), 25);
    const std::string font = std::to_string(All(TableNum::Adventure).Number("Font"));
    EXPECT_NE(All(TableNum::Codes, "codenum=" + font).Text("FontName"), "");
    EXPECT_EQ(adventure_->Sorts().vocabulary, "voctypen, vocnum, word");
}

TEST_P(Lint, NoSizeIsLargerThanTextsAreShown) {
    EXPECT_EQ(All(TableNum::Codes, "FontSize>" + std::to_string(text::kMostPoints)).RecordCount(), 0);
    EXPECT_GT(All(TableNum::Codes, "FontSize=" + std::to_string(text::kMostPoints)).RecordCount(), 0);
}

TEST_P(Lint, NothingIsThereThatAnImportWouldMeet) {
    EXPECT_EQ(All(TableNum::Messages).RecordCount(), 0);
    EXPECT_EQ(All(TableNum::Objects).RecordCount(), 0);
    EXPECT_EQ(All(TableNum::ProcessTables).RecordCount(), 0);
    EXPECT_EQ(All(TableNum::Pictures).RecordCount(), 0);
    EXPECT_EQ(All(TableNum::Vocabulary, "voctypen=0 or voctypen=2 or voctypen=3").RecordCount(), 0);
}

TEST_P(Lint, TheReservedWordsStandInForEveryType) {
    EXPECT_EQ(All(TableNum::Vocabulary, "word='_' and voctypen=7 and vocnum=255").RecordCount(), 1);
    EXPECT_EQ(All(TableNum::Vocabulary, "word='*' and voctypen=7").RecordCount(), 1);
    EXPECT_EQ(All(TableNum::Vocabulary, "voctypen=7").RecordCount(), 2);
}

TEST_P(Lint, WordsAreInCapitalsAndNamedByTheirType) {
    const std::vector<std::string> types = {"Verb",        "Adverb",      "Noun",   "Adjective",
                                            "Preposition", "Conjugation", "Pronoun"};
    const std::size_t longest = GetParam() == AdventureKind::Marlo ? 4
                                : GetParam() == AdventureKind::Vel ? 5
                                                                   : 30;
    for (Cursor& word = All(TableNum::Vocabulary, "voctypen<>7"); !word.Eof(); word.MoveNext()) {
        EXPECT_EQ(word.Text("Word"), text::UpperCase(word.Text("Word")));
        EXPECT_LE(text::Length(word.Text("Word")), longest) << word.Text("Word");
        EXPECT_EQ(word.Text("voctype"), types.at(static_cast<std::size_t>(word.Number("voctypen"))));
        EXPECT_GE(word.Number("vocnum"), 2) << word.Text("Word");
        EXPECT_LE(word.Number("vocnum"), 254) << word.Text("Word");
    }
}

TEST_P(Lint, TheProcessesOfEveryGameAreDescribed) {
    EXPECT_EQ(
        Texts(TableNum::ProcDesc, "pmsgnum", "pmsgmsg"),
        (std::map<std::int64_t, std::string>{
            {0, "THE PROCESS TABLE"}, {1, "Done after a DESC"}, {2, "The computer does its thing."}}));
}

TEST_P(Lint, SystemMessagesHaveNoGapFromZeroToFiftyThree) {
    Cursor& messages = All(TableNum::SystemMessages);
    EXPECT_EQ(messages.RecordCount(), 54);
    for (int number = 0; number < 54; ++number, messages.MoveNext())
        ASSERT_EQ(messages.Number("smsgnum"), number);
}

TEST_P(Lint, FlagsHaveNoGapAndTheExtendedOnesAreTheSystems) {
    Cursor& flags = All(TableNum::Flags);
    EXPECT_EQ(flags.RecordCount(), 1025);
    for (int number = 0; number < 1025; ++number, flags.MoveNext())
        ASSERT_EQ(flags.Number("flgnum"), number);
    for (Cursor& flag = All(TableNum::Flags, "flgnum>=1000 and flgnum<=1018"); !flag.Eof();
         flag.MoveNext()) {
        EXPECT_EQ(flag.Text("flgtype"), "System") << flag.Number("flgnum");
        EXPECT_NE(flag.Text("flgdesc"), "") << flag.Number("flgnum");
    }
    EXPECT_EQ(All(TableNum::Flags, "flgtype<>'System' and flgtype<>'User'").RecordCount(), 0);
    EXPECT_EQ(All(TableNum::Flags, "flgtype='User' and flgmod<>2").RecordCount(), 0);
}

TEST_P(Lint, FlagsThatTheEngineUsesAreTheSystems) {
    for (const int flag : {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 29, 30, 31, 32, 33, 34, 35, 36, 37,
                           38, 40, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58}) {
        const Cursor& record = All(TableNum::Flags, "flgnum=" + std::to_string(flag));
        EXPECT_EQ(record.Text("flgtype"), "System") << flag;
        EXPECT_NE(record.Text("flgdesc"), "") << flag;
    }
}

struct Condact {
    int number;
    const char* name;
    int parameters;
};

constexpr Condact kCondacts[] = {
    {101, "AT", 1},      {102, "NOTAT", 1},   {103, "ATGT", 1},    {104, "ATLT", 1},    {105, "PRESENT", 1},
    {106, "ABSENT", 1},  {107, "WORN", 1},    {108, "NOTWORN", 1}, {109, "CARRIED", 1}, {110, "NOTCARR", 1},
    {111, "ISAT", 2},    {112, "ISNOTAT", 2}, {113, "ZERO", 1},    {114, "NOTZERO", 1}, {115, "EQ", 2},
    {116, "NOTEQ", 2},   {117, "GT", 2},      {118, "LT", 2},      {119, "SAME", 2},    {120, "NOTSAME", 2},
    {121, "ADJECT1", 1}, {122, "ADVERB", 1},  {123, "PREP", 1},    {124, "NOUN2", 1},   {125, "ADJECT2", 1},
    {126, "CHANCE", 1},  {127, "TIMEOUT", 0}, {128, "YESNO", 1},   {150, "QUIT", 0},    {201, "GET", 1},
    {202, "DROP", 1},    {203, "WEAR", 1},    {204, "REMOVE", 1},  {205, "CREATE", 1},  {206, "DESTROY", 1},
    {207, "SWAP", 2},    {208, "PLACE", 2},   {209, "PUTO", 1},    {210, "PUTIN", 2},   {211, "TAKEOUT", 2},
    {212, "DROPALL", 0}, {213, "AUTOG", 0},   {214, "AUTOD", 0},   {215, "AUTOW", 0},   {216, "AUTOR", 0},
    {217, "AUTOP", 1},   {218, "AUTOT", 1},   {219, "COPYOO", 2},  {220, "COPYOF", 2},  {221, "COPYFO", 2},
    {222, "WHATO", 0},   {223, "WEIGH", 2},   {224, "SET", 1},     {225, "CLEAR", 1},   {226, "PLUS", 2},
    {227, "MINUS", 2},   {228, "LET", 2},     {229, "ADD", 2},     {230, "SUB", 2},     {231, "COPYFF", 2},
    {232, "RANDOM", 1},  {233, "MOVE", 1},    {234, "GOTO", 1},    {235, "WEIGHT", 1},  {236, "ABILITY", 2},
    {237, "MODE", 2},    {238, "LINE", 1},    {239, "GRAPHIC", 1}, {240, "PROMPT", 1},  {241, "INPUT", 1},
    {242, "TIME", 2},    {243, "PROTECT", 0}, {244, "PRINT", 1},   {245, "TURNS", 0},   {246, "SCORE", 0},
    {247, "CLS", 0},     {248, "NEWLINE", 0}, {249, "MES", 1},     {250, "MESSAGE", 1}, {251, "SYSMESS", 1},
    {252, "PICTURE", 1}, {253, "PAPER", 1},   {254, "INK", 1},     {255, "BORDER", 1},  {256, "CHARSET", 1},
    {257, "SAVEAT", 0},  {258, "BACKAT", 0},  {259, "PRINTAT", 2}, {260, "LISTOBJ", 0}, {261, "LISTAT", 1},
    {262, "INVEN", 0},   {263, "DESC", 0},    {264, "END", 0},     {265, "DONE", 0},    {266, "NOTDONE", 0},
    {267, "OK", 0},      {268, "SAVE", 0},    {269, "LOAD", 0},    {270, "RAMSAVE", 0}, {271, "RAMLOAD", 1},
    {272, "ANYKEY", 0},  {273, "PAUSE", 1},   {274, "PARSE", 0},   {275, "NEWTEXT", 0}, {276, "BEEP", 2},
    {277, "PROCESS", 1}, {278, "DOALL", 1},   {279, "RESET", 1},   {280, "EXTERN", 1},  {281, "SCRIPT", 1},
    {282, "SOUND", 1},   {283, "FNTSIZE", 1}, {284, "BRIGHT", 1},  {285, "FLASH", 1},   {286, "INVERSE", 1},
    {287, "OVER", 1},    {288, "AGAIN", 0},   {289, "OOPS", 1},    {290, "AUTODEC", 2}, {291, "AUTOINC", 2},
    {292, "MESF", 1},    {293, "MESSGF", 1},  {294, "SYSMSGF", 1},
};

TEST_P(Lint, TheCatalogueHoldsEveryConditionAndAction) {
    ASSERT_EQ(std::size(kCondacts), 123u);
    Cursor& catalogue = adventure_->OpenTable(TableNum::CondActs, "*", "", "canum");
    EXPECT_EQ(catalogue.RecordCount(), 123);
    for (const Condact& condact : kCondacts) {
        ASSERT_EQ(catalogue.Number("canum"), condact.number);
        EXPECT_EQ(catalogue.Text("caname"), condact.name);
        EXPECT_EQ(catalogue.Number("canumparam"), condact.parameters) << condact.name;
        EXPECT_EQ(catalogue.Text("catype"), condact.number < 200 ? "Condition" : "Action") << condact.name;
        EXPECT_TRUE(text::EqualsNoCase(catalogue.Text("casubname"), condact.name)) << condact.name;
        catalogue.MoveNext();
    }
    EXPECT_EQ(All(TableNum::CondActs, "catype='Condition'").RecordCount(), 29);
    EXPECT_EQ(All(TableNum::CondActs, "catype='Action'").RecordCount(), 94);
}

TEST_P(Lint, EveryParameterKindIsKnownAndUnusedOnesAreNought) {
    const std::set<std::int64_t> kinds = {1, 2, 4, 6, 7, 8, 9, 10};
    for (Cursor& condact = All(TableNum::CondActs); !condact.Eof(); condact.MoveNext()) {
        const std::int64_t count = condact.Number("canumparam");
        EXPECT_EQ(kinds.contains(condact.Number("caparam1")), count >= 1) << condact.Text("caname");
        EXPECT_EQ(kinds.contains(condact.Number("caparam2")), count == 2) << condact.Text("caname");
        if (count < 1) {
            EXPECT_EQ(condact.Number("caparam1"), 0) << condact.Text("caname");
        }
        if (count < 2) {
            EXPECT_EQ(condact.Number("caparam2"), 0) << condact.Text("caname");
        }
        if (condact.Number("caparam1") == 10) {
            EXPECT_GT(condact.Number("camaxval1"), 0) << condact.Text("caname");
        }
        if (condact.Number("caparam2") == 10) {
            EXPECT_GT(condact.Number("camaxval2"), 0) << condact.Text("caname");
        }
    }
}

TEST_P(Lint, EveryConditionAndActionExistsInFabula) {
    EXPECT_EQ(All(TableNum::CondActs, "Fabula").RecordCount(), 123);
    EXPECT_EQ(All(TableNum::CondActs, "canum>=282 and (Vel or Marlo or PCVel)").RecordCount(), 0);
}

TEST_P(Lint, TheDrawingCommandsTakeTheirParameters) {
    const std::map<std::string, std::string> drawn = {
        {"ABSMOVE", "301 XP YP"},
        {"PLOT", "302 IO XP YP"},
        {"RELMOVE", "303 RX RY"},
        {"LINE", "304 IO RX RY"},
        {"FILL", "305 RX RY"},
        {"SHADE", "306 IO RX RY PA"},
        {"TEXT", "307 IO SE CH CX RO"},
        {"BLOCK", "308 HE WI CX RO"},
        {"INK", "309 CO"},
        {"PAPER", "310 CO"},
        {"BRIGHT", "311 BO"},
        {"FLASH", "313 BO"},
        {"GOSUB", "315 SC LO"},
        {"END", "325"},
        {"QSHADE", "327 IO RX RY QS"},
        {"RPLOT", "328 IO R1 R1"},
        {"QFILL", "329 RX RY"},
        {"BSHADE", "330 IO RX RY QS"},
    };
    for (const auto& [name, expected] : drawn) {
        const Cursor& command = All(TableNum::Commands, "coname='" + name + "'");
        ASSERT_EQ(command.RecordCount(), 1) << name;
        std::string found = std::to_string(command.Number("conum"));
        int count = 0;
        for (const char* field : {"dval1", "dval2", "dval3", "dval4", "dval5"}) {
            if (command.Text(field).empty()) continue;
            found += " " + std::string(command.Text(field));
            ++count;
        }
        EXPECT_EQ(found, expected);
        EXPECT_EQ(command.Number("codrwparam"), count) << name;
    }
}

TEST_P(Lint, TheDrawingCommandsTakeTheirTypedParameters) {
    const std::map<std::string, std::string> typed = {
        {"INK", " CO"},      {"PAPER", " CO"},    {"BRIGHT", " BO"},  {"FLASH", " BO"},  {"INVERSE", " BO"},
        {"OVER", " BO"},     {"SHADE", " SH SH"}, {"TEXT", " SE CH"}, {"QSHADE", " QS"}, {"BSHADE", " QS"},
        {"GOSUB", " SC LO"}, {"LINE", ""},        {"END", ""},        {"BLOCK", ""},     {"FILL", ""},
    };
    for (const auto& [name, expected] : typed) {
        const Cursor& command = All(TableNum::Commands, "coname='" + name + "'");
        std::string found;
        int count = 0;
        for (const char* field : {"cval1", "cval2", "cval3"}) {
            if (command.Text(field).empty()) continue;
            found += " " + std::string(command.Text(field));
            ++count;
        }
        EXPECT_EQ(found, expected) << name;
        EXPECT_EQ(command.Number("cocmdparam"), count) << name;
    }
}

TEST_P(Lint, EveryTagOfTheMarkupIsThere) {
    const std::map<std::string, std::string> tags = {
        {"paper", "0 2 CO"}, {"ink", "1 2 CO"},    {"tab", "2 0 "},       {"over", "3 0 "},
        {"/over", "4 0 "},   {"flash", "5 0 "},    {"/flash", "6 0 "},    {"bright", "7 0 "},
        {"/bright", "8 0 "}, {"inverse", "11 0 "}, {"/inverse", "12 0 "}, {"#", "13 1 CH"},
        {"br", "16 0 "},     {"cr", "17 0 "},      {"blink", "18 0 "},    {"/blink", "19 0 "},
    };
    for (const auto& [tag, expected] : tags) {
        const Cursor& code = All(TableNum::Codes, "FabulaTag=" + QuoteText(tag));
        ASSERT_EQ(code.RecordCount(), 1) << tag;
        EXPECT_EQ(std::to_string(code.Number("codenum")) + " " +
                      std::to_string(code.Number("FabulaTagParam")) + " " +
                      std::string(code.Text("FabulaTagVal")),
                  expected)
            << tag;
    }
    EXPECT_EQ(All(TableNum::Codes, "FabulaTag like 'cha%' and FabulaTagVal='SE'").RecordCount(), 1);
    EXPECT_EQ(All(TableNum::Codes, "FabulaTag like 'fnt%' and FabulaTagVal='FO'").RecordCount(), 1);
}

TEST_P(Lint, EveryTagHasBothNamesAndAKnownCheck) {
    std::set<std::string> names;
    std::set<std::string> otherNames;
    for (Cursor& code = All(TableNum::Codes, "FabulaTag<>''"); !code.Eof(); code.MoveNext()) {
        const std::string tag(code.Text("FabulaTag"));
        EXPECT_EQ(tag, text::LowerCase(tag));
        EXPECT_TRUE(names.insert(tag).second) << tag;
        EXPECT_TRUE(otherNames.insert(std::string(code.Text("ACETag"))).second) << tag;
        EXPECT_NE(code.Text("ACETag"), "") << tag;
        const std::set<std::string> checks = {"SE", "CO", "FO", "CH"};
        const bool takesValue = code.Number("FabulaTagParam") > 0;
        EXPECT_LE(code.Number("FabulaTagParam"), 2) << tag;
        EXPECT_EQ(checks.contains(std::string(code.Text("FabulaTagVal"))), takesValue) << tag;
        if (tag.starts_with('/')) {
            EXPECT_TRUE(names.contains(tag.substr(1))) << tag << " closes nothing";
        }
    }
    EXPECT_EQ(All(TableNum::Codes, "FabulaTag='' and ACETag<>''").RecordCount(), 0);
}

TEST_P(Lint, TheVoicesFontsAndSizesAreThere) {
    EXPECT_EQ(All(TableNum::Codes, "voicename<>''").RecordCount(), 128);
    EXPECT_EQ(All(TableNum::Codes, "voicename<>'' and (codenum<0 or codenum>127)").RecordCount(), 0);
    EXPECT_EQ(All(TableNum::Codes, "codenum=0").Text("voicename"), "Acoustic Grand Piano");
    EXPECT_EQ(All(TableNum::Codes, "codenum=127").Text("voicename"), "Gunshot");
    EXPECT_GT(All(TableNum::Codes, "FontName<>''").RecordCount(), 10);
    EXPECT_EQ(All(TableNum::Codes, "FontSize<=0").RecordCount(), 0);
    EXPECT_GT(All(TableNum::Codes, "codenum>127 and FontSize>72").RecordCount(), 5);
}

TEST_P(Lint, EveryNodeOfTheTreeHasAParentATableAndTwoIcons) {
    std::set<std::string> above = {""};
    for (Cursor& node = All(TableNum::DataBases); !node.Eof(); node.MoveNext()) {
        const std::string name(node.Text("dbtreename"));
        const std::string icon(node.Text("dbtreeiconkey"));
        EXPECT_TRUE(above.contains(std::string(node.Text("dbtreeparent"))))
            << name << " stands before its parent";
        above.emplace(node.Text("dbtreekey"));
        const TableEntry* table = FindTable(static_cast<TableNum>(node.Number("dbnum")));
        ASSERT_TRUE(table) << name;
        EXPECT_EQ(node.Text("DBName"), table->name) << name;
        EXPECT_NE(icon, "") << name;
        EXPECT_EQ(node.Text("dbtreeiconname"), icon + "-open") << name;
        const std::set<std::string> types = {"VF", "VMF", "D", "C", "G"};
        EXPECT_TRUE(types.contains(std::string(node.Text("tabletype")))) << name;
    }
}

TEST_P(Lint, EveryTableHasANodeInTheTree) {
    for (const TableEntry& table : AllTables()) {
        EXPECT_GT(All(TableNum::DataBases, "dbnum=" + std::to_string(static_cast<int>(table.number)))
                      .RecordCount(),
                  0)
            << table.name;
    }
}

using Glyph = std::vector<int>;

Glyph GlyphOf(std::string_view values) {
    Glyph glyph;
    for (const std::string_view value : text::Split(values, " "))
        glyph.push_back(std::stoi(std::string(value)));
    return glyph;
}

int InkOf(const Glyph& glyph) {
    int ink = 0;
    for (const int row : glyph)
        ink += std::popcount(static_cast<unsigned>(row));
    return ink;
}

class CharacterLint : public Lint {
  protected:
    std::map<std::int64_t, Glyph> Glyphs() {
        std::map<std::int64_t, Glyph> glyphs;
        for (Cursor& character = All(TableNum::Characters); !character.Eof(); character.MoveNext())
            glyphs[character.Number("charnum")] = GlyphOf(character.Text("charvals"));
        return glyphs;
    }
};

INSTANTIATE_TEST_SUITE_P(Types, CharacterLint,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo),
                         [](const auto& type) { return std::string(NameOf(type.param)); });

TEST_P(CharacterLint, TheDefaultSetHoldsItsCharacters) {
    std::vector<std::int64_t> numbers;
    for (Cursor& character = All(TableNum::Characters); !character.Eof(); character.MoveNext()) {
        numbers.push_back(character.Number("charnum"));
        EXPECT_EQ(character.Number("charsetnum"), 0);
        EXPECT_EQ(character.Number("charkey"), character.Number("charnum"));
        EXPECT_EQ(character.Text("charset"), "SET 0000");
        EXPECT_EQ(character.Text("charsetname"), "Default");
    }
    std::vector<std::int64_t> expected;
    for (int number = 0; number <= 164; ++number) {
        if (number < 16 || number > 31) expected.push_back(number);
    }
    EXPECT_EQ(numbers, expected);
}

TEST_P(CharacterLint, ACharacterHasEightBytes) {
    for (const auto& [number, glyph] : Glyphs()) {
        EXPECT_EQ(glyph.size(), 8u) << number;
        for (const int row : glyph) {
            EXPECT_GE(row, 0) << number;
            EXPECT_LE(row, 255) << number;
        }
    }
}

TEST_P(CharacterLint, EveryShadeIsDenserThanTheOneBefore) {
    auto glyphs = Glyphs();
    for (int shade = 1; shade < 16; ++shade)
        EXPECT_GT(InkOf(glyphs[shade]), InkOf(glyphs[shade - 1])) << shade;
}

TEST_P(CharacterLint, TheBlankIsEmptyAndCharacter143IsSolid) {
    auto glyphs = Glyphs();
    EXPECT_EQ(glyphs[32], Glyph(8, 0));
    EXPECT_EQ(glyphs[143], Glyph(8, 255));
}

TEST_P(CharacterLint, TheCharactersOfTheFontAreDistinct) {
    std::map<Glyph, std::int64_t> seen;
    for (const auto& [number, glyph] : Glyphs()) {
        if (number < 32 || number > 127) continue;
        const auto [place, isNew] = seen.emplace(glyph, number);
        EXPECT_TRUE(isNew) << number << " looks like " << place->second;
    }
}

TEST_P(CharacterLint, TheBlocksAreTheSixteenOfFourQuarters) {
    std::set<Glyph> blocks;
    for (const auto& [number, glyph] : Glyphs()) {
        if (number < 128 || number > 143) continue;
        EXPECT_TRUE(blocks.insert(glyph).second) << number;
        for (int row = 0; row < 8; ++row) {
            const int bits = glyph[static_cast<std::size_t>(row)];
            EXPECT_TRUE(bits == 0 || bits == 0x0f || bits == 0xf0 || bits == 0xff) << number;
            EXPECT_EQ(bits, glyph[row < 4 ? 0u : 4u]) << number;
        }
    }
    EXPECT_EQ(blocks.size(), 16u);
}

}  // namespace
}  // namespace fabula::store
