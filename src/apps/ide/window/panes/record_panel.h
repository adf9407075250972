#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "authoring/desk/grid/table_grid.h"
#include "ide/window/grid/column_widths.h"
#include "platform/timers.h"

class QLabel;
class QLineEdit;
class QModelIndex;
class QTableView;

namespace fabula::ide {

class CellEdit;
class GridModel;
class PictureView;

/// What happens in the panel of records.
struct RecordEvents {
    std::function<void(int line)> lineChosen;  ///< of the grid's lines; -1 for none
    std::function<void()> opened;              ///< Enter or a double click on a row
    std::function<void(int column)> columnClicked;
    std::function<void(int column, int width)> columnResized;  ///< a moment after the author has done it
    std::function<void(const std::string& text)> filtered;
    std::function<void(const QPoint& place)> menuAsked;  ///< `place` on the screen
    std::function<void(int group, bool folded)> folded;  ///< a group is to be folded or unfolded
    std::function<void()> openedInTab;                   ///< a click with Ctrl
    std::function<std::optional<int>()> typedColumn;     ///< into whose cells the author types
    std::function<bool(int row)> mayType;                ///< into the cell of a row there
    /// The cell of the current row is to take a text; false when that was refused.
    std::function<bool(const std::string& text)> typed;
    std::function<void()> cellLeft;  ///< for another part of the window
};

/// The records of the table in view, with the line that filters them above. The window tells what is to be
/// shown; the panel only shows it and tells what the author does. Its parts are found by the names "Grid",
/// "FilterLine" and "Count".
///
/// In the column into which the author types, a letter begins a text in place of that of the cell, and F2
/// begins with that. Enter stores it, Esc takes it back; elsewhere letters find rows.
class RecordPanel final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    RecordPanel(const authoring::TableGrid& grid, platform::Timers& timers, RecordEvents events,
                QWidget* parent = nullptr);

    /// Another table is in view: new columns, new records, and the filter that the grid has.
    void ShowTable(const QString& name);
    /// The records, their order or the filter are other ones.
    void ShowRecords();

    /// Keeps room for some rows and their headings, but no more than `mostHeight`.
    void KeepRoomFor(int rows, int mostHeight);

    /// Chooses a line of the grid and brings it in sight; -1 chooses none.
    void ChooseLine(int line);

    /// Stores what was typed into a cell. False when it was refused: the cell keeps it and the keyboard.
    bool LeaveCell();
    /// Takes back what was typed into a cell.
    void CloseCell();

    QTableView& Grid() { return *view_; }
    QLineEdit& FilterLine() { return *filter_; }
    /// The picture of the chosen row, below the rows, as far as there is one.
    PictureView& Picture() { return *picture_; }

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void SetUpView();
    void Connect();
    void FitRows();
    void MeasureColumns();
    void WidenColumns();
    void PlaceColumns();
    int WidthOf(int column);
    int WidthOfText(const QString& text);
    void ShowOrder();
    void ShowCount();
    void ShowHeadings();
    void OpenRow(int line);
    bool FoldBy(int key);
    bool TypesInto(const QModelIndex& cell) const;
    bool BeginCell(QEvent& event);
    void OpenCell(const QString& text);

    const authoring::TableGrid& grid_;
    RecordEvents events_;
    platform::Alarm resized_;
    int resizedColumn_ = -1;
    std::vector<ColumnWish> wishes_;  ///< of the columns
    QHash<QString, int> widths_;      ///< of texts of the table in view, which are measured once
    bool placing_ = false;            ///< the panel moves columns and rows itself
    QPointer<CellEdit> cell_;         ///< the cell that is typed into
    QPersistentModelIndex cellAt_;
    bool leavingCell_ = false;
    int openLine_ = -1;  ///< the line whose conditions and actions stand one below the other
    GridModel* model_;
    QTableView* view_;
    QLineEdit* filter_;
    QLabel* count_;
    PictureView* picture_;
};

}  // namespace fabula::ide
