#pragma once

#include "engine/output/trace_sink.h"
#include "engine/run_state.h"

namespace fabula::engine {

/// The log of a run. Events are made only while it is on; callers test that first, so that a run without a
/// trace makes none:
///
///     if (trace.On()) trace.Tell(TableEnded{});
class Trace {
  public:
    Trace(TraceSink* sink, const RunState& state) : sink_(sink), state_(state) {}

    /// There is somewhere to write to, and flag 1004 or 1005 is non-zero.
    bool On() const {
        return sink_ && (state_.Flag(flag::kTraceFile) != 0 || state_.Flag(flag::kTrace) != 0);
    }

    void Tell(const TraceEvent& event) { sink_->Tell(event); }

  private:
    TraceSink* sink_;
    const RunState& state_;
};

}  // namespace fabula::engine
