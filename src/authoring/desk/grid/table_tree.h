#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "authoring/desk/grid/table_view.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// A node of the main window's tree.
struct TreeNode {
    int sort = 0;      ///< its position, by which a selected node is found
    std::string key;   ///< "8_"
    std::string name;  ///< what the tree shows
    std::string icon;
    std::string selectedIcon;
    std::optional<std::size_t> parent;  ///< its place in the list; always before its children
    TableView view;                     ///< what it opens; a group opens what its first node opens
    bool group = false;                 ///< other nodes stand below it
    bool expanded = false;              ///< it is shown opened
};

/// The nodes of the tree, in their order: those of the records of `DataBases` that the type of the
/// adventure, its graphics and its character sets admit. `maintenance` adds the nodes of the program's own
/// tables. Records that name no table are left out, and so are nodes below one that is left out.
std::vector<TreeNode> LoadTreeView(store::Adventure& adventure, bool maintenance);

/// The node with this position, or the one that shows this view best (a single table before a group);
/// nullptr when there is none.
const TreeNode* NodeAt(const std::vector<TreeNode>& nodes, int sort);
const TreeNode* NodeOf(const std::vector<TreeNode>& nodes, const TableView& view);

/// What the status line says of the adventure: "Adventure Type: Fabula     Graphics: OFF    CharSets: OFF".
std::string AdventureStatus(const store::Adventure& adventure);

}  // namespace fabula::authoring
