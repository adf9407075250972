#include "ide/printing/sheet_painter.h"

#include <QFontMetricsF>
#include <QImage>
#include <algorithm>
#include <utility>

#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// Letters are laid out in this size and then scaled, since fonts have whole sizes only.
constexpr int kLayoutPixels = 100;

/// The grid of a sheet in the units of the layout.
struct Grid {
    explicit Grid(const QFont& font)
        : metrics(font), column(metrics.horizontalAdvance('0')), line(column * 2) {}

    QRectF Place(std::size_t atColumn, int atLine, int columns, int lines) const {
        return {static_cast<qreal>(atColumn) * column, atLine * line, columns * column, lines * line};
    }
    qreal Baseline(int atLine) const {
        return atLine * line + (line - metrics.ascent() - metrics.descent()) / 2 + metrics.ascent();
    }

    QFontMetricsF metrics;
    qreal column;
    qreal line;
};

QImage ImageOf(const pictures::Image& image) {
    QImage drawn(image.width, image.height, QImage::Format_RGB32);
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x)
            drawn.setPixel(x, y, 0xFF000000U | static_cast<QRgb>(image.At(x, y)));
    }
    return drawn;
}

/// Parts of a line between two blanks or more, each from its column.
void PaintText(QPainter& painter, const Grid& grid, const QString& text, std::size_t column, int line) {
    qsizetype at = 0;
    while (at < text.size()) {
        if (text[at] == ' ') {
            ++at;
            continue;
        }
        const qsizetype gap = text.indexOf("  ", at);
        const qsizetype end = gap < 0 ? text.size() : gap;
        const auto before = static_cast<std::size_t>(text.left(at).toUcs4().size());
        painter.drawText(QPointF(static_cast<qreal>(column + before) * grid.column, grid.Baseline(line)),
                         text.mid(at, end - at));
        at = end;
    }
}

/// The text of a line, without what its pictures cover.
QString UncoveredText(const listings::Line& line) {
    QList<uint> points = qt::ToQt(line.text).toUcs4();
    for (const listings::PlacedPicture& picture : line.pictures) {
        const auto first = std::min<qsizetype>(static_cast<qsizetype>(picture.column), points.size());
        const auto last = std::min<qsizetype>(first + picture.columns, points.size());
        std::fill(points.begin() + first, points.begin() + last, ' ');
    }
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(points.constData()), points.size());
}

void PaintLine(QPainter& painter, const Grid& grid, const listings::Line& line, int at) {
    PaintText(painter, grid, UncoveredText(line), 0, at);
    for (const listings::PlacedPicture& picture : line.pictures) {
        painter.drawImage(grid.Place(picture.column, at, picture.columns, picture.lines),
                          ImageOf(*picture.image));
        PaintText(painter, grid, qt::ToQt(picture.caption), picture.column, at + picture.lines);
    }
}

}  // namespace

QFont ListingFont() {
    QFont font("Courier New");
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

void PaintSheet(QPainter& painter, const listings::Sheet& sheet, std::size_t columns, const QRectF& area) {
    QFont font = ListingFont();
    font.setPixelSize(kLayoutPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    const Grid grid(font);
    const qreal scale = std::min(area.width() / (static_cast<qreal>(columns) * grid.column),
                                 area.height() / (listings::kSheetLines * grid.line));
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(scale, scale);
    painter.setFont(font);
    painter.setPen(Qt::black);
    int at = 0;
    for (const listings::Line& line : sheet.lines) {
        PaintLine(painter, grid, line, at);
        at += line.Height();
    }
    painter.restore();
}

}  // namespace fabula::ide
