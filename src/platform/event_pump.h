#pragma once

namespace fabula::platform {

/// Gives the window a turn during long work. `Pump` is called about once a record and must be cheap.
class EventPump {
  public:
    virtual ~EventPump() = default;
    virtual void Pump() = 0;
};

/// For programs without a window.
class NoEvents final : public EventPump {
  public:
    void Pump() override {}
};

}  // namespace fabula::platform
