#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/places.h"
#include "support/raw_database.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Packaging : public testing::Test {
  protected:
    Packaging() { Run({"new", Game()}); }

    std::string Path(const char* name) const { return (folder_ / name).string(); }
    std::string Game() const { return Path("game.fbd"); }
    ProgramResult Run(const std::vector<std::string>& arguments) {
        return RunProgram(Program(), arguments);
    }
    void Write(const char* name, const std::string& text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    TempFolder folder_;
};

TEST_F(Packaging, TheOptionVersionIsThatOfTheVerb) {
    const ProgramResult result = Run({"package", Game(), "--version", "7.3", Path("game.zip")});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(ReadBytes(folder_ / "New Adventure.ReadMe"), HasSubstr("\"New Adventure\" Version 7.3."));
    EXPECT_THAT(Run({"--version"}).output, StartsWith("fabula "));
}

TEST_F(Packaging, NeedsAVersion) {
    EXPECT_EQ(Run({"package", Game(), Path("game.zip")}).status, 2);
    EXPECT_EQ(Run({"package", Game(), "--version", " ", Path("game.zip")}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "game.zip"));
}

TEST_F(Packaging, LeavesTheAdventureAsItIsAndMakesTheSameZipTwice) {
    Write("map.txt", "a map");
    const std::string before = ReadBytes(Game());
    for (const char* zip : {"1.zip", "2.zip"}) {
        EXPECT_EQ(Run({"package", Game(), "--version", "1", "--file", "map.txt", "--readme-text", "Mind.",
                       Path(zip)})
                      .status,
                  0);
    }
    EXPECT_TRUE(ReadBytes(Game()) == before);
    EXPECT_TRUE(ReadBytes(folder_ / "1.zip") == ReadBytes(folder_ / "2.zip"));
    EXPECT_THAT(ReadBytes(folder_ / "New Adventure.ReadMe"), HasSubstr("Mind.\r\n"));
}

TEST_F(Packaging, AsksBeforeAZipIsReplacedAndRefusesAFileOfElsewhere) {
    Write("game.zip", "old");
    EXPECT_EQ(Run({"package", Game(), "--version", "1", Path("game.zip")}).status, 1);
    EXPECT_EQ(ReadBytes(folder_ / "game.zip"), "old");
    EXPECT_EQ(Run({"package", Game(), "--version", "1", "--force", Path("game.zip")}).status, 0);
    const ProgramResult result =
        Run({"package", Game(), "--version", "1", "--file", "/etc/hostname", Path("other.zip")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("The File must be at or below the directory of the game"));
}

TEST_F(Packaging, TellsATitleWithoutWhatATerminalWouldObey) {
    RawDatabase(Game()).Run("UPDATE Adventure SET advname='La' || char(27, 7) || 'mp'");
    const ProgramResult result = Run({"package", Game(), "--version", "1", Path("game.zip")});
    EXPECT_THAT(result.errors, HasSubstr("La\uFFFD\uFFFDmp has been ZIPped into "));
}

TEST_F(Packaging, WritesAZipToTheStandardOutput) {
    const ProgramResult result = Run({"package", Game(), "-", "--version", "1"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("PK"));
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(Packaging, OptionsOfABatchFileThatIsWrittenDoNotReadOne) {
    Write("game.fbb", "");
    EXPECT_EQ(Run({"batch", Game(), "--read", Path("game.fbb"), "--table", "Messages"}).status, 2);
    EXPECT_EQ(Run({"batch", Game(), "--read", Path("game.fbb"), "--processes", "1"}).status, 2);
}

TEST_F(Packaging, PrintsTheRecordOfAGame) {
    const ProgramResult result = Run({"ifiction", Game()});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ifindex "));
    EXPECT_THAT(result.output, HasSubstr("<title>New Adventure</title>"));
    const std::string bytes = ReadBytes(Game());
    const std::size_t mark = bytes.find("UUID://");
    ASSERT_NE(mark, std::string::npos);
    EXPECT_THAT(result.output, HasSubstr("<ifid>" + bytes.substr(mark + 7, 36) + "</ifid>"));
}

TEST_F(Packaging, WritesABatchFileAndReadsItBack) {
    EXPECT_EQ(Run({"batch", Game(), Path("all.fbb")}).status, 0);
    ProgramResult result = Run({"batch", Game(), "--read", Path("all.fbb")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "0 records changed.\n");
    Write("one.fbb", "/LOC\nLocation=0\nShort=Cellar\nENDRECORD\n/END\n");
    result = Run({"batch", Game(), "--read", Path("one.fbb")});
    EXPECT_EQ(result.errors, "1 record changed.\n");
    result = Run({"batch", Game(), "--table", "locations", "--records", "0", "-"});
    EXPECT_THAT(result.output, StartsWith("/LOC\nLocation=0\n"));
    EXPECT_THAT(result.output, HasSubstr("\nShort=Cellar\n"));
}

TEST_F(Packaging, TellsTheFaultsOfABatchFileWithFileAndLine) {
    Write("bad.fbb", "/LOC\nLocation=0\nShort=<none>\nENDRECORD\n/END\n");
    const ProgramResult result = Run({"batch", Game(), "--read", Path("bad.fbb")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, StartsWith(Path("bad.fbb") + ":3:1: fault: "));
    EXPECT_THAT(result.errors, HasSubstr("1 fault. Nothing was changed.\n"));
}

TEST_F(Packaging, ABatchFileIsWrittenOrReadAndTakesWhatMakesSense) {
    EXPECT_EQ(Run({"batch", Game()}).status, 2);
    EXPECT_EQ(Run({"batch", Game(), "x.fbb", "--read", "y.fbb"}).status, 2);
    EXPECT_EQ(Run({"batch", Game(), "-", "--table", "codes"}).status, 2);
    EXPECT_EQ(Run({"batch", Game(), "-", "--records", "1"}).status, 2);
    EXPECT_EQ(Run({"batch", Game(), "-", "--table", "messages", "--records", "3-1"}).status, 2);
    EXPECT_EQ(Run({"batch", Game(), "-", "--processes", "x"}).status, 2);
}

TEST_F(Packaging, ConvertsATravelTable) {
    Write("cave.dat", "3\n1\t2\t2\n-1\n4\n2\tROAD\n-1\n0\n");
    const ProgramResult result = Run({"travel", Game(), Path("cave.dat"), Path("Cave.lis")});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "1 rooms, 1 travel rows, 0 objects; 1 words added.\n");
    EXPECT_THAT(ReadBytes(folder_ / "Cave.lis"), HasSubstr("Room: 1\r\n"));
}

}  // namespace
}  // namespace fabula::test
