#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace fabula::engine {

/// The two files of a sitting's scripts: one that is written, one that is played. Typed lines are marked
/// with ">>" at the head of their line, everything else is what the game printed, without its looks and its
/// wrapping.
///
/// A script that can't be written any longer is closed; Failure then says so, once.
class Script {
  public:
    /// Bit 0 while one is written, bit 1 while one is loaded: flag 1001.
    int State() const { return (output_.is_open() ? 1 : 0) + (input_.is_open() ? 2 : 0); }
    bool Writing() const { return output_.is_open(); }
    bool Loaded() const { return input_.is_open(); }
    /// "Script Off", "Script Writing", "Script Loaded", "Script Loaded & Writing".
    std::string_view StatusText() const;

    /// Throw fabula::Error when the file can't be opened, or is the other one of the two.
    void StartWriting(const std::filesystem::path& file);
    void Load(const std::filesystem::path& file);
    void CloseInput();
    void CloseAll();

    /// Do nothing unless a script is written.
    void WriteText(std::string_view text);
    void WriteLineEnd();
    /// ">>" at the head of a line: the game asks, and the answer will follow.
    void WriteAnswerMark();
    void WriteInput(std::string_view line);
    /// A line that was played: ">>Read:>>" and the line.
    void WritePlayed(std::string_view line);

    /// The next typed line of the loaded script, without its mark; nullopt at its end. The marks of typed
    /// and of played lines are both known, so that a script written while another was played can itself be
    /// played.
    std::optional<std::string> NextInput();

    /// What went wrong with the script that was written, once; "" for nothing.
    std::string TakeFailure();

  private:
    void Write(std::string_view text);
    void CheckOutput();
    std::optional<std::string> ReadLine();

    std::ofstream output_;
    std::string outputName_;
    bool atLineStart_ = true;
    bool answerMarked_ = false;  ///< the line holds just the mark of an answer
    std::ifstream input_;
    std::filesystem::path inputName_;
    std::string failure_;
};

/// The longest line that can be typed, and that is read from a script with its mark, in bytes; what a line
/// holds beyond it is left away.
inline constexpr std::size_t kLongestTypedLine = 4096;

}  // namespace fabula::engine
