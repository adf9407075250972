#include "ide/printing/sheet_view.h"

#include <QPainter>
#include <QSizeF>

#include "ide/printing/sheet_painter.h"
#include "qt/picture_access.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// A sheet of A4 in millimetres, and its margins.
constexpr QSizeF kPaper(210, 297);
constexpr qreal kSheetMargin = 15;
constexpr qreal kMillimetresPerInch = 25.4;

}  // namespace

SheetView::SheetView(QWidget* parent) : QWidget(parent) {
    qt::ActAsPicture(*this);
    setAccessibleName(tr("Sheet of the listing"));
}

void SheetView::Show(const listings::Sheet& sheet, std::size_t columns, int percent) {
    sheet_ = &sheet;
    columns_ = columns;
    const qreal pixels = logicalDpiX() / kMillimetresPerInch * percent / 100;
    setFixedSize((kPaper * pixels).toSize());
    QString told;
    for (const listings::Line& line : sheet.lines)
        told += qt::ToQt(line.text) + '\n';
    setAccessibleDescription(told);
    update();
}

void SheetView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);  // paper, whatever the theme
    if (!sheet_) return;
    const qreal margin = width() * kSheetMargin / kPaper.width();
    painter.setRenderHint(QPainter::TextAntialiasing);
    PaintSheet(painter, *sheet_, columns_, QRectF(rect()).adjusted(margin, margin, -margin, -margin));
}

}  // namespace fabula::ide
