#include <algorithm>

#include "authoring/desk/ide_settings.h"
#include "authoring/desk/main_screen.h"
#include "references/kinds.h"

// Tabs, the places that they keep, and how rows are grouped.

namespace fabula::authoring {

PlaceInView MainScreen::PlaceHere() const {
    PlaceInView place{.view = grid_.View(), .key = CurrentKey(), .filter = grid_.Filter()};
    if (const auto column = grid_.SortColumn())
        place.sortField = grid_.Columns()[static_cast<std::size_t>(*column)].field;
    place.sortsDown = grid_.SortsDown();
    place.grouping = grouping_;
    place.folded = grid_.Lines().Folded();
    return place;
}

void MainScreen::KeepPlace() {
    const PlaceInView here = PlaceHere();
    std::erase_if(places_, [&](const PlaceInView& place) { return place.view == here.view; });
    places_.push_back(here);
    tabs_.Shown().place = here;
}

PlaceInView MainScreen::KeptPlaceOf(const TableView& view) const {
    const auto place =
        std::ranges::find_if(places_, [&](const PlaceInView& kept) { return kept.view == view; });
    return place == places_.end() ? PlaceInView{.view = view} : *place;
}

/// Groups, filter, order and row of the view that is shown, as they were when the author left it.
void MainScreen::GoToPlace(const PlaceInView& place) {
    if (grouping_ != place.grouping) {
        grouping_ = place.grouping;
        PutNames();
    }
    grid_.Lines().SetFolded(place.folded);
    grid_.SetFilter(place.filter);
    if (!place.sortField.empty()) grid_.SortBy(place.sortField, place.sortsDown);
    StayOn(place.key, 0);
}

int MainScreen::CurrentLine() const {
    const GridLines& lines = grid_.Lines();
    if (row_ >= 0) return lines.OfRow(row_);
    for (int group = 0; heading_ && group < static_cast<int>(lines.Groups().size()); ++group) {
        if (lines.Groups()[static_cast<std::size_t>(group)].title == heading_) return lines.OfGroup(group);
    }
    return -1;
}

void MainScreen::SelectLine(int line) {
    if (line < 0 || line >= grid_.Lines().Count()) return SelectRow(-1);
    const GridLine at = grid_.Lines().At(line);
    if (at.IsHeading()) return SelectGroup(at.group);
    SelectRow(at.row);
}

void MainScreen::SelectGroup(int group) {
    SelectRow(-1);
    heading_ = grid_.Lines().Groups().at(static_cast<std::size_t>(group)).title;
}

void MainScreen::GroupRows(Grouping grouping) {
    if (!desk_ || grouping == grouping_) return;
    const std::optional<int> key = CurrentKey();
    grouping_ = grouping;
    Guard([&] {
        grid_.Lines().SetFolded({});
        PutNames();
        StayOn(key, row_);
        RememberView();
    });
}

void MainScreen::FoldGroup(int group, bool folded) {
    const bool hidesRow = folded && row_ >= 0 && grid_.Lines().GroupOf(row_) == group;
    grid_.Lines().Fold(group, folded);
    if (hidesRow) SelectGroup(group);
}

void MainScreen::FoldAll(bool folded) {
    const int group = grid_.Lines().GroupOf(row_);
    grid_.Lines().FoldAll(folded);
    if (folded && group >= 0) SelectGroup(group);
}

/// The counter, when the table has the column. Entries of process tables have none: nothing names them.
UseCounter MainScreen::UsesIn(store::TableNum table) const {
    if (!countUses || !UsesColumn(host_.settings) || !references::KindOf(table)) return {};
    // The grid may outlive who counts.
    return [this](store::TableNum of, const std::vector<int>& keys) {
        return countUses ? countUses(of, keys) : std::vector<int>(keys.size());
    };
}

void MainScreen::ShowUsesColumn(bool shown) {
    SetUsesColumn(host_.settings, shown);
    if (!desk_) return;
    Guard([&] {
        const PlaceInView here = PlaceHere();
        SetupGrid(here.view);
        GoToPlace(here);
    });
}

std::string MainScreen::TabTitle(int tab) const {
    const OpenTab& shown = tabs_.All().at(static_cast<std::size_t>(tab));
    const bool current = tab == tabs_.Current();
    const TableView view = current ? grid_.View() : shown.place.view;
    const TreeNode* const node = NodeOf(tree_, view);
    std::string title = node ? node->name : "";
    const std::optional<int> key = current ? CurrentKey() : shown.place.key;
    if (shown.record && key) title.append(" ").append(std::to_string(*key));
    return title;
}

/// Makes the tab current that shows a view, or shows it in the one that is.
void MainScreen::TakeView(const TableView& view) {
    if (tabs_.Shown().place.view == view) return;
    const auto found =
        std::ranges::find_if(tabs_.All(), [&](const OpenTab& tab) { return tab.place.view == view; });
    if (found != tabs_.All().end()) return tabs_.GoTo(static_cast<int>(found - tabs_.All().begin()));
    tabs_.Shown() = {.place = KeptPlaceOf(view)};
}

void MainScreen::ShowTab() {
    message_.clear();
    Guard([&] {
        const PlaceInView place = tabs_.Shown().place;
        // What the tree does not have any more, as character sets that were switched off.
        if (!NodeOf(tree_, place.view)) {
            if (!tabs_.Close(tabs_.Current())) tabs_.Shown() = {};
            return ShowTab();
        }
        SetupGrid(place.view);
        GoToPlace(place);
        RememberView();
    });
}

void MainScreen::OpenInTab(TableView view) {
    if (!desk_ || running_) return;
    KeepPlace();
    if (tabs_.Open({.place = KeptPlaceOf(view)})) return ShowTab();
    message_ = "There are too many tabs; close one first.";
}

void MainScreen::OpenRecordInTab() {
    if (!desk_ || running_ || row_ < 0) return;
    KeepPlace();
    if (tabs_.Open({.place = tabs_.Shown().place, .record = true})) return ShowTab();
    message_ = "There are too many tabs; close one first.";
}

void MainScreen::GoToTab(int tab) {
    if (!desk_ || running_ || tab == tabs_.Current()) return;
    KeepPlace();
    tabs_.GoTo(tab);
    ShowTab();
}

void MainScreen::CloseTab(int tab) {
    if (!desk_ || running_) return;
    KeepPlace();
    const bool current = tab == tabs_.Current();
    if (!tabs_.Close(tab)) return;
    if (current) return ShowTab();
    RememberView();
}

void MainScreen::MoveTab(int from, int to) {
    tabs_.Move(from, to);
    RememberView();
}

bool MainScreen::IsOn(Command command) const {
    switch (command) {
        case Command::GroupByVerb:
            return grouping_ == Grouping::Verb;
        case Command::GroupByPlace:
            return grouping_ == Grouping::Place;
        case Command::GroupByObject:
            return grouping_ == Grouping::Object;
        case Command::UsesColumn:
            return UsesColumn(host_.settings);
        default:
            return false;
    }
}

std::string MainScreen::WhyNotView(Command command) const {
    switch (command) {
        case Command::GroupByVerb:
        case Command::GroupByPlace:
        case Command::GroupByObject:
            return grid_.View().table == store::TableNum::ProcessTables
                       ? ""
                       : "Only process tables are grouped.";
        case Command::FoldAll:
        case Command::UnfoldAll:
            return grid_.Lines().Groups().empty() ? "The rows stand in no groups." : "";
        case Command::UsesColumn:
            return references::KindOf(grid_.View().table) ? "" : Caption() + " does not offer this.";
        case Command::NextTab:
        case Command::PreviousTab:
        case Command::CloseTab:
            return tabs_.Count() > 1 ? "" : "There is only one tab.";
        default:
            return "";
    }
}

void MainScreen::DoView(Command command) {
    const auto toggle = [this](Grouping grouping) {
        GroupRows(grouping_ == grouping ? Grouping::None : grouping);
    };
    switch (command) {
        case Command::GroupByVerb:
            return toggle(Grouping::Verb);
        case Command::GroupByPlace:
            return toggle(Grouping::Place);
        case Command::GroupByObject:
            return toggle(Grouping::Object);
        case Command::FoldAll:
            return FoldAll(true);
        case Command::UnfoldAll:
            return FoldAll(false);
        case Command::UsesColumn:
            return ShowUsesColumn(!UsesColumn(host_.settings));
        case Command::OpenInTab:
            return OpenRecordInTab();
        case Command::NextTab:
            return GoToTab(tabs_.Beside(1));
        case Command::PreviousTab:
            return GoToTab(tabs_.Beside(-1));
        case Command::CloseTab:
            return CloseTab(tabs_.Current());
        default:
            return;
    }
}

}  // namespace fabula::authoring
