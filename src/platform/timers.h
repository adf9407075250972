#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace fabula::platform {

/// What calls back after a time. Everything that waits takes its time from here, so that a test can let
/// an hour pass at once.
class Timers {
  public:
    using Action = std::function<void()>;

    virtual ~Timers() = default;

    /// Calls `action` once when `delay` has passed, never before this call returns. The number, above 0,
    /// names the timer.
    virtual int Start(std::chrono::milliseconds delay, Action action) = 0;

    /// The timer's action is not called any more. A timer that has fired, or a number of no timer, is left
    /// alone.
    virtual void Stop(int timer) = 0;
};

/// One action that is due after a time, again and again at the owner's wish. Ends with its owner.
class Alarm {
  public:
    Alarm(Timers& timers, Timers::Action action) : timers_(timers), action_(std::move(action)) {}
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;
    ~Alarm() { Stop(); }

    /// Due once after `delay`, counted from now; a time that was running is given up.
    void Start(std::chrono::milliseconds delay) {
        Stop();
        timer_ = timers_.Start(delay, [this] {
            timer_ = 0;
            action_();
        });
    }
    void Stop() {
        if (timer_ != 0) timers_.Stop(std::exchange(timer_, 0));
    }
    bool IsRunning() const { return timer_ != 0; }

  private:
    Timers& timers_;
    Timers::Action action_;
    int timer_ = 0;
};

}  // namespace fabula::platform
