#include "player/panes/picture_pane.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "pictures/canvas.h"

namespace fabula::player {

namespace {

constexpr int kPictureMargin = 8;

}  // namespace

PicturePane::PicturePane(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Picture of the place"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumHeight(48);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void PicturePane::Show(const QImage& image) {
    image_ = image;
    scaled_ = {};
    updateGeometry();
    update();
}

QSize PicturePane::sizeHint() const {
    return image_.isNull() ? QSize(pictures::kCanvasWidth, pictures::kCanvasHeight)
                           : image_.size().boundedTo(QSize(1024, 352));
}

int PicturePane::HeightIn(QSize column) const {
    const int least = column.height() * 2 / 5;
    if (image_.isNull()) return least;
    const double ratio = devicePixelRatioF();
    for (int factor = kLargestFactor; factor >= 1; --factor) {
        const int whole =
            static_cast<int>(std::ceil(image_.height() * factor / ratio)) + 2 * kPictureMargin;
        const bool wide = image_.width() * factor / ratio + 2 * kPictureMargin <= column.width();
        if (wide && whole >= least && whole <= column.height() * 3 / 5) return whole;
    }
    return least;
}

QRect PicturePane::Place() const {
    if (image_.isNull()) return {};
    const QSize room = (QRectF(rect()).size() * devicePixelRatioF()).toSize();
    const int margin = static_cast<int>(kPictureMargin * devicePixelRatioF());
    const QSize largest = (room - QSize(2 * margin, 2 * margin)).expandedTo(QSize(1, 1));
    const QSize shown =
        image_.size().scaled(largest.boundedTo(image_.size() * kLargestFactor), Qt::KeepAspectRatio);
    return {QPoint((room.width() - shown.width()) / 2, (room.height() - shown.height()) / 2), shown};
}

const QImage& PicturePane::Scaled(QSize size) {
    if (scaled_.size() == size) return scaled_;
    // Enlarged by a whole factor first, so that drawn pixels keep their edges.
    const int factor = std::clamp((size.width() + image_.width() - 1) / image_.width(), 1, kLargestFactor);
    scaled_ =
        image_.scaled(image_.size() * factor).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return scaled_;
}

void PicturePane::paintEvent(QPaintEvent*) {
    if (image_.isNull()) return;
    QPainter painter(this);
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    const QRect place = Place();
    if (!place.isEmpty()) painter.drawImage(place.topLeft(), Scaled(place.size()));
}

}  // namespace fabula::player
