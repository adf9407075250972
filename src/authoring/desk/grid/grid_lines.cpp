#include "authoring/desk/grid/grid_lines.h"

#include <algorithm>
#include <utility>

namespace fabula::authoring {

void GridLines::Set(int rows, std::vector<RowGroup> groups) {
    rows_ = rows;
    groups_ = std::move(groups);
    Lay();
}

void GridLines::Lay() {
    lines_.clear();
    lineOfRow_.assign(static_cast<std::size_t>(rows_), -1);
    const auto addRow = [&](int row) {
        lineOfRow_[static_cast<std::size_t>(row)] = Count();
        lines_.push_back({row, -1});
    };
    if (groups_.empty()) {
        for (int row = 0; row < rows_; ++row)
            addRow(row);
    }
    for (int group = 0; group < static_cast<int>(groups_.size()); ++group) {
        const RowGroup& each = groups_[static_cast<std::size_t>(group)];
        const int heading = Count();
        lines_.push_back({-1, group});
        for (int row = each.first; row < each.first + each.count; ++row) {
            if (IsFolded(group)) {
                lineOfRow_[static_cast<std::size_t>(row)] = heading;
            } else {
                addRow(row);
            }
        }
    }
}

int GridLines::OfRow(int row) const {
    return row >= 0 && row < rows_ ? lineOfRow_[static_cast<std::size_t>(row)] : -1;
}

int GridLines::OfGroup(int group) const {
    const auto found =
        std::ranges::find_if(lines_, [group](const GridLine& line) { return line.group == group; });
    return group < 0 || found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
}

int GridLines::GroupOf(int row) const {
    const auto found = std::ranges::find_if(groups_, [row](const RowGroup& group) {
        return row >= group.first && row < group.first + group.count;
    });
    return found == groups_.end() ? -1 : static_cast<int>(found - groups_.begin());
}

void GridLines::Fold(int group, bool folded) {
    if (folded) {
        folded_.insert(TitleOf(group));
    } else {
        folded_.erase(TitleOf(group));
    }
    Lay();
}

void GridLines::FoldAll(bool folded) {
    folded_.clear();
    if (folded) {
        for (const RowGroup& group : groups_)
            folded_.insert(group.title);
    }
    Lay();
}

void GridLines::SetFolded(std::set<std::string> titles) {
    folded_ = std::move(titles);
    Lay();
}

std::string GridLines::Spoken(int group) const {
    const int count = groups_.at(static_cast<std::size_t>(group)).count;
    return TitleOf(group) + ", " + std::to_string(count) + (count == 1 ? " entry" : " entries") +
           (IsFolded(group) ? ", folded" : ", unfolded");
}

}  // namespace fabula::authoring
