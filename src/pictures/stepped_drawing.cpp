#include "pictures/stepped_drawing.h"

#include <algorithm>

#include "platform/error.h"

namespace fabula::pictures {

void SteppedDrawing::Start(const Picture& picture) {
    drawing_.Restore(fresh_);
    drawing_.CommDraw(picture, "");
    position_ = 0;
    interval_ = kInterval;
    sinceMark_ = 0;
    marks_.clear();
    marks_.push_back({0, drawing_.Keep()});
}

void SteppedDrawing::GoTo(const std::vector<std::string>& words, std::size_t position) {
    if (position < position_) ReturnTo(position);
    while (position_ < position) {
        try {
            position_ = drawing_.DrawCommand(words, position_);
        } catch (const Error&) {
            // The command may have drawn a part of what it does.
            const std::size_t before = position_;
            ReturnTo(before);
            GoTo(words, before);
            throw;
        }
        PassMark();
    }
}

void SteppedDrawing::Forget(std::size_t index) {
    if (position_ > index) ReturnTo(index);
    std::erase_if(marks_, [index](const Mark& mark) { return mark.position > index; });
}

Canvas SteppedDrawing::PlanesAt(const std::vector<std::string>& words, std::size_t position) const {
    const Mark& mark = MarkBefore(position);
    Drawing drawing = drawing_;
    drawing.Restore(mark.snapshot);
    for (std::size_t at = mark.position; at < position;)
        at = drawing.DrawCommand(words, at);
    return drawing.Planes();
}

/// The last mark that does not lie behind `position`.
const SteppedDrawing::Mark& SteppedDrawing::MarkBefore(std::size_t position) const {
    return *std::prev(std::ranges::upper_bound(marks_, position, {}, &Mark::position));
}

void SteppedDrawing::ReturnTo(std::size_t position) {
    const Mark& mark = MarkBefore(position);
    drawing_.Restore(mark.snapshot);
    position_ = mark.position;
    sinceMark_ = 0;
}

void SteppedDrawing::PassMark() {
    ++sinceMark_;
    if (position_ <= marks_.back().position) {
        if (std::ranges::binary_search(marks_, position_, {}, &Mark::position)) sinceMark_ = 0;
        return;
    }
    if (sinceMark_ < interval_) return;
    marks_.push_back({position_, drawing_.Keep()});
    sinceMark_ = 0;
    if (marks_.size() > kMostSnapshots) ThinOut();
}

/// Gives up every other mark, but the first never.
void SteppedDrawing::ThinOut() {
    std::vector<Mark> kept;
    kept.reserve(kMostSnapshots);
    for (std::size_t i = 0; i < marks_.size(); i += 2) {
        kept.push_back(std::move(marks_[i]));
    }
    marks_ = std::move(kept);
    interval_ *= 2;
}

}  // namespace fabula::pictures
