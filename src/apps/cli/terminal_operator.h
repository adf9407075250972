#pragma once

#include <iostream>

#include "platform/operator.h"
#include "text/safe_text.h"

namespace fabula::cli {

/// The person at the command line is told on standard error, and asked nothing: every question is answered
/// by no, and verbs have options for those who mean yes.
class TerminalOperator final : public platform::Operator {
  public:
    void Tell(std::string_view text, std::string_view) override {
        std::cerr << text::SafeLines(text) << "\n";
    }
    bool Confirm(std::string_view, std::string_view) override { return false; }
};

}  // namespace fabula::cli
