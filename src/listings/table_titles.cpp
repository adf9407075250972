#include "listings/table_titles.h"

#include <string_view>

#include "authoring/document/screen_context.h"

namespace fabula::listings {
namespace {

using store::TableNum;

struct TableTitle {
    TableNum table{};
    int process = 0;
    std::string_view title;
};

constexpr TableTitle kTitles[] = {
    {TableNum::Locations, 0, "Location Table"},
    {TableNum::Messages, 0, "Messages Table"},
    {TableNum::SystemMessages, 0, "System Message Table"},
    {TableNum::Objects, 0, "Object Table"},
    {TableNum::Adventure, 0, "Adventure Settings"},
    {TableNum::ProcessTables, 0, "Response (P0) Table"},
    {TableNum::ProcessTables, 1, "Process 1 Table"},
    {TableNum::ProcessTables, 2, "Process 2 Table"},
    {TableNum::ProcessTables, authoring::kOtherProcesses, "Other Process Tables"},
    {TableNum::Vocabulary, 0, "Vocabulary Table"},
    {TableNum::Flags, 0, "Flag Descriptions Table"},
    {TableNum::ProcDesc, 0, "Process Descriptions Table"},
    {TableNum::Characters, 0, "Character Set Table"},
    {TableNum::Pictures, 0, "Graphics Table"},
    {TableNum::Templates, 0, "Keypad Templates"},
};

}  // namespace

std::string PrintTitle(TableNum table, int process) {
    for (const TableTitle& title : kTitles) {
        if (title.table == table && title.process == process) return std::string(title.title);
    }
    return "";
}

}  // namespace fabula::listings
