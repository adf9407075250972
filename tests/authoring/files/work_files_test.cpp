#include "authoring/files/work_files.h"

#include <ctime>
#include <fstream>
#include <map>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "store/extensions.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;

class WorkFilesTest : public testing::Test {
  protected:
    /// A file that was last written so long before the clock's noon of 9 March 2026.
    path Make(const char* name, int days, int seconds = 0) const {
        path file = folder_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "x";
        std::tm written{};
        written.tm_year = 2026 - 1900;
        written.tm_mon = 2;
        written.tm_mday = 9 - days;
        written.tm_hour = 12;
        written.tm_sec = -seconds;
        written.tm_isdst = -1;
        const std::time_t time = mktime(&written);
        const timespec times[] = {{time, 0}, {time, 0}};
        utimensat(AT_FDCWD, file.c_str(), times, 0);
        return file;
    }
    int CleanUp() const { return DeleteOldWorkFiles(folder_.Path(), clock_); }

    test::TempFolder folder_;
    platform::FixedClock clock_{{2026, 3, 9, 12, 0, 0}};
};

TEST_F(WorkFilesTest, SavedGamesGoOnlyWhenOver60DaysOld) {
    const path older = Make("older.sav", 61);
    const path old = Make("old.sav", 60);
    EXPECT_EQ(CleanUp(), 1);
    EXPECT_FALSE(exists(older));
    EXPECT_TRUE(exists(old));
}

TEST_F(WorkFilesTest, OfTheFilesOfThisProgramOldTracesExportsSavedGamesAndScriptsGo) {
    namespace extension = store::extension;
    std::map<std::string_view, path> files;
    for (const std::string_view each : extension::kAll)
        files[each] = Make(std::string("game").append(each).c_str(), 1000);
    EXPECT_EQ(CleanUp(), 4);
    for (const std::string_view gone :
         {extension::kTrace, extension::kExport, extension::kSavedGame, extension::kScript})
        EXPECT_FALSE(exists(files.at(gone))) << gone;
}

TEST_F(WorkFilesTest, AgeIsCountedInWholeDays) {
    const path file = Make("a.log", 8, -1);
    EXPECT_EQ(CleanUp(), 0);
    clock_.Set({2026, 3, 9, 12, 0, 1});
    EXPECT_EQ(CleanUp(), 1);
    EXPECT_FALSE(exists(file));
}

TEST_F(WorkFilesTest, TemporaryFilesOfTodayStay) {
    const path today = Make("temp1.txt", 0, 80000);
    const path yesterday = Make("temp2.txt", 1);
    EXPECT_EQ(CleanUp(), 1);
    EXPECT_TRUE(exists(today));
    EXPECT_FALSE(exists(yesterday));
}

TEST_F(WorkFilesTest, EachPatternHasItsOwnAge) {
    for (const char* name : {"a.tmp", "!fc_dif", "fcreport.txt"})
        Make(name, 1);
    for (const char* name : {"b.log", "b.vel", "b.trc"})
        Make(name, 8);
    Make("c.csv", 11);
    Make("d.pex", 31);
    for (const char* name : {"e.db", "e.ext", "e.sav"})
        Make(name, 61);
    Make("f.scr", 91);
    EXPECT_EQ(CleanUp(), 12);
    for (const char* name : {"b.log", "b.vel", "b.trc"})
        Make(name, 7);
    Make("c.csv", 10);
    Make("d.pex", 30);
    for (const char* name : {"e.db", "e.ext", "e.sav"})
        Make(name, 60);
    Make("f.scr", 90);
    EXPECT_EQ(CleanUp(), 0);
}

TEST_F(WorkFilesTest, NamesFitWhateverTheirCaseAndTempWithOrWithoutAnExtension) {
    Make("TRC20260101.TRC", 30);
    Make("Temporary", 30);
    EXPECT_EQ(CleanUp(), 2);
}

TEST_F(WorkFilesTest, FilesThatNoPatternFitsStay) {
    Make("game.fbd", 1000);
    Make("mytemp.txt", 1000);
    Make("x!fc_dif", 1000);
    Make("a.trc.txt", 1000);
    EXPECT_EQ(CleanUp(), 0);
}

TEST_F(WorkFilesTest, FoldersAreNotEnteredAndNotDeleted) {
    const path inside = Make("backups/a.tmp", 1000);
    std::filesystem::create_directory(folder_ / "temp");
    EXPECT_EQ(CleanUp(), 0);
    EXPECT_TRUE(exists(inside));
}

TEST_F(WorkFilesTest, LinksStayAndWhatTheyNameToo) {
    const path file = Make("game.fbd", 1000);
    const path link = folder_ / "a.tmp";
    std::filesystem::create_symlink(file, link);
    EXPECT_EQ(CleanUp(), 0);
    EXPECT_TRUE(exists(file));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
}

TEST_F(WorkFilesTest, FilesOfTheFutureStay) {
    Make("a.tmp", -3);
    EXPECT_EQ(CleanUp(), 0);
}

TEST_F(WorkFilesTest, FolderThatDoesNotExistHasNothingToDelete) {
    EXPECT_EQ(DeleteOldWorkFiles(folder_ / "none", clock_), 0);
}

}  // namespace
}  // namespace fabula::authoring
