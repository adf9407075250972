#pragma once

#include <vector>

namespace fabula::ide {

/// What a column of a table would like, in points of the screen.
struct ColumnWish {
    int width = 0;      ///< what its texts need, or what the author gave it
    int least = 0;      ///< narrower it can't be read
    bool kept = false;  ///< the author gave it: it stays
};

/// The widths of the columns of a table that is `room` wide. Where they don't fit, the widest become
/// narrower first, down to their least; where that is not enough either, all have what they would like.
/// What is left over is for the caller to give to the last.
std::vector<int> FitColumns(const std::vector<ColumnWish>& wishes, int room);

}  // namespace fabula::ide
