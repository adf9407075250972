#include "player/play/transcript_file.h"

#include "platform/error.h"

namespace fabula::player {

void TranscriptFile::Open(const std::filesystem::path& file) {
    Close();
    file_ = file;
    output_.open(file, std::ios::binary | std::ios::trunc);
    if (!output_) throw Error("Could not write the transcript " + file.string() + ".");
    lines_.emplace(output_);
}

void TranscriptFile::Close() {
    lines_.reset();
    output_.close();
    output_.clear();
}

std::optional<std::string> TranscriptFile::Flush() {
    if (!IsOpen() || output_.flush()) return std::nullopt;
    Close();
    return "Could not write the transcript " + file_.string() + ". It is closed.";
}

}  // namespace fabula::player
