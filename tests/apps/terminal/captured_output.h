#pragma once

#include <string>

#include "terminal/output.h"

namespace fabula::test {

/// An output whose text can be read again.
class CapturedOutput {
  public:
    CapturedOutput();
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    ~CapturedOutput();

    terminal::Output& operator*() { return output_; }
    /// What has been written so far, flushed or not.
    std::string Text();
    /// What has reached the descriptor.
    std::string Flushed() const;

  private:
    int descriptor_;
    terminal::Output output_;
};

}  // namespace fabula::test
