#include "pictures/drawing.h"

#include <algorithm>

#include "pictures/cells.h"
#include "pictures/drawstring.h"
#include "platform/error.h"
#include "text/colours.h"

namespace fabula::pictures {
namespace {

/// So many eighths to the nearest whole number, halves to the even one.
int RoundEighths(int eighths) {
    const int whole = eighths >> 3;
    const int rest = eighths & 7;
    return rest > 4 || (rest == 4 && whole % 2 != 0) ? whole + 1 : whole;
}

/// The picture's sides are joined: a distance that leads over one of them comes in at the other.
Point Wrap(Point from, int dx, int dy) {
    if (from.x + dx > kCanvasWidth - 1) dx -= kCanvasWidth;
    if (from.x + dx < 0) dx += kCanvasWidth;
    if (from.y + dy < 0) dy += kCanvasHeight;
    if (from.y + dy > kCanvasHeight - 1) dy -= kCanvasHeight;
    return {from.x + dx, from.y + dy};
}

Colour Foreground() {
    return IndexToColour(kPixelPlaneForeground);
}

}  // namespace

int ScaleCalc(int value, int scale) {
    return value * scale / 8;
}

void Drawing::SetDigits(int digits) {
    DrawInverse(digits % 10 != 0);
    DrawOver(digits / 10 != 0);
}

void Drawing::DrawOver(bool over) {
    if (over == state_.over) return;
    state_.over = over;
    canvas_.colour.SetMode(over ? WritingMode::ExclusiveOr : WritingMode::Copy);
}

Point Drawing::Target(int dx, int dy, int scale) const {
    if (scale > 0) {
        dx = ScaleCalc(dx, scale);
        dy = ScaleCalc(dy, scale);
    }
    return Wrap(state_.cursor, dx, dy);
}

void Drawing::MoveTo(Point point) {
    state_.cursor = {std::clamp(point.x, -kLargestNumber, kLargestNumber),
                     std::clamp(point.y, -kLargestNumber, kLargestNumber)};
}

void Drawing::DrawAbsMove(int x, int y, int scale) {
    if (scale > 0) {
        x = RoundEighths(x * scale);
        y = RoundEighths(y * scale);
    }
    canvas_.colour.Plot(x, LineOfY(y), state_.inkColour);
    canvas_.pixel.Plot(x, LineOfY(y), Foreground());
    MoveTo({x, y});
}

void Drawing::DrawPlot(int digits, int x, int y) {
    SetDigits(digits);
    canvas_.colour.Plot(x, LineOfY(y), state_.inkColour);
    canvas_.pixel.Plot(x, LineOfY(y), Foreground());
    MoveTo({x, y});
}

void Drawing::DrawRelMove(int dx, int dy, int scale) {
    MoveTo(Target(dx, dy, scale));
}

void Drawing::DrawLine(int digits, int dx, int dy, int scale) {
    SetDigits(digits);
    const Colour colour = state_.inverse ? state_.paperColour : state_.inkColour;
    const Point start = state_.cursor;
    const Point end = Target(dx, dy, scale);
    PlotLine(canvas_.colour, start.x, LineOfY(start.y), end.x, LineOfY(end.y), colour);
    PlotLine(canvas_.pixel, start.x, LineOfY(start.y), end.x, LineOfY(end.y), Foreground());
    TouchLineEnd(start, colour);
    if (end != start) TouchLineEnd(end, colour);
    MoveTo(end);
}

/// Makes sure that an end of a line is drawn. In exclusive-or mode this may toggle again what the line
/// toggled.
void Drawing::TouchLineEnd(Point point, Colour lineColour) {
    const int line = LineOfY(point.y);
    if (!CheckThePoint(canvas_.colour, point.x, line, lineColour))
        canvas_.colour.Plot(point.x, line, lineColour);
    if (!CheckThePoint(canvas_.pixel, point.x, line, Foreground()))
        canvas_.pixel.Plot(point.x, line, Foreground());
}

void Drawing::DrawRPlot(int digits, int dx, int dy) {
    const Point target = Target(dx, dy, 0);
    SetDigits(digits);
    canvas_.colour.Plot(target.x, LineOfY(target.y), state_.inkColour);
    // The ink here, not the foreground: in blue, the pixel plane's background, it leaves no mark for fills.
    canvas_.pixel.Plot(target.x, LineOfY(target.y), state_.inkColour);
    MoveTo(target);
}

void Drawing::DrawText(int digits, int set, int character, int column, int row) {
    SetDigits(digits);
    const Character* found = book_.characters.Find(set, character);
    if (found == nullptr) {
        Fail("character set " + std::to_string(set) + " has no character " + std::to_string(character) +
             ".");
    }
    const Colour setColour = state_.inverse ? state_.paperColour : state_.inkColour;
    const Colour clearColour = state_.inverse ? state_.inkColour : state_.paperColour;
    const int x = column * kCellSize;
    const int top = row * kCellSize;
    const auto last = SpecXYCharacter(canvas_.colour, x, top, found->glyph, setColour, clearColour);
    SpecXYCharacter(canvas_.pixel, x, top, found->glyph, Foreground(), canvas_.pixel.Background());
    if (last) MoveTo({last->x, LineOfY(last->line)});
}

void Drawing::DrawBlock(int height, int width, int column, int row) {
    canvas_.colour.PlotRectangle(column * kCellSize, row * kCellSize,
                                 (column + width) * kCellSize + kCellSize - 1,
                                 (row + height) * kCellSize + kCellSize - 1, state_.paperColour);
}

void Drawing::DrawInk(int number) {
    constexpr int kBrightBlack = text::kHighestColour + 1;  // since 8 is taken
    state_.ink = number == kBrightBlack ? 0 : number;
    if (number == kTransparent) {
        state_.inkColour = IndexToColour(state_.defaultInk);
    } else if (number == kBrightBlack) {
        state_.inkColour = IndexToColour(text::kFirstBrightColour);
    } else {
        state_.inkColour = IndexToColour(number);
    }
}

void Drawing::DrawPaper(int number) {
    state_.paper = number;
    if (number != kTransparent) state_.paperColour = IndexToColour(number);
}

void Drawing::DrawBright(int on) {
    state_.bright = on;
    const int number = ColourToIndex(state_.inkColour);
    const bool isBright = number >= text::kFirstBrightColour;
    if (on != 0 && !isBright) state_.inkColour = IndexToColour(number + text::kFirstBrightColour);
    if (on == 0 && isBright) state_.inkColour = IndexToColour(number - text::kFirstBrightColour);
}

void Drawing::DrawFlash(int on) {
    state_.flash = on;
}

void Drawing::DrawFill(int dx, int dy, int scale) {
    RunFill(&Fill::DoShade, Target(dx, dy, scale), FindPattern(kSolidCharacter));
}

void Drawing::DrawQFill(int dx, int dy, int scale) {
    RunFill(&Fill::DoQFill, Target(dx, dy, scale), FindPattern(kSolidCharacter));
}

void Drawing::DrawShade(int digits, int dx, int dy, int pattern, int scale) {
    SetDigits(digits);
    const Glyph& first = FindPattern(pattern / 16);
    const Glyph& second = FindPattern(pattern % 16);
    RunFill(&Fill::DoShade, Target(dx, dy, scale), CombineGlyphs(first, second));
}

void Drawing::DrawQShade(int digits, int dx, int dy, int shade, int scale) {
    SetDigits(digits);
    RunFill(&Fill::DoQShade, Target(dx, dy, scale), MarloShadePattern(shade));
}

/// A word of its own because imported pictures carry it; it draws what QSHADE draws.
void Drawing::DrawBShade(int digits, int dx, int dy, int shade, int scale) {
    DrawQShade(digits, dx, dy, shade, scale);
}

const Glyph& Drawing::FindPattern(int number) const {
    const Character* found = book_.characters.FindFirst(number);
    if (found == nullptr) Fail("no character set has a character " + std::to_string(number) + ".");
    return found->glyph;
}

/// Runs a fill and leaves the cursor where it was. The colour plane copies afterwards, whatever over says.
void Drawing::RunFill(void (Fill::*fill)(int, int), Point target, const Glyph& pattern) {
    const Colour set = state_.inverse ? state_.paperColour : state_.inkColour;
    const bool leaveClear = state_.paper == kTransparent;
    const PatternInk colourInk{
        .pattern = pattern,
        .set = state_.ink == kTransparent ? IndexToColour(state_.currentInk) : set,
        .clear = state_.inverse ? state_.inkColour : state_.paperColour,
        .leaveClear = leaveClear,
        .defaultPaper = state_.defaultPaper,
    };
    const PatternInk pixelInk{
        .pattern = FindPattern(kSolidCharacter),
        .set = Foreground(),
        .clear = canvas_.pixel.Background(),
        .leaveClear = leaveClear,
        .defaultPaper = state_.defaultPaper,
    };
    Fill run(canvas_, colourInk, pixelInk, watcher_);
    (run.*fill)(target.x, LineOfY(target.y));
    if (run.GaveUp())
        Fail("a fill does not end, since character 143, which marks what is filled, has gaps.");
    canvas_.colour.SetMode(WritingMode::Copy);
}

void Drawing::DrawClear(const Picture& picture) {
    const Colour background =
        picture.paper == kColourOfTheAdventure ? book_.backColour : IndexToColour(picture.paper);
    const Colour pen = picture.ink == kColourOfTheAdventure ? book_.textColour : IndexToColour(picture.ink);
    picture_ = picture.number;
    state_.defaultPaper = ColourToIndex(background);
    state_.defaultInk = ColourToIndex(pen);
    state_.currentInk = state_.defaultInk;
    DrawInk(state_.defaultInk);
    DrawPaper(state_.defaultPaper);
    canvas_.colour.Clear(background);
    canvas_.pixel.Clear(IndexToColour(kPixelPlaneBackground));
    MoveTo({0, 0});
}

Canvas DrawPicture(const PictureBook& book, int number, std::size_t lastWord) {
    const Picture* picture = book.FindPicture(number);
    if (picture == nullptr) throw Error("There is no picture " + std::to_string(number) + ".");
    Drawing drawing(book);
    drawing.CommDraw(*picture, picture->drawstring, lastWord);
    return drawing.Planes();
}

}  // namespace fabula::pictures
