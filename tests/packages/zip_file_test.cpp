#include "packages/zip_file.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "support/child_process.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "zipped.h"

namespace fabula::packages {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(ZipErrorText, GivesTheTextOfEachCode) {
    EXPECT_EQ(ZipErrorText(2), "Zip Error code 2: Unexpected End Of Zip File Error");
    EXPECT_EQ(ZipErrorText(3), "Zip Error code 3: Zip File Structure Error");
    EXPECT_EQ(ZipErrorText(4), "Zip Error code 4: Out Of Memory Error");
    EXPECT_EQ(ZipErrorText(5), "Zip Error code 5: Internal Logic Error");
    EXPECT_EQ(ZipErrorText(6), "Zip Error code 6: Entry Too Large To Split Error");
    EXPECT_EQ(ZipErrorText(7), "Zip Error code 7: Invalid Comment Format Error");
    EXPECT_EQ(ZipErrorText(8), "Zip Error code 8: Invalid Comment Format Error");
    EXPECT_EQ(ZipErrorText(9), "Zip Error code 9: User Interrupted Or Termination Error");
    EXPECT_EQ(ZipErrorText(10), "Zip Error code 10: Error Using A Temp File");
    EXPECT_EQ(ZipErrorText(11), "Zip Error code 11: Read Or Seek Error");
    EXPECT_EQ(ZipErrorText(12), "Zip Error code 12: Nothing To Do Error");
    EXPECT_EQ(ZipErrorText(13), "Zip Error code 13: Missing Or Empty Zip File Error");
    EXPECT_EQ(ZipErrorText(14), "Zip Error code 14: Error Writing To A File");
    EXPECT_EQ(ZipErrorText(15), "Zip Error code 15: Could't Open To Write Error");
    EXPECT_EQ(ZipErrorText(16), "Zip Error code 16: Bad Command Line Argument Error");
    EXPECT_EQ(ZipErrorText(18), "Zip Error code 18: Could Not Open A Specified File To Read Error");
    EXPECT_EQ(ZipErrorText(17), "Zip Error code 17: ");
}

TEST(WriteZip, PacksFilesUnderTheirNames) {
    const test::TempFolder folder;
    WriteZip(folder / "game.zip",
             {{"game.fbd", "adventure"}, {"pictures/höhle.png", std::string(9999, 'p')}});
    EXPECT_THAT(
        Unzipped(folder / "game.zip"),
        ElementsAre(Pair("game.fbd", "adventure"), Pair("pictures/höhle.png", std::string(9999, 'p'))));
}

TEST(WriteZip, GivesTheSameBytesForTheSameFiles) {
    const test::TempFolder folder;
    const std::vector<PackedFile> files = {{"b", std::string(5000, 'x')}, {"a", "y", true}};
    WriteZip(folder / "1.zip", files);
    WriteZip(folder / "2.zip", files);
    EXPECT_TRUE(test::ReadBytes(folder / "1.zip") == test::ReadBytes(folder / "2.zip"));
}

TEST(WriteZip, WritesIntoAPipeAndLeavesItOne) {
    const test::TempFolder folder;
    const std::filesystem::path pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const pid_t writer = test::StartChild([&] {
        WriteZip(pipe, {{"a", "1"}});
        return 0;
    });
    const std::string zip = test::ReadBytes(pipe);
    int status = -1;
    waitpid(writer, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    WriteZip(folder / "file.zip", {{"a", "1"}});
    EXPECT_TRUE(zip == test::ReadBytes(folder / "file.zip"));
}

TEST(WriteZip, ReplacesAnOldZipOfMoreFiles) {
    const test::TempFolder folder;
    WriteZip(folder / "game.zip", {{"a", "1"}, {"b", "2"}});
    WriteZip(folder / "game.zip", {{"c", "3"}});
    EXPECT_THAT(Unzipped(folder / "game.zip"), ElementsAre(Pair("c", "3")));
}

TEST(WriteZip, OfNothingIsNothingToDo) {
    const test::TempFolder folder;
    try {
        WriteZip(folder / "game.zip", {});
        FAIL();
    } catch (const ZipFailure& failure) {
        EXPECT_EQ(failure.Code(), 12);
    }
}

TEST(WriteZip, LeavesTheOldZipWhenTheDiskIsFull) {
    const test::TempFolder folder;
    WriteZip(folder / "game.zip", {{"old", "as it was"}});
    const std::string before = test::ReadBytes(folder / "game.zip");
    std::string noise;
    for (unsigned n = 1; noise.size() < 200'000; n = n * 1664525U + 1013904223U)
        noise += static_cast<char>(n >> 24);
    const int code = test::RunInChild([&] {
        test::LimitFileSize(50'000);
        try {
            WriteZip(folder / "game.zip", {{"new", noise}});
        } catch (const ZipFailure& failure) {
            return failure.Code();
        }
        return 0;
    });
    EXPECT_EQ(code, 14);
    EXPECT_TRUE(test::ReadBytes(folder / "game.zip") == before);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

/// What a disk is full of that has room for `bytes` only: the code of the failure, or 0.
int CodeWithRoomFor(long bytes, const std::filesystem::path& file, const std::vector<PackedFile>& files) {
    return test::RunInChild([&] {
        test::LimitFileSize(bytes);
        try {
            WriteZip(file, files);
        } catch (const ZipFailure& failure) {
            return failure.Code();
        }
        return 0;
    });
}

TEST(WriteZip, ThatLacksTheLastByteOfItsRoomReplacesNothing) {
    const test::TempFolder folder;
    const std::vector<PackedFile> files = {{"a", "1"}, {"b", "2"}};
    WriteZip(folder / "whole.zip", files);
    const auto size = static_cast<long>(std::filesystem::file_size(folder / "whole.zip"));
    test::WriteBytes(folder / "game.zip", "as it was");
    EXPECT_EQ(CodeWithRoomFor(size - 1, folder / "game.zip", files), 14);
    EXPECT_EQ(CodeWithRoomFor(1, folder / "game.zip", files), 14);
    EXPECT_EQ(test::ReadBytes(folder / "game.zip"), "as it was");
    EXPECT_EQ(CodeWithRoomFor(size, folder / "game.zip", files), 0);
    EXPECT_TRUE(test::ReadBytes(folder / "game.zip") == test::ReadBytes(folder / "whole.zip"));
}

}  // namespace
}  // namespace fabula::packages
