#pragma once

#include <set>
#include <string>
#include <vector>

namespace fabula::authoring {

/// Rows of a grid that belong together, one behind the other.
struct RowGroup {
    std::string title;  ///< "GET"; no two groups of a grid have the same
    int first = 0;      ///< its first row
    int count = 0;      ///< how many rows it has
};

/// A line of a grid: a row, or the heading of a group.
struct GridLine {
    int row = -1;    ///< -1 for a heading
    int group = -1;  ///< of a heading; -1 for a row

    bool IsHeading() const { return group >= 0; }
};

/// What stands on the lines of a grid. Without groups each row has its line. With groups each has a
/// heading, and below it its rows unless it is folded. Groups are known by their titles, so that one that
/// is gone for a while, as by a filter, is still folded when it comes back.
class GridLines {
  public:
    /// The groups cover all rows in their order; none for rows that are not grouped.
    void Set(int rows, std::vector<RowGroup> groups);

    int Count() const { return static_cast<int>(lines_.size()); }
    const GridLine& At(int line) const { return lines_.at(static_cast<std::size_t>(line)); }
    /// The line of a row; in a folded group that of its heading.
    int OfRow(int row) const;
    /// The line of a group's heading.
    int OfGroup(int group) const;

    const std::vector<RowGroup>& Groups() const { return groups_; }
    /// The group that a row belongs to; -1 without groups.
    int GroupOf(int row) const;
    bool IsFolded(int group) const { return folded_.contains(TitleOf(group)); }
    void Fold(int group, bool folded);
    void FoldAll(bool folded);

    /// The titles of the folded groups, also of groups that are not there now.
    const std::set<std::string>& Folded() const { return folded_; }
    void SetFolded(std::set<std::string> titles);

    /// A heading as it is read aloud: "GET, 12 entries, folded".
    std::string Spoken(int group) const;

  private:
    const std::string& TitleOf(int group) const {
        return groups_.at(static_cast<std::size_t>(group)).title;
    }
    void Lay();

    int rows_ = 0;
    std::vector<RowGroup> groups_;
    std::set<std::string> folded_;
    std::vector<GridLine> lines_;
    std::vector<int> lineOfRow_;
};

}  // namespace fabula::authoring
