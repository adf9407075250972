#include "support/doubles/manual_timers.h"

#include <algorithm>

namespace fabula::platform {

int ManualTimers::Start(std::chrono::milliseconds delay, Action action) {
    waiting_[++last_] = {now_ + delay, std::move(action)};
    return last_;
}

void ManualTimers::Stop(int timer) {
    waiting_.erase(timer);
}

std::map<int, ManualTimers::Waiting>::iterator ManualTimers::Earliest() {
    return std::min_element(waiting_.begin(), waiting_.end(),
                            [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
}

void ManualTimers::Advance(std::chrono::milliseconds time) {
    const auto end = now_ + time;
    for (auto next = Earliest(); next != waiting_.end() && next->second.due <= end; next = Earliest()) {
        now_ = std::max(now_, next->second.due);
        const Action action = std::move(next->second.action);
        waiting_.erase(next);
        action();
    }
    now_ = end;
}

}  // namespace fabula::platform
