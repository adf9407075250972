#include "interchange/pc/ace_tags.h"

#include <optional>

#include "condacts/limits.h"
#include "text/colours.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"

namespace fabula::interchange {
namespace {

bool IsColourNumber(std::string_view value) {
    const auto number = text::WholeNumber(value);
    return number && *number >= 0 && *number <= condacts::limit::kHighestColour;
}

std::string ColourFromAce(std::string_view value) {
    return IsColourNumber(value) ? std::string(value) : std::to_string(ConvertACEColors(value));
}

std::string ColourToAce(std::string_view value) {
    if (!IsColourNumber(value)) return std::string(value);
    return text::LowerCase(text::ColourName(static_cast<int>(*text::WholeNumber(value))));
}

/// Replaces the inside of each tag by what `convert` makes of its name and value; the value is nothing
/// without a "=".
template <typename Convert>
std::string ConvertTags(std::string_view text, Convert convert) {
    std::string result;
    while (!text.empty()) {
        const std::size_t open = text.find('<');
        const std::size_t close = open == std::string_view::npos ? open : text.find('>', open);
        if (close == std::string_view::npos) break;
        const std::string_view inside = text.substr(open + 1, close - open - 1);
        const std::size_t sign = inside.find('=');
        std::optional<std::string_view> value;
        if (sign != std::string_view::npos) value = inside.substr(sign + 1);
        result += text.substr(0, open + 1);
        result += convert(inside, text::LowerCase(inside.substr(0, sign)), value);
        result += '>';
        text.remove_prefix(close + 1);
    }
    return result.append(text);
}

}  // namespace

AceTags::AceTags(store::Adventure& adventure) {
    store::PreparedQuery codes = adventure.Prepare(
        store::TableNum::Codes, "acetag, fabulatag, fabulatagval", "acetag<>'' and fabulatag<>''");
    for (bool more = codes.First({}); more; more = codes.Next()) {
        const std::string ace = text::LowerCase(codes.Text(0));
        const std::string own = text::LowerCase(codes.Text(1));
        const bool isColour = codes.Text(2) == "CO";
        if (fromAce_.try_emplace(ace, Partner{std::string(codes.Text(1)), isColour}).second) {
            toAce_.try_emplace(own, Partner{ace, isColour});
        }
    }
}

std::string AceTags::ConvertACETags(std::string_view text) const {
    return ConvertTags(text,
                       [this](std::string_view inside, const std::string& name,
                              std::optional<std::string_view> value) -> std::string {
                           const auto found = fromAce_.find(name);
                           if (found == fromAce_.end()) return std::string(inside);
                           if (!value) return found->second.name;
                           return found->second.name + "=" +
                                  (found->second.isColour ? ColourFromAce(*value) : std::string(*value));
                       });
}

std::string AceTags::ToACETags(std::string_view text) const {
    return ConvertTags(text,
                       [this](std::string_view inside, const std::string& name,
                              std::optional<std::string_view> value) -> std::string {
                           const auto found = toAce_.find(name);
                           if (found == toAce_.end()) return std::string(inside);
                           if (!value) return found->second.name;
                           return found->second.name + "=" +
                                  (found->second.isColour ? ColourToAce(*value) : std::string(*value));
                       });
}

int ConvertACEColors(std::string_view name) {
    for (int number = 0; number <= condacts::limit::kHighestColour; ++number) {
        if (text::EqualsNoCase(text::ColourName(number), name)) return number;
    }
    return -1;
}

}  // namespace fabula::interchange
