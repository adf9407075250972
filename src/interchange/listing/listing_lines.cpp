#include "interchange/listing/listing_lines.h"

#include <utility>

#include "condacts/language/parser.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr std::size_t kLongestShown = 80;

}  // namespace

ListingLines::ListingLines(const std::filesystem::path& listing, JobStatus& status)
    : file_(listing), status_(status) {
    status_.StartBar(file_.Size());
}

bool ListingLines::Next(std::string& line) {
    if (Peek() == nullptr) return false;
    line = std::move(*ahead_);
    ahead_.reset();
    shown_ = text::Left(line, kLongestShown);
    ++lineNumber_;
    return true;
}

const std::string* ListingLines::Peek() {
    if (!ahead_) {
        std::string line;
        if (!file_.Next(line)) return nullptr;
        status_.SetBar(file_.BytesRead());
        ahead_ = std::move(line);
    }
    return &*ahead_;
}

SourcePlace ListingLines::Place() const {
    return {file_.File(), lineNumber_, shown_};
}

std::string_view Cut(std::string_view line, Columns columns) {
    line.remove_prefix(text::OffsetOf(line, columns.first));
    return text::Left(line, columns.count);
}

std::string_view CutTrimmed(std::string_view line, Columns columns) {
    return text::TrimBlanks(Cut(line, columns));
}

std::optional<int> ListedNumber(std::string_view token, int highest) {
    const std::optional<int> number = condacts::NumberOfToken(token);
    if (!number || *number > highest) return std::nullopt;
    return number;
}

}  // namespace fabula::interchange
