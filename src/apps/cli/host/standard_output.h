#pragma once

#include <streambuf>

#include "terminal/output.h"

namespace fabula::cli {

/// Where std::cout writes to as long as this lives: the standard output, in large pieces, or line by line
/// where that is a terminal. Unlike the library's own it can tell why something was not written.
class StandardOutput final : public std::streambuf {
  public:
    StandardOutput();
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;
    /// Writes what is left, and gives std::cout back.
    ~StandardOutput() override;

    /// Writes what is left. Throws fabula::Error when that, or something before it, could not be written.
    void Finish();

  protected:
    int_type overflow(int_type byte) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;
    int sync() override;

  private:
    terminal::Output output_;
    bool isTerminal_;
    std::streambuf* before_;
};

}  // namespace fabula::cli
