#pragma once

#include <QElapsedTimer>

#include "platform/event_pump.h"

namespace fabula::qt {

/// Lets the windows be drawn during long work, now and then. What the person does meanwhile waits until the
/// work is done.
class QtEvents final : public platform::EventPump {
  public:
    QtEvents() { sinceLast_.start(); }
    void Pump() override;

  private:
    QElapsedTimer sinceLast_;
};

}  // namespace fabula::qt
