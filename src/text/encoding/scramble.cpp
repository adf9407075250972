#include "text/encoding/scramble.h"

#include <array>
#include <cstdint>
#include <stdexcept>

#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

constexpr int kFirst = 32;
constexpr int kCount = 95;

constexpr std::string_view kTable1 =
    R"T(SGh1J.:Pa>YLn/=Q56k%z*VM3H\cvK2"f?}7WN@`e_BTb^ {A<-)(rR[]Zoiqt0+uU'!x#m4O~&Ejd9Iw,yl;FpXgs|8CD$)T";
constexpr std::string_view kTable2 =
    R"T(Eva<&xzPqWF[*$IiJ>;=@}#O\A+3|_G/"sTc{DhLbnd l0HV64NU!Bg,'~CwjeomX]-^kS`(prt)RQ87y9.Z2?15M%uY:Kf)T";

/// By character minus kFirst, what stands for it.
using Substitution = std::array<char, kCount>;

constexpr Substitution Encoder(std::string_view table) {
    Substitution encoder{};
    for (int i = 0; i < kCount; ++i)
        encoder[i] = table[i];
    return encoder;
}

constexpr Substitution Decoder(std::string_view table) {
    Substitution decoder{};
    for (int i = 0; i < kCount; ++i)
        decoder[table[i] - kFirst] = static_cast<char>(kFirst + i);
    return decoder;
}

constexpr bool IsPermutation(std::string_view table) {
    if (table.size() != kCount) return false;
    for (const char partner : Decoder(table))
        if (partner == 0) return false;
    return true;
}

static_assert(IsPermutation(kTable1));
static_assert(IsPermutation(kTable2));

constexpr Substitution kEncoder1 = Encoder(kTable1);
constexpr Substitution kDecoder1 = Decoder(kTable1);
constexpr Substitution kEncoder2 = Encoder(kTable2);
constexpr Substitution kDecoder2 = Decoder(kTable2);

std::string Substitute(std::string_view text, const Substitution& partners) {
    std::string result(text);
    for (char& character : result) {
        const int code = static_cast<unsigned char>(character);
        if (code >= kFirst && code < kFirst + kCount) character = partners[code - kFirst];
    }
    return result;
}

/// The code point `amount` places on. Unicode's scalar values form a ring here, without the gap of the
/// surrogates; bad bytes stay as they are.
char32_t ShiftPoint(char32_t value, std::int64_t amount) {
    constexpr std::int64_t kGapBegin = 0xD800;
    constexpr std::int64_t kGapSize = 0x800;
    constexpr std::int64_t kRing = 0x110000 - kGapSize;
    if (value >= kBadByte) return value;
    const std::int64_t place = value < kGapBegin ? value : value - kGapSize;
    const std::int64_t shifted = ((place + amount) % kRing + kRing) % kRing;
    return static_cast<char32_t>(shifted < kGapBegin ? shifted : shifted + kGapSize);
}

void AppendShifted(std::string& result, std::string_view text, std::int64_t amount) {
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = DecodeAt(text, at);
        AppendCodePoint(result, ShiftPoint(point.value, amount));
        at += point.size;
    }
}

std::string DecodeShifted(std::string_view text) {
    if (text.empty()) return {};
    const std::string plain = Substitute(text, kDecoder1);
    const CodePoint letter = DecodeAt(plain, 0);
    const std::int64_t code = letter.value;
    const std::int64_t amount = code < 'a' ? code - 'A' : code - 'a';
    std::string result;
    result.reserve(plain.size());
    AppendShifted(result, std::string_view(plain).substr(letter.size), amount);
    return result;
}

}  // namespace

Shift DrawShift(platform::RandomSource& random, const platform::Clock& clock) {
    return {random.UpTo(15), clock.Now().second % 2 == 1};
}

std::string ScrambleText(std::string_view text, ScrambleMode mode) {
    switch (mode) {
        case ScrambleMode::kEncode:
            return Substitute(text, kEncoder1);
        case ScrambleMode::kDecode:
            return Substitute(text, kDecoder1);
        case ScrambleMode::kEncodeC:
            return Substitute(text, kEncoder2);
        case ScrambleMode::kDecodeC:
            return Substitute(text, kDecoder2);
        case ScrambleMode::kDecodeShifted:
            return DecodeShifted(text);
    }
    throw std::invalid_argument("ScrambleText: no such mode");
}

std::string ScrambleText(std::string_view text, Shift shift) {
    if (shift.amount < 1 || shift.amount > 15)
        throw std::invalid_argument("ScrambleText: the shift is not 1 to 15");
    if (text.empty()) return {};
    std::string result;
    result.reserve(text.size() + 1);
    result += static_cast<char>((shift.lowerCaseLetter ? 'a' : 'A') + shift.amount);
    AppendShifted(result, text, -shift.amount);
    return Substitute(result, kEncoder1);
}

}  // namespace fabula::text
