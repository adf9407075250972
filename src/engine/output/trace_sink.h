#pragma once

#include <string_view>

#include "engine/output/trace_event.h"

namespace fabula::engine {

/// Where the events of a trace go.
class TraceSink {
  public:
    virtual ~TraceSink() = default;
    virtual void Tell(const TraceEvent& event) = 0;
};

/// A trace as text: gets the lines of the events.
class TextTrace : public TraceSink {
  public:
    void Tell(const TraceEvent& event) final {
        for (const std::string& line : LinesOf(event))
            WriteLine(line);
    }
    /// One line, without its end.
    virtual void WriteLine(std::string_view line) = 0;
};

}  // namespace fabula::engine
