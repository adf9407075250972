#include "platform/whole_file.h"

#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace fabula::platform {
namespace {

class WholeFile : public testing::Test {
  protected:
    std::string ErrorOf(const std::filesystem::path& file, std::uintmax_t most = 100) {
        try {
            ReadWholeFile(file, most, "read the notes");
        } catch (const Error& error) {
            return error.what();
        }
        return "it was read";
    }

    test::TempFolder folder_;
    const std::filesystem::path file_ = folder_ / "notes.txt";
};

TEST_F(WholeFile, IsReadWithEveryByte) {
    const std::string bytes("a\0\r\n\xFF", 5);
    std::ofstream(file_, std::ios::binary) << bytes;
    EXPECT_EQ(ReadWholeFile(file_, 5, "read"), bytes);
    EXPECT_EQ(ReadStartOfFile(file_, 2, "read"), bytes.substr(0, 2));
}

TEST_F(WholeFile, OfManyPiecesIsReadWhole) {
    std::ofstream(file_, std::ios::binary) << std::string(200'000, 'x') << "end";
    EXPECT_EQ(ReadWholeFile(file_, 1'000'000, "read"), std::string(200'000, 'x') + "end");
}

TEST_F(WholeFile, MayBeReachedByALink) {
    std::ofstream(file_) << "text";
    std::filesystem::create_symlink(file_, folder_ / "link");
    EXPECT_EQ(ReadWholeFile(folder_ / "link", 10, "read"), "text");
}

TEST_F(WholeFile, OneByteTooManyIsRefused) {
    std::ofstream(file_) << "12345";
    EXPECT_EQ(ErrorOf(file_, 5), "it was read");
    EXPECT_EQ(ErrorOf(file_, 4), "Could not read the notes: it is too large.");
}

TEST_F(WholeFile, WhatIsNotThereIsToldSo) {
    EXPECT_EQ(ErrorOf(file_), "Could not read the notes: there is no such file.");
}

TEST_F(WholeFile, APipeADeviceAndAFolderAreRefusedWithoutAWait) {
    ASSERT_EQ(mkfifo(file_.c_str(), 0600), 0);
    for (const std::filesystem::path& path : {file_, std::filesystem::path("/dev/zero"), folder_.Path()}) {
        EXPECT_EQ(ErrorOf(path), "Could not read the notes: it is no file.") << path;
        EXPECT_THROW(CheckIsFile(path, "read the notes"), Error);
    }
}

}  // namespace
}  // namespace fabula::platform
