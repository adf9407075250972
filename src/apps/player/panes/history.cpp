#include "player/panes/history.h"

namespace fabula::player {

void History::Add(std::string_view line) {
    if (!line.empty() && (lines_.empty() || lines_.back() != line)) lines_.emplace_back(line);
    if (lines_.size() > kMostLines) lines_.erase(lines_.begin());
    place_ = lines_.size();
    typed_.clear();
}

std::optional<std::string> History::Older(std::string_view shown) {
    if (place_ == 0) return std::nullopt;
    if (place_ == lines_.size()) typed_ = shown;
    --place_;
    return lines_[place_];
}

std::optional<std::string> History::Newer() {
    if (place_ == lines_.size()) return std::nullopt;
    ++place_;
    return place_ == lines_.size() ? typed_ : lines_[place_];
}

}  // namespace fabula::player
