#include "store/game_path.h"

#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace fabula::store {
namespace {

namespace fs = std::filesystem;
using Fault = GamePath::Fault;

/// A game's folder with pictures/Beach.bmp in it, and a file beside the folder.
class GameFiles : public testing::Test {
  protected:
    GameFiles() : game_(folder_ / "game") {
        fs::create_directories(game_ / "pictures");
        std::ofstream(game_ / "pictures" / "Beach.bmp") << "BM";
        std::ofstream(folder_ / "secret.bmp") << "BM";
    }

    Fault FaultOf(std::string_view stored) const { return FindGameFile(game_, stored).fault; }

    test::TempFolder folder_;
    fs::path game_;
};

TEST_F(GameFiles, PathBelowTheFolderIsFound) {
    const GamePath found = FindGameFile(game_, "pictures/Beach.bmp");
    EXPECT_EQ(found.fault, Fault::None);
    EXPECT_EQ(found.file, fs::canonical(game_) / "pictures" / "Beach.bmp");
}

TEST_F(GameFiles, FoldersMayBePartedByBackslashes) {
    EXPECT_EQ(FaultOf("pictures\\Beach.bmp"), Fault::None);
}

TEST_F(GameFiles, NamesMayDifferInCase) {
    EXPECT_EQ(FaultOf("PICTURES\\BEACH.BMP"), Fault::None);
}

TEST_F(GameFiles, PathThatClimbsAndComesBackIsFound) {
    EXPECT_EQ(FaultOf("pictures/../pictures/Beach.bmp"), Fault::None);
}

TEST_F(GameFiles, PathThatClimbsOutIsRefused) {
    EXPECT_EQ(FaultOf("../secret.bmp"), Fault::Outside);
    EXPECT_EQ(FaultOf("pictures/../../secret.bmp"), Fault::Outside);
    EXPECT_EQ(FaultOf("..\\secret.bmp"), Fault::Outside);
}

TEST_F(GameFiles, AbsolutePathIsRefusedEvenIntoTheFolder) {
    EXPECT_EQ(FaultOf((game_ / "pictures" / "Beach.bmp").string()), Fault::Outside);
    EXPECT_EQ(FaultOf("\\pictures\\Beach.bmp"), Fault::Outside);
}

TEST_F(GameFiles, PathWithADriveIsRefused) {
    EXPECT_EQ(FaultOf("C:\\pictures\\Beach.bmp"), Fault::Outside);
    EXPECT_EQ(FaultOf("c:Beach.bmp"), Fault::Outside);
}

TEST_F(GameFiles, PathWithANulIsRefused) {
    EXPECT_EQ(FaultOf(std::string_view("pictures/Beach.bmp\0.png", 23)), Fault::Outside);
}

TEST_F(GameFiles, LinkThatLeadsOutIsRefused) {
    fs::create_symlink(folder_ / "secret.bmp", game_ / "link.bmp");
    fs::create_directory_symlink(folder_.Path(), game_ / "up");
    EXPECT_EQ(FaultOf("link.bmp"), Fault::Outside);
    EXPECT_EQ(FaultOf("up/secret.bmp"), Fault::Outside);
}

TEST_F(GameFiles, LinkThatStaysInsideIsFollowed) {
    fs::create_symlink(game_ / "pictures" / "Beach.bmp", game_ / "link.bmp");
    EXPECT_EQ(FaultOf("link.bmp"), Fault::None);
}

TEST_F(GameFiles, FolderWithTheSameBeginningIsOutside) {
    fs::create_directories(folder_ / "game2");
    std::ofstream(folder_ / "game2" / "a.bmp") << "BM";
    fs::create_directory_symlink(folder_ / "game2", game_ / "near");
    EXPECT_EQ(FaultOf("near/a.bmp"), Fault::Outside);
}

TEST_F(GameFiles, FileThatIsNotThereIsMissing) {
    EXPECT_EQ(FaultOf("pictures/Moor.bmp"), Fault::Missing);
    EXPECT_EQ(FaultOf("pictures/Beach.bmp/x"), Fault::Missing);
}

TEST_F(GameFiles, WhatIsNoOrdinaryFileIsMissing) {
    ASSERT_EQ(mkfifo((game_ / "pipe.bmp").c_str(), 0600), 0);
    EXPECT_EQ(FaultOf("pipe.bmp"), Fault::Missing);
    EXPECT_EQ(FaultOf("pictures"), Fault::Missing);
    EXPECT_EQ(FaultOf("."), Fault::Missing);
}

TEST_F(GameFiles, AreNamedFromTheGamesFolder) {
    EXPECT_EQ(PathInGame(game_, game_ / "pictures" / "Beach.bmp"), "pictures/Beach.bmp");
    EXPECT_EQ(PathInGame(game_, game_ / "pictures" / ".." / "Moor.bmp"), "Moor.bmp");
}

TEST_F(GameFiles, OfOtherFoldersHaveNoNameInTheGame) {
    EXPECT_EQ(PathInGame(game_, folder_ / "secret.bmp"), std::nullopt);
    EXPECT_EQ(PathInGame(game_, game_ / ".." / "secret.bmp"), std::nullopt);
    EXPECT_EQ(PathInGame(game_, folder_ / "game2" / "a.bmp"), std::nullopt);
}

TEST_F(GameFiles, BehindALinkThatLeadsOutHaveNoNameInTheGame) {
    fs::create_symlink(folder_ / "secret.bmp", game_ / "link.bmp");
    fs::create_symlink(folder_ / "none.bmp", game_ / "broken.bmp");
    fs::create_directory_symlink(folder_.Path(), game_ / "up");
    EXPECT_EQ(PathInGame(game_, game_ / "link.bmp"), std::nullopt);
    EXPECT_EQ(PathInGame(game_, game_ / "broken.bmp"), std::nullopt);
    EXPECT_EQ(PathInGame(game_, game_ / "up" / "new.bmp"), std::nullopt);
}

TEST_F(GameFiles, BehindALinkIntoTheGameAreNamedByTheirOwnPlace) {
    fs::create_directory_symlink(game_ / "pictures", folder_ / "shortcut");
    EXPECT_EQ(PathInGame(game_, folder_ / "shortcut" / "Beach.bmp"), "pictures/Beach.bmp");
}

}  // namespace
}  // namespace fabula::store
