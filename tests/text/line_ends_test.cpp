#include "text/line_ends.h"

#include <gtest/gtest.h>

#include "random_text.h"
#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

TEST(LineEnds, TheMarkerIsCodePoint140AndTheHardSpace127) {
    EXPECT_EQ(Decode(kLineEndMarker), std::u32string(1, 140));
    EXPECT_EQ(Decode(kHardSpace), std::u32string(1, 127));
}

TEST(NormalizeLineEnds, EveryKindOfLineEndBecomesTheSessions) {
    EXPECT_EQ(NormalizeLineEnds("a\r\nb\nc\rd", "\n"), "a\nb\nc\nd");
    EXPECT_EQ(NormalizeLineEnds("a\r\nb\nc\rd", "\r\n"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(NormalizeLineEnds("a\r\nb\nc\rd", kLineEndMarker), "a\u008Cb\u008Cc\u008Cd");
}

TEST(NormalizeLineEnds, EmptyLinesAndEndsAtBothEdgesStay) {
    EXPECT_EQ(NormalizeLineEnds("\r\n\r\n", "\n"), "\n\n");
    EXPECT_EQ(NormalizeLineEnds("\n\r", "\n"), "\n\n");
    EXPECT_EQ(NormalizeLineEnds("\r\r\n", "|"), "||");
}

TEST(NormalizeLineEnds, ATextWithoutLineEndsStaysAsItIs) {
    EXPECT_EQ(NormalizeLineEnds("", "\n"), "");
    EXPECT_EQ(NormalizeLineEnds("été\u008C\x7F", "\n"), "été\u008C\x7F");
}

TEST(NormalizeLineEnds, AMegabyteIsNormalized) {
    EXPECT_EQ(NormalizeLineEnds(Repeated("\r\n", 500'000), "\n"), Repeated("\n", 500'000));
}

}  // namespace
}  // namespace fabula::text
