#include "listings/record.h"

#include <utility>

#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/format.h"
#include "text/line_ends.h"
#include "text/str_edit.h"
#include "text/wrap.h"

namespace fabula::listings {
namespace {

constexpr std::string_view kLineBreaks = "\u008C\r\n";

std::string WithoutEndBlanks(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

/// Adds a line, made safe. One that is longer than `width`, as the last word makes it, breaks at a blank,
/// or where it is full when it has none.
void AddInPieces(std::string_view line, std::size_t width, std::vector<std::string>& lines) {
    while (line.size() > width && text::Length(line) > width) {
        const std::string_view full = text::Left(line, width);
        const std::size_t blank = text::Left(line, width + 1).find_last_of(' ');
        const bool breaks = blank != std::string_view::npos && blank > 0;
        lines.push_back(WithoutEndBlanks(SafeText(line.substr(0, breaks ? blank : full.size()))));
        line.remove_prefix(breaks ? blank + 1 : full.size());
    }
    lines.push_back(WithoutEndBlanks(SafeText(line)));
}

}  // namespace

std::string SafeText(std::string_view text) {
    std::string safe;
    if (text.find(text::kHardSpace) == std::string_view::npos) {
        text::AppendSafe(text, safe);
    } else {
        text::AppendSafe(text::ReplaceAll(text, text::kHardSpace, " "), safe);
    }
    return safe;
}

std::vector<std::string> WrappedText(std::string_view text, int width) {
    std::string broken(text);
    if (broken.find_first_of(kLineBreaks) != std::string::npos)
        broken =
            text::NormalizeLineEnds(text::ReplaceAll(text, text::kLineEndMarker, text::kLineEnd), "\r\n");
    const std::string wrapped = text::WrapText(broken, width);
    std::vector<std::string> lines;
    for (const std::string_view line : text::Split(wrapped, text::kLineEnd))
        AddInPieces(WithoutEndBlanks(line), static_cast<std::size_t>(width), lines);
    while (lines.size() > 1 && lines.back().empty())
        lines.pop_back();
    return lines;
}

bool IsEmpty(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

void Record::Row(std::string_view format, std::vector<text::Value> values) {
    for (text::Value& value : values) {
        if (auto* const words = std::get_if<std::string>(&value)) *words = SafeText(*words);
    }
    row_ = lines_.size();
    const std::string row = text::FormatText(format, values);
    for (const std::string_view line : text::Split(row, text::kLineEnd))
        lines_.push_back({.text = WithoutEndBlanks(line)});
}

void Record::Text(std::string_view format, std::vector<text::Value> values, std::string_view text,
                  TextArea area) {
    const std::vector<std::string> pieces = WrappedText(text, area.width);
    values.emplace_back(pieces.front());
    Row(format, std::move(values));
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const std::string indent(static_cast<std::size_t>(area.column - 1), ' ');
        lines_.push_back({.text = pieces[i].empty() ? "" : indent + pieces[i], .continues = true});
    }
}

void Record::Aside(std::string_view text, TextArea area) {
    if (IsEmpty(text)) return;
    const auto column = static_cast<std::size_t>(area.column - 1);
    bool beside = text::Length(lines_.back().text) < column;
    for (const std::string& piece : WrappedText(text, area.width)) {
        if (beside) {
            lines_.back().text = text::PadRight(lines_.back().text, column) + piece;
        } else {
            lines_.push_back({.text = std::string(column, ' ') + piece, .continues = true});
        }
        beside = false;
    }
}

void Record::LinkTo(Place to, std::size_t column, std::size_t length) {
    if (row_ < lines_.size() && length > 0) lines_[row_].links.push_back({column, length, to});
}

void Record::AddPicture(PlacedPicture picture) {
    if (row_ < lines_.size()) lines_[row_].pictures.push_back(std::move(picture));
}

std::vector<Line> Record::Take() {
    if (place_ && !lines_.empty()) lines_.front().place = place_;
    return std::move(lines_);
}

void AddComment(Record& record, std::string_view comment) {
    constexpr TextArea kArea{10, 70};
    if (!IsEmpty(comment)) record.Text("Comment: !%a", {}, comment, kArea);
}

std::string Heading(std::string_view format) {
    return WithoutEndBlanks(text::FormatText(format, {}));
}

}  // namespace fabula::listings
