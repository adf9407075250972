#include "cli/host/terminal_person.h"

#include <iostream>
#include <string>

#include <unistd.h>

#include "text/encoding/safe_text.h"

namespace fabula::cli {

void TerminalPerson::Tell(std::string_view text, std::string_view) {
    std::cerr << text::SafeLines(text) << "\n";
}

bool TerminalPerson::Confirm(std::string_view text, std::string_view) {
    if (isatty(STDIN_FILENO) == 0 || isatty(STDERR_FILENO) == 0) return false;
    std::cerr << text::SafeLines(text) << " (Y/N) " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return answer.starts_with('y') || answer.starts_with('Y');
}

}  // namespace fabula::cli
