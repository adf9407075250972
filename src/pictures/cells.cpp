#include "pictures/cells.h"

#include <algorithm>

namespace fabula::pictures {
namespace {

/// The first coordinate of the cell that holds `coordinate`, and the place in that cell; right of the edge
/// and left of it alike.
constexpr int CellStart(int coordinate) {
    return coordinate & ~(kCellSize - 1);
}
constexpr int PlaceInCell(int coordinate) {
    return coordinate & (kCellSize - 1);
}

void PlotPatternPixel(Plane& plane, const PatternInk& ink, int x, int line) {
    if (HasBit(ink.pattern, PlaceInCell(x), PlaceInCell(line))) {
        plane.Plot(x, line, ink.set);
        return;
    }
    if (ink.leaveClear || !Plane::Contains(x, line)) return;
    if (ColourToIndex(plane.Pixel(x, line)) == ink.defaultPaper) return;
    plane.Plot(x, line, IndexToColour(ink.defaultPaper));
    plane.Plot(x, line, ink.clear);
}

}  // namespace

std::optional<PlanePoint> SpecXYCharacter(Plane& plane, int x, int top, const Glyph& glyph, Colour set,
                                          Colour clear) {
    std::optional<PlanePoint> last;
    for (int row = 0; row < kCellSize; ++row) {
        for (int column = 0; column < kCellSize; ++column) {
            const PlanePoint point{x + column, top + row};
            if (HasBit(glyph, column, row)) {
                plane.Plot(point.x, point.line, set);
            } else if (clear != plane.Background()) {
                plane.Plot(point.x, point.line, plane.Background());
                plane.Plot(point.x, point.line, clear);
            } else {
                continue;
            }
            last = point;
        }
    }
    return last;
}

void PartOfXYChar(Plane& plane, const PatternInk& ink, int x, int line, int xMax, int lineMax) {
    const int right = std::min(xMax, CellStart(x) + kCellSize - 1);
    const int bottom = std::min(lineMax, CellStart(line) + kCellSize - 1);
    for (int atLine = line; atLine <= bottom; ++atLine) {
        for (int atX = x; atX <= right; ++atX) {
            PlotPatternPixel(plane, ink, atX, atLine);
        }
    }
}

void DrawHLine(Plane& plane, const PatternInk& ink, int left, int right, int line) {
    while (right >= left) {
        const int start = std::max(left, CellStart(right));
        PartOfXYChar(plane, ink, start, line, right, line);
        right = start - 1;
    }
}

void DrawVLine(Plane& plane, const PatternInk& ink, int x, int top, int bottom) {
    while (bottom >= top) {
        const int start = std::max(top, CellStart(bottom));
        PartOfXYChar(plane, ink, x, start, x, bottom);
        bottom = start - 1;
    }
}

}  // namespace fabula::pictures
