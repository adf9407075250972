#include "authoring/files/version_numbers.h"

#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;
using store::TableNum;

constexpr platform::DateTime kToday{2026, 3, 9, 10, 30, 0};

std::string SystemField(store::Adventure& adventure, const char* field) {
    return std::string(adventure.OpenTable(TableNum::System, "def").Text(field));
}

TEST(NoteVersion, OfANewFileChangesFromSpace) {
    const test::OpenedAdventure adventure;
    EXPECT_EQ(NoteVersion(*adventure, Program::Ide, "0.1.0"), "IDEVersion changed from space to 0.1.0");
    EXPECT_EQ(SystemField(*adventure, "ideversion"), "0.1.0");
    EXPECT_EQ(SystemField(*adventure, "engversion"), " ");
}

TEST(NoteVersion, TellsTheOldAndTheNewOne) {
    const test::OpenedAdventure adventure;
    NoteVersion(*adventure, Program::Engine, "0.1.0");
    EXPECT_EQ(NoteVersion(*adventure, Program::Engine, "0.2.0"), "EngVersion changed from 0.1.0 to 0.2.0");
    EXPECT_EQ(SystemField(*adventure, "engversion"), "0.2.0");
}

TEST(NoteVersion, OfTheSameVersionTellsNothing) {
    const test::OpenedAdventure adventure;
    NoteVersion(*adventure, Program::Ide, "0.1.0");
    EXPECT_EQ(NoteVersion(*adventure, Program::Ide, "0.1.0"), "");
}

TEST(NoteVersion, LeavesAFileWhoseTablesDoNotKnowTheFieldAsItIs) {
    const test::OpenedAdventure adventure;
    adventure->DeleteFrom(TableNum::Tables, "tablenum=30 and fieldname='engversion'");
    EXPECT_EQ(NoteVersion(*adventure, Program::Ide, "0.1.0"), "");
    EXPECT_EQ(SystemField(*adventure, "ideversion"), " ");
}

class ListVersionTest : public testing::Test {
  protected:
    std::string List(std::string_view version) const {
        return ListVersion({folder_ / "installed", folder_ / "users"}, Program::Ide, version, kToday);
    }
    path Installed() const { return folder_ / "installed" / "VersionNumbers.dat"; }
    path Users() const { return folder_ / "users" / "VersionNumbers.dat"; }
    static void Write(const path& file, const std::string& content) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << content;
    }
    static std::string Read(const path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    test::TempFolder folder_;
};

TEST_F(ListVersionTest, AddsALineOfNameVersionAndDate) {
    EXPECT_EQ(List("0.1.0"), "Version 0.1.0 added to VersionNumbers.dat.");
    EXPECT_EQ(Read(Installed()), "FabulaIDE 0.1.0 2026-03-09\n");
    EXPECT_FALSE(std::filesystem::exists(Users()));
}

TEST_F(ListVersionTest, AddsAVersionOnce) {
    List("0.1.0");
    EXPECT_EQ(List("0.1.0"), "");
    EXPECT_EQ(Read(Installed()), "FabulaIDE 0.1.0 2026-03-09\n");
}

TEST_F(ListVersionTest, VersionsOfTheOtherProgramDoNotCount) {
    Write(Installed(), "FabulaEngine 0.1.0 2026-01-01\n");
    EXPECT_EQ(List("0.1.0"), "Version 0.1.0 added to VersionNumbers.dat.");
    EXPECT_EQ(Read(Installed()), "FabulaEngine 0.1.0 2026-01-01\nFabulaIDE 0.1.0 2026-03-09\n");
}

TEST_F(ListVersionTest, GoesToTheUsersFolderWhereTheOtherCannotBeWritten) {
    Write(folder_ / "installed", "a file where the folder should be");
    EXPECT_EQ(List("0.1.0"), "Version 0.1.0 added to VersionNumbers.dat.");
    EXPECT_EQ(Read(Users()), "FabulaIDE 0.1.0 2026-03-09\n");
    EXPECT_EQ(List("0.1.0"), "");
}

TEST_F(ListVersionTest, TellsWhenNoFolderCanBeWritten) {
    Write(folder_ / "installed", "");
    Write(folder_ / "users", "");
    EXPECT_EQ(List("0.1.0"),
              "Could not add version 0.1.0 to VersionNumbers.dat: no folder for it can be written.");
}

TEST_F(ListVersionTest, LeavesOtherLinesAlone) {
    Write(Installed(), "nonsense\n\xFF\xFE\nFabulaIDE\nFabulaIDE 0.0.9 2025-01-01");
    EXPECT_EQ(List("0.1.0"), "Version 0.1.0 added to VersionNumbers.dat.");
    EXPECT_EQ(Read(Installed()),
              "nonsense\n\xFF\xFE\nFabulaIDE\nFabulaIDE 0.0.9 2025-01-01\nFabulaIDE 0.1.0 2026-03-09\n");
}

TEST_F(ListVersionTest, DoesNotWaitForAPipe) {
    std::filesystem::create_directories(Installed().parent_path());
    ASSERT_EQ(mkfifo(Installed().c_str(), 0600), 0);
    EXPECT_EQ(List("0.1.0"), "Version 0.1.0 added to VersionNumbers.dat.");
    EXPECT_EQ(Read(Users()), "FabulaIDE 0.1.0 2026-03-09\n");
}

TEST_F(ListVersionTest, LetsAHugeFileGrowNoFurther) {
    Write(Installed(), std::string(kLargestVersionFile, 'x'));
    EXPECT_EQ(List("0.1.0"), "Version 0.1.0 added to VersionNumbers.dat.");
    EXPECT_EQ(List("0.1.0"), "");
    EXPECT_EQ(std::filesystem::file_size(Installed()), kLargestVersionFile);
}

TEST(VersionReport, IsTheLinesAsSentences) {
    EXPECT_EQ(VersionReport({"IDEVersion changed from space to 0.1.0", "",
                             "Version 0.1.0 added to VersionNumbers.dat."}),
              "IDEVersion changed from space to 0.1.0. Version 0.1.0 added to VersionNumbers.dat.");
}

TEST(VersionReport, IsNothingWhenNothingChanged) {
    EXPECT_EQ(VersionReport({"", ""}), "");
}

}  // namespace
}  // namespace fabula::authoring
