#pragma once

#include <QElapsedTimer>
#include <QEventLoop>

#include "platform/event_pump.h"

namespace fabula::qt {

/// Lets the windows be drawn during long work, now and then.
class QtEvents : public platform::EventPump {
  public:
    /// `taken`: which events are dealt with; by default what the person does waits until the work is done.
    explicit QtEvents(QEventLoop::ProcessEventsFlags taken = QEventLoop::ExcludeUserInputEvents)
        : taken_(taken) {
        sinceLast_.start();
    }
    void Pump() final;

  private:
    QEventLoop::ProcessEventsFlags taken_;
    QElapsedTimer sinceLast_;
};

}  // namespace fabula::qt
