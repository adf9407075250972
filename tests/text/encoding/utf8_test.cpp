#include "text/encoding/utf8.h"

#include <gtest/gtest.h>

#include "text/random_text.h"

namespace fabula::text {
namespace {

TEST(Utf8, LengthCountsCodePointsOfEverySize) {
    EXPECT_EQ(Length(""), 0u);
    EXPECT_EQ(Length("lamp"), 4u);
    EXPECT_EQ(Length("naïve"), 5u);
    EXPECT_EQ(Length("€5"), 2u);
    EXPECT_EQ(Length("🗝x"), 2u);
    EXPECT_EQ(Length("a rather long line with one é in it"), 35u);
}

TEST(Utf8, ABadByteCountsAsOneCodePoint) {
    EXPECT_EQ(Length("\xFF"), 1u);
    EXPECT_EQ(Length("a\x80z"), 3u);
}

TEST(Utf8, EachByteOfASequenceCutShortIsBad) {
    EXPECT_EQ(Length("\xE2\x82"), 2u);
    EXPECT_EQ(Length("\xE2\x82z"), 3u);
    EXPECT_EQ(Decode("\xE2\x82z"), (std::u32string{kBadByte + 0xE2, kBadByte + 0x82, U'z'}));
}

TEST(Utf8, OverlongFormsSurrogatesAndNumbersBeyondUnicodeAreBad) {
    EXPECT_FALSE(IsValidUtf8("\xC0\x80"));
    EXPECT_FALSE(IsValidUtf8("\xE0\x80\x80"));
    EXPECT_FALSE(IsValidUtf8("\xF0\x80\x80\x80"));
    EXPECT_FALSE(IsValidUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(IsValidUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(IsValidUtf8("eight ascii letters first \xFF"));
}

TEST(Utf8, TheEndsOfEveryRangeAreValid) {
    EXPECT_TRUE(IsValidUtf8(""));
    EXPECT_TRUE(IsValidUtf8(std::string_view("\0\x7F", 2)));
    EXPECT_TRUE(IsValidUtf8("\xC2\x80\xDF\xBF"));
    EXPECT_TRUE(IsValidUtf8("\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"));
    EXPECT_TRUE(IsValidUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

TEST(Utf8, EveryByteStringComesBackFromItsCodePoints) {
    platform::SeededRandom random(1);
    for (int i = 0; i < 2000; ++i) {
        const std::string bytes = RandomBytes(random, 40);
        EXPECT_EQ(Encode(Decode(bytes)), bytes);
        EXPECT_EQ(Length(bytes), Decode(bytes).size());
    }
}

TEST(Utf8, EveryScalarValueComesBackFromItsBytes) {
    for (char32_t value = 0; value < kBadByte; ++value) {
        if (value == 0xD800) value = 0xE000;
        std::string text;
        AppendCodePoint(text, value);
        const CodePoint point = DecodeAt(text, 0);
        ASSERT_EQ(point.value, value);
        ASSERT_EQ(point.size, text.size());
    }
}

TEST(Utf8, OffsetOfFindsTheByteOfACodePoint) {
    EXPECT_EQ(OffsetOf("aé€b", 0), 0u);
    EXPECT_EQ(OffsetOf("aé€b", 2), 3u);
    EXPECT_EQ(OffsetOf("aé€b", 3), 6u);
    EXPECT_EQ(OffsetOf("aé€b", 9), 7u);
}

TEST(Utf8, TheFirstByteTellsTheBytesOfACharacter) {
    for (const char32_t value :
         {U'a', U'\x7F', U'\x80', U'\u07FF', U'\u0800', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
        std::string text;
        AppendCodePoint(text, value);
        EXPECT_EQ(SequenceLength(text[0]), text.size()) << static_cast<std::uint32_t>(value);
    }
    for (const char byte : {'\x80', '\xBF', '\xC0', '\xC1', '\xF5', '\xFF'})
        EXPECT_EQ(SequenceLength(byte), 1u) << static_cast<int>(byte);
}

TEST(Utf8, ACutAtAByteGoesBackOrOnToTheStartOfACharacter) {
    const std::string text = "aé€b";  // at 0, 1, 3 and 6
    const std::size_t before[] = {0, 1, 1, 3, 3, 3, 6, 7};
    const std::size_t behind[] = {0, 1, 3, 3, 6, 6, 6, 7};
    for (std::size_t at = 0; at <= text.size(); ++at) {
        EXPECT_EQ(CharacterStart(text, at), before[at]) << at;
        EXPECT_EQ(NextCharacterStart(text, at), behind[at]) << at;
    }
}

TEST(Utf8, ATextThatBeginsWithinACharacterIsCutAtItsEnds) {
    EXPECT_EQ(CharacterStart("\x82\xAC", 1), 0u);
    EXPECT_EQ(NextCharacterStart("\x82\xAC", 0), 2u);
    EXPECT_EQ(CharacterStart("", 0), 0u);
    EXPECT_EQ(NextCharacterStart("", 0), 0u);
}

TEST(Utf8, LeftAndRightCutAtCodePoints) {
    EXPECT_EQ(Left("élan", 2), "él");
    EXPECT_EQ(Left("élan", 0), "");
    EXPECT_EQ(Left("élan", 9), "élan");
    EXPECT_EQ(Right("café", 2), "fé");
    EXPECT_EQ(Right("café", 0), "");
    EXPECT_EQ(Right("café", 9), "café");
}

TEST(Utf8, PaddingCountsCodePoints) {
    EXPECT_EQ(PadRight("né", 4), "né  ");
    EXPECT_EQ(PadRight("long", 2), "long");
}

TEST(Utf8, CaseChangesInEveryScript) {
    EXPECT_EQ(LowerCase("TAKE ÉTÉ ΣΙΓΜΑ ЖЁ"), "take été σιγμα жё");
    EXPECT_EQ(UpperCase("take été σιγμα жё"), "TAKE ÉTÉ ΣΙΓΜΑ ЖЁ");
    EXPECT_EQ(UpperCase("[`{@9"), "[`{@9");
}

TEST(Utf8, CaseChangesKeepBadBytes) {
    EXPECT_EQ(LowerCase("A\xFF"
                        "B\xC3"),
              "a\xFF"
              "b\xC3");
    EXPECT_EQ(UpperCase("a\xFF"
                        "b\xC3"),
              "A\xFF"
              "B\xC3");
}

TEST(Utf8, EqualsNoCaseIgnoresCaseInEveryScript) {
    EXPECT_TRUE(EqualsNoCase("Lamp", "lAMP"));
    EXPECT_TRUE(EqualsNoCase("ÉTÉ", "été"));
    EXPECT_TRUE(EqualsNoCase("", ""));
    EXPECT_FALSE(EqualsNoCase("lamp", "lamps"));
    EXPECT_FALSE(EqualsNoCase("lamps", "lamp"));
    EXPECT_FALSE(EqualsNoCase("été", "étés"));
    EXPECT_FALSE(EqualsNoCase("e", "é"));
}

TEST(Utf8, AnAsciiLetterEqualsACapitalOutsideAscii) {
    EXPECT_TRUE(EqualsNoCase("k", "\u212A"));  // the Kelvin sign
}

TEST(Utf8, DifferentBadBytesAreNotEqual) {
    EXPECT_FALSE(EqualsNoCase("\x80", "\x81"));
    EXPECT_TRUE(EqualsNoCase("a\x80", "A\x80"));
}

TEST(Utf8, CompareNoCaseOrdersByLowerCaseCodePoints) {
    EXPECT_LT(CompareNoCase("Apple", "banana"), 0);
    EXPECT_GT(CompareNoCase("banana", "APPLE"), 0);
    EXPECT_LT(CompareNoCase("app", "Apple"), 0);
    EXPECT_LT(CompareNoCase("_", "A"), 0);
    EXPECT_LT(CompareNoCase("zoo", "Éa"), 0);
    EXPECT_LT(CompareNoCase("é", "Éa"), 0);
    EXPECT_GT(CompareNoCase("éa", "É"), 0);
    EXPECT_EQ(CompareNoCase("Éa", "éA"), 0);
}

TEST(Utf8, CompareNoCaseAgreesWithComparingLowerCase) {
    platform::SeededRandom random(2);
    for (int i = 0; i < 5000; ++i) {
        const std::string left =
            RandomText(random, 4, {"a", "A", "b", "_", "é", "É", "\x80", "k", "\u212A"});
        const std::string right =
            RandomText(random, 4, {"a", "A", "b", "_", "é", "É", "\x80", "k", "\u212A"});
        const int expected = Decode(LowerCase(left)).compare(Decode(LowerCase(right)));
        const int found = CompareNoCase(left, right);
        EXPECT_EQ(found < 0, expected < 0) << left << " and " << right;
        EXPECT_EQ(found > 0, expected > 0) << left << " and " << right;
    }
}

}  // namespace
}  // namespace fabula::text
