#pragma once

#include <string>
#include <string_view>

#include "engine/run_state.h"
#include "engine/trace_sink.h"

namespace fabula::engine {

/// The log of a run. Texts are written only while it is on; callers test that first, so that a run without
/// a trace builds no text for it:
///
///     if (trace.On()) trace.Line("Process " + std::to_string(process));
class Trace {
  public:
    Trace(TraceSink* sink, const RunState& state) : sink_(sink), state_(state) {}

    /// `TraceOn`: there is somewhere to write to, and flag 1004 or 1005 is non-zero.
    bool On() const {
        return sink_ && (state_.Flag(flag::kTraceFile) != 0 || state_.Flag(flag::kTrace) != 0);
    }

    /// `TraceWrite`: adds to the line; Line also ends it.
    void Write(std::string_view text) { line_ += text; }
    void Line(std::string_view text = {}) {
        line_ += text;
        sink_->WriteLine(line_);
        line_.clear();
    }

  private:
    TraceSink* sink_;
    const RunState& state_;
    std::string line_;
};

}  // namespace fabula::engine
