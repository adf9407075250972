#include "terminal/player_files.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace fabula::terminal {
namespace {

TEST(ScratchFiles, WritesIntoAFolderThatIsGoneAfterwards) {
    std::filesystem::path place;
    {
        const ScratchFiles files("");
        place = files.Place("game.sav", true);
        std::ofstream(place) << "saved";
        EXPECT_TRUE(std::filesystem::exists(place));
    }
    EXPECT_FALSE(std::filesystem::exists(place.parent_path()));
}

TEST(ScratchFiles, NoNameLeadsOutOfTheFolder) {
    const ScratchFiles files("");
    const std::filesystem::path folder = files.Place("a", true).parent_path();
    EXPECT_EQ(files.Place("/etc/passwd", true), folder / "passwd");
    EXPECT_EQ(files.Place("../../x.sav", true), folder / "x.sav");
}

TEST(ScratchFiles, ReadsWhatTheTestWrote) {
    const ScratchFiles files("/somewhere");
    const std::filesystem::path written = files.Place("game.sav", true);
    std::ofstream(written) << "saved";
    EXPECT_EQ(files.Place("game.sav", false), written);
}

TEST(ScratchFiles, ReadsWhatLiesBesideTheScript) {
    const test::TempFolder scripts;
    const ScratchFiles files(scripts.Path());
    EXPECT_EQ(files.Place("old.sav", false), scripts / "old.sav");
    EXPECT_EQ(files.Place("../old.sav", false), scripts / "old.sav");
}

}  // namespace
}  // namespace fabula::terminal
