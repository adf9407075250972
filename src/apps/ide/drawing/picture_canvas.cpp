#include "ide/drawing/picture_canvas.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "ide/editors/plane_image.h"
#include "qt/picture_access.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::DrawingKey;
using pictures::kCanvasHeight;
using pictures::kCanvasWidth;

namespace {

constexpr int kUsualScale = 2;
constexpr double kGridStrength = 0.35;

struct KeyPair {
    int key;
    DrawingKey drawing;
};
constexpr std::array kKeys = {
    KeyPair{Qt::Key_Right, DrawingKey::Right},   KeyPair{Qt::Key_Left, DrawingKey::Left},
    KeyPair{Qt::Key_Up, DrawingKey::Up},         KeyPair{Qt::Key_Down, DrawingKey::Down},
    KeyPair{Qt::Key_Home, DrawingKey::Home},     KeyPair{Qt::Key_End, DrawingKey::End},
    KeyPair{Qt::Key_Insert, DrawingKey::Insert}, KeyPair{Qt::Key_Delete, DrawingKey::Delete},
    KeyPair{Qt::Key_PageUp, DrawingKey::PageUp}, KeyPair{Qt::Key_PageDown, DrawingKey::PageDown},
};

}  // namespace

std::optional<DrawingKey> DrawingKeyOf(int key) {
    const auto found = std::ranges::find(kKeys, key, &KeyPair::key);
    if (found == kKeys.end()) return std::nullopt;
    return found->drawing;
}

PictureCanvas::PictureCanvas(authoring::PictureEditor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor), grid_(ImageOfPlane(editor.Grid())) {
    qt::ActAsPicture(*this);
    setObjectName("Canvas");
    setAccessibleName(tr("Picture"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Show();
}

QSize PictureCanvas::sizeHint() const {
    return {kCanvasWidth * kUsualScale, kCanvasHeight * kUsualScale};
}

QSize PictureCanvas::minimumSizeHint() const {
    return {kCanvasWidth, kCanvasHeight};
}

int PictureCanvas::Scale() const {
    return std::max(1, std::min(width() / kCanvasWidth, height() / kCanvasHeight));
}

QPoint PictureCanvas::TopLeft() const {
    return {(width() - Scale() * kCanvasWidth) / 2, (height() - Scale() * kCanvasHeight) / 2};
}

QPoint PictureCanvas::PlaceOf(pictures::Point point) const {
    const int scale = Scale();
    return TopLeft() + QPoint(point.x * scale + scale / 2, pictures::LineOfY(point.y) * scale + scale / 2);
}

std::optional<pictures::Point> PictureCanvas::PointAt(QPoint place) const {
    const QPoint within = place - TopLeft();
    if (within.x() < 0 || within.y() < 0) return std::nullopt;
    const int x = within.x() / Scale();
    const int line = within.y() / Scale();
    if (!pictures::Plane::Contains(x, line)) return std::nullopt;
    return pictures::Point{x, pictures::LineOfY(line)};
}

void PictureCanvas::Show() {
    image_ = ImageOfPlane(editor_.Planes().colour);
    qt::TellAsDescription(*this, qt::Translated(editor_.Status()));
    update();
}

void PictureCanvas::Mark(std::vector<bool> pixels) {
    marked_ = std::move(pixels);
    update();
}

void PictureCanvas::SetTracing(std::optional<Tracing> tracing) {
    tracing_ = std::move(tracing);
    update();
}

void PictureCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect picture(TopLeft(), QSize(kCanvasWidth, kCanvasHeight) * Scale());
    if (tracing_) {
        PaintTracing(painter, picture);
    } else {
        painter.drawImage(picture, image_);
    }
    if (editor_.GridOn()) {
        painter.setOpacity(kGridStrength);
        painter.drawImage(picture, grid_);
        painter.setOpacity(1);
    }
    PaintMarks(painter);
    PaintGuides(painter);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(picture.adjusted(-1, -1, 0, 0));
    }
}

/// Through the paper, that is where nothing was drawn in another colour.
void PictureCanvas::PaintTracing(QPainter& painter, const QRect& picture) {
    const QRgb paper = ColourOf(editor_.Planes().colour.Background()).rgb();
    const int alpha = 255 - 255 * tracing_->strength / 100;
    QImage above = image_;
    for (int line = 0; line < above.height(); ++line) {
        auto* row = reinterpret_cast<QRgb*>(above.scanLine(line));
        for (int x = 0; x < above.width(); ++x) {
            if (row[x] == paper) row[x] = qRgba(qRed(paper), qGreen(paper), qBlue(paper), alpha);
        }
    }
    painter.fillRect(picture, QColor::fromRgb(paper));
    painter.setClipRect(picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(
        QRect(picture.topLeft() + tracing_->place.topLeft() * Scale(), tracing_->place.size() * Scale()),
        tracing_->image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setClipping(false);
    painter.drawImage(picture, above);
}

void PictureCanvas::PaintMarks(QPainter& painter) {
    if (marked_.empty()) return;
    QColor mark = palette().color(QPalette::Highlight);
    mark.setAlpha(150);
    const int scale = Scale();
    for (int line = 0; line < kCanvasHeight; ++line) {
        for (int x = 0; x < kCanvasWidth; ++x) {
            const auto at = static_cast<std::size_t>(line * kCanvasWidth + x);
            if (marked_[at])
                painter.fillRect(QRect(TopLeft() + QPoint(x, line) * scale, QSize(scale, scale)), mark);
        }
    }
}

/// In black and white, so that they show on every colour.
void PictureCanvas::PaintGuides(QPainter& painter) {
    const QPoint cursor = PlaceOf(editor_.KeyCursor());
    if (const auto guide = editor_.Guide()) {
        const QPoint start = PlaceOf({guide->start.x, pictures::LineOfY(guide->start.line)});
        painter.setPen(QPen(Qt::white, 1));
        painter.drawLine(start, cursor);
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawLine(start, cursor);
    }
    const int half = Scale() / 2 + 1;
    const int arm = half + 4;
    for (const auto& [colour, width] : {std::pair(Qt::white, 3), std::pair(Qt::black, 1)}) {
        painter.setPen(QPen(colour, width));
        painter.drawLine(cursor - QPoint(arm, 0), cursor - QPoint(half, 0));
        painter.drawLine(cursor + QPoint(half, 0), cursor + QPoint(arm, 0));
        painter.drawLine(cursor - QPoint(0, arm), cursor - QPoint(0, half));
        painter.drawLine(cursor + QPoint(0, half), cursor + QPoint(0, arm));
    }
}

void PictureCanvas::keyPressEvent(QKeyEvent* event) {
    const auto key = DrawingKeyOf(event->key());
    if (!key) return QWidget::keyPressEvent(event);
    keyPressed(*key, event->modifiers().testFlag(Qt::ShiftModifier));
}

void PictureCanvas::mousePressEvent(QMouseEvent* event) {
    const auto point = PointAt(event->position().toPoint());
    if (point && event->button() == Qt::LeftButton) pressed(*point);
}

void PictureCanvas::mouseMoveEvent(QMouseEvent* event) {
    const auto point = PointAt(event->position().toPoint());
    pointedAt(point);
    if (point && event->buttons().testFlag(Qt::LeftButton)) dragged(*point);
}

void PictureCanvas::leaveEvent(QEvent*) {
    pointedAt(std::nullopt);
}

}  // namespace fabula::ide
