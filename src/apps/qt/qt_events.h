#pragma once

#include <QElapsedTimer>
#include <QEventLoop>

#include "platform/event_pump.h"

namespace fabula::qt {

/// Lets the windows be drawn during long work, now and then. What the person does meanwhile waits until the
/// work is done.
class QtEvents : public platform::EventPump {
  public:
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
