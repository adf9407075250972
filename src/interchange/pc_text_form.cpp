#include "interchange/pc_text_form.h"

#include "interchange/pc_lines.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

bool BeginsTag(std::string_view inside) {
    if (inside.empty() || inside.find(text::kLineEndMarker) != std::string_view::npos) return false;
    const char first = inside.front();
    return first == '/' || first == '#' || (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
}

/// The text with every "<" and ">" that belongs to no tag as an entity.
std::string EscapeStrayBrackets(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t bracket = text.find_first_of("<>");
        result += text.substr(0, bracket);
        if (bracket == std::string_view::npos) break;
        text.remove_prefix(bracket);
        const std::size_t close = text.find_first_of("<>", 1);
        const bool isTag = text[0] == '<' && close != std::string_view::npos && text[close] == '>' &&
                           BeginsTag(text.substr(1, close - 1));
        if (isTag) {
            result += text.substr(0, close + 1);
            text.remove_prefix(close + 1);
        } else {
            result += text[0] == '<' ? "&lt;" : "&gt;";
            text.remove_prefix(1);
        }
    }
    return result;
}

}  // namespace

std::string PcTextForm::FromSource(std::string_view source) const {
    std::string text = text::ReplaceAll(source, "&", "&amp;");
    text = text::ReplaceAll(text, "<ht>", "<tab>");
    if (tags_ != nullptr) text = tags_->ConvertACETags(text);
    return EscapeStrayBrackets(text);
}

PcTextForm::Written PcTextForm::ToSource(std::string_view text) const {
    if (text.empty()) return {};
    std::string bare = text::ReplaceAll(text, "&lt;", "<");
    bare = text::ReplaceAll(bare, "&gt;", ">");
    Written written = Write(text, bare);
    return written.comesBack ? written : Write(text, std::string(text));
}

PcTextForm::Written PcTextForm::Write(std::string_view text, std::string source) const {
    source = text::ReplaceAll(source, "<TAB>", "<tab>");
    if (tags_ != nullptr) source = tags_->ToACETags(source);
    source = text::ReplaceAll(source, "<tab>", "<ht>");
    source = text::ReplaceAll(source, "&amp;", "&");
    Written written;
    std::string back;
    for (const std::string_view line : text::Split(source, text::kLineEndMarker)) {
        written.lines.push_back((line.starts_with('/') ? " " : "") + std::string(line));
        std::string read = written.lines.back();
        if (!CutComment(read, dialect_.comment)) continue;
        if (written.lines.size() > 1) back += text::kLineEndMarker;
        back += read;
    }
    written.comesBack = FromSource(back) == text;
    return written;
}

}  // namespace fabula::interchange
