#include "text/encoding/windows1252.h"

#include <gtest/gtest.h>

#include "text/random_text.h"

namespace fabula::text {
namespace {

TEST(Windows1252, AsciiStaysAsItIs) {
    EXPECT_EQ(FromWindows1252("Lamp\r\n~\x7F"), "Lamp\r\n~\x7F");
    EXPECT_EQ(ToWindows1252("Lamp\r\n~\x7F").bytes, "Lamp\r\n~\x7F");
}

TEST(Windows1252, ReadsLatinLettersAndTheCharactersOf0x80To0x9F) {
    EXPECT_EQ(FromWindows1252("caf\xE9 \x80 \x8C \x93x\x94 \x99 \x9F"), "café € Œ “x” ™ Ÿ");
}

TEST(Windows1252, WritesThemBack) {
    const Windows1252 written = ToWindows1252("café € Œ “x” ™ Ÿ");
    EXPECT_EQ(written.bytes, "caf\xE9 \x80 \x8C \x93x\x94 \x99 \x9F");
    EXPECT_EQ(written.unwritable, std::nullopt);
}

TEST(Windows1252, TheFiveBytesWithoutACharacterComeBack) {
    EXPECT_EQ(FromWindows1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(ToWindows1252("\u0081\u008D\u008F\u0090\u009D").bytes, "\x81\x8D\x8F\x90\x9D");
}

TEST(Windows1252, EveryByteComesBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const Windows1252 written = ToWindows1252(FromWindows1252(bytes));
    EXPECT_EQ(written.bytes, bytes);
    EXPECT_EQ(written.unwritable, std::nullopt);
}

TEST(Windows1252, TellsThePlaceOfTheFirstCharacterThatCantBeWritten) {
    const Windows1252 written = ToWindows1252("été Ж и");
    EXPECT_EQ(written.bytes, "\xE9t\xE9 ");
    EXPECT_EQ(written.unwritable, 4u);
}

TEST(Windows1252, TheLineEndMarkerAndBadBytesCantBeWritten) {
    EXPECT_EQ(ToWindows1252("a\u008C").unwritable, 1u);
    EXPECT_EQ(ToWindows1252("ab\xE9").unwritable, 2u);
    EXPECT_EQ(ToWindows1252("\u0080").unwritable, 0u);
}

TEST(Windows1252, AMegabyteIsConvertedBothWays) {
    const std::string bytes = Repeated("\xE9\x80", 500'000);
    EXPECT_EQ(ToWindows1252(FromWindows1252(bytes)).bytes, bytes);
}

}  // namespace
}  // namespace fabula::text
