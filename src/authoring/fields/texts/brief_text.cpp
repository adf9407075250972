#include "authoring/fields/texts/brief_text.h"

#include "text/encoding/utf8.h"
#include "text/markup.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

std::string Plain(std::string_view text) {
    std::string tags;
    const std::string shown = text::ReplaceEntities(text::StripTags(text, tags));
    return std::string(text::TrimBlanks(text::CollapseBlanks(shown)));
}

}  // namespace

std::string BriefText(std::string_view text, std::string_view otherwise) {
    std::string plain = Plain(text);
    if (plain.empty()) plain = Plain(otherwise);
    const std::u32string letters = text::Decode(plain);
    if (letters.size() <= kLongestBriefText) return plain;
    return text::Encode(letters.substr(0, kLongestBriefText - 1)) + "\u2026";
}

}  // namespace fabula::authoring
