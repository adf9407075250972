#pragma once

namespace fabula::platform {

/// A date and time of day, local, to the second. Months and days count from 1.
struct DateTime {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// The time as the program sees it. Nothing but this class reads the machine's clock.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The current local time.
    virtual DateTime Now() const = 0;
};

/// The machine's clock.
class SystemClock final : public Clock {
  public:
    DateTime Now() const override;
};

/// A clock that stands where it was set. For tests and repeatable runs.
class FixedClock final : public Clock {
  public:
    explicit FixedClock(DateTime now) : now_(now) {}

    DateTime Now() const override { return now_; }
    void Set(DateTime now) { now_ = now; }

  private:
    DateTime now_;
};

}  // namespace fabula::platform
