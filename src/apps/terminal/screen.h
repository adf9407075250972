#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "engine/output/transcript.h"
#include "terminal/attributes.h"
#include "terminal/line_source.h"
#include "terminal/line_wrapper.h"
#include "terminal/output.h"

namespace fabula::terminal {

/// How a game is shown.
struct ScreenStyle {
    /// Someone reads and types in a terminal: the game's own prompt stands before what is typed, and lines
    /// that nobody typed are shown. Otherwise the other side is a program or a file: no line is ever shown,
    /// and a ">" at the head of a line is the only prompt, the last character before the program reads.
    bool interactive = false;
    bool attributes = false;  ///< colours and looks, by ANSI sequences
    int width = 0;            ///< where lines break; 0 as wide as the terminal, or not at all in a pipe
};

/// The terminal or the pipe that a game is played in, with the transcript of all that passes. Texts may be
/// anything; they are made safe here.
class Screen {
  public:
    Screen(const ScreenStyle& style, Output& output, LineSource& source, engine::Transcript* transcript);

    bool IsInteractive() const { return style_.interactive; }

    void Write(std::string_view text, const Attributes& look);
    /// The same by the numbers of a character set.
    void WriteCharacters(std::string_view codes, const Attributes& look);
    /// The game's own prompt, which only a person sees.
    void WritePrompt(std::string_view text, const Attributes& look);
    void EndLine();
    void Clear();
    /// A text on a line of its own.
    void Say(std::string_view text);
    /// Shows what has been written so far. For a pause.
    void Show();

    enum class Prompt {
        Own,    ///< what stands on the unfinished line
        Again,  ///< that of the line before
    };
    TypedLine ReadLine(Prompt prompt, bool remember, std::optional<std::chrono::milliseconds> timeOut);
    /// A line that came from elsewhere in place of one that ReadLine would read.
    void Played(std::string_view line);

    /// Ends the last line.
    void Finish();
    /// Throws fabula::Error when the output or the transcript could not be written.
    void Check() const;

  private:
    void WriteSafe(const Attributes& look);
    void TakeWidth();
    void ShowTyped(std::string_view line);
    void Record(std::string_view line);

    ScreenStyle style_;
    Output& output_;
    LineSource& source_;
    engine::Transcript* transcript_;
    LineWrapper wrapper_;
    std::string prompt_;
    std::string safe_;
};

}  // namespace fabula::terminal
