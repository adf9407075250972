#pragma once

#include "qt/qt_events.h"

namespace fabula::ide {

/// Lets the windows be drawn and used during long work, so that it can be cancelled. For work in a modal
/// dialog only, which keeps the author out of the adventure.
class JobEvents final : public qt::QtEvents {
  public:
    JobEvents() : QtEvents(QEventLoop::AllEvents) {}
};

}  // namespace fabula::ide
