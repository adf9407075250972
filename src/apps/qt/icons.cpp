#include "qt/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include "qt/icon_shapes.h"

namespace fabula::qt {
namespace {

constexpr double kGrid = 24.0;
constexpr double kLineWidth = 1.7;

/// Draws a shape anew for each size and theme.
class ShapeEngine final : public QIconEngine {
  public:
    explicit ShapeEngine(const IconShape* shape) : shape_(shape) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
        if (!shape_) return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const double side = std::min(area.width(), area.height());
        painter->translate(area.x() + (area.width() - side) / 2, area.y() + (area.height() - side) / 2);
        painter->scale(side / kGrid, side / kGrid);
        painter->setBrush(Qt::NoBrush);
        Stroke(*painter, shape_->lines, LineColour(mode));
        Stroke(*painter, shape_->accent, AccentColour(mode));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap made(size);
        made.fill(Qt::transparent);
        QPainter painter(&made);
        paint(&painter, made.rect(), mode, state);
        return made;
    }

    QIconEngine* clone() const override { return new ShapeEngine(*this); }

  private:
    static void Stroke(QPainter& painter, std::string_view shape, const QColor& colour) {
        painter.setPen(QPen(colour, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(PathOf(shape));
    }

    static QColor LineColour(QIcon::Mode mode) {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::WindowText);
        if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
        return palette.color(QPalette::WindowText);
    }

    static QColor AccentColour(QIcon::Mode mode) {
        if (mode == QIcon::Disabled || mode == QIcon::Selected) return LineColour(mode);
        return QGuiApplication::palette().color(QPalette::Link);
    }

    const IconShape* shape_;
};

}  // namespace

QIcon IconOf(std::string_view name) {
    return QIcon(new ShapeEngine(FindIconShape(name)));
}

bool HasIcon(std::string_view name) {
    return FindIconShape(name) != nullptr;
}

}  // namespace fabula::qt
