#include "interchange/pc/pc_text_form.h"

#include <algorithm>

#include "interchange/pc/pc_lines.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/markup.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr std::string_view kSourceTab = "<ht>";
constexpr const char* kTab = "<tab>";

bool BeginsTag(std::string_view inside) {
    if (inside.empty() || inside.find(text::kLineEndMarker) != std::string_view::npos) return false;
    const char first = inside.front();
    return first == '/' || first == '#' || (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
}

/// The length of what looks like a tag at the head of the text; 0 where it does not begin with one.
std::size_t TagLength(std::string_view text) {
    if (!text.starts_with('<')) return 0;
    const std::size_t close = text.find_first_of("<>", 1);
    const bool isTag =
        close != std::string_view::npos && text[close] == '>' && BeginsTag(text.substr(1, close - 1));
    return isTag ? close + 1 : 0;
}

void AppendEscaped(std::string& result, std::string_view text) {
    for (const char c : text) {
        if (c == '<') {
            result += "&lt;";
        } else if (c == '>') {
            result += "&gt;";
        } else {
            result += c;
        }
    }
}

}  // namespace

/// A tag of the source as this system writes it.
std::string PcTextForm::Convert(std::string_view tag) const {
    if (tag == kSourceTab) return kTab;
    return tags_ == nullptr ? std::string(tag) : tags_->ConvertACETags(tag);
}

/// Why a tag of the source is none of Fabula's; "" for one that is.
std::string PcTextForm::FaultOf(std::string_view tag) const {
    const std::string own = Convert(tag);
    const std::string inside = text::UpperCase(std::string_view(own).substr(1, own.size() - 2));
    const text::Verdict verdict = text::ValidateTag(inside, known_);
    const std::string given = text::UpperCase(tag.substr(1, tag.size() - 2));
    const std::size_t sign = given.find('=');
    if (inside.ends_with("=-1") && sign != std::string::npos)
        return "Invalid color " + given.substr(sign + 1) + " for tag " + given;
    return verdict.message;
}

std::vector<PcTextForm::BadTag> PcTextForm::FindBadTags(std::string_view line) const {
    std::vector<BadTag> bad;
    for (std::size_t i = line.find('<'); i != std::string_view::npos; i = line.find('<', i + 1)) {
        const std::size_t length = TagLength(line.substr(i));
        if (length == 0) continue;
        if (std::string fault = FaultOf(line.substr(i, length)); !fault.empty())
            bad.push_back({i, std::move(fault)});
    }
    return bad;
}

std::string PcTextForm::FromSource(std::string_view source) const {
    const std::string escaped = text::ReplaceAll(source, "&", "&amp;");
    std::string_view text = escaped;
    std::string result;
    while (!text.empty()) {
        const std::size_t bracket = std::min(text.find_first_of("<>"), text.size());
        result += text.substr(0, bracket);
        text.remove_prefix(bracket);
        const std::size_t length = TagLength(text);
        const std::string_view tag = text.substr(0, std::max<std::size_t>(length, 1));
        if (length > 0 && FaultOf(tag).empty()) {
            result += Convert(tag);
        } else {
            AppendEscaped(result, tag);
        }
        text.remove_prefix(std::min(tag.size(), text.size()));
    }
    return result;
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
