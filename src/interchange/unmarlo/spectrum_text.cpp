#include "interchange/unmarlo/spectrum_text.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "pictures/canvas.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/markup.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr int kColumns = pictures::kCellColumns;
constexpr std::size_t kLineNumberLength = 6;
constexpr int kLongestTab = 255;
constexpr std::string_view kVersionWithoutLayout = "0.8.2";
constexpr std::size_t kLongestEscape = 4;
constexpr std::string_view kTabTag = "<TAB";

struct Replacement {
    std::string_view from;
    std::string_view to;
};

/// In this order: the last one must not meet the entities before it.
constexpr Replacement kReplacements[] = {
    {"%%25;", ""},
    {"%25;", ""},
    {"&pound;", "<#=96>"},
    {"&copy;", "<#=127>"},
    {"<BR>", text::kLineEndMarker},
    {"<BLINK>", "<FLASH>"},
    {"</BLINK>", "</FLASH>"},
    {"&", "&amp;"},
};

/// The heads of the tags that ConvertTabs keeps, but for tabs.
constexpr std::string_view kKeptTags[] = {"<BRI", "<CHA", "<FNT", "<INK", "</BR", "<FLA",
                                          "</FL", "<PAP", "<INV", "</IN", "<OVE", "</OV"};

/// The number behind "<TAB" of a tag, as read from any tag.
int TabLength(std::string_view tag) {
    tag.remove_prefix(std::min(tag.size(), kTabTag.size()));
    return std::clamp(text::TakeNumber(tag).value_or(0), 0, kLongestTab);
}

/// Every tag up to the last tab is taken for a tab.
std::string ReplaceTabs(std::string_view text) {
    std::string result;
    std::size_t done = 0;
    const std::size_t lastTab = text.rfind(kTabTag);
    while (lastTab != std::string_view::npos) {
        const std::size_t open = text.find('<', done);
        const std::size_t close = open > lastTab ? std::string_view::npos : text.find('>', open);
        if (close == std::string_view::npos) break;
        result += text.substr(done, open - done);
        result.append(static_cast<std::size_t>(TabLength(text.substr(open, close + 1 - open))), ' ');
        done = close + 1;
    }
    return result.append(text.substr(done));
}

std::string ReplaceEscapes(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t percent = text.find('%');
        result += text.substr(0, percent);
        if (percent == std::string_view::npos) break;
        text.remove_prefix(percent + 1);
        const std::size_t end = text.substr(0, kLongestEscape + 1).find(';');
        const auto number = text::HexNumber(text.substr(0, end));
        if (end == std::string_view::npos || !number) {
            result += '%';
            continue;
        }
        result += "<#=" + std::to_string(*number) + ">";
        text.remove_prefix(end + 1);
    }
    return result;
}

/// Adds a piece of text to a line of 32 columns.
void PutPiece(std::string& result, std::string_view piece, int& column) {
    const int length = static_cast<int>(text::Length(piece));
    if (length + column <= kColumns) {
        result += piece;
        column += length;
        return;
    }
    const std::string_view first = text::Left(piece, static_cast<std::size_t>(kColumns - column));
    const std::string_view second =
        text::Left(piece.substr(first.size()), static_cast<std::size_t>(column));
    result += first;
    result += text::kLineEndMarker;
    result += second;
    column = static_cast<int>(text::Length(second));
}

void PutWord(std::string& result, std::string_view word, int& column) {
    while (word.find('<') != std::string_view::npos) {
        const std::size_t open = word.find('<');
        if (open == 0) {
            if (word.find('>') == std::string_view::npos) break;
            result += ProcessTag(word, column);
            continue;
        }
        PutPiece(result, word.substr(0, open), column);
        result += ' ';
        word.remove_prefix(open);
    }
    if (!word.empty()) PutPiece(result, word, column);
}

}  // namespace

std::string ConvertUnMarloDesc(std::string_view text, std::string_view version) {
    if (text::Length(text) > kLineNumberLength) text.remove_prefix(text::OffsetOf(text, kLineNumberLength));
    std::string result(text);
    for (const Replacement& replacement : kReplacements) {
        result = text::ReplaceAll(result, replacement.from, replacement.to);
    }
    result = ReplaceTabs(result);
    result = text::ReplaceAll(result, "<,>", "<TAB>");
    result = ReplaceEscapes(result);
    return version == kVersionWithoutLayout ? ConvertTabs(result) : result;
}

std::string ConvertTabs(std::string_view text) {
    std::string result;
    int column = 0;
    const std::string normalized = text::NormalizeLineEnds(text, text::kLineEndMarker);
    const auto lines = text::Split(normalized, text::kLineEndMarker);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto words = text::Split(lines[i], " ");
        for (std::size_t w = 0; w < words.size(); ++w) {
            PutWord(result, words[w], column);
            if (column + 1 > kColumns) {
                result += text::kLineEndMarker;
                column = 0;
            }
            result += ' ';
            if (w + 1 < words.size()) ++column;
        }
        if (i + 1 == lines.size()) break;
        column = 0;
        result += text::kLineEndMarker;
    }
    return result;
}

std::string ProcessTag(std::string_view& word, int& column) {
    std::string result;
    while (word.starts_with('<')) {
        const std::size_t close = word.find('>');
        if (close == std::string_view::npos) break;
        const std::string_view tag = word.substr(0, close + 1);
        const std::string head = text::UpperCase(tag.substr(0, kTabTag.size()));
        if (head == kTabTag) {
            const bool sameLine = column < text::kTabColumn;
            result += sameLine ? tag : text::kLineEndMarker;
            column = sameLine ? text::kTabColumn : 0;
        } else if (tag.starts_with("<#") ||
                   std::find(std::begin(kKeptTags), std::end(kKeptTags), head) != std::end(kKeptTags)) {
            result += tag;
        }
        word.remove_prefix(close + 1);
    }
    return result;
}

}  // namespace fabula::interchange
