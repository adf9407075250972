#pragma once

#include <string_view>

namespace fabula::engine {

/// Where the lines of a trace go.
class TraceSink {
  public:
    virtual ~TraceSink() = default;
    /// One line, without its end.
    virtual void WriteLine(std::string_view line) = 0;
};

}  // namespace fabula::engine
