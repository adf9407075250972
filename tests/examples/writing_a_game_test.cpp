#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/places.h"

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

const std::filesystem::path kSource = fabula::test::SourceFolder();

std::string Content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

/// A fenced block of a Markdown text: what stands behind its first fence, and its lines.
struct Block {
    std::string info;
    std::string text;
};

std::vector<Block> FencedBlocks(const std::string& markdown) {
    std::vector<Block> blocks;
    bool inside = false;
    std::istringstream lines(markdown);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```")) {
            if (!inside) blocks.push_back({line.substr(3), ""});
            inside = !inside;
        } else if (inside) {
            blocks.back().text += line + "\n";
        }
    }
    return blocks;
}

constexpr std::string_view kListing = "text ";

std::vector<Block> Listings() {
    std::vector<Block> listings;
    for (const Block& block : FencedBlocks(Content(kSource / "docs" / "writing-a-game.md"))) {
        if (block.info.starts_with(kListing))
            listings.push_back({block.info.substr(kListing.size()), block.text});
    }
    return listings;
}

TEST(WritingAGame, ShowsEveryStepAsItStandsInItsFile) {
    const std::vector<Block> listings = Listings();
    std::vector<std::string> names;
    for (const Block& listing : listings) {
        names.push_back(listing.info);
        EXPECT_EQ(listing.text, Content(kSource / "examples" / "tutorial" / listing.info)) << listing.info;
    }
    EXPECT_THAT(names, ElementsAre("step1.txt", "step2.txt", "step3.txt", "step4.txt", "step5.txt"));
}

TEST(WritingAGame, ShowsNothingButStepsAndCommands) {
    std::set<std::string> kinds;
    for (const Block& block : FencedBlocks(Content(kSource / "docs" / "writing-a-game.md"))) {
        kinds.insert(block.info.substr(0, block.info.find(' ')));
    }
    EXPECT_THAT(kinds, ElementsAre("sh", "text"));
}

TEST(WritingAGame, LeavesOutNoStep) {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(kSource / "examples" / "tutorial")) {
        if (entry.path().extension() == ".txt") files.push_back(entry.path().filename().string());
    }
    std::vector<std::string> shown;
    for (const Block& listing : Listings())
        shown.push_back(listing.info);
    EXPECT_THAT(files, UnorderedElementsAreArray(shown));
}

}  // namespace
