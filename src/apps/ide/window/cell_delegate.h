#pragma once

#include <QStyledItemDelegate>

namespace fabula::ide {

/// Draws the cells of the grid. Tags in texts are drawn paler than the words between them, so that the
/// words can be read.
class CellDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace fabula::ide
