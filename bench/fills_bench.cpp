#include <array>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "pictures/characters/glyph.h"
#include "pictures/drawing.h"
#include "pictures/fills.h"

namespace fabula::pictures {
namespace {

constexpr Glyph kSolid = {255, 255, 255, 255, 255, 255, 255, 255};
constexpr Glyph kCheckerboard = {170, 85, 170, 85, 170, 85, 170, 85};

enum class Area { Blank, Serpentine };

/// A blank canvas, or one whose walls leave a corridor of 7 pixels that winds from the upper left corner
/// down to the last line.
Canvas MakeCanvas(Area area) {
    Canvas canvas;
    if (area == Area::Blank) return canvas;
    const Colour wall = IndexToColour(kPixelPlaneForeground);
    for (int line = 7; line < kCanvasHeight - 1; line += 8) {
        const bool gapAtRight = line % 16 == 7;
        const int left = gapAtRight ? 0 : 7;
        canvas.pixel.PlotRectangle(left, line, left + kCanvasWidth - 8, line, wall);
    }
    return canvas;
}

/// The yardstick: marks all that is reached from the corner on one plane of numbers, span by span with a
/// stack, as painting programs do.
int ScanlineFlood(std::vector<int>& pixels) {
    struct Seed {
        int x;
        int line;
    };
    std::vector<Seed> open{{0, 0}};
    int painted = 0;
    while (!open.empty()) {
        const Seed seed = open.back();
        open.pop_back();
        int* row = &pixels[static_cast<std::size_t>(seed.line) * kCanvasWidth];
        if (row[seed.x] != 0) continue;
        int left = seed.x;
        int right = seed.x;
        while (left > 0 && row[left - 1] == 0)
            --left;
        while (right < kCanvasWidth - 1 && row[right + 1] == 0)
            ++right;
        for (int x = left; x <= right; ++x)
            row[x] = 1;
        painted += right - left + 1;
        for (const int line : {seed.line - 1, seed.line + 1}) {
            if (line < 0 || line >= kCanvasHeight) continue;
            const int* next = &pixels[static_cast<std::size_t>(line) * kCanvasWidth];
            for (int x = left; x <= right; ++x) {
                if (next[x] == 0 && (x == left || next[x - 1] != 0)) open.push_back({x, line});
            }
        }
    }
    return painted;
}

void PlainScanlineFlood(benchmark::State& state, Area area) {
    const Canvas canvas = MakeCanvas(area);
    std::vector<int> blank;
    for (int line = 0; line < kCanvasHeight; ++line) {
        for (int x = 0; x < kCanvasWidth; ++x) {
            blank.push_back(canvas.pixel.Pixel(x, line) == canvas.pixel.Background() ? 0 : 1);
        }
    }
    std::vector<int> pixels;
    int painted = 0;
    for (auto _ : state) {
        pixels = blank;
        painted = ScanlineFlood(pixels);
        benchmark::DoNotOptimize(pixels.data());
    }
    state.counters["pixels"] = painted;
}

int CountDrawn(const Canvas& canvas) {
    int count = 0;
    for (int line = 0; line < kCanvasHeight; ++line) {
        for (int x = 0; x < kCanvasWidth; ++x) {
            if (canvas.pixel.Pixel(x, line) != canvas.pixel.Background()) ++count;
        }
    }
    return count;
}

/// One fill from the upper left corner. The canvas is copied for each fill, and the copy is counted in, as
/// it is for the yardstick.
void FillCanvas(benchmark::State& state, Area area, void (Fill::*fill)(int, int), const Glyph& pattern) {
    const Canvas blank = MakeCanvas(area);
    const PatternInk colourInk{pattern, IndexToColour(2), IndexToColour(6), false, 0};
    const PatternInk pixelInk{kSolid, IndexToColour(kPixelPlaneForeground),
                              IndexToColour(kPixelPlaneBackground), false, 0};
    Canvas canvas = blank;
    for (auto _ : state) {
        canvas = blank;
        Fill run(canvas, colourInk, pixelInk, nullptr);
        (run.*fill)(0, 0);
        benchmark::DoNotOptimize(canvas);
    }
    state.counters["pixels"] = CountDrawn(canvas) - CountDrawn(blank);
}

BENCHMARK_CAPTURE(PlainScanlineFlood, blank, Area::Blank);
BENCHMARK_CAPTURE(FillCanvas, FILL_blank, Area::Blank, &Fill::DoShade, kSolid);
BENCHMARK_CAPTURE(FillCanvas, SHADE_blank, Area::Blank, &Fill::DoShade, kCheckerboard);
BENCHMARK_CAPTURE(FillCanvas, QFILL_blank, Area::Blank, &Fill::DoQFill, kSolid);
BENCHMARK_CAPTURE(FillCanvas, QSHADE_blank, Area::Blank, &Fill::DoQShade, kCheckerboard);
BENCHMARK_CAPTURE(PlainScanlineFlood, serpentine, Area::Serpentine);
BENCHMARK_CAPTURE(FillCanvas, FILL_serpentine, Area::Serpentine, &Fill::DoShade, kSolid);
BENCHMARK_CAPTURE(FillCanvas, SHADE_serpentine, Area::Serpentine, &Fill::DoShade, kCheckerboard);
BENCHMARK_CAPTURE(FillCanvas, QFILL_serpentine, Area::Serpentine, &Fill::DoQFill, kSolid);
BENCHMARK_CAPTURE(FillCanvas, QSHADE_serpentine, Area::Serpentine, &Fill::DoQShade, kCheckerboard);

/// The commands of a drawstring, with the counts of their parameters; codes play no part in drawing.
PictureBook BenchBook() {
    PictureBook book;
    for (const auto& [number, name, count] : std::initializer_list<std::tuple<int, const char*, int>>{
             {kAbsMove, "ABSMOVE", 2},
             {kLine, "LINE", 3},
             {kFill, "FILL", 2},
             {kShade, "SHADE", 4},
             {kText, "TEXT", 5},
             {kBlock, "BLOCK", 4},
             {kInk, "INK", 1},
             {kPaper, "PAPER", 1},
             {kRPlot, "RPLOT", 3},
         }) {
        book.commands.Add({number, name, 0, count, {}, {}});
    }
    book.characters.Add({0, 1, "Default", kCheckerboard});
    book.characters.Add({0, 65, "Default", {0, 24, 36, 66, 126, 66, 66, 0}});
    book.characters.Add({0, kSolidCharacter, "Default", kSolid});
    return book;
}

/// A picture of 2,000 commands, as an author might draw it: 200 small shapes, filled or shaded, with text,
/// blocks and points.
void DrawPictureOf2000Commands(benchmark::State& state) {
    const PictureBook book = BenchBook();
    std::mt19937 random(5);
    const auto number = [&random](int lowest, int highest) {
        return std::to_string(std::uniform_int_distribution<int>(lowest, highest)(random));
    };
    std::string drawstring;
    for (int shape = 0; shape < 200; ++shape) {
        drawstring += "INK " + number(0, 7) + " PAPER " + number(0, 7) + " ABSMOVE " + number(0, 200) +
                      " " + number(0, 140) + " LINE 0 30 0 LINE 0 -15 25 LINE 0 -15 -25 RPLOT 0 1 1 ";
        drawstring += shape % 2 == 0 ? "FILL 8 3 " : "SHADE 0 8 3 17 ";
        drawstring += "TEXT 0 0 65 " + number(0, 31) + " " + number(0, 21) + " BLOCK 1 1 " + number(0, 30) +
                      " " + number(0, 20) + " ";
    }
    drawstring += "END";
    Drawing drawing(book);
    for (auto _ : state) {
        drawing.CommDraw(Picture{}, drawstring);
        benchmark::DoNotOptimize(drawing.Planes());
    }
}
BENCHMARK(DrawPictureOf2000Commands)->Unit(benchmark::kMicrosecond);

/// The command that paints most, in exclusive-or mode, 1,000 times.
void Draw1000BlocksOfTheWholeCanvas(benchmark::State& state) {
    const PictureBook book = BenchBook();
    std::string drawstring = "LINE 10 0 0 ";
    for (int i = 0; i < 1000; ++i)
        drawstring += "BLOCK 21 31 0 0 ";
    drawstring += "END";
    Drawing drawing(book);
    for (auto _ : state) {
        drawing.CommDraw(Picture{}, drawstring);
        benchmark::DoNotOptimize(drawing.Planes());
    }
}
BENCHMARK(Draw1000BlocksOfTheWholeCanvas)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace fabula::pictures
