#include "interchange/pc/pc_lines.h"

#include <algorithm>
#include <utility>

#include "interchange/shared/source_extras.h"
#include "platform/error.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr std::string_view kLink = "/LNK";

/// True when `path` lies in `folder` or below; both are canonical.
bool LiesIn(const std::filesystem::path& path, const std::filesystem::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

bool IsLink(std::string_view line) {
    return text::EqualsNoCase(line.substr(0, kLink.size()), kLink) &&
           (line.size() == kLink.size() || line[kLink.size()] == ' ' || line[kLink.size()] == '\t');
}

}  // namespace

bool CutComment(std::string& line, char comment) {
    const std::size_t start = line.find(comment);
    if (start == std::string::npos) return true;
    line.resize(TrimRight(std::string_view(line).substr(0, start)).size());
    return !line.empty();
}

PcLines::PcLines(const std::filesystem::path& source, char comment, std::string kind, JobStatus& status,
                 Encoding encoding)
    : comment_(comment), kind_(std::move(kind)), status_(status), encoding_(encoding), source_(source) {
    std::error_code error;
    folder_ = std::filesystem::weakly_canonical(std::filesystem::absolute(source).parent_path(), error);
    Open(source);
}

void PcLines::Open(const std::filesystem::path& file) {
    file_ = std::make_unique<SourceFile>(file, encoding_);
    std::error_code error;
    read_.insert(std::filesystem::weakly_canonical(std::filesystem::absolute(file), error));
    status_.AddToStatusCR("Loading " + kind_ + " Source " + file.string());
    if (!file_->EncodingNote().empty()) status_.AddToStatusCR(file_->EncodingNote());
    status_.StartBar(file_->Size());
}

bool PcLines::RdSrcFile(std::string& line, bool skipBlank) {
    while (!failed_ && file_->Next(whole_)) {
        status_.SetBar(file_->BytesRead());
        line = whole_;
        const std::size_t comment = watch_ ? whole_.find(comment_) : std::string::npos;
        if (comment != std::string::npos) watch_(std::string_view(whole_).substr(comment + 1), Place());
        if (IsExtra(line, comment_)) TakeExtra(line.substr(1));
        if (line.starts_with(comment_)) TakeName(std::string_view(line).substr(1));
        if (!CutComment(line, comment_)) continue;
        if (IsLink(line)) {
            Follow(line);
            continue;
        }
        if (skipBlank && TrimRight(line).empty()) continue;
        return true;
    }
    return false;
}

void PcLines::TakeExtra(std::string line) {
    const auto comment = LineOfComment(line);
    if (!comment) {
        extras_.push_back({std::move(line), Place()});
        return;
    }
    if (pendingComment_) pendingComment_->append(text::kLineEndMarker);
    pendingComment_ = pendingComment_.value_or("").append(*comment);
}

std::string PcLines::TakeComment() {
    return std::exchange(pendingComment_, std::nullopt).value_or("");
}

void PcLines::TellLinesBehindLink() {
    while (file_->Next(whole_)) {
        std::string line = whole_;
        if (!CutComment(line, comment_) || TrimRight(line).empty()) continue;
        status_.AddFault("ERROR: The lines behind the link are not read.", Place());
        return;
    }
}

void PcLines::TakeName(std::string_view comment) {
    comment = text::TrimBlanks(comment);
    if (adventureName_.empty() && comment.starts_with(kAdventureNameMark)) {
        adventureName_ = comment.substr(kAdventureNameMark.size());
    }
}

void PcLines::Follow(const std::string& line) {
    const auto words = SplitWords(line);
    const SourcePlace place = Place();
    failed_ = true;
    if (words.size() < 2) {
        status_.AddFault("ERROR: The link names no file.", place);
        return;
    }
    std::string name(words[1]);
    std::replace(name.begin(), name.end(), '\\', '/');
    if (name.find('.') == std::string::npos) name += source_.extension().string();
    std::error_code error;
    const auto file = std::filesystem::weakly_canonical(folder_ / name, error);
    if (error || !LiesIn(file, folder_)) {
        status_.AddFault("ERROR: The link leaves the folder of the source.", place);
        return;
    }
    if (read_.contains(file)) {
        status_.AddFault("ERROR: The link goes back to a file that was read.", place);
        return;
    }
    TellLinesBehindLink();
    try {
        Open(source_.parent_path() / name);
        failed_ = false;
    } catch (const Error& problem) {
        status_.AddFault("ERROR: " + std::string(problem.what()), place);
    }
}

}  // namespace fabula::interchange
