#include "authoring/desk/grid/field_titles.h"

#include "text/encoding/utf8.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

struct TitledField {
    TableNum table;
    std::string_view field;
    std::string_view title;
};

/// Fields that authors see and that have no other name.
constexpr TitledField kTitles[] = {
    {TableNum::Characters, "charset", "Set"},
    {TableNum::Characters, "charsetname", "Name of the set"},
    {TableNum::Characters, "charnum", "Character"},
    {TableNum::Characters, "charvals", "Rows of dots"},
    {TableNum::Sounds, "sndnum", "Note"},
    {TableNum::Sounds, "sndfreq", "Frequency"},
    {TableNum::Templates, "tempname", "Name"},
    {TableNum::Templates, "commands", "Commands"},
};

}  // namespace

std::string FieldTitle(store::TableNum table, std::string_view field, std::string_view other) {
    if (!other.empty()) return std::string(other);
    for (const TitledField& each : kTitles) {
        if (each.table == table && text::EqualsNoCase(each.field, field)) return std::string(each.title);
    }
    return std::string(field);
}

}  // namespace fabula::authoring
