#pragma once

#include <map>
#include <memory>

#include "platform/timers.h"

class QTimer;

namespace fabula::qt {

/// Timers of the event loop.
class QtTimers final : public platform::Timers {
  public:
    QtTimers();
    ~QtTimers() override;

    int Start(std::chrono::milliseconds delay, Action action) override;
    void Stop(int timer) override;

  private:
    int last_ = 0;
    std::map<int, std::unique_ptr<QTimer>> running_;
};

}  // namespace fabula::qt
