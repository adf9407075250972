#include <algorithm>

#include "authoring/desk/ide_settings.h"
#include "authoring/desk/main_screen.h"
#include "authoring/fields/cond_act_help.h"

// Tree, grid and selection.

namespace fabula::authoring {

/// Reads what the adventure says of itself, and the tree with it.
void MainScreen::ActivateMenus() {
    store::Adventure& adventure = desk_->document.Adventure();
    adventure.ReadSettings();
    tree_ = LoadTreeView(adventure, maintenance_);
    ReadNextKeys(desk_->context);
}

void MainScreen::InActivateMenus() {
    tree_.clear();
    grid_.Clear();
    find_ = FindBox();
    rights_ = TableRights();
    places_.clear();
    tabs_ = OpenTabs();
    grouping_ = Grouping::None;
    heading_.reset();
    row_ = -1;
}

/// Goes where the author was the last time, as far as this adventure has it.
void MainScreen::LastTable() {
    const LastView last = ReadLastView(host_.settings);
    const TableView view = NodeOf(tree_, last.view) ? last.view : TableView();
    KeptDesk kept = ReadKeptDesk(host_.settings, desk_->document.File());
    tabs_ = std::move(kept.tabs);
    places_ = std::move(kept.places);
    TakeView(view);
    SetupGrid(view);
    GoToPlace(tabs_.Shown().place);
    StayOn(last.key, 0);
}

void MainScreen::SetupGrid(TableView view) {
    store::Adventure& adventure = desk_->document.Adventure();
    ScreenContext& context = desk_->context;
    // What can't be read leaves the view before.
    const TableRights rights = SetUpEdits(view.table);
    FindBox find = find_;
    find.SetUpFindComboBox(adventure, view.table);
    const PlaceInView kept = view == grid_.View() ? PlaceHere() : KeptPlaceOf(view);
    grid_.SetupGrid(adventure, view, maintenance_, commentsShown_, UsesIn(view.table));
    rights_ = rights;
    find_ = std::move(find);
    grouping_ = kept.grouping;
    grid_.Lines().SetFolded(kept.folded);
    heading_.reset();
    PutNames();
    context.currentTable = view.table;
    if (view.table == store::TableNum::ProcessTables) context.currentESNum = view.process;
    StayOn(std::nullopt, 0);
}

TableRights MainScreen::SetUpEdits(store::TableNum table) const {
    return ReadTableRights(desk_->document.Adventure(), table);
}

void MainScreen::StayOn(std::optional<int> key, int row) {
    const auto& groups = grid_.Lines().Groups();
    const auto heading = std::ranges::find_if(
        groups, [&](const RowGroup& group) { return !key && group.title == heading_; });
    if (heading != groups.end()) return SelectGroup(static_cast<int>(heading - groups.begin()));
    const std::optional<int> found = key ? grid_.RowOf(*key, row) : std::nullopt;
    const int near = std::min(std::max(row, 0), grid_.RowCount() - 1);
    const int group = grid_.Lines().GroupOf(near);
    // Nobody asked for what is folded.
    if (!found && group >= 0 && grid_.Lines().IsFolded(group)) return SelectGroup(group);
    SelectRow(found.value_or(near));
}

void MainScreen::ShowNode(int sort) {
    const TreeNode* const node = NodeAt(tree_, sort);
    if (node) Show(node->view);
}

void MainScreen::Show(TableView view) {
    if (!desk_ || running_) return;
    message_.clear();
    Guard([&] {
        KeepPlace();
        if (view != grid_.View()) tabs_.Shown().record = false;
        SetupGrid(view);
        GoToPlace(KeptPlaceOf(view));
        RememberView();
    });
}

void MainScreen::SelectRow(int row) {
    row_ = row >= 0 && row < grid_.RowCount() ? row : -1;
    heading_.reset();
    const int group = grid_.Lines().GroupOf(row_);
    if (group >= 0 && grid_.Lines().IsFolded(group)) grid_.Lines().Fold(group, false);
    if (desk_) desk_->context.currentEntry = row_ < 0 ? 0 : grid_.KeyOf(row_);
}

std::optional<int> MainScreen::CurrentKey() const {
    if (row_ < 0) return std::nullopt;
    return grid_.KeyOf(row_);
}

void MainScreen::ClickColumn(int column) {
    const std::optional<int> key = CurrentKey();
    grid_.ClickColumn(column);
    StayOn(key, row_);
}

void MainScreen::SetFilter(std::string_view text) {
    const std::optional<int> key = CurrentKey();
    grid_.SetFilter(text);
    StayOn(key, row_);
}

void MainScreen::ResizeColumn(int column, int width) {
    if (!desk_ || desk_->document.IsReadOnly()) return;
    Guard([&] { grid_.ResizeColumn(desk_->document.Adventure(), column, width); });
}

void MainScreen::Refresh() {
    if (!desk_) return;
    Guard([&] { ReadAgain(); });
}

/// Reads everything that is shown again, after the adventure was changed, and stays on the row.
void MainScreen::ReadAgain() {
    const std::optional<int> key = CurrentKey();
    const int row = row_;
    const std::string before = AdventureStatus();
    ActivateMenus();
    TableView view = grid_.View();
    if (view.table == store::TableNum::ProcessTables) view.process = desk_->context.currentESNum;
    if (!NodeOf(tree_, view)) view = TableView();
    if (view != grid_.View()) tabs_.Shown() = {};
    if (view != grid_.View() || AdventureStatus() != before) {
        SetupGrid(view);
    } else {
        PutNames();
        grid_.Refresh(desk_->document.Adventure());
    }
    StayOn(key, row);
}

/// The names and the groups are read from the adventure as it is now.
void MainScreen::PutNames() {
    const bool areEntries = grid_.View().table == store::TableNum::ProcessTables;
    store::Adventure& adventure = desk_->document.Adventure();
    grid_.ShowNames(namesShown_ && areEntries ? std::make_shared<const CondActHelp>(adventure) : nullptr);
    const bool grouped = areEntries && grouping_ != Grouping::None;
    grid_.GroupBy(grouped ? std::make_shared<const EntryGroups>(adventure, grouping_) : nullptr);
}

void MainScreen::ShowNames(bool shown) {
    namesShown_ = shown;
    Refresh();
}

void MainScreen::ShowComments(bool shown) {
    commentsShown_ = shown;
    if (!desk_ || running_) return;
    Guard([&] {
        const PlaceInView here = PlaceHere();
        SetupGrid(here.view);
        GoToPlace(here);
    });
}

std::optional<ScreenRequest> MainScreen::RecordBeside() {
    if (!desk_ || row_ < 0 || !StateOf(Command::Edit).enabled || desk_->document.IsReadOnly())
        return std::nullopt;
    changesBefore_ = desk_->document.Changes();
    std::optional<ScreenRequest> request;
    Guard([&] { request = Entries(desk_->context).RecordBeside(); });
    return request;
}

std::string MainScreen::AdventureStatus() const {
    return desk_ ? authoring::AdventureStatus(desk_->document.Adventure()) : "";
}

std::string MainScreen::TableStatus() const {
    if (!desk_) return "";
    const int records = grid_.RecordCount();
    std::string status = Caption() + " - " + std::to_string(records);
    status += records == 1 ? " record" : " records";
    if (!grid_.Filter().empty()) status += ", " + std::to_string(grid_.RowCount()) + " shown";
    return status;
}

const TreeNode* MainScreen::CurrentNode() const {
    return desk_ ? NodeOf(tree_, grid_.View()) : nullptr;
}

std::string MainScreen::Caption() const {
    if (const TreeNode* const node = CurrentNode()) return node->name;
    const store::TableEntry* const table = store::FindTable(grid_.View().table);
    return table ? std::string(table->name) : "";
}

}  // namespace fabula::authoring
