#pragma once

#include <QElapsedTimer>

#include "platform/event_pump.h"

namespace fabula::ide {

/// Lets the windows be drawn and used during long work, so that it can be cancelled. For work in a modal
/// dialog only, which keeps the author out of the adventure.
class JobEvents final : public platform::EventPump {
  public:
    JobEvents() { sinceLast_.start(); }
    void Pump() override;

  private:
    QElapsedTimer sinceLast_;
};

}  // namespace fabula::ide
