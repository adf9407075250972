#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "authoring/desk/grid/table_grid.h"

namespace fabula::ide {

/// A grid of the logic as the model of a table on the screen, a row of the model for each of its lines.
/// Cells are asked for when they are shown.
class GridModel final : public QAbstractTableModel {
  public:
    /// Whether the author may type into a cell.
    using MayType = std::function<bool(const QModelIndex& cell)>;

    GridModel(const authoring::TableGrid& grid, MayType mayType, QObject* parent = nullptr);

    /// The role of the conditions and actions of a line, where names are shown: a list of texts, in front
    /// of each a sign of its kind.
    static constexpr int kCondActs = Qt::UserRole + 1;
    static constexpr QChar kCondition = u'?';
    static constexpr QChar kAction = u'!';
    static constexpr QChar kFault = u'#';

    /// Rows or columns are other ones now.
    void Reset();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QVariant OfHeading(int group, int role) const;
    QVariant CondActsOf(int row) const;

    const authoring::TableGrid& grid_;
    MayType mayType_;
};

}  // namespace fabula::ide
