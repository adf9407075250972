#include "player/transcript.h"

#include "platform/error.h"

namespace fabula::player {

void Transcript::Open(const std::filesystem::path& file) {
    Close();
    file_ = file;
    empty_ = true;
    atLineStart_ = true;
    output_.open(file, std::ios::binary | std::ios::trunc);
    if (!output_) throw Error("Could not write the transcript " + file.string() + ".");
}

void Transcript::Close() {
    output_.close();
    output_.clear();
}

void Transcript::Write(std::string_view text) {
    if (!IsOpen() || text.empty()) return;
    output_ << text;
    atLineStart_ = empty_ = false;
}

void Transcript::EndLine() {
    if (!IsOpen()) return;
    output_ << '\n';
    atLineStart_ = true;
    empty_ = false;
}

void Transcript::NewPage() {
    if (empty_) return;
    if (!atLineStart_) EndLine();
    EndLine();
}

void Transcript::Typed(std::string_view line) {
    if (!atLineStart_) EndLine();
    Write(">");
    Write(line);
    EndLine();
}

std::optional<std::string> Transcript::Flush() {
    if (!IsOpen() || output_.flush()) return std::nullopt;
    Close();
    return "Could not write the transcript " + file_.string() + ". It is closed.";
}

}  // namespace fabula::player
