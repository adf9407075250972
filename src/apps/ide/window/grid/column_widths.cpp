#include "ide/window/grid/column_widths.h"

#include <algorithm>
#include <numeric>

namespace fabula::ide {
namespace {

/// Its width when no column may be wider than `level` that can do with less.
int WidthAt(const ColumnWish& wish, int level) {
    if (wish.kept) return wish.width;
    return std::min(wish.width, std::max(level, wish.least));
}

int SumAt(const std::vector<ColumnWish>& wishes, int level) {
    return std::accumulate(wishes.begin(), wishes.end(), 0,
                           [level](int sum, const ColumnWish& wish) { return sum + WidthAt(wish, level); });
}

}  // namespace

std::vector<int> FitColumns(const std::vector<ColumnWish>& wishes, int room) {
    int widest = 0;
    for (const ColumnWish& wish : wishes)
        widest = std::max(widest, wish.width);
    // The highest level at which they fit lies from `low` on and below `high`.
    const bool fits = SumAt(wishes, 0) <= room;
    int low = fits ? 0 : room / 2;
    int high = fits ? widest + 1 : low + 1;
    while (high - low > 1) {
        const int middle = low + (high - low) / 2;
        (SumAt(wishes, middle) <= room ? low : high) = middle;
    }
    std::vector<int> widths;
    for (const ColumnWish& wish : wishes)
        widths.push_back(WidthAt(wish, low));
    return widths;
}

}  // namespace fabula::ide
