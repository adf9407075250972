#include "pictures/fills.h"

#include <algorithm>
#include <array>
#include <memory>
#include <random>

#include <gtest/gtest.h>

#include "test_book.h"

namespace fabula::pictures {
namespace {

/// The fills once more, step by step and recursive as the rules tell them, on nothing but marks. `swapped`
/// exchanges the axes for QSHADE.
class ModelFill {
  public:
    explicit ModelFill(const Plane& pixels, bool swapped) : swapped_(swapped) {
        const Colour background = pixels.Background();
        const Colour* row = pixels.Pixels().data();
        bool* mark = marks_.data();
        for (int line = 0; line < kCanvasHeight; ++line, row += kCanvasWidth) {
            for (int x = 0; x < kCanvasWidth; ++x)
                mark[swapped ? line * kSide + x : x * kSide + line] = row[x] != background;
        }
    }

    void Shade(int x, int y) {
        const int right = FindRight(x, y);
        const int left = FindLeft(right, y);
        Paint(left, right, y);
        CheckNext(left, y, right, 1);
        CheckNext(left, y, right, -1);
    }

    void QFill(int x, int y) {
        if (CheckForLine(x, y)) return;
        const int right = FindRight(x, y);
        const int left = FindLeft(right, y);
        Paint(left, right, y);
        CheckNextQ(left, y, right, 1);
    }

    void QShade(int x, int y) {
        if (!CheckForLine(x, y)) Shade(x, y);
    }

    /// Whether every mark stands where the plane is drawn, and nowhere else.
    bool Equals(const Plane& pixels) const {
        const Colour background = pixels.Background();
        const Colour* row = pixels.Pixels().data();
        const bool* mark = marks_.data();
        for (int line = 0; line < kCanvasHeight; ++line, row += kCanvasWidth) {
            for (int x = 0; x < kCanvasWidth; ++x) {
                if (mark[swapped_ ? line * kSide + x : x * kSide + line] != (row[x] != background))
                    return false;
            }
        }
        return true;
    }

  private:
    int Width() const { return swapped_ ? kCanvasHeight : kCanvasWidth; }
    int Height() const { return swapped_ ? kCanvasWidth : kCanvasHeight; }
    bool& Mark(int x, int y) { return marks_[static_cast<std::size_t>(x * kSide + y)]; }

    bool CheckForLine(int x, int y) {
        return x < 0 || x >= Width() || y < 0 || y >= Height() || Mark(x, y);
    }
    int FindRight(int x, int y) { return CheckForLine(x + 1, y) ? x : FindRight(x + 1, y); }
    int FindLeft(int x, int y) { return CheckForLine(x - 1, y) ? x : FindLeft(x - 1, y); }
    void Paint(int left, int right, int y) {
        for (int x = left; x <= right; ++x) {
            if (x >= 0 && x < Width() && y >= 0 && y < Height()) Mark(x, y) = true;
        }
    }

    void CheckNext(int left, int y, int right, int direction) {
        const int next = y + direction;
        if (next == -1 || next == Height()) return;
        for (int x = left; x <= right; ++x) {
            if (CheckForLine(x, next)) continue;
            const int r = FindRight(x, next);
            const int l = FindLeft(r, next);
            Paint(l, r, next);
            CheckNext(l, next, r, direction);
            x = r;
        }
    }

    void CheckNextQ(int left, int y, int right, int direction) {
        for (const int pass : {direction, -direction}) {
            const int next = y + pass;
            if (next == -1 || next == Height()) return;
            for (int x = left; x <= right; ++x) {
                if (CheckForLine(x, next)) continue;
                const int r = FindRight(x, next);
                const int l = FindLeft(r, next);
                Paint(l, r, next);
                CheckNextQ(l, next, r, pass);
                x = r;
            }
        }
    }

    static constexpr int kSide = 256;

    bool swapped_;
    std::array<bool, kSide * kSide> marks_{};  ///< one behind another that lies on its right
};

/// A canvas whose pixel plane is drawn all over but for a rectangle, and in that with the given share.
Canvas RandomCanvas(std::mt19937& random, double share) {
    Canvas canvas;
    const Colour drawn = IndexToColour(kPixelPlaneForeground);
    std::uniform_int_distribution<int> corner(0, 130);
    const int left = corner(random);
    const int top = corner(random);
    std::bernoulli_distribution isDrawn(share);
    canvas.pixel.PlotRectangle(0, 0, kCanvasWidth - 1, kCanvasHeight - 1, drawn);
    for (int line = top; line < std::min(top + 50, kCanvasHeight); ++line) {
        for (int x = left; x < std::min(left + 60, kCanvasWidth); ++x) {
            if (!isDrawn(random)) canvas.pixel.Plot(x, line, canvas.pixel.Background());
        }
    }
    return canvas;
}

constexpr Glyph kSolid = {255, 255, 255, 255, 255, 255, 255, 255};

PatternInk SolidInk(int number) {
    return {kSolid, IndexToColour(number), IndexToColour(kPixelPlaneBackground), false,
            kPixelPlaneBackground};
}

using Start = void (Fill::*)(int, int);
using ModelStart = void (ModelFill::*)(int, int);

void ExpectLikeTheModel(Start start, ModelStart modelStart, bool swapped) {
    std::mt19937 random(11);
    for (int i = 0; i < 300; ++i) {
        Canvas canvas = RandomCanvas(random, (i % 6) * 0.08);
        const auto model = std::make_unique<ModelFill>(canvas.pixel, swapped);
        const int x = std::uniform_int_distribution<int>(-2, kCanvasWidth + 1)(random);
        const int line = std::uniform_int_distribution<int>(-2, kCanvasHeight + 1)(random);
        const PatternInk colourInk = SolidInk(2);
        const PatternInk pixelInk = SolidInk(kPixelPlaneForeground);
        (Fill(canvas, colourInk, pixelInk, nullptr).*start)(x, line);
        (*model.*modelStart)(swapped ? line : x, swapped ? x : line);
        ASSERT_TRUE(model->Equals(canvas.pixel)) << "case " << i << " from " << x << ' ' << line;
    }
}

TEST(Fill, DoShadeFollowsItsStepsOnRandomPictures) {
    ExpectLikeTheModel(&Fill::DoShade, &ModelFill::Shade, false);
}

TEST(Fill, DoQFillFollowsItsStepsOnRandomPictures) {
    ExpectLikeTheModel(&Fill::DoQFill, &ModelFill::QFill, false);
}

TEST(Fill, DoQShadeFollowsItsStepsOnRandomPictures) {
    ExpectLikeTheModel(&Fill::DoQShade, &ModelFill::QShade, true);
}

/// Marks all that can be reached from a place in four directions.
void Flood(Canvas& canvas, int x, int line) {
    std::vector<std::pair<int, int>> open{{x, line}};
    while (!open.empty()) {
        const auto [atX, atLine] = open.back();
        open.pop_back();
        if (!Plane::Contains(atX, atLine)) continue;
        if (canvas.pixel.Pixel(atX, atLine) != canvas.pixel.Background()) continue;
        canvas.pixel.Plot(atX, atLine, IndexToColour(kPixelPlaneForeground));
        open.insert(open.end(),
                    {{atX + 1, atLine}, {atX - 1, atLine}, {atX, atLine + 1}, {atX, atLine - 1}});
    }
}

TEST(Fill, DoQFillReachesAllOfARegionThatTouchesNeitherFirstNorLastLine) {
    std::mt19937 random(12);
    for (int i = 0; i < 200; ++i) {
        Canvas canvas = RandomCanvas(random, 0.3);
        canvas.pixel.PlotRectangle(0, 0, 255, 0, IndexToColour(kPixelPlaneForeground));
        canvas.pixel.PlotRectangle(0, 175, 255, 175, IndexToColour(kPixelPlaneForeground));
        Canvas flooded = canvas;
        const int x = std::uniform_int_distribution<int>(0, kCanvasWidth - 1)(random);
        const int line = std::uniform_int_distribution<int>(0, kCanvasHeight - 1)(random);
        const PatternInk ink = SolidInk(kPixelPlaneForeground);
        Fill(canvas, ink, ink, nullptr).DoQFill(x, line);
        Flood(flooded, x, line);
        ASSERT_TRUE(SamePixels(canvas.pixel, flooded.pixel)) << "case " << i;
    }
}

TEST(Fill, FillsACorridorThatWindsThroughTheWholePicture) {
    Canvas canvas;
    const Colour wall = IndexToColour(kPixelPlaneForeground);
    for (int line = 1; line < kCanvasHeight; line += 2) {
        const bool gapAtRight = line % 4 == 1;
        canvas.pixel.PlotRectangle(gapAtRight ? 0 : 1, line, gapAtRight ? 254 : 255, line, wall);
    }
    const PatternInk ink = SolidInk(kPixelPlaneForeground);
    Fill(canvas, ink, ink, nullptr).DoQFill(0, 0);
    EXPECT_EQ(CountDrawn(canvas), kCanvasWidth * kCanvasHeight);
}

TEST(Fill, PaintsTheColourPlaneWhereItMarksThePixelPlane) {
    std::mt19937 random(13);
    Canvas canvas = RandomCanvas(random, 0.2);
    const int before = CountDrawn(canvas);
    const PatternInk colourInk = SolidInk(2);
    const PatternInk pixelInk = SolidInk(kPixelPlaneForeground);
    for (int x = 0; x < kCanvasWidth; ++x) {
        Fill(canvas, colourInk, pixelInk, nullptr).DoQFill(x, 100);
    }
    EXPECT_GT(CountColoured(canvas), 0);
    EXPECT_EQ(CountColoured(canvas), CountDrawn(canvas) - before);
}

TEST(Fill, GivesUpWhenItsPixelPatternMarksNothing) {
    const PatternInk colourInk = SolidInk(2);
    PatternInk pixelInk = SolidInk(kPixelPlaneForeground);
    pixelInk.pattern = {};
    Canvas canvas;
    Fill endless(canvas, colourInk, pixelInk, nullptr);
    endless.DoQFill(10, 10);
    EXPECT_TRUE(endless.GaveUp());
}

TEST(Fill, OfEverySinglePixelDoesNotGiveUp) {
    Canvas canvas;
    const Colour wall = IndexToColour(kPixelPlaneForeground);
    for (int line = 1; line < kCanvasHeight; line += 2) {
        for (int x = 0; x < kCanvasWidth; x += 2) {
            canvas.pixel.Plot(x, line, wall);
        }
    }
    const PatternInk ink = SolidInk(kPixelPlaneForeground);
    Fill fill(canvas, ink, ink, nullptr);
    fill.DoQFill(0, 0);
    EXPECT_FALSE(fill.GaveUp());
    EXPECT_EQ(CountDrawn(canvas), kCanvasWidth * kCanvasHeight);
}

TEST(CheckThePoint, ComparesPaletteNumbersAndTakesPointsBeyondThePlaneForEqual) {
    Plane plane(MakeColour(1, 2, 3));
    EXPECT_TRUE(CheckThePoint(plane, 5, 5, IndexToColour(7))) << "a colour of no palette counts as 7";
    EXPECT_FALSE(CheckThePoint(plane, 5, 5, IndexToColour(2)));
    EXPECT_TRUE(CheckThePoint(plane, -1, 5, IndexToColour(2)));
    EXPECT_TRUE(CheckThePoint(plane, 5, 176, IndexToColour(2)));
}

}  // namespace
}  // namespace fabula::pictures
