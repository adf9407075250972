#pragma once

#include <string_view>
#include <vector>

#include "pictures/canvas.h"
#include "pictures/cells.h"

namespace fabula::pictures {

/// Whoever looks on while a picture is drawn. Both calls come between two spans of a fill, so they must be
/// cheap.
class DrawWatcher {
  public:
    virtual ~DrawWatcher() = default;
    /// What is being done, for a status line.
    virtual void Status(std::string_view text) = 0;
    /// A span was painted: wait so long that the fill can be watched growing.
    virtual void TimerWait(int milliseconds) = 0;
};

/// How long the watcher is asked to wait after each span of a fill.
inline constexpr int kStepTime = 1;

/// The fills: they paint span by span, from each span into the spans that touch it on the next line (or
/// column). Where they may go is read from the pixel plane alone, and what they painted is a border to the
/// rest of the fill. Which parts of a winding region a fill leaves out depends on this order; imported
/// pictures were made with it.
///
/// All coordinates are those of the planes. A start beyond the edges is allowed.
class Fill {
  public:
    /// `watcher` may be null. All arguments must outlive the fill.
    Fill(Canvas& canvas, const PatternInk& colourInk, const PatternInk& pixelInk, DrawWatcher* watcher)
        : canvas_(canvas), colourInk_(colourInk), pixelInk_(pixelInk), watcher_(watcher) {}

    /// FILL and SHADE: from the start's line all the way down, then all the way up; never turning back. The
    /// start is not tested: on a drawn pixel the span beside it is painted all the same.
    void DoShade(int x, int line);

    /// QFILL: turns around at each span, and so reaches every part of a region; but a span on the first or
    /// last line of the picture does not turn around when it was going off the picture.
    void DoQFill(int x, int line);

    /// QSHADE and BSHADE: as DoShade by columns, first to the right, then to the left; nothing from a drawn
    /// start.
    void DoQShade(int x, int line);

    /// True when the fill stopped because it painted more spans than a picture has room for. This happens
    /// when the pixel plane's pattern has gaps, so that nothing keeps the fill from coming back.
    bool GaveUp() const { return spansLeft_ < 0; }

  private:
    /// A run of pixels from `first` to `last` along the fill's scan, on line (or column) `at`.
    struct Span {
        int first = 0;
        int last = 0;
        int at = 0;
    };
    /// A span whose neighbours are being looked for.
    struct OpenSpan {
        Span span;
        int direction = 1;
        bool turned = false;
        int next = 0;  ///< the first place along the span that was not looked at yet
    };

    bool CheckForLine(int along, int at) const;
    int FindEnd(int along, int at, int step) const;
    void DrawSpan(Plane& plane, const PatternInk& ink, const Span& span) const;
    Span PaintSpanAt(int along, int at);
    void CheckNextLines(const Span& start, int direction, bool turnsAround);
    void Status(std::string_view text) const;

    Canvas& canvas_;
    const PatternInk& colourInk_;
    const PatternInk& pixelInk_;
    DrawWatcher* watcher_;
    bool byColumns_ = false;
    int spansLeft_ = kMostSpans;

    /// Each span but the first marks a pixel that was not marked before, so an honest fill has no more.
    static constexpr int kMostSpans = kCanvasWidth * kCanvasHeight + 1;
};

/// True when the pixel has the palette number of `colour`, or lies beyond the plane.
bool CheckThePoint(const Plane& plane, int x, int line, Colour colour);

}  // namespace fabula::pictures
