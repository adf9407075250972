#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk/grid/entry_groups.h"
#include "authoring/desk/grid/table_view.h"

namespace fabula::authoring {

/// Where the author is in a view, and how its rows are shown.
struct PlaceInView {
    TableView view;
    std::optional<int> key = std::nullopt;  ///< of the current record
    std::string filter = {};
    std::string sortField = {};  ///< of the column that the rows are sorted by; "" for the view's own order
    bool sortsDown = false;
    Grouping grouping = Grouping::None;
    std::set<std::string> folded = {};  ///< the titles of the folded groups

    friend bool operator==(const PlaceInView&, const PlaceInView&) = default;
};

/// A tab: a table, or a record with its table.
struct OpenTab {
    PlaceInView place;
    /// It is for one record, which stands beside the rows; the tab is named by it.
    bool record = false;

    friend bool operator==(const OpenTab&, const OpenTab&) = default;
};

/// What an author has open, one tab each. There is always one, and one of them is shown.
class OpenTabs {
  public:
    static constexpr std::size_t kMostTabs = 30;

    const std::vector<OpenTab>& All() const { return tabs_; }
    int Count() const { return static_cast<int>(tabs_.size()); }
    int Current() const { return current_; }
    OpenTab& Shown() { return tabs_[static_cast<std::size_t>(current_)]; }
    const OpenTab& Shown() const { return tabs_[static_cast<std::size_t>(current_)]; }

    /// Puts a tab behind the one that is shown, and shows it. False when there are too many.
    bool Open(OpenTab tab);
    /// Shows a tab; a number that is none does nothing.
    void GoTo(int tab);
    /// The number of the tab `steps` further on, round and round.
    int Beside(int steps) const;
    /// Closes a tab; of the last one false. Behind the one that is shown comes its right neighbour, or else
    /// the left one.
    bool Close(int tab);
    /// Puts a tab at another place among the others. The tab that is shown stays.
    void Move(int from, int to);

    /// As text, a line for each tab, and back. What can't be understood is left out; of nothing it is one
    /// tab of the view that a new desk begins with.
    std::string Stored() const;
    static OpenTabs From(std::string_view stored);

    friend bool operator==(const OpenTabs&, const OpenTabs&) = default;

  private:
    std::vector<OpenTab> tabs_ = std::vector<OpenTab>(1);
    int current_ = 0;
};

}  // namespace fabula::authoring
