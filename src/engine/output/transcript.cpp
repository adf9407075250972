#include "engine/output/transcript.h"

namespace fabula::engine {

void Transcript::Write(std::string_view text) {
    if (text.empty()) return;
    stream_ << text;
    used_ = true;
    atLineStart_ = false;
}

void Transcript::EndLine() {
    stream_ << '\n';
    used_ = true;
    atLineStart_ = true;
}

void Transcript::NewPage() {
    if (!used_) return;
    if (!atLineStart_) EndLine();
    EndLine();
}

void Transcript::Typed(std::string_view line) {
    if (!atLineStart_) EndLine();
    stream_ << '>' << line << '\n' << std::flush;
}

}  // namespace fabula::engine
