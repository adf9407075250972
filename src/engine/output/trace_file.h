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

/// The first line of a trace: the adventure's file, when it began, and the machine as the environment's
/// COMPUTER names it, where it does: "game.fbd 2026-01-31 23:59:59 ATTIC".
std::string TraceHeader(const std::filesystem::path& adventure, const platform::DateTime& begun);

/// A trace written to a file as the game runs. A disk that fills up ends the trace, not the game.
class TraceFile final : public TextTrace {
  public:
    /// Begins the file with `header`. Throws fabula::Error when it can't be written.
    TraceFile(const std::filesystem::path& file, std::string_view header);

    void WriteLine(std::string_view line) override;
    /// Ends the file. Throws fabula::Error when not all of it could be written.
    void Finish();

  private:
    std::filesystem::path file_;
    std::ofstream stream_;
};

}  // namespace fabula::engine
