#include "store/schema/needed_fields.h"

#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::store {
namespace {

struct NeededRow {
    TableNum table;
    FieldClass fieldClass;
    std::string_view names;  ///< between blanks
};

constexpr NeededRow kNeeded[] = {
    {TableNum::Locations, FieldClass::Number, "locnum numexits"},
    {TableNum::Locations, FieldClass::Text,
     "exits numericexits picloc pickey locshortdesc locdesc oldpicloc comment"},
    {TableNum::Locations, FieldClass::Binary, "picgraphic"},
    {TableNum::Messages, FieldClass::Number, "msgnum"},
    {TableNum::Messages, FieldClass::Text, "msgmsg comment"},
    {TableNum::Sounds, FieldClass::Number, "sndnum sndfreq"},
    {TableNum::Objects, FieldClass::Number, "objnum objnumnoun objnumadject objloc objweight objattrn"},
    {TableNum::Objects, FieldClass::Text, "objdesc objnoun objadject objlocdesc objattr comment"},
    {TableNum::Adventure, FieldClass::Text,
     "advnum advname savename author Version defpickey defpicloc defsnddevname adventype "
     "olddefpicloc sortobjects sortvocabulary sorttables "
     "sortcondacts sortcommands source DateCreated"},
    {TableNum::Adventure, FieldClass::Number,
     "startloc maxobj maxweight Font FontSize BackColor textcolor defsndchan defsnddev defsndvoice "
     "defsndvol defsndbal defsndbass defprintwidth unmarloed"},
    {TableNum::Adventure, FieldClass::Truth, "graphics sound charsets graphicsindb graphicsadded"},
    {TableNum::Adventure, FieldClass::Binary, "defpicgraphic"},
    {TableNum::ProcessTables, FieldClass::Number, "canum estype w1num w2num numcas"},
    {TableNum::ProcessTables, FieldClass::Text, "w1 w2 CondActs numericcondacts comment"},
    {TableNum::SystemMessages, FieldClass::Number, "smsgnum"},
    {TableNum::SystemMessages, FieldClass::Text, "smsgmsg comment"},
    {TableNum::Vocabulary, FieldClass::Number, "vocindex vocnum voctypen"},
    {TableNum::Vocabulary, FieldClass::Text, "Word voctype comment"},
    {TableNum::Flags, FieldClass::Number, "flgnum flgmod"},
    {TableNum::Flags, FieldClass::Text, "flgtype flguse flgdesc comment"},
    {TableNum::Flags, FieldClass::Truth, "flgchg"},
    {TableNum::CondActs, FieldClass::Number,
     "canum canumparam caparam1 caparam2 camaxval1 camaxval2 PageNum"},
    {TableNum::CondActs, FieldClass::Text, "catype caname casubname htmlpage"},
    {TableNum::CondActs, FieldClass::Truth, "Fabula Vel Marlo PCVel"},
    {TableNum::DataBases, FieldClass::Number, "dbnum dbtreesort"},
    {TableNum::DataBases, FieldClass::Text,
     "DBName dbtreename dbtreeparent dbtreekey dbtreeiconkey dbtreeiconname tabletype"},
    {TableNum::Tables, FieldClass::Number, "tablekey TableNum FieldSize see export gridwidth fbbexp"},
    {TableNum::Tables, FieldClass::Text,
     "TableName fieldname fieldtype search Expand allowadd allowaddbef AllowDelete allowedit allowload "
     "allowsave allowprint allowprpre allowkeychg allowimpexp altname allowchgsort"},
    {TableNum::Package, FieldClass::Text, "PkgInclude PkgType PkgName PkgPackage"},
    {TableNum::ProcDesc, FieldClass::Number, "pmsgnum"},
    {TableNum::ProcDesc, FieldClass::Text, "pmsgmsg comment"},
    {TableNum::Header, FieldClass::Text, "hdrkey hdrmess"},
    {TableNum::System, FieldClass::Number, "systemnum"},
    {TableNum::System, FieldClass::Text, "sysinidate sysexportversion"},
    {TableNum::System, FieldClass::Truth, "flagchange"},
    {TableNum::Codes, FieldClass::Number, "codenum FontSize FabulaTagParam"},
    {TableNum::Codes, FieldClass::Text, "voicename FontName FabulaTag ACETag FabulaTagVal"},
    {TableNum::Commands, FieldClass::Number, "conum cocmdparam codrwparam PageNum"},
    {TableNum::Commands, FieldClass::Text,
     "coname ccsubname cdsubname cval1 cval2 cval3 dval1 dval2 dval3 dval4 dval5 htmlpage"},
    {TableNum::Commands, FieldClass::Truth, "Fabula Vel Marlo"},
    {TableNum::Characters, FieldClass::Number, "charkey charsetnum charnum"},
    {TableNum::Characters, FieldClass::Text, "CharSet charsetname charvals comment"},
    {TableNum::Pictures, FieldClass::Number, "locnum locpaper locink roompicnum"},
    {TableNum::Pictures, FieldClass::Text, "loctype drawstring picname comment"},
    {TableNum::Templates, FieldClass::Text, "Tempname commands"},
};

}  // namespace

std::vector<FieldFault> FaultsOfFields(TableNum table, const TableSchema& schema) {
    std::vector<FieldFault> faults;
    for (const NeededRow& row : kNeeded) {
        if (row.table != table) continue;
        for (const std::string_view name : text::Split(row.names, " ")) {
            const auto field = schema.Find(name);
            if (!field) {
                faults.push_back({name, false});
                continue;
            }
            const FieldType type = schema.fields[*field].type;
            if (ClassOf(type) != row.fieldClass || type == FieldType::Double)
                faults.push_back({name, true});
        }
    }
    return faults;
}

bool IsFontAsText(TableNum table, std::string_view field, const TableSchema& schema) {
    if (table != TableNum::Adventure || !text::EqualsNoCase(field, "font")) return false;
    const auto font = schema.Find("font");
    return font && schema.fields[*font].type == FieldType::VarWChar;
}

}  // namespace fabula::store
