#include "interchange/shared/source_file.h"

#include <fstream>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace fabula::interchange {
namespace {

std::vector<std::string> SourceLinesOf(const std::string& bytes) {
    const test::TempFolder folder;
    std::ofstream(folder / "source.txt", std::ios::binary) << bytes;
    SourceFile source(folder / "source.txt");
    std::vector<std::string> lines;
    for (std::string line; source.Next(line);)
        lines.push_back(line);
    return lines;
}

using SourceLines = std::vector<std::string>;

TEST(SourceFile, AnEmptyFileHasNoLines) {
    EXPECT_EQ(SourceLinesOf(""), SourceLines());
}

TEST(SourceFile, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(SourceLinesOf("a\nb"), SourceLines({"a", "b"}));
}

TEST(SourceFile, ALastLineEndBeginsNoLine) {
    EXPECT_EQ(SourceLinesOf("a\n"), SourceLines({"a"}));
}

TEST(SourceFile, TakesMixedLineEnds) {
    EXPECT_EQ(SourceLinesOf("a\r\nb\nc\rd\r\n\r\ne\n\rf"),
              SourceLines({"a", "b", "c", "d", "", "e", "", "f"}));
}

TEST(SourceFile, BytesAreWindows1252) {
    EXPECT_EQ(SourceLinesOf("caf\xE9 \x8C"), SourceLines({"café Œ"}));
}

TEST(SourceFile, AByteOrderMarkMeansUtf8) {
    EXPECT_EQ(SourceLinesOf("\xEF\xBB\xBF"
                            "café\n"),
              SourceLines({"café"}));
}

TEST(SourceFile, BytesThatAreNoUtf8AreReplacedInAMarkedFile) {
    EXPECT_EQ(SourceLinesOf("\xEF\xBB\xBF"
                            "a\xFFz"),
              SourceLines({"a\uFFFDz"}));
}

TEST(SourceFile, NulBytesCountAsBlanks) {
    EXPECT_EQ(SourceLinesOf(std::string("a\0b", 3)), SourceLines({"a b"}));
}

TEST(SourceFile, ALineMayBeLongerThanTheBuffer) {
    const std::string line(1'000'000, 'x');
    EXPECT_EQ(SourceLinesOf(line + "\r\n" + line), SourceLines({line, line}));
}

TEST(SourceFile, ALineEndMayBeSplitByTheBuffer) {
    const std::string line(65535, 'x');
    EXPECT_EQ(SourceLinesOf(line + "\r\nend"), SourceLines({line, "end"}));
}

TEST(SourceFile, CountsLines) {
    const test::TempFolder folder;
    std::ofstream(folder / "source.txt", std::ios::binary) << "a\nb\n";
    SourceFile source(folder / "source.txt");
    std::string line;
    EXPECT_EQ(source.LineNumber(), 0);
    source.Next(line);
    source.Next(line);
    EXPECT_EQ(source.LineNumber(), 2);
    EXPECT_EQ(source.BytesRead(), 4);
    EXPECT_EQ(source.Size(), 4);
}

TEST(SourceFile, AMissingFileIsAnError) {
    EXPECT_THROW(SourceFile("/no/such/file"), Error);
}

TEST(SourceFile, AFileThatIsTooLargeIsAnError) {
    const test::TempFolder folder;
    std::ofstream(folder / "large.txt") << "a\n";
    std::filesystem::resize_file(folder / "large.txt", kLargestSource + 1);
    EXPECT_THROW(SourceFile(folder / "large.txt"), Error);
}

TEST(SourceFile, AFolderIsAnError) {
    const test::TempFolder folder;
    EXPECT_THROW(SourceFile source(folder.Path()), Error);
}

TEST(SplitWords, SplitsAtBlanksAndControlCharacters) {
    EXPECT_EQ(SplitWords("  a\tb  é "), (std::vector<std::string_view>{"a", "b", "é"}));
    EXPECT_TRUE(SplitWords(" ").empty());
}

TEST(TrimRight, RemovesBlanksAndControlCharacters) {
    EXPECT_EQ(TrimRight(" a b \t"), " a b");
    EXPECT_EQ(TrimRight("  "), "");
}

std::string Note(const std::string& bytes, Encoding encoding = Encoding::Detect) {
    const test::TempFolder folder;
    std::ofstream(folder / "source.txt", std::ios::binary) << bytes;
    SourceFile source(folder / "source.txt", encoding);
    std::string line;
    source.Next(line);
    return line + "|" + std::string(source.EncodingNote());
}

TEST(SourceFile, BytesThatAreAllUtf8AreUtf8AlsoWithoutAMark) {
    EXPECT_EQ(Note("Caf\xC3\xA9\n"), "Caf\u00E9|The text is read as UTF-8.");
}

TEST(SourceFile, OneByteThatIsNoUtf8MakesAllOfItWindows1252) {
    EXPECT_EQ(Note("Caf\xC3\xA9\nna\xEFve\n"), "Caf\u00C3\u00A9|The text is read as Windows-1252.");
    EXPECT_EQ(Note("Caf\xE9"), "Caf\u00E9|The text is read as Windows-1252.");
}

TEST(SourceFile, ACharacterMayLieAcrossTheBlocksOfTheFile) {
    for (const std::size_t before : {65533, 65534, 65535, 65536}) {
        const std::string line(before, 'x');
        EXPECT_EQ(Note(line + "\xE2\x82\xAC"), line + "\u20AC|The text is read as UTF-8.");
    }
}

TEST(SourceFile, SaysNothingOfPlainTextAndOfAMarkedFile) {
    EXPECT_EQ(Note("Cafe"), "Cafe|");
    EXPECT_EQ(Note("\xEF\xBB\xBF"
                   "Caf\xC3\xA9"),
              "Caf\u00E9|");
}

TEST(SourceFile, ToldWhyItCannotBeRead) {
    const auto reasonOf = [](const char* file) -> std::string {
        try {
            const SourceFile source(file);
        } catch (const Error& error) {
            return error.what();
        }
        return "none";
    };
    EXPECT_EQ(reasonOf("/nowhere/source"),
              "Could not read the source /nowhere/source: there is no such file.");
    EXPECT_EQ(reasonOf("/dev/null"), "Could not read the source /dev/null: it is no file.");
}

TEST(SourceFile, TheEncodingCanBeDecided) {
    EXPECT_EQ(Note("Caf\xC3\xA9", Encoding::Windows1252),
              "Caf\u00C3\u00A9|The text is read as Windows-1252.");
    EXPECT_EQ(Note("Caf\xE9", Encoding::Utf8), "Caf\uFFFD|The text is read as UTF-8.");
}

}  // namespace
}  // namespace fabula::interchange
