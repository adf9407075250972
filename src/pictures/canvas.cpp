#include "pictures/canvas.h"

#include <algorithm>
#include <cstdlib>

namespace fabula::pictures {

Plane::Plane(Colour background)
    : pixels_(static_cast<std::size_t>(kCanvasWidth) * kCanvasHeight, background),
      background_(background) {}

void Plane::Plot(int x, int line, Colour colour) {
    if (!Contains(x, line)) return;
    Colour& pixel = pixels_[IndexOf(x, line)];
    pixel = mode_ == WritingMode::Copy ? colour : pixel ^ colour;
}

void Plane::PlotRectangle(int left, int top, int right, int bottom, Colour colour) {
    left = std::max(left, 0);
    top = std::max(top, 0);
    right = std::min(right, kCanvasWidth - 1);
    bottom = std::min(bottom, kCanvasHeight - 1);
    if (left > right) return;
    for (int line = top; line <= bottom; ++line) {
        const auto first = pixels_.begin() + static_cast<std::ptrdiff_t>(IndexOf(left, line));
        const auto last = first + (right - left + 1);
        if (mode_ == WritingMode::Copy) {
            std::fill(first, last, colour);
        } else {
            std::transform(first, last, first, [colour](Colour pixel) { return pixel ^ colour; });
        }
    }
}

void Plane::Clear(Colour background) {
    background_ = background;
    std::fill(pixels_.begin(), pixels_.end(), background);
}

void PlotLine(Plane& plane, int fromX, int fromLine, int toX, int toLine, Colour colour) {
    const int dx = toX - fromX;
    const int dy = toLine - fromLine;
    const bool flat = std::abs(dx) >= std::abs(dy);
    const int steps = std::max(std::abs(dx), std::abs(dy));
    const int across = std::min(std::abs(dx), std::abs(dy));
    const int stepX = dx < 0 ? -1 : 1;
    const int stepY = dy < 0 ? -1 : 1;

    // Only the steps that stand on the plane along the longer axis are made, however far the line goes.
    const int start = flat ? fromX : fromLine;
    const int limit = flat ? kCanvasWidth : kCanvasHeight;
    const bool forward = flat ? stepX > 0 : stepY > 0;
    const int first = std::max(0, forward ? -start : start - limit + 1);
    const int end = std::min(steps, forward ? limit - start : start + 1);
    for (int step = first; step < end; ++step) {
        const auto aside = static_cast<int>((2LL * step * across + steps) / (2LL * steps));
        plane.Plot(fromX + stepX * (flat ? step : aside), fromLine + stepY * (flat ? aside : step), colour);
    }
}

}  // namespace fabula::pictures
