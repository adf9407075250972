#include "ide/window/cell_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QTextLayout>

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

QColor InkOf(const QStyleOptionViewItem& option) {
    const bool active = option.state & QStyle::State_Active;
    const bool selected = option.state & QStyle::State_Selected;
    return option.palette.color(active ? QPalette::Normal : QPalette::Inactive,
                                selected ? QPalette::HighlightedText : QPalette::Text);
}

}  // namespace

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle& style = cell.widget ? *cell.widget->style() : *QApplication::style();
    const QRect whole = style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
    const QRect room = whole.adjusted(margin, 0, -margin, 0);
    const QString shown = cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width());
    const QColor ink = InkOf(cell);
    const QList<QTextLayout::FormatRange> tags = TagsOf(shown, ink);
    if (tags.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);

    cell.text.clear();
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    QTextLayout layout(shown, cell.font, painter->device());
    layout.setFormats(tags);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    painter->save();
    painter->setClipRect(room);
    painter->setPen(ink);
    const int above = (room.height() - static_cast<int>(layout.boundingRect().height())) / 2;
    layout.draw(painter, QPointF(room.x(), room.y() + above));
    painter->restore();
}

}  // namespace fabula::ide
