#include "interchange/pc/pc_lines.h"

#include <fstream>
#include <vector>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace fabula::interchange {
namespace {

/// A folder of sources and what is read from the first of them.
class PcLinesTest : public testing::Test {
  protected:
    void Write(const char* name, const std::string& text) {
        std::filesystem::create_directories((folder_ / name).parent_path());
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    std::vector<std::string> Read(bool skipBlank = true) {
        PcLines source(folder_ / "game.sce", ';', "PCVEL", status_);
        std::vector<std::string> lines;
        for (std::string line; source.RdSrcFile(line, skipBlank);)
            lines.push_back(line);
        failed_ = source.Failed();
        return lines;
    }

    test::TempFolder folder_;
    NoObserver nobody_;
    JobStatus status_{nobody_};
    bool failed_ = false;
};

using RawLines = std::vector<std::string>;

TEST_F(PcLinesTest, CommentsAreCutOff) {
    Write("game.sce", "; all\na ; tail\n   ; indented\nb;c\n\nd\n");
    EXPECT_EQ(Read(), RawLines({"a", "b", "d"}));
}

TEST_F(PcLinesTest, CommentsCanBeWatchedInLinkedFilesToo) {
    Write("game.sce", "; all\na ; tail\n/LNK part2.sce\n");
    Write("part2.sce", "b\n;more\n");
    PcLines source(folder_ / "game.sce", ';', "PCVEL", status_);
    std::vector<std::string> comments;
    source.WatchComments([&](std::string_view comment, const SourcePlace& place) {
        comments.push_back(place.file.filename().string() + " " + std::to_string(place.line) +
                           std::string(comment));
    });
    for (std::string line; source.RdSrcFile(line, true);) {
    }
    EXPECT_EQ(comments, RawLines({"game.sce 1 all", "game.sce 2 tail", "part2.sce 2more"}));
}

TEST_F(PcLinesTest, BlankLinesAreKeptWhenAsked) {
    Write("game.sce", "a\n\n ; comment\n  \nb\n");
    EXPECT_EQ(Read(false), RawLines({"a", "", "  ", "b"}));
}

TEST_F(PcLinesTest, ALinkGoesOnWithTheFileItNames) {
    Write("game.sce", "a\n/LNK part2.sce\nnever read\n");
    Write("part2.sce", "b\n");
    EXPECT_EQ(Read(), RawLines({"a", "b"}));
    EXPECT_FALSE(failed_);
    EXPECT_EQ(status_.Text(), "Loading PCVEL Source " + (folder_ / "game.sce").string() + "\n" +
                                  (folder_ / "game.sce").string() +
                                  ":3:1: fault: ERROR: The lines behind the link are not read."
                                  "\nLoading PCVEL Source " +
                                  (folder_ / "part2.sce").string() + "\n");
}

TEST_F(PcLinesTest, ALinkWithoutAnExtensionTakesThatOfTheSource) {
    Write("game.sce", "/lnk   PART2\n");
    Write("PART2.sce", "b\n");
    EXPECT_EQ(Read(), RawLines({"b"}));
}

TEST_F(PcLinesTest, ALinkMayNameAFileInAFolderBelow) {
    Write("game.sce", "/LNK parts\\two.sce\n");
    Write("parts/two.sce", "b\n");
    EXPECT_EQ(Read(), RawLines({"b"}));
}

TEST_F(PcLinesTest, ALinkToItselfEndsTheReading) {
    Write("game.sce", "a\n/LNK game\n");
    EXPECT_EQ(Read(), RawLines({"a"}));
    EXPECT_TRUE(failed_);
    EXPECT_NE(
        status_.Text().find("game.sce:2:1: fault: ERROR: The link goes back to a file that was read.\n"),
        std::string::npos);
}

TEST_F(PcLinesTest, ARingOfLinksEndsTheReading) {
    Write("game.sce", "/LNK b\n");
    Write("b.sce", "/LNK game\n");
    EXPECT_EQ(Read(), RawLines());
    EXPECT_TRUE(failed_);
}

TEST_F(PcLinesTest, ALinkOutOfTheFolderIsRefused) {
    for (const char* link : {"../secret.sce", "/etc/passwd.sce", "..\\secret.sce", "x/../../secret.sce"}) {
        Write("game.sce", std::string("/LNK ") + link + "\n");
        EXPECT_EQ(Read(), RawLines());
        EXPECT_TRUE(failed_) << link;
    }
    EXPECT_NE(status_.Text().find("ERROR: The link leaves the folder of the source."), std::string::npos);
}

TEST_F(PcLinesTest, ALinkIntoAFolderWhoseNameOnlyBeginsLikeThatOfTheSourceIsRefused) {
    Write("games/game.sce", "/LNK ../games2/part.sce\n");
    Write("games2/part.sce", "secret\n");
    PcLines source(folder_ / "games/game.sce", ';', "PCVEL", status_);
    std::string line;
    EXPECT_FALSE(source.RdSrcFile(line, true));
    EXPECT_TRUE(source.Failed());
}

TEST_F(PcLinesTest, ASymbolicLinkOutOfTheFolderIsRefused) {
    const test::TempFolder elsewhere;
    std::ofstream(elsewhere / "secret.sce") << "secret\n";
    std::filesystem::create_symlink(elsewhere / "secret.sce", folder_ / "inside.sce");
    Write("game.sce", "/LNK inside\n");
    EXPECT_EQ(Read(), RawLines());
    EXPECT_TRUE(failed_);
}

TEST_F(PcLinesTest, AMissingFileEndsTheReading) {
    Write("game.sce", "/LNK none\n");
    EXPECT_EQ(Read(), RawLines());
    EXPECT_TRUE(failed_);
}

TEST_F(PcLinesTest, ALinkWithoutANameEndsTheReading) {
    Write("game.sce", "/LNK\n");
    EXPECT_EQ(Read(), RawLines());
    EXPECT_TRUE(failed_);
}

TEST_F(PcLinesTest, AWordThatBeginsLikeALinkIsNone) {
    Write("game.sce", "/LNKS x\n");
    EXPECT_EQ(Read(), RawLines({"/LNKS x"}));
}

}  // namespace
}  // namespace fabula::interchange
