#pragma once

#include <QAbstractTableModel>

#include "authoring/desk/table_grid.h"

namespace fabula::ide {

/// A grid of the logic as the model of a table on the screen. Cells are asked for when they are shown.
class GridModel final : public QAbstractTableModel {
  public:
    explicit GridModel(const authoring::TableGrid& grid, QObject* parent = nullptr);

    /// Rows or columns are other ones now.
    void Reset();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const authoring::TableGrid& grid_;
};

}  // namespace fabula::ide
