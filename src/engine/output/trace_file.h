#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "engine/output/trace_sink.h"
#include "platform/clock.h"

namespace fabula::engine {

/// The name of a trace begun at a time: "TRC20260131_235959.trc".
std::string TraceFileName(const platform::DateTime& begun);

/// A trace written to a file as the game runs. A disk that fills up ends the trace, not the game.
class TraceFile final : public TextTrace {
  public:
    /// Begins the file with `header`. Throws fabula::Error when it can't be written.
    TraceFile(const std::filesystem::path& file, std::string_view header);

    void WriteLine(std::string_view line) override;
    /// Ends the file. False when not all of it could be written.
    bool Finish();

  private:
    std::ofstream stream_;
};

}  // namespace fabula::engine
