#include "qt/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include "qt/strings.h"

namespace fabula::qt {
namespace {

// The colours that stand in the files of icons/ for those of the windows.
constexpr auto kLines = "#000000";
constexpr auto kAccent = "#0000ff";

constexpr std::string_view kOpen = "-open";

/// The drawing of exactly this name; empty when there is none.
QByteArray FileOf(std::string_view name) {
    QFile file(":/icons/" + ToQt(name) + ".svg");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray DrawingOf(std::string_view name) {
    if (const QByteArray drawing = FileOf(name); !drawing.isEmpty()) return drawing;
    if (name.ends_with(kOpen)) return FileOf(name.substr(0, name.size() - kOpen.size()));
    return {};
}

QColor LineColour(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::WindowText);
    if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
    return palette.color(QPalette::WindowText);
}

QColor AccentColour(QIcon::Mode mode) {
    if (mode == QIcon::Disabled || mode == QIcon::Selected) return LineColour(mode);
    return QGuiApplication::palette().color(QPalette::Link);
}

/// Paints a drawing in the colours that the windows have at that moment.
class ThemedDrawing final : public QIconEngine {
  public:
    explicit ThemedDrawing(const QByteArray& drawing) : drawing_(drawing) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
        if (drawing_.isEmpty()) return;
        QByteArray coloured = drawing_;
        // The accent first: the lines may be drawn in the very colour that stands for it.
        coloured.replace(kAccent, "accent").replace(kLines, LineColour(mode).name().toLatin1());
        coloured.replace("accent", AccentColour(mode).name().toLatin1());
        QSvgRenderer renderer(coloured);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(painter, area);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap made(size);
        made.fill(Qt::transparent);
        QPainter painter(&made);
        paint(&painter, made.rect(), mode, state);
        return made;
    }

    QIconEngine* clone() const override { return new ThemedDrawing(*this); }

  private:
    QByteArray drawing_;
};

}  // namespace

QIcon IconOf(std::string_view name) {
    return QIcon(new ThemedDrawing(DrawingOf(name)));
}

bool HasIcon(std::string_view name) {
    return !DrawingOf(name).isEmpty();
}

}  // namespace fabula::qt
