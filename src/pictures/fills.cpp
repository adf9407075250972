#include "pictures/fills.h"

namespace fabula::pictures {

void Fill::DoShade(int x, int line) {
    const Span first = PaintSpanAt(x, line);
    CheckNextLines(first, 1, false);
    CheckNextLines(first, -1, false);
}

void Fill::DoQFill(int x, int line) {
    if (CheckForLine(x, line)) return;
    const Span first = PaintSpanAt(x, line);
    CheckNextLines(first, 1, true);
}

void Fill::DoQShade(int x, int line) {
    byColumns_ = true;
    if (CheckForLine(line, x)) return;
    const Span first = PaintSpanAt(line, x);
    CheckNextLines(first, 1, false);
    CheckNextLines(first, -1, false);
}

/// True where the fill can't go.
bool Fill::CheckForLine(int along, int at) const {
    const int x = byColumns_ ? at : along;
    const int line = byColumns_ ? along : at;
    return !Plane::Contains(x, line) || canvas_.pixel.Pixel(x, line) != canvas_.pixel.Background();
}

/// The last place that can be reached from `along` by steps of `step`. The place itself is not tested.
int Fill::FindEnd(int along, int at, int step) const {
    while (!CheckForLine(along + step, at))
        along += step;
    return along;
}

void Fill::DrawSpan(Plane& plane, const PatternInk& ink, const Span& span) const {
    if (byColumns_) {
        DrawVLine(plane, ink, span.at, span.first, span.last);
    } else {
        DrawHLine(plane, ink, span.first, span.last, span.at);
    }
}

/// Paints the span around a place on both planes. Its start is looked for from its end, not from the place:
/// when the place is drawn, the span begins behind it.
Fill::Span Fill::PaintSpanAt(int along, int at) {
    --spansLeft_;
    const int last = FindEnd(along, at, 1);
    const int first = FindEnd(last, at, -1);
    DrawSpan(canvas_.colour, colourInk_, {first, last, at});
    DrawSpan(canvas_.pixel, pixelInk_, {first, last, at});
    if (watcher_ != nullptr) watcher_->TimerWait(kStepTime);
    return {first, last, at};
}

/// Paints what touches `start` on the next line in `direction`, and what touches that, and so on, each span
/// with all that hangs on it before its right (or lower) neighbour. With `turnsAround` each span is then
/// left on its other side too. The open spans stand on a stack of their own, since a winding region has
/// thousands.
void Fill::CheckNextLines(const Span& start, int direction, bool turnsAround) {
    const int lines = byColumns_ ? kCanvasWidth : kCanvasHeight;
    std::vector<OpenSpan> open{{start, direction, false, start.first}};
    while (!open.empty() && !GaveUp()) {
        OpenSpan& current = open.back();
        const int heading = current.turned ? -current.direction : current.direction;
        const int next = current.span.at + heading;
        if (next < 0 || next >= lines) {
            // The other side is given up as well.
            open.pop_back();
            continue;
        }
        Status("Working...");
        while (current.next <= current.span.last && CheckForLine(current.next, next))
            ++current.next;
        if (current.next <= current.span.last) {
            Status("Drawing...");
            const Span found = PaintSpanAt(current.next, next);
            current.next = found.last + 1;
            open.push_back({found, heading, false, found.first});
        } else if (turnsAround && !current.turned) {
            current.turned = true;
            current.next = current.span.first;
        } else {
            open.pop_back();
        }
    }
}

void Fill::Status(std::string_view text) const {
    if (watcher_ != nullptr) watcher_->Status(text);
}

bool CheckThePoint(const Plane& plane, int x, int line, Colour colour) {
    return !Plane::Contains(x, line) || ColourToIndex(plane.Pixel(x, line)) == ColourToIndex(colour);
}

}  // namespace fabula::pictures
