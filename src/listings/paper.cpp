#include "listings/paper.h"

#include <algorithm>
#include <utility>

#include "text/utf8.h"

namespace fabula::listings {

void Paper::Put(Line line) {
    columns_ = std::max(columns_, text::Length(line.text));
    sheets_.back().lines.push_back(std::move(line));
}

}  // namespace fabula::listings
