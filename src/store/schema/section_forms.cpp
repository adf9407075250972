#include "store/schema/section_forms.h"

namespace fabula::store {
namespace {

using Shape = SectionForm::Shape;

constexpr SectionForm kForms[] = {
    {TableNum::Locations, Shape::NumberedTexts, "numexits exits numericexits picloc pickey locshortdesc",
     "locnum", "locdesc"},
    {TableNum::Messages, Shape::NumberedTexts, "", "msgnum", "msgmsg"},
    {TableNum::Objects, Shape::NumberedRows,
     "objdesc objnoun objnumnoun objadject objnumadject objlocdesc objloc objweight objattrn objattr",
     "objnum", ""},
    {TableNum::Adventure, Shape::Rows,
     "advname - author - Version startloc maxobj maxweight Font FontSize BackColor textcolor defpickey "
     "defpicloc "
     "defsndchan defsnddev defsndvoice defsndvol defsndbal defsndbass defsnddevname defprintwidth advdesc "
     "advpicloc "
     "adventype sortobjects sortvocabulary sorttables sortcondacts sortcommands",
     "", ""},
    {TableNum::ProcessTables, Shape::Rows, "estype w1 w2 w1num w2num numcas CondActs", "canum", ""},
    {TableNum::SystemMessages, Shape::NumberedTexts, "", "smsgnum", "smsgmsg"},
    {TableNum::Vocabulary, Shape::Rows, "vocnum Word voctypen voctype", "vocindex", ""},
    {TableNum::Flags, Shape::NumberedRows, "flgtype flguse flgmod flgchg flgdesc", "flgnum", ""},
    {TableNum::CondActs, Shape::Rows,
     "canum catype caname casubname canumparam caparam1 camaxval1 caparam2 camaxval2 PageNum htmlpage "
     "Fabula Vel "
     "Marlo PCVel",
     "", ""},
    {TableNum::DataBases, Shape::NumberedRows,
     "DBName dbtreename dbtreeiconkey dbtreesort dbtreeparent dbtreekey dbtreeiconname tabletype", "dbnum",
     ""},
    {TableNum::Package, Shape::Rows, "PkgInclude PkgType PkgName PkgPackage", "", ""},
    {TableNum::ProcDesc, Shape::Rows, "pmsgnum pmsgmsg", "", ""},
    {TableNum::Header, Shape::Rows, "hdrkey hdrmess", "", ""},
    {TableNum::Codes, Shape::Rows,
     "codenum voicename FontName FontSize FabulaTag ACETag FabulaTagParam FabulaTagVal", "", ""},
    {TableNum::Commands, Shape::Rows,
     "conum coname ccsubname cdsubname cocmdparam codrwparam cval1 cval2 cval3 dval1 dval2 dval3 dval4 "
     "dval5 PageNum "
     "htmlpage Fabula Vel Marlo",
     "", ""},
};

}  // namespace

std::span<const SectionForm> SectionForms() {
    return kForms;
}

}  // namespace fabula::store
