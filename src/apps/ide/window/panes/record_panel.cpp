#include "ide/window/panes/record_panel.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/editors/leave_check.h"
#include "ide/editors/picture_view.h"
#include "ide/window/grid/cell_delegate.h"
#include "ide/window/grid/cell_edit.h"
#include "ide/window/grid/grid_model.h"
#include "ide/window/panes/pane_focus.h"
#include "qt/look/icons.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// How long the width of a column must rest before it counts.
constexpr std::chrono::milliseconds kResizeDelay{300};
/// How many rows tell the width of a column that has none, and the widest that it becomes, in letters. Of
/// the last column, which takes the room that is left, a few rows are enough.
constexpr int kRowsForWidth = 1000;
constexpr int kRowsForLast = 100;
constexpr int kWidestColumn = 160;
constexpr int kNarrowestColumn = 10;  ///< of those that need more
constexpr int kCellMargin = 20;
constexpr int kRowsOfHeading = 2;  ///< that the headings need the height of, at most
constexpr int kTitleMargin = 4;    ///< besides the one that it brings

/// The table of the rows.
class RowsView final : public QTableView {
  protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override {
        QTableView::initViewItemOption(option);
        ShowWhetherFocused(*this, *option);
    }
    /// A table calls its new cell the one with the keyboard. It is not while somebody walks in the tree.
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        if (hasFocus()) return QTableView::currentChanged(current, previous);
        QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    }
};

}  // namespace

RecordPanel::RecordPanel(const authoring::TableGrid& grid, platform::Timers& timers, RecordEvents events,
                         QWidget* parent)
    : QWidget(parent),
      grid_(grid),
      events_(std::move(events)),
      resized_(timers,
               [this] { events_.columnResized(resizedColumn_, view_->columnWidth(resizedColumn_)); }),
      model_(new GridModel(
          grid, [this](const QModelIndex& cell) { return TypesInto(cell); }, this)),
      view_(new RowsView),
      filter_(new QLineEdit),
      count_(new QLabel),
      picture_(new PictureView) {
    filter_->setObjectName("FilterLine");
    filter_->setAccessibleName(tr("Filter rows"));
    filter_->setPlaceholderText(tr("Filter rows"));
    filter_->setClearButtonEnabled(true);
    filter_->addAction(qt::IconOf("filter"), QLineEdit::LeadingPosition);
    filter_->installEventFilter(this);
    count_->setObjectName("Count");
    count_->setAccessibleDescription(tr("Rows shown"));
    SetUpView();

    auto* line = new QHBoxLayout;
    line->setContentsMargins(8, 6, 8, 6);
    line->addWidget(filter_, 1);
    line->addWidget(count_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(line);
    column->addWidget(view_, 1);
    column->addWidget(picture_);
    picture_->setMargin(8);
    Connect();
}

void RecordPanel::SetUpView() {
    view_->setObjectName("Grid");
    view_->setModel(model_);
    view_->setItemDelegate(new CellDelegate(view_));
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setAlternatingRowColors(true);
    view_->setShowGrid(false);
    view_->setWordWrap(false);
    view_->setTabKeyNavigation(false);
    view_->setFrameShape(QFrame::NoFrame);
    view_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    view_->installEventFilter(this);
    view_->viewport()->installEventFilter(this);
    view_->verticalHeader()->hide();
    QHeaderView* header = view_->horizontalHeader();
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setStretchLastSection(true);
    header->setAccessibleName(tr("Columns"));
    FitRows();
}

void RecordPanel::Connect() {
    const QHeaderView* header = view_->horizontalHeader();
    QObject::connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!placing_) events_.filtered(qt::FromQt(text));
    });
    QObject::connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                     [this](const QModelIndex& line) {
                         OpenRow(line.isValid() ? line.row() : -1);
                         if (!placing_) events_.lineChosen(line.isValid() ? line.row() : -1);
                     });
    QObject::connect(view_, &QTableView::doubleClicked, this, [this](const QModelIndex& cell) {
        if (!grid_.Lines().At(cell.row()).IsHeading()) events_.opened();
    });
    QObject::connect(view_, &QTableView::clicked, this, [this](const QModelIndex& cell) {
        const authoring::GridLine& line = grid_.Lines().At(cell.row());
        if (line.IsHeading()) {
            events_.folded(line.group, !grid_.Lines().IsFolded(line.group));
        } else if (QGuiApplication::keyboardModifiers() & Qt::ControlModifier) {
            events_.openedInTab();
        }
    });
    QObject::connect(view_, &QTableView::customContextMenuRequested, this, [this](const QPoint& place) {
        events_.menuAsked(view_->viewport()->mapToGlobal(place));
    });
    QObject::connect(header, &QHeaderView::sectionClicked, this,
                     [this](int section) { events_.columnClicked(section); });
    QObject::connect(header, &QHeaderView::sectionResized, this, [this](int section) {
        // The last column takes the room that is left.
        if (placing_ || section == model_->columnCount() - 1) return;
        wishes_[static_cast<std::size_t>(section)].width = view_->columnWidth(section);
        wishes_[static_cast<std::size_t>(section)].kept = true;
        resizedColumn_ = section;
        resized_.Start(kResizeDelay);
    });
}

void RecordPanel::ShowTable(const QString& name) {
    resized_.Stop();
    view_->setAccessibleName(name);
    wishes_.clear();
    widths_.clear();
    ShowRecords();
}

void RecordPanel::ShowRecords() {
    CloseCell();
    placing_ = true;
    if (const QString filter = qt::ToQt(grid_.Filter()); filter_->text() != filter)
        filter_->setText(filter);
    OpenRow(-1);
    model_->Reset();
    ShowHeadings();
    ShowOrder();
    placing_ = false;
    ShowCount();
    // A change of the adventure may have given the same table other columns.
    if (wishes_.size() == grid_.Columns().size()) return WidenColumns();
    resized_.Stop();
    MeasureColumns();
    PlaceColumns();
}

void RecordPanel::ShowOrder() {
    QHeaderView* header = view_->horizontalHeader();
    const auto column = grid_.SortColumn();
    header->setSortIndicatorShown(column.has_value());
    if (column)
        header->setSortIndicator(*column, grid_.SortsDown() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void RecordPanel::ShowCount() {
    const int shown = grid_.RowCount();
    const int all = grid_.RecordCount();
    count_->setText(grid_.Filter().empty() ? QString() : tr("%1 of %2").arg(shown).arg(all));
    count_->setVisible(!grid_.Filter().empty());
}

/// A heading takes the whole width.
void RecordPanel::ShowHeadings() {
    view_->clearSpans();
    const authoring::GridLines& lines = grid_.Lines();
    for (int group = 0; group < static_cast<int>(lines.Groups().size()); ++group)
        view_->setSpan(lines.OfGroup(group), 0, 1, model_->columnCount());
}

/// The current row shows its conditions and actions one below the other, where names are shown.
void RecordPanel::OpenRow(int line) {
    QHeaderView& heights = *view_->verticalHeader();
    const int usual = heights.defaultSectionSize();
    if (openLine_ >= 0 && openLine_ < heights.count()) heights.resizeSection(openLine_, usual);
    openLine_ = line;
    if (line < 0 || line >= model_->rowCount()) return;
    const int lines = CellDelegate::LinesOf(model_->index(line, model_->columnCount() - 1));
    if (lines == 1) return;
    const int height = usual + (lines - 1) * view_->fontMetrics().height();
    heights.resizeSection(line, std::max(usual, std::min(height, view_->viewport()->height() - usual)));
}

void RecordPanel::FitRows() {
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setMinimumSectionSize(1);
    view_->verticalHeader()->setDefaultSectionSize(view_->fontMetrics().height() * 3 / 2);
}

void RecordPanel::KeepRoomFor(int rows, int mostHeight) {
    const int height = view_->verticalHeader()->defaultSectionSize() * (rows + kRowsOfHeading);
    view_->setMinimumHeight(std::min(height, mostHeight));
}

void RecordPanel::MeasureColumns() {
    const int letter = view_->fontMetrics().averageCharWidth();
    wishes_.clear();
    for (int column = 0; column < model_->columnCount(); ++column) {
        const authoring::GridColumn& shown = grid_.Columns()[static_cast<std::size_t>(column)];
        // The last column takes the room that is left, whatever it was given.
        const bool kept = shown.width > 0 && column < model_->columnCount() - 1;
        const int width = kept ? shown.width : WidthOf(column);
        const int title = view_->horizontalHeader()->sectionSizeHint(column) + kTitleMargin;
        wishes_.push_back({width, std::min(width, std::max(title, letter * kNarrowestColumn)), kept});
    }
}

/// Makes room for what has come in. Columns don't become narrower while their table is in view.
void RecordPanel::WidenColumns() {
    bool wider = false;
    for (std::size_t column = 0; column < wishes_.size(); ++column) {
        ColumnWish& wish = wishes_[column];
        const int width = wish.kept ? wish.width : WidthOf(static_cast<int>(column));
        if (width <= wish.width) continue;
        wish.width = width;
        wider = true;
    }
    if (wider) PlaceColumns();
}

void RecordPanel::PlaceColumns() {
    // A window may be resized before what has become of the table is shown.
    if (wishes_.size() != grid_.Columns().size()) return;
    const std::vector<int> widths = FitColumns(wishes_, view_->viewport()->width());
    placing_ = true;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        const auto index = static_cast<int>(column);
        view_->setColumnWidth(index, widths[column]);
        // What is not kept can't be changed.
        const bool expand = grid_.Columns()[column].expand;
        view_->horizontalHeader()->setSectionResizeMode(
            index, expand ? QHeaderView::Interactive : QHeaderView::Fixed);
    }
    placing_ = false;
}

int RecordPanel::WidthOfText(const QString& text) {
    const auto known = widths_.constFind(text);
    if (known != widths_.constEnd()) return *known;
    const int width = view_->fontMetrics().horizontalAdvance(text);
    widths_.insert(text, width);
    return width;
}

int RecordPanel::WidthOf(int column) {
    int width = view_->horizontalHeader()->sectionSizeHint(column) + kTitleMargin;
    const int rows = column == model_->columnCount() - 1 ? kRowsForLast : kRowsForWidth;
    for (int row = 0; row < std::min(grid_.RowCount(), rows); ++row)
        width = std::max(width, WidthOfText(qt::ToQt(grid_.CellText(row, column))) + kCellMargin);
    return std::min(width, view_->fontMetrics().averageCharWidth() * kWidestColumn);
}

void RecordPanel::ChooseLine(int line) {
    placing_ = true;
    const QModelIndex index = model_->index(line, events_.typedColumn().value_or(0));
    if (index.isValid()) {
        const int across = view_->horizontalScrollBar()->value();
        view_->setCurrentIndex(index);
        OpenRow(line);
        view_->scrollTo(index);
        view_->horizontalScrollBar()->setValue(across);
    } else {
        view_->clearSelection();
        view_->setCurrentIndex({});
    }
    placing_ = false;
}

/// Left and Right, or - and +, on a heading; Left in the first column of a row goes to its heading.
bool RecordPanel::FoldBy(int key) {
    const QModelIndex current = view_->currentIndex();
    if (!current.isValid() || grid_.Lines().Groups().empty()) return false;
    const bool fold = key == Qt::Key_Left || key == Qt::Key_Minus;
    if (!fold && key != Qt::Key_Right && key != Qt::Key_Plus) return false;
    const authoring::GridLine line = grid_.Lines().At(current.row());
    if (line.IsHeading()) {
        if (grid_.Lines().IsFolded(line.group) != fold) events_.folded(line.group, fold);
        return true;
    }
    const int group = grid_.Lines().GroupOf(line.row);
    if (key == Qt::Key_Minus) {
        events_.folded(group, true);
        return true;
    }
    if (key != Qt::Key_Left || current.column() > 0) return key == Qt::Key_Plus;
    view_->setCurrentIndex(model_->index(grid_.Lines().OfGroup(group), 0));
    return true;
}

bool RecordPanel::TypesInto(const QModelIndex& cell) const {
    // As in data(), the row may have gone.
    if (cell.row() < 0 || cell.row() >= model_->rowCount()) return false;
    if (cell.column() != events_.typedColumn()) return false;
    const authoring::GridLine line = grid_.Lines().At(cell.row());
    return !line.IsHeading() && events_.mayType(line.row);
}

/// Whether what came to the rows begins a text in the current cell.
bool RecordPanel::BeginCell(QEvent& event) {
    if (cell_ || !TypesInto(view_->currentIndex())) return false;
    // Letters that are made of several keys come without a key.
    if (event.type() == QEvent::InputMethod) {
        OpenCell({});
        cell_->setModified(true);
        QCoreApplication::sendEvent(cell_, &event);
        return true;
    }
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    const bool isLetter = !key.text().isEmpty() && key.text().front().isPrint() &&
                          !key.text().front().isSpace() &&
                          !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!isLetter && key.key() != Qt::Key_F2) return false;
    OpenCell(isLetter ? key.text() : view_->currentIndex().data().toString());
    cell_->setModified(isLetter);
    if (!isLetter) cell_->selectAll();
    return true;
}

void RecordPanel::OpenCell(const QString& text) {
    const QModelIndex at = view_->currentIndex();
    cellAt_ = at;
    cell_ = new CellEdit(text,
                         {.stored = [this] { events_.cellLeft(); }, .takenBack = [this] { CloseCell(); }});
    cell_->setAccessibleName(model_->headerData(at.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    cell_->setAccessibleDescription(tr("Enter stores it, Esc takes it back"));
    view_->scrollTo(at);
    view_->setIndexWidget(at, cell_);
    cell_->setFocus();
    new LeaveCheck(*cell_, [this] { events_.cellLeft(); });
}

/// The keyboard goes back to the rows, unless it has gone elsewhere.
void RecordPanel::CloseCell() {
    if (!cell_) return;
    CellEdit* const cell = cell_;
    cell_.clear();
    if (window()->focusWidget() == cell) view_->setFocus();
    cell->hide();
    // Which deletes it, once it is no longer at work.
    view_->setIndexWidget(cellAt_, nullptr);
}

bool RecordPanel::LeaveCell() {
    if (!cell_) return true;
    if (leavingCell_) return false;
    const QPointer<CellEdit> cell = cell_;
    if (!cell->isModified()) {
        CloseCell();
        return true;
    }
    leavingCell_ = true;
    const bool stored = events_.typed(qt::FromQt(cell->text()));
    leavingCell_ = false;
    if (stored) {
        CloseCell();
    } else if (cell) {
        // Which takes the rows back to it.
        placing_ = true;
        cell->setFocus();
        placing_ = false;
    }
    return stored;
}

bool RecordPanel::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == view_ && BeginCell(*event)) return true;
    if (receiver == view_->viewport() && event->type() == QEvent::Resize) {
        const auto* resized = static_cast<QResizeEvent*>(event);
        PlaceColumns();
        if (resized->size().height() != resized->oldSize().height()) OpenRow(openLine_);
    }
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const auto modifiers = static_cast<QKeyEvent*>(event)->modifiers() & ~Qt::KeypadModifier;
    if (receiver == view_ && modifiers == Qt::NoModifier && FoldBy(key)) return true;
    if (receiver == view_ && enter) {
        const QModelIndex current = view_->currentIndex();
        const int group = current.isValid() ? grid_.Lines().At(current.row()).group : -1;
        if (group >= 0) {
            events_.folded(group, !grid_.Lines().IsFolded(group));
        } else {
            events_.opened();
        }
        return true;
    }
    if (receiver != filter_) return false;
    if (enter || key == Qt::Key_Down) {
        view_->setFocus();
        return true;
    }
    if (key == Qt::Key_Escape) {
        filter_->clear();
        view_->setFocus();
        return true;
    }
    return false;
}

void RecordPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        FitRows();
        widths_.clear();
        MeasureColumns();
        PlaceColumns();
    }
    QWidget::changeEvent(event);
}

}  // namespace fabula::ide
