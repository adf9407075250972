#include "text/str_edit.h"

#include <stdexcept>

#include "text/encoding/scramble.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"

namespace fabula::text {
namespace {

struct ShiftSource {
    platform::RandomSource& random;
    const platform::Clock& clock;
};

template <ScrambleMode mode>
std::string Scrambled(std::string_view text) {
    return ScrambleText(text, mode);
}

struct Edit {
    std::string_view keyword;
    std::string (*apply)(std::string_view text);
};

constexpr Edit kEdits[] = {
    {"lowercase", LowerCase},
    {"upcase", UpperCase},
    {"trim", Trimmed},
    {"collapse", CollapseText},
    {"compress", CompressText},
    {"scramble", Scrambled<ScrambleMode::kEncode>},
    {"unscramble", Scrambled<ScrambleMode::kDecode>},
    {"scramblec", Scrambled<ScrambleMode::kEncodeC>},
    {"encode", Scrambled<ScrambleMode::kEncodeC>},
    {"unscramblec", Scrambled<ScrambleMode::kDecodeC>},
    {"unencode", Scrambled<ScrambleMode::kDecodeC>},
    {"uncrypt", Scrambled<ScrambleMode::kDecodeShifted>},
    {"unscramblerr", Scrambled<ScrambleMode::kDecodeShifted>},
};

std::string Crypt(std::string_view text, const ShiftSource* shifts) {
    if (shifts == nullptr) throw std::invalid_argument("StrEdit: CRYPT needs a random source and a clock");
    return ScrambleText(text, DrawShift(shifts->random, shifts->clock));
}

std::string Apply(std::string_view keyword, std::string text, const ShiftSource* shifts) {
    if (EqualsNoCase(keyword, "crypt") || EqualsNoCase(keyword, "scramblerr")) return Crypt(text, shifts);
    for (const Edit& edit : kEdits)
        if (EqualsNoCase(keyword, edit.keyword)) return edit.apply(text);
    return text;
}

std::string ApplyAll(std::string_view text, std::string_view editList, const ShiftSource* shifts) {
    std::string result(text);
    for (const std::string_view keyword : Split(editList, ","))
        result = Apply(keyword, std::move(result), shifts);
    return result;
}

}  // namespace

std::string StrEdit(std::string_view text, std::string_view editList) {
    return ApplyAll(text, editList, nullptr);
}

std::string StrEdit(std::string_view text, std::string_view editList, platform::RandomSource& random,
                    const platform::Clock& clock) {
    const ShiftSource shifts{random, clock};
    return ApplyAll(text, editList, &shifts);
}

std::string CompressText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool inRun = false;
    for (const char byte : text) {
        // Bytes above 126 are parts of characters from 127 up, all of which become blanks: no need to
        // decode them.
        const bool isBlank =
            static_cast<unsigned char>(byte) <= 32 || static_cast<unsigned char>(byte) >= 127;
        if (!isBlank) result += byte;
        if (isBlank && !inRun) result += ' ';
        inRun = isBlank;
    }
    return result;
}

std::string CollapseText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char byte : text)
        if (static_cast<unsigned char>(byte) >= 33 && static_cast<unsigned char>(byte) <= 125)
            result += byte;
    return result;
}

std::string CollapseBlanks(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool inBlanks = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool marker = text.substr(at, kLineEndMarker.size()) == kLineEndMarker;
        if (marker) at += kLineEndMarker.size() - 1;
        if (!marker && static_cast<unsigned char>(text[at]) > ' ' && text[at] != kHardSpace[0]) {
            result += text[at];
            inBlanks = false;
        } else if (!inBlanks) {
            result += ' ';
            inBlanks = true;
        }
    }
    return result;
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string result;
    result.reserve(text.size());
    std::size_t begin = 0;
    std::size_t match = text.find(from);
    while (match != std::string_view::npos) {
        result.append(text, begin, match - begin);
        result += to;
        begin = match + from.size();
        match = text.find(from, begin);
    }
    result.append(text, begin);
    return result;
}

std::string Trimmed(std::string_view text) {
    return std::string(TrimBlanks(text));
}

}  // namespace fabula::text
