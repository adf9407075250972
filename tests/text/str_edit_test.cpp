#include "text/str_edit.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "random_text.h"
#include "text/encoding/scramble.h"

namespace fabula::text {
namespace {

TEST(StrEdit, CompressAndTrimGiveSingleBlanksAndNoneAtTheEnds) {
    EXPECT_EQ(StrEdit("  a   b ", "compress,trim"), "a b");
}

TEST(StrEdit, AnUnknownKeywordChangesNothing) {
    EXPECT_EQ(StrEdit("abc", "nothing"), "abc");
    EXPECT_EQ(StrEdit("abc", ""), "abc");
    EXPECT_EQ(StrEdit(" abc ", "nothing,trim"), "abc");
}

TEST(StrEdit, KeywordsIgnoreCase) {
    EXPECT_EQ(StrEdit("  a   b ", "COMPRESS,TRIM"), "a b");
    EXPECT_EQ(StrEdit("  a   b ", "Trim,compress"), "a b");
}

TEST(StrEdit, KeywordsApplyFromLeftToRight) {
    EXPECT_EQ(StrEdit("\ta", "trim,compress"), " a");
    EXPECT_EQ(StrEdit("\ta", "compress,trim"), "a");
}

TEST(StrEdit, ChangesCase) {
    EXPECT_EQ(StrEdit("Take Été", "lowercase"), "take été");
    EXPECT_EQ(StrEdit("Take Été", "upcase"), "TAKE ÉTÉ");
}

TEST(StrEdit, TheEmptyTextStaysEmptyWhenScrambled) {
    EXPECT_EQ(StrEdit("", "scramble"), "");
}

TEST(StrEdit, ScramblesByTheFirstTable) {
    EXPECT_EQ(StrEdit("GET LAMP", "scramble"), ScrambleText("GET LAMP", ScrambleMode::kEncode));
    EXPECT_EQ(StrEdit("GET LAMP", "scramble,unscramble"), "GET LAMP");
}

TEST(StrEdit, ScramblesByTheSecondTableUnderTwoNames) {
    EXPECT_EQ(StrEdit("GET LAMP", "scramblec"), ScrambleText("GET LAMP", ScrambleMode::kEncodeC));
    EXPECT_EQ(StrEdit("GET LAMP", "encode,unscramblec"), "GET LAMP");
    EXPECT_EQ(StrEdit("GET LAMP", "scramblec,unencode"), "GET LAMP");
}

TEST(StrEdit, CryptDrawsItsShiftAndUncryptUndoesItUnderTwoNames) {
    platform::SeededRandom random(4);
    const platform::FixedClock clock({2001, 2, 3, 4, 5, 6});
    const std::string hidden = StrEdit("GET LAMP", "crypt", random, clock);
    EXPECT_EQ(hidden.size(), 9u);
    EXPECT_EQ(StrEdit(hidden, "unscramblerr"), "GET LAMP");
    EXPECT_EQ(StrEdit("GET LAMP", "scramblerr,uncrypt", random, clock), "GET LAMP");
}

TEST(StrEdit, CryptWithoutARandomSourceIsAProgrammingError) {
    EXPECT_THROW(StrEdit("a", "crypt"), std::invalid_argument);
}

TEST(CompressText, EveryRunOfBlanksAndControlCharactersBecomesOneBlank) {
    EXPECT_EQ(CompressText("a\t\r\n  b"), "a b");
    EXPECT_EQ(CompressText("a\tb"), "a b");
    EXPECT_EQ(CompressText(std::string_view("a\0\x1F"
                                            "b",
                                            4)),
              "a b");
}

TEST(CompressText, CharactersFrom127UpBecomeBlanks) {
    EXPECT_EQ(CompressText("a\x7F"
                           "b"),
              "a b");
    EXPECT_EQ(CompressText("été"), " t ");
    EXPECT_EQ(CompressText("a€ \u008Cz~"), "a z~");
}

TEST(CompressText, SingleBlanksAtTheEndsStay) {
    EXPECT_EQ(CompressText("  a  "), " a ");
}

TEST(CollapseText, KeepsTheCharacters33To125Only) {
    EXPECT_EQ(CollapseText(" a!b}c~d\x7F"
                           "é\t\u008C"),
              "a!b}cd");
}

TEST(TrimBlanks, RemovesBlanksAtTheEndsAndNothingElse) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("    "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
}

TEST(ReplaceAll, ReplacesFromLeftToRightWithoutOverlap) {
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("a'b''", "'", "''"), "a''b''''");
    EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceAll("abc", "", "y"), "abc");
}

TEST(StrEdit, AMegabyteIsEdited) {
    EXPECT_EQ(StrEdit(Repeated(" a ", 350'000), "compress,trim").size(), 699'999u);
    EXPECT_EQ(StrEdit(Repeated(" é\t", 250'000), "collapse"), "");
    EXPECT_EQ(StrEdit(Repeated("é", 500'000), "upcase"), Repeated("É", 500'000));
}

TEST(CollapseBlanks, EveryRunOfBlanksBecomesOne) {
    EXPECT_EQ(CollapseBlanks(" a\t b\r\nc\u008C\x7F"
                             "d "),
              " a b c d ");
}

TEST(CollapseBlanks, LettersBeyondAsciiStay) {
    EXPECT_EQ(CollapseBlanks("T\u00DCR  \u008B"), "T\u00DCR \u008B");
}

}  // namespace
}  // namespace fabula::text
