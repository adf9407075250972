#include "terminal/unified_diff.h"

#include <random>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

namespace fabula::terminal {
namespace {

std::string Diff(std::string_view before, std::string_view after) {
    return UnifiedDiff(before, after, "old", "new");
}

TEST(UnifiedDiff, EqualTextsHaveNone) {
    EXPECT_EQ(Diff("one\ntwo\n", "one\ntwo\n"), "");
    EXPECT_EQ(Diff("", ""), "");
}

TEST(UnifiedDiff, AChangedLineIsRemovedAndAdded) {
    EXPECT_EQ(Diff("one\ntwo\nthree\n", "one\n2\nthree\n"),
              "--- old\n+++ new\n@@ -1,3 +1,3 @@\n one\n-two\n+2\n three\n");
}

TEST(UnifiedDiff, ShowsThreeLinesAroundAChange) {
    EXPECT_EQ(Diff("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nx\n5\n6\n7\n8\n9\n"),
              "--- old\n+++ new\n@@ -2,6 +2,7 @@\n 2\n 3\n 4\n+x\n 5\n 6\n 7\n");
}

TEST(UnifiedDiff, ChangesFarApartStandInHunksOfTheirOwn) {
    EXPECT_EQ(Diff("a\n1\n2\n3\n4\n5\n6\n7\nb\n", "A\n1\n2\n3\n4\n5\n6\n7\nB\n"),
              "--- old\n+++ new\n"
              "@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n"
              "@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n");
}

TEST(UnifiedDiff, ChangesThatTouchStandInOneHunk) {
    EXPECT_EQ(Diff("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n"),
              "--- old\n+++ new\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
}

TEST(UnifiedDiff, AnEmptyTextHasLineNought) {
    EXPECT_EQ(Diff("", "one\n"), "--- old\n+++ new\n@@ -0,0 +1 @@\n+one\n");
    EXPECT_EQ(Diff("one\ntwo\n", ""), "--- old\n+++ new\n@@ -1,2 +0,0 @@\n-one\n-two\n");
}

TEST(UnifiedDiff, AMissingLastLineEndIsADifference) {
    EXPECT_EQ(Diff("one\n", "one"),
              "--- old\n+++ new\n@@ -1 +1 @@\n-one\n+one\n\\ No newline at end of file\n");
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Applies a difference of texts whose lines all end, and checks that it fits.
std::string Applied(const std::string& before, const std::string& diff) {
    const std::vector<std::string> old = Lines(before);
    const std::vector<std::string> steps = Lines(diff);
    std::size_t place = 0;
    std::string after;
    for (std::size_t i = 2; i < steps.size(); ++i) {
        if (steps[i].starts_with("@@ -")) {
            const auto first = static_cast<std::size_t>(std::stoi(steps[i].substr(4)));
            const bool nothing = steps[i].find(",0 +") != std::string::npos;
            for (const std::size_t start = nothing ? first : first - 1; place < start; ++place)
                after += old.at(place) + "\n";
            continue;
        }
        if (steps[i][0] != '+') {
            EXPECT_EQ(old.at(place++), steps[i].substr(1));
        }
        if (steps[i][0] != '-') after += steps[i].substr(1) + "\n";
    }
    for (; place < old.size(); ++place)
        after += old[place] + "\n";
    return after;
}

std::string RandomText(std::mt19937& random, int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i) {
        text += static_cast<char>('a' + random() % 4);
        text += '\n';
    }
    return text;
}

TEST(UnifiedDiff, AppliedToTheFirstTextItGivesTheSecond) {
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        const std::string before = RandomText(random, static_cast<int>(random() % 40));
        const std::string after = RandomText(random, static_cast<int>(random() % 40));
        if (before == after) continue;
        EXPECT_EQ(Applied(before, Diff(before, after)), after) << Diff(before, after);
    }
}

TEST(UnifiedDiff, ManyDifferencesAreStillADifferenceThatApplies) {
    std::mt19937 random(8);
    const std::string before = RandomText(random, 6000);
    const std::string after = RandomText(random, 6000);
    EXPECT_EQ(Applied(before, Diff(before, after)), after);
}

}  // namespace
}  // namespace fabula::terminal
