#include <cstdlib>

#include <gtest/gtest.h>

#include "support/places.h"
#include "support/raw_database.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

class UpgradeVerb : public testing::Test {
  protected:
    UpgradeVerb() {
        setenv("XDG_STATE_HOME", (folder_ / "state").c_str(), 1);
        Run({"new", file_.string()});
    }

    ProgramResult Run(const std::vector<std::string>& arguments) {
        return RunProgram(Program(), arguments);
    }
    void MakeOld() const {
        RawDatabase(file_).Run(
            "ALTER TABLE Adventure DROP COLUMN source; DELETE FROM Tables WHERE fieldname='source'");
    }

    TempFolder folder_;
    const std::filesystem::path file_ = folder_ / "game.fbd";
};

TEST_F(UpgradeVerb, ChecksAPresentFileWithoutAWord) {
    const ProgramResult result = Run({"upgrade", file_.string(), "--check"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
}

TEST_F(UpgradeVerb, SaysWhatAnOldFileNeedsAndChangesNothing) {
    MakeOld();
    const std::string before = ReadBytes(file_);
    const ProgramResult result = Run({"upgrade", file_.string(), "--check"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "46 - Add of Source to Adventure table\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(ReadBytes(file_) == before);
}

TEST_F(UpgradeVerb, DoesItOnce) {
    MakeOld();
    const ProgramResult first = Run({"upgrade", file_.string()});
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.errors, "46 - Add of Source to Adventure table\n");
    const ProgramResult second = Run({"upgrade", file_.string()});
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.errors, "");
    EXPECT_EQ(Run({"upgrade", file_.string(), "--check"}).status, 0);
}

TEST_F(UpgradeVerb, WithoutABackupCopyDoesNothing) {
    MakeOld();
    const std::string before = ReadBytes(file_);
    setenv("XDG_STATE_HOME", "/dev/full", 1);
    const ProgramResult result = Run({"upgrade", file_.string()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.find("46 - "), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("Could not make a backup copy of " + file_.string()), std::string::npos)
        << result.errors;
    EXPECT_TRUE(ReadBytes(file_) == before);
}

TEST_F(UpgradeVerb, WithoutAFolderForBackupCopiesDoesNothingAndSaysWhy) {
    MakeOld();
    const std::string before = ReadBytes(file_);
    const std::string home = std::getenv("HOME") == nullptr ? "" : std::getenv("HOME");
    unsetenv("XDG_STATE_HOME");
    unsetenv("HOME");
    const ProgramResult result = Run({"upgrade", file_.string()});
    setenv("HOME", home.c_str(), 1);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("neither HOME nor XDG_STATE_HOME names a folder for it."),
              std::string::npos)
        << result.errors;
    EXPECT_TRUE(ReadBytes(file_) == before);
}

TEST_F(UpgradeVerb, OtherVerbsReadAnUpgradedCopy) {
    MakeOld();
    const std::string before = ReadBytes(file_);
    const ProgramResult result = Run({"dump", file_.string(), "adventure", "--fields", "advname, source"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "{\"advname\":\"New Adventure\",\"source\":\"Unknown\"}\n");
    EXPECT_EQ(
        result.errors,
        "game.fbd was made by an older version of Fabula; an upgraded copy in memory is used, and the "
        "file stays as it is.\n");
    EXPECT_TRUE(ReadBytes(file_) == before);
}

}  // namespace
}  // namespace fabula::test
