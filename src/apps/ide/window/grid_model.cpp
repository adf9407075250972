#include "ide/window/grid_model.h"

#include "qt/strings.h"

namespace fabula::ide {

GridModel::GridModel(const authoring::TableGrid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid) {}

void GridModel::Reset() {
    beginResetModel();
    endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_.RowCount();
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grid_.Columns().size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return qt::ToQt(grid_.CellText(index.row(), index.column()));
        case Qt::ToolTipRole:
            return qt::TipOf(qt::ToQt(grid_.FullText(index.row(), index.column())));
        case Qt::TextAlignmentRole: {
            const bool number = grid_.Columns()[static_cast<std::size_t>(index.column())].number;
            return QVariant(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
        }
        default:
            return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const authoring::GridColumn& column = grid_.Columns()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return qt::Translated(column.title);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (column.number ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

}  // namespace fabula::ide
