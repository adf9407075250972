#pragma once

#include <filesystem>
#include <iostream>

#include "cli/host/job_terminal.h"
#include "cli/host/terminal_person.h"
#include "interchange/jobs.h"
#include "platform/clock.h"
#include "platform/event_pump.h"

namespace fabula::cli {

/// What a job has at the command line: the person, the clock, and `status` for what it tells.
class Console {
  public:
    explicit Console(std::ostream& status) : observer_(status, ErrorsGoToTerminal()) {}

    /// Throws fabula::Error when there is no default data.
    interchange::JobHost JobHost();
    platform::Person& Person() { return person_; }
    platform::Clock& Clock() { return clock_; }
    platform::EventPump& Events() { return events_; }
    interchange::JobObserver& Observer() { return observer_; }

  private:
    TerminalPerson person_;
    platform::SystemClock clock_;
    platform::NoEvents events_;
    JobTerminal observer_;
};

}  // namespace fabula::cli
