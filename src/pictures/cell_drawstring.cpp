#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "pictures/cell_image.h"
#include "text/colours.h"

// The drawstring of an image: the larger part of each cell first, then the rest.

namespace fabula::pictures {
namespace {

using text::kFirstBrightColour;

class CellDrawer {
  public:
    CellDrawer(const CellImage& image, int paper) : image_(image) {
        shown_.numbers.fill(static_cast<std::uint8_t>(paper));
        for (int cell = 0; cell < kCellColumns * kCellRows; ++cell)
            bases_[static_cast<std::size_t>(cell)] = MostFrequent(cell % kCellColumns, cell / kCellColumns);
    }

    std::string Draw() {
        for (int colour = 0; colour < kFirstBrightColour; ++colour)
            DrawBlocks(colour);
        for (int colour = 0; colour <= text::kHighestColour; ++colour)
            DrawRuns(colour);
        return text_ + "END";
    }

  private:
    int MostFrequent(int column, int row) const {
        std::array<int, text::kHighestColour + 1> counts{};
        for (int i = 0; i < kCellSize * kCellSize; ++i)
            ++counts[image_.At(column * kCellSize + i % kCellSize, row * kCellSize + i / kCellSize)];
        return static_cast<int>(std::ranges::max_element(counts) - counts.begin());
    }

    /// Whether a block would show something new in a cell.
    bool WantsBlock(int column, int row, int colour) const {
        return bases_[static_cast<std::size_t>(row * kCellColumns + column)] == colour &&
               shown_.At(column * kCellSize, row * kCellSize) != colour;
    }

    /// The cells of a colour, as few rectangles as can be had by going along the rows. A block paints in
    /// the paper colour, which is never bright.
    void DrawBlocks(int colour) {
        bool named = false;
        for (int row = 0; row < kCellRows; ++row) {
            for (int column = 0; column < kCellColumns; ++column) {
                if (!WantsBlock(column, row, colour)) continue;
                if (!named) Add({"PAPER", colour});
                named = true;
                DrawBlock(column, row, colour);
            }
        }
    }

    void DrawBlock(int column, int row, int colour) {
        int right = column;
        while (right + 1 < kCellColumns && WantsBlock(right + 1, row, colour))
            ++right;
        int bottom = row;
        const auto rowWants = [&](int at) {
            for (int x = column; x <= right; ++x)
                if (!WantsBlock(x, at, colour)) return false;
            return true;
        };
        while (bottom + 1 < kCellRows && rowWants(bottom + 1))
            ++bottom;
        Add({"BLOCK", bottom - row, right - column, column, row});
        for (int line = row * kCellSize; line < (bottom + 1) * kCellSize; ++line) {
            for (int x = column * kCellSize; x < (right + 1) * kCellSize; ++x)
                shown_.At(x, line) = static_cast<std::uint8_t>(colour);
        }
    }

    /// What is still missing of a colour, in runs along the lines. A run may go over pixels that a later
    /// colour takes.
    void DrawRuns(int colour) {
        bool named = false;
        for (int line = 0; line < kCanvasHeight; ++line) {
            for (int x = 0; x < kCanvasWidth; ++x) {
                if (!Lacks(x, line, colour)) continue;
                if (!named) AddInk(colour);
                named = true;
                x = DrawRun(x, line, colour);
            }
        }
    }

    bool Lacks(int x, int line, int colour) const {
        return image_.At(x, line) == colour && shown_.At(x, line) != colour;
    }

    /// A pixel that may be painted in the colour: it wants it, or its own colour comes later.
    bool MayTake(int x, int line, int colour) const {
        return image_.At(x, line) >= colour && (image_.At(x, line) == colour || LacksItsOwn(x, line));
    }
    bool LacksItsOwn(int x, int line) const { return shown_.At(x, line) != image_.At(x, line); }

    int DrawRun(int x, int line, int colour) {
        int end = x;
        for (int at = x; at < kCanvasWidth && MayTake(at, line, colour); ++at)
            if (Lacks(at, line, colour)) end = at;
        for (int at = x; at <= end; ++at)
            shown_.At(at, line) = static_cast<std::uint8_t>(colour);
        Add({"PLOT", 0, x, LineOfY(line)});
        if (end > x) Add({"LINE", 0, end - x, 0});
        return end;
    }

    void AddInk(int colour) {
        Add({"INK", colour % kFirstBrightColour});
        if (colour >= kFirstBrightColour) Add({"BRIGHT", 1});
    }

    struct CommandText {
        std::string_view word;
        std::array<std::optional<int>, 4> numbers;

        template <typename... Numbers>
        CommandText(std::string_view name, Numbers... given) : word(name), numbers{given...} {}
    };
    void Add(const CommandText& command) {
        text_ += command.word;
        for (const std::optional<int>& number : command.numbers)
            if (number) text_ += ' ' + std::to_string(*number);
        text_ += ' ';
    }

    const CellImage& image_;
    CellImage shown_;  ///< what the drawstring so far draws
    std::array<int, static_cast<std::size_t>(kCellColumns) * kCellRows> bases_;
    std::string text_;
};

}  // namespace

std::string DrawstringOf(const CellImage& image, int paper) {
    return CellDrawer(image, paper).Draw();
}

}  // namespace fabula::pictures
