#pragma once

#include <cstddef>
#include <vector>

#include "pictures/characters/glyph.h"
#include "pictures/palette.h"

namespace fabula::pictures {

inline constexpr int kCanvasWidth = 256;
inline constexpr int kCanvasHeight = 176;
/// Cells are as large as a character, 8 by 8 pixels: 32 columns, 22 rows.
inline constexpr int kCellSize = kGlyphSide;
inline constexpr int kCellColumns = kCanvasWidth / kCellSize;
inline constexpr int kCellRows = kCanvasHeight / kCellSize;

/// The pixel plane's two colours, by palette number. A pixel that isn't the background counts as drawn.
inline constexpr int kPixelPlaneBackground = 1;
inline constexpr int kPixelPlaneForeground = 7;

/// How a plane takes a colour: as it is, or by exclusive-or with the pixel that is there.
enum class WritingMode { Copy, ExclusiveOr };

/// 256 by 176 pixels. In a plane's own coordinates x runs from the left and the line from the top; a point
/// of the drawing language has its Y from the bottom (`LineOfY`). What is written beyond the edges is
/// dropped.
class Plane {
  public:
    explicit Plane(Colour background);

    static bool Contains(int x, int line) {
        return x >= 0 && x < kCanvasWidth && line >= 0 && line < kCanvasHeight;
    }

    /// The pixel at a point that `Contains` says is there.
    Colour Pixel(int x, int line) const { return pixels_[IndexOf(x, line)]; }
    /// All pixels, line by line from the top.
    const std::vector<Colour>& Pixels() const { return pixels_; }

    /// Writes one pixel, by the writing mode.
    void Plot(int x, int line, Colour colour);

    /// Writes every pixel from (left, top) to (right, bottom), both included, by the writing mode.
    void PlotRectangle(int left, int top, int right, int bottom, Colour colour);

    /// Makes every pixel `background`, whatever the writing mode.
    void Clear(Colour background);

    Colour Background() const { return background_; }
    WritingMode Mode() const { return mode_; }
    void SetMode(WritingMode mode) { mode_ = mode; }

  private:
    static std::size_t IndexOf(int x, int line) {
        return static_cast<std::size_t>(line) * kCanvasWidth + static_cast<std::size_t>(x);
    }

    std::vector<Colour> pixels_;
    Colour background_;
    WritingMode mode_ = WritingMode::Copy;
};

/// The two planes of a picture, always written side by side: what the author sees and saves, and where
/// something was drawn. The fills read only the latter.
struct Canvas {
    Plane colour{IndexToColour(0)};
    Plane pixel{IndexToColour(kPixelPlaneBackground)};
};

/// The line of a Y, and the Y of a line.
constexpr int LineOfY(int y) {
    return kCanvasHeight - 1 - y;
}

/// Draws the straight line from one point to another without its last pixel: along the longer axis one
/// pixel a step, across it rounded to the nearest pixel, halves away from the start.
void PlotLine(Plane& plane, int fromX, int fromLine, int toX, int toLine, Colour colour);

}  // namespace fabula::pictures
