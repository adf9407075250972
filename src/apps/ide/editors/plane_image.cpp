#include "ide/editors/plane_image.h"

namespace fabula::ide {

using pictures::kCanvasHeight;
using pictures::kCanvasWidth;

namespace {

QRgb OpaqueOf(pictures::Colour colour) {
    return 0xFF000000U | static_cast<QRgb>(colour);
}

}  // namespace

QColor ColourOf(pictures::Colour colour) {
    return QColor::fromRgb(OpaqueOf(colour));
}

QImage ImageOfPlane(const pictures::Plane& plane) {
    QImage image(kCanvasWidth, kCanvasHeight, QImage::Format_ARGB32);
    for (int line = 0; line < kCanvasHeight; ++line) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(line));
        for (int x = 0; x < kCanvasWidth; ++x)
            row[x] = OpaqueOf(plane.Pixel(x, line));
    }
    return image;
}

QImage ImageOfGlyph(const pictures::Glyph& glyph, QColor ink, QColor paper, int scale) {
    QImage image(8 * scale, 8 * scale, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, pictures::HasBit(glyph, x / scale, y / scale) ? ink : paper);
    }
    return image;
}

}  // namespace fabula::ide
