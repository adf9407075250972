#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk/grid/entry_groups.h"
#include "authoring/desk/grid/grid_lines.h"
#include "authoring/desk/grid/table_view.h"
#include "store/adventure.h"
#include "text/value.h"

namespace fabula::authoring {

/// The field of an entry that holds the number of its process table.
inline constexpr std::string_view kProcessField = "estype";

class CondActHelp;
struct ExplainedCondAct;

/// A column of the grid.
struct GridColumn {
    std::string field;
    std::string title;    ///< FieldTitle
    int width = 0;        ///< in points of the screen at its normal size; 0: the window finds one
    bool expand = false;  ///< the author may change the width, which is then kept
    bool number = false;  ///< it holds numbers: shown at the right, sorted by value
    bool uses = false;    ///< it counts the uses of each record, and is no field of the table
};

/// The field in which the catalogues of conditions, actions and drawing commands name a page of the help.
inline constexpr std::string_view kHelpPageField = "htmlpage";

/// How often each record of a table is used, by their keys.
using UseCounter = std::function<std::vector<int>(store::TableNum table, const std::vector<int>& keys)>;

/// The records of a view as the main window shows them. They are read when the grid is set up and when it
/// is refreshed, and at no other time: scrolling, filtering, sorting and searching work in memory.
///
/// Rows count from 0 in the order in which they are shown: the view's own order, or that of a column. A
/// column's order lasts as long as the view is shown and is kept nowhere; the table's own order is changed
/// by the command Sort. With a filter only the rows that contain its text are shown. The rows of a process
/// table can stand in groups, each below a heading; the lines tell what stands where.
class TableGrid {
  public:
    /// Shows the records of a view, without filter, in the view's own order; with `maintenance` the fields
    /// of the program, with `comments` the author's comments too, with `uses` a column that counts them.
    /// Throws fabula::Error when the file can't be read; what was shown before is then still shown.
    void SetupGrid(store::Adventure& adventure, TableView view, bool maintenance, bool comments = false,
                   UseCounter uses = {});
    /// Reads the records again; columns, filter and order stay.
    void Refresh(store::Adventure& adventure);
    /// Shows nothing.
    void Clear();

    const TableView& View() const { return view_; }
    const std::vector<GridColumn>& Columns() const { return columns_; }

    int RowCount() const { return static_cast<int>(order_.size()); }
    int RecordCount() const { return static_cast<int>(keys_.size()); }

    /// The key of the row's record. The records of a table whose key is a text count from 1.
    int KeyOf(int row) const;
    /// The row of the record with this key; of several the one nearest to `near`. nullopt when no row that
    /// is shown has it.
    std::optional<int> RowOf(int key, int near = 0) const;

    /// The first row whose record `before`, the same view at an earlier moment, did not have or had with
    /// other values. When records are only missing: the row that stands where the first of them stood.
    /// nullopt when all is as it was, and when there is no row.
    std::optional<int> FirstChange(const TableGrid& before) const;

    /// What a cell shows, on one line: line ends and hard spaces as signs, a long text cut.
    std::string CellText(int row, int column) const;
    /// The text of a cell with its line ends, for a tool tip: whole, unless it is longer than kLongestTip.
    std::string FullText(int row, int column) const;
    /// The value of a field that is a column, can be searched or names a page of the help; null for any
    /// other.
    const text::Value& ValueOf(int row, std::string_view field) const;

    /// Shows the lines of conditions and actions with what they stand for, and filters by that; nullptr
    /// shows them as they are stored.
    void ShowNames(std::shared_ptr<const CondActHelp> names);

    /// The conditions and actions of a row one by one; none where names are not shown.
    std::vector<ExplainedCondAct> Explained(int row) const;

    /// Puts the rows in groups; nullptr: they stand in none. Only for process tables.
    void GroupBy(std::shared_ptr<const EntryGroups> groups);
    GridLines& Lines() { return lines_; }
    const GridLines& Lines() const { return lines_; }

    /// Shows only the rows of which a column contains `text`, case ignored; "" shows all.
    void SetFilter(std::string_view text);
    const std::string& Filter() const { return filter_; }

    /// Sorts by a column, a second time downwards, and a third time in the view's own order again.
    void ClickColumn(int column);
    std::optional<int> SortColumn() const { return sortColumn_; }
    /// Sorts by the column of a field; one that is no column gives the view's own order.
    void SortBy(std::string_view field, bool down);
    bool SortsDown() const { return sortsDown_; }

    /// Keeps the width of a column that may be changed; other columns stay as they are. No step of Undo.
    void ResizeColumn(store::Adventure& adventure, int column, int width);

    /// The longest text of a cell, in characters.
    static constexpr std::size_t kLongestCell = 250;
    /// The longest text of a tool tip, in characters.
    static constexpr std::size_t kLongestTip = 4000;

  private:
    void ReadColumns(store::Adventure& adventure, bool maintenance, bool comments);
    void ReadRecords(store::Adventure& adventure);
    void CountUses();
    void NoteGroups();
    void Arrange();
    void LayLines();
    std::optional<std::size_t> FieldAt(std::string_view field) const;
    /// The names, where the column holds conditions and actions and names are shown.
    const CondActHelp* NamesFor(std::size_t column) const;
    bool Contains(std::size_t record, std::string_view wanted) const;
    const text::Value& At(std::size_t record, std::size_t field) const {
        return values_[record * fields_.size() + field];
    }
    std::size_t RecordOf(int row) const { return order_[static_cast<std::size_t>(row)]; }

    TableView view_;
    std::vector<GridColumn> columns_;
    std::vector<std::string> fields_;  ///< that are read: of the columns first, then what else is looked up
    std::vector<int> keys_;            ///< by record, in the view's own order
    std::vector<text::Value> values_;  ///< by record and field
    std::vector<std::size_t> order_;   ///< the record of each row
    std::string filter_;
    std::optional<int> sortColumn_;
    bool sortsDown_ = false;
    std::shared_ptr<const CondActHelp> names_;
    UseCounter uses_;
    std::optional<std::size_t> usesField_;  ///< the place of their column among the fields
    std::shared_ptr<const EntryGroups> groups_;
    std::vector<EntryGroup> groupOf_;  ///< by record; empty without groups
    GridLines lines_;
};

}  // namespace fabula::authoring
