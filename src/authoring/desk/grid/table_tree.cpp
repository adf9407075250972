#include "authoring/desk/grid/table_tree.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "text/encoding/utf8.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

/// A record of `DataBases`.
struct TreeRow {
    TreeNode node;
    std::string parentKey;
    std::string tableType;
};

constexpr std::string_view kRootKey = "0_";
/// The name of a node, like the type of the adventure, is no longer, in characters.
constexpr std::size_t kLongestName = 60;
/// A tree of the program has some thirty nodes. More records than these are left out.
constexpr std::size_t kMostNodes = 500;

std::vector<TreeRow> ReadRows(store::Adventure& adventure) {
    const bool oldFile =
        adventure.OpenTable(TableNum::DataBases, "dbnum", "dbnum=35", "dbtreesort").RecordCount() == 0;
    store::Cursor& rows = adventure.OpenTable(
        TableNum::DataBases, "def",
        oldFile ? std::optional<std::string_view>("dbtreesort<16") : std::nullopt, "dbtreesort");
    std::vector<TreeRow> read;
    for (; !rows.Eof() && read.size() < kMostNodes; rows.MoveNext()) {
        TreeRow row;
        row.node.sort = static_cast<int>(rows.Number("dbtreesort"));
        row.node.key = rows.Text("dbtreekey");
        row.node.name = text::Left(rows.Text("dbtreename"), kLongestName);
        row.node.icon = rows.Text("dbtreeiconkey");
        row.node.selectedIcon = rows.Text("dbtreeiconname");
        row.node.view.table = static_cast<TableNum>(rows.Number("dbnum"));
        row.parentKey = rows.Text("dbtreeparent");
        row.tableType = rows.Text("tabletype");
        read.push_back(std::move(row));
    }
    return read;
}

bool IsTable(TableNum table) {
    const store::TableEntry* const entry = store::FindTable(table);
    return entry && entry->number == table;
}

bool IsShown(const std::string& tableType, const store::Adventure& adventure, bool maintenance) {
    if (tableType == "D") return maintenance;
    if (tableType == "C") return adventure.CharSetsOn();
    if (tableType == "G") return adventure.GraphicsOn();
    return text::UpperCase(tableType).find(text::UpperCase(text::Left(adventure.AdventureType(), 1))) !=
           std::string::npos;
}

bool IsExpanded(const std::string& key, const store::Adventure& adventure) {
    if (key == "14_") return adventure.CharSetsOn();
    if (key == "15_") return adventure.GraphicsOn();
    return key == kRootKey || key == "8_" || key == "9_";
}

/// The single nodes of the process tables stand in the order of the processes, the last one for all others.
void NumberProcesses(std::vector<TreeRow>& rows) {
    std::set<std::string_view> parents;
    for (const TreeRow& row : rows)
        parents.insert(row.parentKey);
    int process = 0;
    for (TreeRow& row : rows) {
        if (row.node.view.table != TableNum::ProcessTables || parents.contains(row.node.key)) continue;
        row.node.view.process = std::min(process++, kOtherProcesses);
    }
}

/// The place of the node with this key among those that stand already; nullopt when there is none.
std::optional<std::size_t> PlaceOf(const std::vector<TreeNode>& nodes, const std::string& key) {
    const auto node = std::ranges::find_if(nodes, [&](const TreeNode& each) { return each.key == key; });
    if (node == nodes.end()) return std::nullopt;
    return static_cast<std::size_t>(node - nodes.begin());
}

}  // namespace

std::vector<TreeNode> LoadTreeView(store::Adventure& adventure, bool maintenance) {
    std::vector<TreeRow> rows = ReadRows(adventure);
    NumberProcesses(rows);
    std::vector<TreeNode> nodes;
    for (TreeRow& row : rows) {
        if (!IsTable(row.node.view.table) || !IsShown(row.tableType, adventure, maintenance)) continue;
        if (!row.parentKey.empty()) {
            row.node.parent = PlaceOf(nodes, row.parentKey);
            if (!row.node.parent) continue;
            nodes[*row.node.parent].group = true;
        }
        row.node.expanded = IsExpanded(row.node.key, adventure);
        nodes.push_back(std::move(row.node));
    }
    return nodes;
}

const TreeNode* NodeAt(const std::vector<TreeNode>& nodes, int sort) {
    const auto node = std::ranges::find_if(nodes, [&](const TreeNode& each) { return each.sort == sort; });
    return node == nodes.end() ? nullptr : &*node;
}

const TreeNode* NodeOf(const std::vector<TreeNode>& nodes, const TableView& view) {
    const TreeNode* group = nullptr;
    for (const TreeNode& node : nodes) {
        if (node.view != view) continue;
        if (!node.group) return &node;
        if (!group) group = &node;
    }
    return group;
}

std::string AdventureStatus(const store::Adventure& adventure) {
    const auto onOrOff = [](bool on) { return on ? "ON" : "OFF"; };
    return "Adventure Type: " + std::string(text::Left(adventure.AdventureType(), kLongestName)) +
           "     Graphics: " + onOrOff(adventure.GraphicsOn()) +
           "    CharSets: " + onOrOff(adventure.CharSetsOn());
}

}  // namespace fabula::authoring
