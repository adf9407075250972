#include "ide/window/grid/grid_model.h"

#include <QFont>

#include "authoring/fields/cond_act_help.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::GridLine;

GridModel::GridModel(const authoring::TableGrid& grid, MayType mayType, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), mayType_(std::move(mayType)) {}

void GridModel::Reset() {
    beginResetModel();
    endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_.Lines().Count();
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grid_.Columns().size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    // A box that tells of a failure may stand over rows that have gone.
    if (index.row() >= rowCount() || index.column() >= columnCount()) return {};
    const GridLine line = grid_.Lines().At(index.row());
    if (line.IsHeading()) return index.column() == 0 ? OfHeading(line.group, role) : QVariant();
    switch (role) {
        case Qt::DisplayRole:
            return qt::ToQt(grid_.CellText(line.row, index.column()));
        case Qt::ToolTipRole:
            return qt::TipOf(qt::ToQt(grid_.FullText(line.row, index.column())));
        case Qt::TextAlignmentRole: {
            const bool number = grid_.Columns()[static_cast<std::size_t>(index.column())].number;
            return QVariant(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
        }
        case kCondActs:
            // They are what the last column shows.
            return index.column() == columnCount() - 1 ? CondActsOf(line.row) : QVariant();
        default:
            return {};
    }
}

QVariant GridModel::OfHeading(int group, int role) const {
    const authoring::RowGroup& shown = grid_.Lines().Groups()[static_cast<std::size_t>(group)];
    switch (role) {
        case Qt::DisplayRole:
            return QString("%1 %2  (%3)")
                .arg(QChar(grid_.Lines().IsFolded(group) ? 0x25B8 : 0x25BE))
                .arg(qt::ToQt(shown.title))
                .arg(shown.count);
        case Qt::AccessibleTextRole:
            return qt::ToQt(grid_.Lines().Spoken(group));
        case Qt::FontRole: {
            QFont font;
            font.setBold(true);
            return font;
        }
        default:
            return {};
    }
}

QVariant GridModel::CondActsOf(int row) const {
    QStringList lines;
    for (const authoring::ExplainedCondAct& each : grid_.Explained(row)) {
        const QChar kind = each.isFault ? kFault : each.isAction ? kAction : kCondition;
        const QString meaning = each.meaning.empty() ? QString() : " " + qt::ToQt(each.meaning);
        lines << kind + qt::ToQt(each.text) + meaning;
    }
    return lines.isEmpty() ? QVariant() : QVariant(lines);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return mayType_(index) ? flags | Qt::ItemIsEditable : flags;
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
