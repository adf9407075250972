#include "qt/look/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
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
    ThemedDrawing(std::string_view name, const QByteArray& drawing)
        : name_(ToQt(name)), drawing_(drawing) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(area, pixmap((QSizeF(area.size()) * ratio).toSize(), mode, state));
    }

    /// Windows ask for the same few again and again, so they are kept.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QString lines = LineColour(mode).name();
        const QString accent = AccentColour(mode).name();
        const QString key =
            QString("fabula/%1/%2x%3").arg(name_).arg(size.width()).arg(size.height()) + lines + accent;
        QPixmap kept;
        if (QPixmapCache::find(key, &kept)) return kept;
        kept = Drawn(size, lines, accent);
        QPixmapCache::insert(key, kept);
        return kept;
    }

    QIconEngine* clone() const override { return new ThemedDrawing(*this); }

  private:
    QPixmap Drawn(const QSize& size, const QString& lines, const QString& accent) const {
        QPixmap made(size);
        made.fill(Qt::transparent);
        if (drawing_.isEmpty() || size.isEmpty()) return made;
        QByteArray coloured = drawing_;
        // The accent first: the lines may be drawn in the very colour that stands for it.
        coloured.replace(kAccent, "accent").replace(kLines, lines.toLatin1());
        coloured.replace("accent", accent.toLatin1());
        QSvgRenderer renderer(coloured);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&made);
        renderer.render(&painter, made.rect());
        return made;
    }

    QString name_;
    QByteArray drawing_;
};

}  // namespace

QIcon IconOf(std::string_view name) {
    return QIcon(new ThemedDrawing(name, DrawingOf(name)));
}

bool HasIcon(std::string_view name) {
    return !DrawingOf(name).isEmpty();
}

}  // namespace fabula::qt
