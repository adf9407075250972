#include "text/markup.h"

#include <algorithm>
#include <array>

#include "text/character_numbers.h"
#include "text/colours.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::text {
namespace {

constexpr std::string_view kLoneAmpersand =
    "Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ";
constexpr std::string_view kTagsNotAllowed = "Tags not allowed in this Description";
constexpr std::string_view kLoneOpening = "< without matching >. If not a botched tag, use &lt;";
constexpr std::string_view kLoneClosing = "> without matching <. If not a botched tag, use &gt;";
constexpr std::string_view kWordTooLong =
    "A word (anything delimited by spaces) cannot be longer than 30 characters";

struct Entity {
    std::string_view name;
    std::string_view written;
    std::string_view shown;
};

/// In the order in which they are replaced at print time.
constexpr std::array<Entity, 4> kEntities = {{
    {"amp", "&amp;", "&"},
    {"gt", "&gt;", ">"},
    {"lt", "&lt;", "<"},
    {"sp", "&sp;", " "},
}};

bool IsEntityName(std::string_view name) {
    return std::any_of(kEntities.begin(), kEntities.end(),
                       [name](const Entity& entity) { return entity.name == name; });
}

/// The message for the word's first "&", or "". What follows that entity is not looked at.
std::string FaultOfFirstEntity(std::string_view word) {
    const std::size_t ampersand = word.find('&');
    if (ampersand == std::string_view::npos) return {};
    const std::size_t semicolon = word.find(';', ampersand);
    if (semicolon == std::string_view::npos) return std::string(kLoneAmpersand);
    const std::string_view name = word.substr(ampersand + 1, semicolon - ampersand - 1);
    if (IsEntityName(name)) return {};
    return "Invalid value for &" + std::string(name) + "; Only &amp;, &gt;, &sp;, and &lt; allowed. ";
}

/// A tag as messages show it: the name in upper case, the value as it was typed.
std::string WithUpperCaseName(std::string_view tag) {
    const std::size_t equals = std::min(tag.find('='), tag.size());
    return UpperCase(tag.substr(0, equals)) + std::string(tag.substr(equals));
}

/// The message for the word's first faulty tag or bracket, or "".
std::string FaultOfTags(std::string_view word, bool tagsAllowed, const TagCatalogue& tags) {
    const bool hasOpening = word.find('<') != std::string_view::npos;
    const bool hasClosing = word.find('>') != std::string_view::npos;
    if (!hasOpening) return std::string(hasClosing ? kLoneClosing : std::string_view());
    if (!hasClosing) return std::string(kLoneOpening);
    if (!tagsAllowed) return std::string(kTagsNotAllowed);

    bool hasLoneClosing = false;
    std::size_t at = 0;
    std::size_t opening = word.find('<');
    while (opening != std::string_view::npos) {
        hasLoneClosing |= word.substr(at, opening - at).find('>') != std::string_view::npos;
        const std::size_t closing = word.find('>', opening);
        if (closing == std::string_view::npos) return std::string(kLoneOpening);
        const Verdict verdict =
            ValidateTag(WithUpperCaseName(word.substr(opening + 1, closing - opening - 1)), tags);
        if (!verdict.IsValid()) return verdict.message;
        at = closing + 1;
        opening = word.find('<', at);
    }
    hasLoneClosing |= word.find('>', at) != std::string_view::npos;
    return std::string(hasLoneClosing ? kLoneClosing : std::string_view());
}

/// The length of a word without tags. Every entity counts nothing, of whatever name.
std::size_t LengthWithoutEntities(std::string_view word) {
    std::size_t length = 0;
    std::size_t at = 0;
    while (at < word.size()) {
        const std::size_t ampersand = std::min(word.find('&', at), word.size());
        length += Length(word.substr(at, ampersand - at));
        const std::size_t semicolon = word.find(';', ampersand);
        if (semicolon == std::string_view::npos) return length + Length(word.substr(ampersand));
        at = semicolon + 1;
    }
    return length;
}

std::string FaultOfWord(std::string_view word, bool tagsAllowed, const TagCatalogue& tags) {
    std::string fault = FaultOfFirstEntity(word);
    if (!fault.empty()) return fault;
    fault = FaultOfTags(word, tagsAllowed, tags);
    if (!fault.empty()) return fault;
    std::string removed;
    if (LengthWithoutEntities(StripTags(word, removed)) > kLongestWord) return std::string(kWordTooLong);
    return {};
}

/// The message for a tag's value, by the kind of value that `FabulaTagVal` asks for, or "".
std::string FaultOfTagValue(std::string_view tag, std::string_view value, std::string_view kind,
                            const TagCatalogue& tags) {
    const std::optional<std::int64_t> number = WholeNumber(value);
    const std::string tagText(tag);
    const std::string valueText(value);
    if (!number) return "Value is not numeric for " + tagText;
    if (kind == "SE" && !tags.HasCharacterSet(*number)) return "Invalid Character Set " + valueText;
    if (kind == "CO" && (*number < 0 || *number > kHighestColour))
        return "Invalid color " + valueText + " for tag " + tagText;
    if (kind == "FO" && !tags.HasCode(*number))
        return "Invalid fontsize of " + valueText + " for tag " + tagText;
    const bool isCharacter =
        *number >= 0 && *number <= kLastCharacter && (*number <= kLastShade || *number >= kFirstCharacter);
    if (kind == "CH" && !isCharacter) return "Invalid value of " + valueText + "for # tag";
    return {};
}

}  // namespace

std::string Verdict::BoxText() const {
    return "Word: " + std::to_string(wordNumber) + " " + message;
}

Verdict ValidateDescription(std::string_view text, bool tagsAllowed, const TagCatalogue& tags,
                            platform::Person* author) {
    const std::string words = ReplaceAll(NormalizeLineEnds(text, " "), kLineEndMarker, " ");
    int wordNumber = 0;
    for (const std::string_view word : Split(words, " ")) {
        Verdict verdict = ValidateWord(word, ++wordNumber, tagsAllowed, tags, author);
        if (!verdict.IsValid()) return verdict;
    }
    return {};
}

Verdict ValidateWord(std::string_view word, int wordNumber, bool tagsAllowed, const TagCatalogue& tags,
                     platform::Person* author) {
    std::string fault = FaultOfWord(word, tagsAllowed, tags);
    if (fault.empty()) return {};
    Verdict verdict{std::move(fault), wordNumber};
    if (author != nullptr) author->Tell(verdict.BoxText(), "Error");
    return verdict;
}

Verdict ValidateTag(std::string_view tag, const TagCatalogue& tags) {
    const std::size_t equals = tag.find('=');
    const CodeRow* const row = tags.FindTag(tag.substr(0, equals));
    if (row == nullptr) return {"Invalid Tag: <" + std::string(tag) + ">"};
    if (row->fabulaTagParam == static_cast<int>(TagParam::kNone)) return {};
    if (equals == std::string_view::npos) {
        if (row->fabulaTagParam == static_cast<int>(TagParam::kOptional)) return {};
        return {std::string(tag) + " MUST have an = sign"};
    }
    return {FaultOfTagValue(tag, tag.substr(equals + 1), row->fabulaTagVal, tags)};
}

std::string StripTags(std::string_view text, std::string& removed) {
    std::string rest;
    rest.reserve(text.size());
    std::size_t at = 0;
    std::size_t opening = text.find('<');
    while (opening != std::string_view::npos) {
        const std::size_t closing = text.find('>', opening);
        if (closing == std::string_view::npos) break;
        rest += text.substr(at, opening - at);
        removed += text.substr(opening, closing - opening + 1);
        at = closing + 1;
        opening = text.find('<', at);
    }
    rest += text.substr(at);
    return rest;
}

int ShownPoints(int fontSize) {
    return fontSize > 0 ? std::min(fontSize, kMostPoints) : kDefaultPoints;
}

std::string ReplaceEntities(std::string_view text) {
    std::string shown(text);
    for (const Entity& entity : kEntities)
        shown = ReplaceAll(shown, entity.written, entity.shown);
    return shown;
}

std::string EscapeMarkup(std::string_view text) {
    return ReplaceAll(ReplaceAll(ReplaceAll(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

}  // namespace fabula::text
