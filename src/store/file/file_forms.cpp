#include "store/file/file_forms.h"

#include "store/comments.h"
#include "store/schema/needed_fields.h"
#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

constexpr LaterField kLaterFields[] = {
    {TableNum::Adventure, "AdvDesc", 1},
    {TableNum::Adventure, "AdvPicLoc", 1},
    {TableNum::Package, "PkgInclude", 2},
    {TableNum::Package, "PkgType", 2},
    {TableNum::Package, "PkgName", 2},
    {TableNum::Package, "PkgPackage", 3},
    {TableNum::Adventure, "AdvContactInfo", 4},
    {TableNum::ProcDesc, "PMsgNum", 5},
    {TableNum::ProcDesc, "PMsgMsg", 5},
    {TableNum::ProcessTables, "NumericCondActs", 7},
    {TableNum::Locations, "LocShortDesc", 9},
    {TableNum::Tables, "Search", 10},
    {TableNum::System, "SystemNum", 11},
    {TableNum::System, "SysIniDate", 11},
    {TableNum::Tables, "TableKey", 12},
    {TableNum::Tables, "Expand", 13},
    {TableNum::Tables, "Export", 13},
    {TableNum::Tables, "See", 13},
    {TableNum::System, "SysExportVersion", 14},
    {TableNum::Codes, "CodeNum", 15},
    {TableNum::Codes, "VoiceName", 15},
    {TableNum::Codes, "FontName", 15},
    {TableNum::Codes, "FontSize", 15},
    {TableNum::Tables, "AllowAdd", 19},
    {TableNum::Tables, "AllowAddBef", 19},
    {TableNum::Tables, "AllowDelete", 19},
    {TableNum::Tables, "AllowEdit", 19},
    {TableNum::Tables, "AllowLoad", 19},
    {TableNum::Tables, "AllowSave", 19},
    {TableNum::Tables, "AllowPrint", 20},
    {TableNum::Tables, "AllowPrPre", 20},
    {TableNum::CondActs, "Fabula", 21},
    {TableNum::CondActs, "Vel", 21},
    {TableNum::CondActs, "Marlo", 21},
    {TableNum::Commands, "Fabula", 22},
    {TableNum::Commands, "Vel", 22},
    {TableNum::Commands, "Marlo", 22},
    {TableNum::Adventure, "AdvenType", 23},
    {TableNum::Adventure, "Graphics", 24},
    {TableNum::Adventure, "Sound", 25},
    {TableNum::Tables, "AllowKeyChg", 27},
    {TableNum::CondActs, "PCVel", 28},
    {TableNum::Tables, "AllowImpExp", 29},
    {TableNum::System, "IDEVersion", 30},
    {TableNum::System, "EngVersion", 30},
    {TableNum::Adventure, "CharSets", 31},
    {TableNum::Tables, "AllowExp", 36},
    {TableNum::Tables, "GridWidth", 36},
    {TableNum::DataBases, "TableType", 37},
    {TableNum::Adventure, "AdvPicGraphic", 39},
    {TableNum::Adventure, "DefPicGraphic", 39},
    {TableNum::Adventure, "GraphicsInDB", 39},
    {TableNum::Adventure, "GraphicsAdded", 39},
    {TableNum::Locations, "PicGraphic", 40},
    {TableNum::Adventure, "OldAdvPicLoc", 41},
    {TableNum::Adventure, "OldDefPicLoc", 41},
    {TableNum::Locations, "OldPicLoc", 42},
    {TableNum::Adventure, "SortObjects", 43},
    {TableNum::Adventure, "SortVocabulary", 43},
    {TableNum::Adventure, "SortTables", 43},
    {TableNum::Adventure, "SortCondActs", 43},
    {TableNum::Adventure, "SortCommands", 43},
    {TableNum::Codes, "FabulaTag", 44},
    {TableNum::Codes, "ACETag", 44},
    {TableNum::Codes, "FabulaTagParam", 45},
    {TableNum::Codes, "FabulaTagVal", 45},
    {TableNum::Adventure, "Source", 46},
    {TableNum::Flags, "FlgChg", 47},
    {TableNum::System, "FlagChange", 48},
    {TableNum::Tables, "FbbExp", 49},
    {TableNum::Tables, "AltName", 49},
    {TableNum::Tables, "AllowChgSort", 50},
    {TableNum::System, "Ifid", 51},
    {TableNum::Locations, kCommentField, 52},
    {TableNum::Messages, kCommentField, 52},
    {TableNum::Objects, kCommentField, 52},
    {TableNum::ProcessTables, kCommentField, 52},
    {TableNum::SystemMessages, kCommentField, 52},
    {TableNum::Vocabulary, kCommentField, 52},
    {TableNum::Flags, kCommentField, 52},
    {TableNum::ProcDesc, kCommentField, 52},
    {TableNum::Characters, kCommentField, 52},
    {TableNum::Pictures, kCommentField, 52},
};
static_assert(std::size(kLaterFields) > 0 && kLaterFields[std::size(kLaterFields) - 1].step == kLatestStep);

constexpr LaterTable kLaterTables[] = {
    {TableNum::Package, 2, false},  {TableNum::ProcDesc, 5, false},  {TableNum::System, 11, false},
    {TableNum::Codes, 15, false},   {TableNum::Commands, 17, true},  {TableNum::Characters, 17, true},
    {TableNum::Pictures, 17, true}, {TableNum::Templates, 35, true}, {TableNum::Header, 38, true},
};

}  // namespace

std::span<const LaterField> LaterFields() {
    return kLaterFields;
}

std::span<const LaterTable> LaterTables() {
    return kLaterTables;
}

const LaterField* FindLaterField(TableNum table, std::string_view field) {
    for (const LaterField& later : kLaterFields) {
        if (later.table == table && text::EqualsNoCase(later.name, field)) return &later;
    }
    return nullptr;
}

const LaterTable* FindLaterTable(TableNum table) {
    for (const LaterTable& later : kLaterTables) {
        if (later.table == table) return &later;
    }
    return nullptr;
}

const TableSchema& OldestTablesSchema() {
    static const TableSchema schema{"Tables",
                                    {{"TableName", FieldType::VarWChar, kDefaultTextSize},
                                     {"TableNum", FieldType::Integer},
                                     {"fieldname", FieldType::VarWChar, kDefaultTextSize},
                                     {"fieldtype", FieldType::VarWChar, kDefaultTextSize},
                                     {"FieldSize", FieldType::Integer}}};
    return schema;
}

FileForm FormOf(TableNum table, const TableSchema& schema) {
    const LaterTable* laterTable = FindLaterTable(table);
    if (schema.fields.empty()) return laterTable ? FileForm::Older : FileForm::Foreign;
    // A table never lacks a field that it was made with.
    const int madeBy = laterTable ? laterTable->step : 0;
    const auto isLater = [&](std::string_view field) {
        const LaterField* later = FindLaterField(table, field);
        return later && later->step > madeBy;
    };
    FileForm form = FileForm::Current;
    for (const FieldFault& fault : FaultsOfFields(table, schema)) {
        const bool wasText = fault.hasOtherClass && IsFontAsText(table, fault.field, schema);
        if (fault.hasOtherClass ? !wasText : !isLater(fault.field)) return FileForm::Foreign;
        form = FileForm::Older;
    }
    return form;
}

}  // namespace fabula::store
