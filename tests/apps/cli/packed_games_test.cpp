// Packages of the example games, opened by a program of others and played where they fell.

#include <gtest/gtest.h>

#include "support/places.h"
#include "support/raw_database.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

namespace fs = std::filesystem;

class PackedGame : public testing::TestWithParam<std::string> {
  protected:
    PackedGame() {
        const fs::path pictures = fs::path("pictures") / GetParam();
        fs::create_directories(folder_ / "made" / pictures.parent_path());
        fs::copy(ExampleGames() / pictures, folder_ / "made" / pictures, fs::copy_options::recursive);
        fs::copy_file(ExampleGames() / Name(), folder_ / "made" / Name());
    }

    static std::string Name() { return GetParam() + ".fbd"; }
    static fs::path Example(const char* file) { return SourceFolder() / "examples" / GetParam() / file; }
    void Pack(const char* zip) {
        const ProgramResult packed = RunProgram(
            Program(), {"package", folder_ / "made" / Name(), "--version", "1.0", folder_ / zip});
        ASSERT_EQ(packed.status, 0) << packed.errors;
    }

    TempFolder folder_;
};

TEST_P(PackedGame, IsPlayedFromAnEmptyFolderToTheEndOfItsWalkthrough) {
    Pack("game.zip");
    fs::remove_all(folder_ / "made");
    const fs::path opened = folder_ / "opened";
    const ProgramResult unzipped =
        RunProgram("/usr/bin/unzip", {"-q", folder_ / "game.zip", "-d", opened.string()});
    ASSERT_EQ(unzipped.status, 0) << unzipped.output << unzipped.errors;
    EXPECT_TRUE(fs::exists(opened / "pictures" / GetParam() / "Default.bmp"));
    const ProgramResult played = RunProgram(Program(), {"test", opened / Name(), Example("walkthrough.scr"),
                                                        "--transcript", Example("walkthrough.transcript")});
    EXPECT_EQ(played.status, 0) << played.output << played.errors;
    EXPECT_EQ(played.output, "");
}

TEST_P(PackedGame, HasTheSameBytesASecondTime) {
    Pack("1.zip");
    Pack("2.zip");
    EXPECT_TRUE(ReadBytes(folder_ / "1.zip") == ReadBytes(folder_ / "2.zip"));
}

INSTANTIATE_TEST_SUITE_P(Games, PackedGame, testing::Values("lighthouse", "signal_box", "cellar"),
                         [](const auto& given) { return given.param; });

}  // namespace
}  // namespace fabula::test
