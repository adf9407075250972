#include "interchange/unvel/unvel_text.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "condacts/language/parser.h"
#include "pictures/drawing.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

struct TextReplacement {
    std::string_view from;
    std::string_view to;
};

/// In this order: entities first, then tags, then the other codes.
constexpr TextReplacement kPlain[] = {
    {"^{7}", "\n"}, {"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"{13}", "\n"},
};
constexpr TextReplacement kPairs[] = {
    {"{18}{0}", "</FLASH>"},   {"{18}{1}", "<FLASH>"},   {"{19}{0}", "</BRIGHT>"}, {"{19}{1}", "<BRIGHT>"},
    {"{20}{0}", "</INVERSE>"}, {"{20}{1}", "<INVERSE>"}, {"{21}{0}", "</OVER>"},   {"{21}{1}", "<OVER>"},
};

constexpr int kTabCode = 6;
constexpr int kInkCode = 16;
constexpr int kPaperCode = 17;
constexpr int kCharacterCode = 23;
constexpr int kHighestCode = 255;
constexpr std::size_t kMostDigits = 3;

/// The number of a code "{n}" at the head of the text, which is taken off; nothing when there is none.
std::optional<int> TakeCode(std::string_view& text) {
    if (!text.starts_with('{')) return std::nullopt;
    const std::size_t end = text.substr(0, kMostDigits + 2).find('}');
    if (end == std::string_view::npos) return std::nullopt;
    const std::optional<int> number = condacts::NumberOfToken(text.substr(1, end - 1));
    if (!number || *number > kHighestCode) return std::nullopt;
    text.remove_prefix(end + 1);
    return number;
}

std::string Code(int number) {
    return "{" + std::to_string(number) + "}";
}

std::string Tag(std::string_view name, int value) {
    return "<" + std::string(name) + "=" + std::to_string(value) + ">";
}

std::string ColourTag(std::string_view name, int colour) {
    return colour == pictures::kTransparent ? "<" + std::string(name) + ">" : Tag(name, colour);
}

/// The tag of a code that was taken; codes of two parts take their value off the text.
std::string TagOf(int code, std::string_view& rest) {
    if (code == kTabCode) return "<TAB>";
    if (code == kInkCode || code == kPaperCode || code == kCharacterCode) {
        const std::optional<int> value = TakeCode(rest);
        if (value && code == kCharacterCode) return Tag("#", *value);
        if (value) return ColourTag(code == kInkCode ? "INK" : "PAPER", *value);
    }
    return Tag("#", code);
}

std::string ReplaceCodes(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t open = text.find('{');
        result += text.substr(0, open);
        if (open == std::string_view::npos) break;
        text.remove_prefix(open);
        if (const std::optional<int> code = TakeCode(text)) {
            result += TagOf(*code, text);
            continue;
        }
        result += '{';
        text.remove_prefix(1);
    }
    return result;
}

/// A code in a place where it can't be taken for one with a meaning.
std::string PlainCode(int number) {
    constexpr int kMeaningful[] = {kTabCode, 7, 13, kInkCode, kPaperCode, 18, 19, 20, 21, kCharacterCode};
    const bool hasMeaning =
        std::find(std::begin(kMeaningful), std::end(kMeaningful), number) != std::end(kMeaningful);
    return (hasMeaning ? Code(kCharacterCode) : "") + Code(number);
}

/// What stands in a listing for a tag, brackets included.
std::string CodesOf(std::string_view tag) {
    const std::string name = text::UpperCase(tag);
    for (const TextReplacement& pair : kPairs) {
        // The first letters decide, as they do in the markup.
        constexpr std::size_t kDeciding = 5;
        if (name.substr(0, kDeciding) == pair.to.substr(0, kDeciding)) return std::string(pair.from);
    }
    if (name == "<TAB>") return Code(kTabCode);
    if (name == "<INK>") return "(16}";
    if (name == "<PAPER>") return Code(kPaperCode) + Code(pictures::kTransparent);
    const std::size_t equals = name.find('=');
    if (equals == std::string::npos) return "";
    const std::string_view value = std::string_view(name).substr(equals + 1, name.size() - equals - 2);
    const std::optional<int> number = condacts::NumberOfToken(value);
    if (!number) return "";
    const std::string_view head = std::string_view(name).substr(1, equals - 1);
    if (head == "INK") return Code(kInkCode) + Code(*number);
    if (head == "PAPER") return Code(kPaperCode) + Code(*number);
    return head == "#" ? PlainCode(*number) : "";
}

}  // namespace

std::string UnVelText(std::string_view text) {
    std::string result(text);
    for (const TextReplacement& replacement : kPlain)
        result = text::ReplaceAll(result, replacement.from, replacement.to);
    for (const TextReplacement& pair : kPairs)
        result = text::ReplaceAll(result, pair.from, pair.to);
    return ReplaceCodes(text::NormalizeLineEnds(result, text::kLineEndMarker));
}

WrittenUnVelText ToUnVelText(std::string_view text) {
    WrittenUnVelText written;
    const std::string marked = text::NormalizeLineEnds(text, text::kLineEndMarker);
    std::string_view rest = marked;
    while (!rest.empty()) {
        const std::size_t plain = std::min(rest.find('<'), rest.size());
        written.line += rest.substr(0, plain);
        rest.remove_prefix(plain);
        const std::size_t close = rest.find('>');
        if (close == std::string_view::npos) {
            written.line += rest;
            break;
        }
        written.line += CodesOf(rest.substr(0, close + 1));
        rest.remove_prefix(close + 1);
    }
    constexpr TextReplacement kBack[] = {
        {text::kLineEndMarker, "^{7}"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}};
    for (const TextReplacement& replacement : kBack)
        written.line = text::ReplaceAll(written.line, replacement.from, replacement.to);
    written.comesBack = text::EqualsNoCase(UnVelText(written.line), marked);
    return written;
}

}  // namespace fabula::interchange
