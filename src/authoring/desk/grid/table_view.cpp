#include "authoring/desk/grid/table_view.h"

#include <string_view>
#include <utility>

#include "condacts/process_filters.h"

namespace fabula::authoring {

using store::TableNum;

namespace {

constexpr std::pair<TableNum, std::string_view> kWords[] = {
    {TableNum::Locations, "Location"},
    {TableNum::Messages, "Message"},
    {TableNum::Objects, "Object"},
    {TableNum::Adventure, "Adventure Settings"},
    {TableNum::SystemMessages, "System Message"},
    {TableNum::Vocabulary, "Vocabulary "},
    {TableNum::Flags, "Flag"},
    {TableNum::CondActs, "Condition/Action"},
    {TableNum::DataBases, "Database"},
    {TableNum::Tables, "Table"},
    {TableNum::ProcDesc, "Process Description"},
    {TableNum::Header, "Header"},
    {TableNum::System, "System"},
    {TableNum::Codes, "Special Code"},
    {TableNum::Commands, "Graphics Command"},
    {TableNum::Characters, "Character Set"},
    {TableNum::Pictures, "Picture Graphic"},
    {TableNum::Templates, "Template"},
};

}  // namespace

std::string FilterOf(const TableView& view) {
    switch (view.table) {
        case TableNum::Tables:
            return "tablekey>=0";
        case TableNum::DataBases:
            return "dbnum>=0";
        case TableNum::ProcessTables:
            if (view.process >= kOtherProcesses) return condacts::BehindFixedProcesses("estype");
            return "estype=" + std::to_string(view.process);
        default:
            return "";
    }
}

std::string CaptionWord(const TableView& view) {
    if (view.table == TableNum::ProcessTables)
        return "Process Record " + (view.process < kOtherProcesses
                                        ? std::to_string(view.process)
                                        : std::to_string(kOtherProcesses) + " or above");
    for (const auto& [table, word] : kWords) {
        if (table == view.table) return std::string(word);
    }
    return "";
}

}  // namespace fabula::authoring
