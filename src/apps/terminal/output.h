#pragma once

#include <string>
#include <string_view>

namespace fabula::terminal {

/// Text on its way to a file descriptor, in large pieces: nothing is written before Flush, or before much
/// has come together.
///
/// What can't be written is lost; Failed and Check then say so from there on. The game goes on, and its
/// loop ends it.
class Output {
  public:
    /// No descriptor: what is written is dropped.
    static constexpr int kNowhere = -1;

    explicit Output(int descriptor) : descriptor_(descriptor) {}
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void Write(std::string_view text);
    void Flush();
    bool Failed() const { return error_ != 0; }
    /// Throws fabula::Error with the reason when something could not be written.
    void Check() const;

    /// Whether the last byte ended a line. False before the first byte.
    bool AtLineStart() const { return lastByte_ == '\n'; }
    bool Used() const { return lastByte_ != '\0'; }

  private:
    int descriptor_;
    std::string buffer_;
    char lastByte_ = '\0';
    int error_ = 0;  ///< of the machine, 0 for none
};

}  // namespace fabula::terminal
