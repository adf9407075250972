#include "ide/window/grid/cell_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QTextLayout>
#include <algorithm>

#include "ide/window/grid/grid_model.h"

namespace fabula::ide {
namespace {

constexpr double kPale = 0.65;

/// Where the tags of a text stand. One that was cut off counts up to the end.
QList<QTextLayout::FormatRange> TagsOf(const QString& text, const QColor& ink) {
    static const QRegularExpression kTag("</?[A-Za-z#][^<>]*(>|$)");
    QColor pale = ink;
    pale.setAlphaF(static_cast<float>(kPale));
    QList<QTextLayout::FormatRange> tags;
    for (auto each = kTag.globalMatch(text); each.hasNext();) {
        const auto tag = each.next();
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(tag.capturedStart());
        range.length = static_cast<int>(tag.capturedLength());
        range.format.setForeground(pale);
        tags.append(range);
    }
    return tags;
}

QString Joined(const QStringList& condActs) {
    QStringList texts;
    for (const QString& each : condActs)
        texts << each.mid(1);
    return texts.join(QString("  %1  ").arg(QChar(0xB7)));
}

/// Conditions have the colour of links; on a chosen row, whose ground is a colour, they are italic.
QTextCharFormat FormatOfKind(QChar kind, const QStyleOptionViewItem& option) {
    QTextCharFormat format;
    if (kind == GridModel::kFault) format.setFontUnderline(true);
    if (kind != GridModel::kCondition) return format;
    if (option.state & QStyle::State_Selected) {
        format.setFontItalic(true);
    } else {
        format.setForeground(option.palette.color(QPalette::Link));
    }
    return format;
}

/// The conditions and actions in one line.
QList<QTextLayout::FormatRange> KindsOf(const QStringList& condActs, const QStyleOptionViewItem& option) {
    QList<QTextLayout::FormatRange> kinds;
    int at = 0;
    for (const QString& each : condActs) {
        QTextLayout::FormatRange range;
        range.start = at;
        range.length = static_cast<int>(each.size()) - 1;
        range.format = FormatOfKind(each.front(), option);
        kinds.append(range);
        at += range.length + 5;
    }
    return kinds;
}

void DrawLine(QPainter& painter, const QStyleOptionViewItem& cell, const QString& text,
              const QList<QTextLayout::FormatRange>& formats, const QRect& room) {
    QTextLayout layout(text, cell.font, painter.device());
    layout.setFormats(formats);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const int above = (room.height() - static_cast<int>(layout.boundingRect().height())) / 2;
    layout.draw(&painter, QPointF(room.x(), room.y() + above));
}

/// One condition or action to a line, as far as there is room.
void DrawOneByOne(QPainter& painter, const QStyleOptionViewItem& cell, const QStringList& condActs,
                  const QRect& room) {
    const int height =
        room.height() / std::min(static_cast<int>(condActs.size()), CellDelegate::kMostLines);
    for (int line = 0; line < std::min(static_cast<int>(condActs.size()), CellDelegate::kMostLines);
         ++line) {
        const bool cutsOff =
            line == CellDelegate::kMostLines - 1 && condActs.size() > CellDelegate::kMostLines;
        const QStringList shown = cutsOff ? condActs.mid(line) : QStringList(condActs[line]);
        const QRect place(room.x(), room.y() + line * height, room.width(), height);
        const QString text = cell.fontMetrics.elidedText(Joined(shown), Qt::ElideRight, room.width());
        DrawLine(painter, cell, text, KindsOf(shown, cell), place);
    }
}

QColor InkOf(const QStyleOptionViewItem& option) {
    const bool active = option.state & QStyle::State_Active;
    const bool selected = option.state & QStyle::State_Selected;
    return option.palette.color(active ? QPalette::Normal : QPalette::Inactive,
                                selected ? QPalette::HighlightedText : QPalette::Text);
}

}  // namespace

int CellDelegate::LinesOf(const QModelIndex& index) {
    const auto lines = index.data(GridModel::kCondActs).toStringList().size();
    return std::clamp(static_cast<int>(lines), 1, kMostLines);
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle& style = cell.widget ? *cell.widget->style() : *QApplication::style();
    const QRect inside = style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
    const QRect room = inside.adjusted(margin, 0, -margin, 0);
    const QStringList condActs = index.data(GridModel::kCondActs).toStringList();
    const QString whole = condActs.isEmpty() ? cell.text : Joined(condActs);
    const QString shown = cell.fontMetrics.elidedText(whole, Qt::ElideRight, room.width());
    const QColor ink = InkOf(cell);
    const auto tags = condActs.isEmpty() ? TagsOf(shown, ink) : KindsOf(condActs, cell);
    if (tags.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);

    cell.text.clear();
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    painter->save();
    painter->setClipRect(room);
    painter->setPen(ink);
    if (condActs.size() > 1 && room.height() > cell.fontMetrics.height() * 2) {
        DrawOneByOne(*painter, cell, condActs, room);
    } else {
        DrawLine(*painter, cell, shown, tags, room);
    }
    painter->restore();
}

}  // namespace fabula::ide
