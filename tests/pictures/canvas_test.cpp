#include "pictures/canvas.h"

#include <cmath>
#include <random>
#include <set>
#include <utility>

#include <gtest/gtest.h>

namespace fabula::pictures {
namespace {

constexpr Colour kWhite = MakeColour(230, 230, 230);
constexpr Colour kRed = MakeColour(230, 0, 0);
constexpr Colour kCyan = MakeColour(0, 230, 230);

using Pixels = std::set<std::pair<int, int>>;

Pixels PixelsOf(const Plane& plane) {
    Pixels pixels;
    const Colour background = plane.Background();
    const Colour* row = plane.Pixels().data();
    for (int line = 0; line < kCanvasHeight; ++line, row += kCanvasWidth) {
        for (int x = 0; x < kCanvasWidth; ++x) {
            if (row[x] != background) pixels.insert({x, line});
        }
    }
    return pixels;
}

TEST(Plane, BeginsInItsBackground) {
    const Plane plane(kWhite);
    EXPECT_EQ(plane.Background(), kWhite);
    EXPECT_EQ(PixelsOf(plane), Pixels{});
}

TEST(Plane, PlotsAtItsCorners) {
    Plane plane(kWhite);
    plane.Plot(0, 0, kRed);
    plane.Plot(255, 175, kRed);
    EXPECT_EQ(PixelsOf(plane), (Pixels{{0, 0}, {255, 175}}));
}

TEST(Plane, DropsWhatLiesBeyondItsEdges) {
    Plane plane(kWhite);
    plane.Plot(-1, 0, kRed);
    plane.Plot(256, 0, kRed);
    plane.Plot(0, -1, kRed);
    plane.Plot(0, 176, kRed);
    plane.PlotRectangle(-8, -8, -1, 200, kRed);
    plane.PlotRectangle(256, 0, 300, 20, kRed);
    EXPECT_EQ(PixelsOf(plane), Pixels{});
}

TEST(Plane, CutsARectangleAtItsEdges) {
    Plane plane(kWhite);
    plane.PlotRectangle(254, 174, 300, 300, kRed);
    EXPECT_EQ(PixelsOf(plane), (Pixels{{254, 174}, {255, 174}, {254, 175}, {255, 175}}));
}

TEST(Plane, WritesByExclusiveOrWhenToldTo) {
    Plane plane(kWhite);
    plane.SetMode(WritingMode::ExclusiveOr);
    plane.Plot(3, 3, kRed);
    EXPECT_EQ(plane.Pixel(3, 3), kCyan);
    plane.PlotRectangle(3, 3, 4, 3, kRed);
    EXPECT_EQ(plane.Pixel(3, 3), kWhite);
    EXPECT_EQ(plane.Pixel(4, 3), kCyan);
}

TEST(Plane, ClearingIgnoresTheWritingMode) {
    Plane plane(kWhite);
    plane.SetMode(WritingMode::ExclusiveOr);
    plane.Clear(kRed);
    EXPECT_EQ(plane.Background(), kRed);
    EXPECT_EQ(plane.Pixel(100, 100), kRed);
}

TEST(LineOfY, CountsFromTheBottom) {
    EXPECT_EQ(LineOfY(0), 175);
    EXPECT_EQ(LineOfY(175), 0);
}

TEST(PlotLine, LeavesItsLastPixelOut) {
    Plane plane(kWhite);
    PlotLine(plane, 2, 5, 5, 5, kRed);
    EXPECT_EQ(PixelsOf(plane), (Pixels{{2, 5}, {3, 5}, {4, 5}}));
}

TEST(PlotLine, OfOnePixelDrawsNothing) {
    Plane plane(kWhite);
    PlotLine(plane, 2, 5, 2, 5, kRed);
    EXPECT_EQ(PixelsOf(plane), Pixels{});
}

/// The same line by floating numbers: the point at each step along the longer axis, rounded, halves away
/// from the start.
Pixels ModelLine(int fromX, int fromLine, int toX, int toLine) {
    const double dx = toX - fromX;
    const double dy = toLine - fromLine;
    const double steps = std::max(std::abs(dx), std::abs(dy));
    Pixels pixels;
    for (double step = 0; step < steps; ++step) {
        const int x = fromX + static_cast<int>(std::round(dx * step / steps));
        const int line = fromLine + static_cast<int>(std::round(dy * step / steps));
        if (Plane::Contains(x, line)) pixels.insert({x, line});
    }
    return pixels;
}

TEST(PlotLine, IsTheRoundedLineWhereverItLies) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> coordinate(-300, 500);
    for (int i = 0; i < 2000; ++i) {
        const int fromX = coordinate(random);
        const int fromLine = coordinate(random);
        const int toX = coordinate(random);
        const int toLine = coordinate(random);
        Plane plane(kWhite);
        PlotLine(plane, fromX, fromLine, toX, toLine, kRed);
        ASSERT_EQ(PixelsOf(plane), ModelLine(fromX, fromLine, toX, toLine))
            << fromX << ' ' << fromLine << " to " << toX << ' ' << toLine;
    }
}

}  // namespace
}  // namespace fabula::pictures
