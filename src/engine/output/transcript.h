#pragma once

#include <ostream>
#include <string_view>

namespace fabula::engine {

/// Everything that is shown and typed, as it happens and unbroken: lines end where the game ends them. What
/// was typed stands behind a ">" at the head of its line, also where the game shows no prompt.
///
/// It reaches the stream's file whenever something was typed. Texts must be safe
/// (text/encoding/safe_text.h).
class Transcript {
  public:
    explicit Transcript(std::ostream& stream) : stream_(stream) {}

    void Write(std::string_view text);
    void EndLine();
    /// The game has cleared its pane: an empty line parts what comes from what was, if anything was.
    void NewPage();
    void Typed(std::string_view line);

    bool AtLineStart() const { return atLineStart_; }
    bool Failed() const { return !stream_; }

  private:
    std::ostream& stream_;
    bool used_ = false;
    bool atLineStart_ = true;
};

}  // namespace fabula::engine
