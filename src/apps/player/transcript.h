#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace fabula::player {

/// A text file that takes down everything shown and typed, as it happens and unwrapped.
class Transcript {
  public:
    /// Starts a new file; one that was open is closed. Throws fabula::Error when it can't be written.
    void Open(const std::filesystem::path& file);
    void Close();
    bool IsOpen() const { return output_.is_open(); }

    void Write(std::string_view text);
    void EndLine();
    /// The game has cleared its pane: an empty line parts what comes from what was.
    void NewPage();
    /// A line of the player. It stands behind a ">" at the head of its line, also where the game shows no
    /// prompt.
    void Typed(std::string_view line);

    /// Puts what was written on the disk; the sentence that tells a failure, once: the transcript is then
    /// closed.
    std::optional<std::string> Flush();

  private:
    std::filesystem::path file_;
    std::ofstream output_;
    bool empty_ = true;
    bool atLineStart_ = true;
};

}  // namespace fabula::player
