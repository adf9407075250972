#include "player/play/transcript_file.h"

#include <cerrno>
#include <system_error>

#include "platform/error.h"
#include "store/file/file_copy.h"

namespace fabula::player {

void TranscriptFile::Open(const std::filesystem::path& file) {
    store::CheckTarget(file, store::Content::Text);
    if (const auto failure = Close()) throw Error(*failure);
    file_ = file;
    output_.open(file, std::ios::binary | std::ios::trunc);
    if (!output_) {
        const int error = errno;
        output_.clear();
        throw Error("Could not write the transcript " + file.string() + ": " +
                    std::generic_category().message(error) + ".");
    }
    lines_.emplace(output_);
}

std::optional<std::string> TranscriptFile::Close() {
    if (!IsOpen()) return std::nullopt;
    lines_.reset();
    output_.close();
    const bool whole = output_.good();
    output_.clear();
    if (whole) return std::nullopt;
    return "Could not write the transcript " + file_.string() + ". It is closed.";
}

std::optional<std::string> TranscriptFile::Flush() {
    if (!IsOpen() || output_.flush()) return std::nullopt;
    return Close();
}

}  // namespace fabula::player
