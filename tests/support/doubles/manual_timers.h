#pragma once

#include <map>

#include "platform/timers.h"

namespace fabula::platform {

/// Timers whose time passes when it is told to. For tests, and for programs that do not wait.
class ManualTimers final : public Timers {
  public:
    int Start(std::chrono::milliseconds delay, Action action) override;
    void Stop(int timer) override;

    /// Lets time pass: what is due meanwhile is called in the order of its time, also what is started on
    /// the way.
    void Advance(std::chrono::milliseconds time);

    /// How many timers run.
    int Running() const { return static_cast<int>(waiting_.size()); }

  private:
    struct Waiting {
        std::chrono::milliseconds due;
        Action action;
    };

    std::map<int, Waiting>::iterator Earliest();

    std::chrono::milliseconds now_{0};
    int last_ = 0;
    std::map<int, Waiting> waiting_;  ///< by number, and so in the order of starting
};

}  // namespace fabula::platform
