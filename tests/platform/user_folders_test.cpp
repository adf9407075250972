#include "platform/user_folders.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace fabula::platform {
namespace {

using std::filesystem::path;
using testing::ElementsAre;

void Touch(const path& file) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "x";
}

TEST(ProgramDataFolders, BeginBesideTheProgramAndEndWithTheUsers) {
    const Environment environment{"/home/ann", "/opt/share:/usr/share", "/home/ann/data", ""};
    EXPECT_THAT(ProgramDataFolders("/opt/fabula/bin/FabulaIDE", environment),
                ElementsAre("/opt/fabula/bin", "/opt/fabula/share/fabula", "/opt/share/fabula",
                            "/usr/share/fabula", "/home/ann/data/Fabula"));
}

TEST(ProgramDataFolders, AreTheUsualOnesWhereTheEnvironmentSaysNothing) {
    const Environment environment{"/home/ann", "", "", ""};
    EXPECT_THAT(ProgramDataFolders("/usr/bin/FabulaIDE", environment),
                ElementsAre("/usr/bin", "/usr/share/fabula", "/usr/local/share/fabula", "/usr/share/fabula",
                            "/home/ann/.local/share/Fabula"));
}

TEST(ProgramDataFolders, LeaveOutRelativeAndEmptyFoldersOfTheEnvironment) {
    const Environment environment{"", "here::/usr/share:", "data", ""};
    EXPECT_THAT(ProgramDataFolders("/usr/bin/FabulaIDE", environment),
                ElementsAre("/usr/bin", "/usr/share/fabula", "/usr/share/fabula"));
}

TEST(UserStateFolder, LiesWhereTheEnvironmentSaysOrBelowTheHome) {
    EXPECT_EQ(UserStateFolder({"/home/ann", "", "", "/var/ann"}), "/var/ann/Fabula");
    EXPECT_EQ(UserStateFolder({"/home/ann", "", "", ""}), "/home/ann/.local/state/Fabula");
    EXPECT_EQ(UserStateFolder({"", "", "", "state"}), path());
}

TEST(FindFile, TakesTheFirstFolderThatHoldsIt) {
    const test::TempFolder folder;
    Touch(folder / "two" / "help" / "contents.html");
    Touch(folder / "three" / "help" / "contents.html");
    EXPECT_EQ(FindFile({folder / "one", folder / "two", folder / "three"}, "help/contents.html"),
              folder / "two" / "help" / "contents.html");
}

TEST(FindFile, TakesNoFolderForAFile) {
    const test::TempFolder folder;
    std::filesystem::create_directories(folder / "Fabula.ini");
    EXPECT_EQ(FindFile({folder.Path()}, "Fabula.ini"), std::nullopt);
}

TEST(RunningProgram, IsAFileThatExists) {
    EXPECT_TRUE(std::filesystem::is_regular_file(RunningProgram()));
}

}  // namespace
}  // namespace fabula::platform
