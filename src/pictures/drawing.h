#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/canvas.h"
#include "pictures/fills.h"
#include "pictures/picture_book.h"

namespace fabula::pictures {

/// A distance shortened by a subroutine's scale, toward zero: so many eighths of it.
int ScaleCalc(int value, int scale);

/// A point in the coordinates of the drawing language: x from the left, y from the bottom.
struct Point {
    int x = 0;
    int y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// The attributes that commands set and later commands use.
struct DrawingState {
    Point cursor;          ///< where relative commands start, on both planes
    int ink = 0;           ///< as given to INK; kTransparent leaves the choice to `currentInk`
    Colour inkColour{};    ///< what pixels are drawn with
    int paper = 0;         ///< as given to PAPER; kTransparent keeps fills from writing clear bits
    Colour paperColour{};  ///< what blocks and the clear bits of characters are drawn with
    int bright = 0;        ///< as given to BRIGHT
    int flash = 0;         ///< as given to FLASH; shows in the status and nowhere else
    bool inverse = false;  ///< of the last command that named inverse and over
    bool over = false;     ///< likewise
    int defaultInk = 0;    ///< the picture's ink, 0 to 15
    int defaultPaper = 0;  ///< the picture's paper, 0 to 15
    int currentInk = 0;    ///< the default ink, in a subroutine that subroutine's
};

inline constexpr int kTransparent = 8;

/// How deep GOSUBs may be nested, and how many commands one draw may run with all its subroutines.
inline constexpr std::size_t kDeepestGoSub = 64;
inline constexpr int kMostCommands = 50'000;

/// As the index of the last word to draw: all of them.
inline constexpr std::size_t kWholeDrawstring = static_cast<std::size_t>(-1);

/// Draws the pictures of one adventure, one after another, on one canvas. The attributes live as long as
/// the Drawing: a draw resets only what `DrawClear` and the head of `CommDraw` name, so that a drawstring
/// may look different in a Drawing that drew another before. For a picture on its own, use `DrawPicture`.
///
/// A drawstring is trusted as stored; it need not have passed the check. What can't be drawn throws
/// fabula::Error with the picture's number: a parameter that is missing or no number, a character or a
/// picture that does not exist, GOSUBs without end. The canvas then shows what was drawn before. Words
/// without a meaning are passed over.
class Drawing {
  public:
    /// `book` and `watcher`, which may be null, must outlive the Drawing.
    explicit Drawing(const PictureBook& book, DrawWatcher* watcher = nullptr);

    /// Clears the canvas and draws `drawstring` in the default colours of `picture`, up to the word with
    /// index `lastWord`.
    void CommDraw(const Picture& picture, std::string_view drawstring,
                  std::size_t lastWord = kWholeDrawstring);

    /// Runs the one command at `index` of a drawstring's words, as CommDraw would; gives the index of the
    /// word behind its parameters. A row of these after `CommDraw` is one draw, and has its limit.
    std::size_t DrawCommand(const std::vector<std::string>& words, std::size_t index);

    /// Empties the canvas in the default colours of `picture` and puts the cursor on its bottom left pixel.
    void DrawClear(const Picture& picture);

    void DrawInverse(bool inverse) { state_.inverse = inverse; }
    /// Sets the colour plane's writing mode too, but only when the value changes: after a fill, which
    /// leaves the plane copying, a command with the same over as before copies.
    void DrawOver(bool over);

    const Canvas& Planes() const { return canvas_; }
    const DrawingState& State() const { return state_; }

    /// All that a draw has come to between two commands, to go on from there again.
    struct Snapshot {
        Canvas canvas;
        DrawingState state;
        int commandsLeft = kMostCommands;
    };
    Snapshot Keep() const { return {canvas_, state_, commandsLeft_}; }
    void Restore(const Snapshot& snapshot);

  private:
    friend class CommandArguments;
    struct Routine;
    static std::span<const Routine> Routines();

    void DrawWords(const std::vector<std::string>& words, int scale, std::size_t lastWord);
    std::size_t RunCommand(const std::vector<std::string>& words, std::size_t index, int scale);
    [[noreturn]] void Fail(const std::string& why) const;
    [[noreturn]] void FailTooDeep() const;

    void DrawAbsMove(int x, int y, int scale);
    void DrawPlot(int digits, int x, int y);
    void DrawRelMove(int dx, int dy, int scale);
    void DrawLine(int digits, int dx, int dy, int scale);
    void DrawFill(int dx, int dy, int scale);
    void DrawShade(int digits, int dx, int dy, int pattern, int scale);
    void DrawText(int digits, int set, int character, int column, int row);
    void DrawBlock(int height, int width, int column, int row);
    void DrawInk(int number);
    void DrawPaper(int number);
    void DrawBright(int on);
    void DrawFlash(int on);
    void DrawGoSub(int scale, int number);
    void DrawQShade(int digits, int dx, int dy, int shade, int scale);
    void DrawRPlot(int digits, int dx, int dy);
    void DrawQFill(int dx, int dy, int scale);
    void DrawBShade(int digits, int dx, int dy, int shade, int scale);

    void SetDigits(int digits);
    Point Target(int dx, int dy, int scale) const;
    void MoveTo(Point point);
    void TouchLineEnd(Point point, Colour lineColour);
    const Glyph& FindPattern(int number) const;
    void RunFill(void (Fill::*fill)(int, int), Point target, const Glyph& pattern);

    const PictureBook& book_;
    DrawWatcher* watcher_;
    Canvas canvas_;
    DrawingState state_;
    int picture_ = 0;           ///< the number of the picture that was cleared for
    std::vector<int> callees_;  ///< the subroutines being drawn, the innermost last
    int commandsLeft_ = kMostCommands;
};

/// Draws one picture of the book from a fresh start, up to the word with index `lastWord`. Throws
/// fabula::Error when there is no such picture or it can't be drawn.
Canvas DrawPicture(const PictureBook& book, int number, std::size_t lastWord = kWholeDrawstring);

}  // namespace fabula::pictures
