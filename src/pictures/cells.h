#pragma once

#include <optional>

#include "pictures/canvas.h"
#include "pictures/characters/glyph.h"

namespace fabula::pictures {

/// A pixel of a plane.
struct PlanePoint {
    int x = 0;
    int line = 0;

    friend bool operator==(const PlanePoint&, const PlanePoint&) = default;
};

/// Draws a character with its top left pixel at (x, top). Clear bits are drawn only when `clear` is not the
/// plane's background, so that text on the picture's own paper does not erase what lies under it; they are
/// written over the background's colour, so that exclusive-or shows `clear` there. Returns the pixel that
/// was written last, in or beyond the plane; none when nothing was.
std::optional<PlanePoint> SpecXYCharacter(Plane& plane, int x, int top, const Glyph& glyph, Colour set,
                                          Colour clear);

/// What the spans of a fill are painted with on one plane.
struct PatternInk {
    Glyph pattern{};  ///< anchored to the cells of the plane, not to the fill
    Colour set{};
    Colour clear{};
    bool leaveClear = false;  ///< clear bits are not written at all: a transparent paper
    int defaultPaper = 0;     ///< nor are they over pixels of this palette number
};

/// Paints the part of one cell that lies inside the rectangle from (x, line) to (xMax, lineMax), both
/// included. The cell is the one that holds (x, line).
void PartOfXYChar(Plane& plane, const PatternInk& ink, int x, int line, int xMax, int lineMax);

/// Paint a span of a line or of a column, both ends included, cell by cell from its right or lower end.
void DrawHLine(Plane& plane, const PatternInk& ink, int left, int right, int line);
void DrawVLine(Plane& plane, const PatternInk& ink, int x, int top, int bottom);

}  // namespace fabula::pictures
