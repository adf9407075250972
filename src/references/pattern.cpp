#include "references/pattern.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include "platform/error.h"
#include "text/encoding/utf8.h"

namespace fabula::references {
namespace {

constexpr std::uint32_t kMostSteps = 200'000;
constexpr std::uint32_t kMostDepth = 2'000;
constexpr std::uint32_t kMostKilobytes = 16 * 1024;
constexpr std::size_t kMostMatches = 100'000;

}  // namespace

struct Pattern::Code {
    pcre2_code* code = nullptr;
    pcre2_match_data* data = nullptr;
    pcre2_match_context* limits = nullptr;
    ~Code() {
        pcre2_match_context_free(limits);
        pcre2_match_data_free(data);
        pcre2_code_free(code);
    }
};

Pattern::Pattern(const Wanted& wanted)
    : code_(std::make_unique<Code>()), replacement_(wanted.replacement), expression_(wanted.expression) {
    std::string source = wanted.text;
    if (!wanted.expression) {
        // Between \Q and \E all stands for itself, but for \E.
        for (std::size_t at = source.find("\\E"); at != std::string::npos; at = source.find("\\E", at + 7))
            source.replace(at, 2, "\\E\\\\E\\Q");
        source = "\\Q" + source + "\\E";
    }
    if (wanted.wholeWords) source = "(?<![\\p{L}\\p{N}])(?:" + source + ")(?![\\p{L}\\p{N}])";
    std::uint32_t options = PCRE2_UTF | PCRE2_UCP;
    if (!wanted.matchCase) options |= PCRE2_CASELESS;
    int error = 0;
    PCRE2_SIZE place = 0;
    code_->code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(source.data()), source.size(), options, &error,
                                &place, nullptr);
    if (code_->code == nullptr) {
        PCRE2_UCHAR message[256] = {};
        pcre2_get_error_message(error, message, sizeof message);
        throw Error("The expression is not well formed: " +
                    std::string(reinterpret_cast<const char*>(message)) + ".");
    }
    code_->data = pcre2_match_data_create_from_pattern(code_->code, nullptr);
    code_->limits = pcre2_match_context_create(nullptr);
    pcre2_set_match_limit(code_->limits, kMostSteps);
    pcre2_set_depth_limit(code_->limits, kMostDepth);
    pcre2_set_heap_limit(code_->limits, kMostKilobytes);
}

Pattern::~Pattern() = default;

std::vector<Match> Pattern::FindAll(std::string_view text) const {
    std::vector<Match> matches;
    const auto* subject = reinterpret_cast<PCRE2_SPTR>(text.data());
    std::size_t from = 0;
    while (from <= text.size() && matches.size() < kMostMatches) {
        const int found =
            pcre2_match(code_->code, text.empty() ? reinterpret_cast<PCRE2_SPTR>("") : subject, text.size(),
                        from, 0, code_->data, code_->limits);
        if (found == PCRE2_ERROR_NOMATCH) break;
        // A text that is no UTF-8 holds nothing that anybody could look for.
        if (found <= PCRE2_ERROR_UTF8_ERR1 && found >= PCRE2_ERROR_UTF8_ERR21) break;
        if (found < 0) throw Error("The expression takes too long on a text of this game.");
        const PCRE2_SIZE* places = pcre2_get_ovector_pointer(code_->data);
        const std::size_t start = places[0];
        const std::size_t end = places[1];
        if (end > start)
            matches.push_back(
                {start, end - start, Expanded(text, places, static_cast<std::size_t>(found))});
        // On to the next character, not into the midst of one.
        from = text::NextCharacterStart(text, end > start ? end : end + 1);
    }
    return matches;
}

std::string Pattern::Expanded(std::string_view text, const std::size_t* places, std::size_t count) const {
    if (!expression_) return replacement_;
    std::string result;
    for (std::size_t i = 0; i < replacement_.size(); ++i) {
        const bool group = replacement_[i] == '$' && i + 1 < replacement_.size() &&
                           replacement_[i + 1] >= '0' && replacement_[i + 1] <= '9';
        if (!group) {
            result += replacement_[i];
            continue;
        }
        const auto number = static_cast<std::size_t>(replacement_[++i] - '0');
        if (number >= count || places[2 * number] == PCRE2_UNSET) continue;
        result.append(text.substr(places[2 * number], places[2 * number + 1] - places[2 * number]));
    }
    return result;
}

}  // namespace fabula::references
