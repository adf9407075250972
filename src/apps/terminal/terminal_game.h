#pragma once

#include <cstdint>
#include <optional>

#include "engine/output/origin.h"
#include "engine/output/trace_sink.h"
#include "store/adventure.h"
#include "terminal/terminal_window.h"

namespace fabula::terminal {

/// How a game is played; as it stands no time passes and nothing is traced.
struct PlayOptions {
    std::optional<std::uint32_t> seed;  ///< for random numbers that can be drawn again
    bool realTime = false;              ///< time-outs run out and pauses last
    bool debug = false;                 ///< a line that begins with ":" is a request to Diagnostics
    engine::TraceSink* trace = nullptr;
    engine::OriginSink* origins = nullptr;
};

/// Plays a game to its end or to the end of the input. False when the game went wrong or could not be
/// played; the player has then been told.
///
/// Without real time pauses pass at once, and a time-out passes when an empty line is read, so that a file
/// of commands can say where the player let the time run out. While the game has a script loaded an empty
/// line plays it, up to the next question.
///
/// Throws fabula::Error when the input ends with a failure or something can't be written.
bool PlayInTerminal(store::Adventure& adventure, TerminalWindow& window, Screen& screen,
                    const PlayOptions& options);

}  // namespace fabula::terminal
