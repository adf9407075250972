#pragma once

#include <QColor>
#include <QImage>

#include "pictures/canvas.h"
#include "pictures/characters/glyph.h"

namespace fabula::ide {

/// A plane as an image.
QImage ImageOfPlane(const pictures::Plane& plane);
/// A character in two colours, every pixel `scale` wide.
QImage ImageOfGlyph(const pictures::Glyph& glyph, QColor ink, QColor paper, int scale);
QColor ColourOf(pictures::Colour colour);

}  // namespace fabula::ide
