#pragma once

#include "platform/person.h"

namespace fabula::cli {

/// The person at the command line is told on standard error, and asked there when standard input and
/// standard error are both a terminal. Otherwise every question is answered by no, and verbs have options
/// for those who mean yes.
class TerminalPerson final : public platform::Person {
  public:
    void Tell(std::string_view text, std::string_view title) override;
    bool Confirm(std::string_view text, std::string_view title) override;
};

}  // namespace fabula::cli
