#include "terminal/transcript.h"

namespace fabula::terminal {

void Transcript::Write(std::string_view text) {
    if (text.empty()) return;
    stream_ << text;
    atLineStart_ = false;
}

void Transcript::EndLine() {
    stream_ << '\n';
    atLineStart_ = true;
}

void Transcript::Typed(std::string_view line) {
    if (!atLineStart_) EndLine();
    stream_ << '>' << line << '\n' << std::flush;
}

}  // namespace fabula::terminal
