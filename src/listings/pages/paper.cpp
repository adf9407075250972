#include "listings/pages/paper.h"

#include <algorithm>
#include <utility>

#include "text/encoding/utf8.h"

namespace fabula::listings {

void Paper::Put(Line line) {
    columns_ = std::clamp(text::Length(line.text), columns_, kMostSheetColumns);
    sheets_.back().lines.push_back(std::move(line));
}

}  // namespace fabula::listings
