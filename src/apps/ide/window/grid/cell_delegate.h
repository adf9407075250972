#pragma once

#include <QStyledItemDelegate>

namespace fabula::ide {

/// Draws the cells of the grid. Tags in texts are drawn paler than the words between them, so that the
/// words can be read. Conditions and actions that are shown with names have colours by their kind; a row
/// that has the height for more than one line shows each on its own.
class CellDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The most lines that a row is opened to.
    static constexpr int kMostLines = 16;
    /// How many lines a cell has to say, at most kMostLines.
    static int LinesOf(const QModelIndex& index);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace fabula::ide
