#include "interchange/shared/target_file.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace fabula::interchange {
namespace {

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::ptrdiff_t FilesIn(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder),
                         std::filesystem::directory_iterator());
}

TEST(TargetFile, WritesLinesInWindows1252) {
    const test::TempFolder folder;
    TargetFile file(folder / "out.ext");
    file.WriteLine("café");
    file.WriteLine("");
    file.Finish();
    EXPECT_EQ(BytesOf(folder / "out.ext"), "caf\xE9\r\n\r\n");
    EXPECT_EQ(FilesIn(folder.Path()), 1);
}

TEST(TargetFile, NamesACharacterThatCannotBeWritten) {
    const test::TempFolder folder;
    TargetFile file(folder / "out.ext");
    EXPECT_EQ(file.WriteLine("ok"), std::nullopt);
    EXPECT_EQ(file.WriteLine("a 中 b"), "U+4E2D");
}

TEST(TargetFile, NothingIsLeftOfAFileThatWasNotFinished) {
    const test::TempFolder folder;
    std::ofstream(folder / "out.ext") << "before";
    {
        TargetFile file(folder / "out.ext");
        file.WriteLine("half");
    }
    EXPECT_EQ(BytesOf(folder / "out.ext"), "before");
    EXPECT_EQ(FilesIn(folder.Path()), 1);
}

TEST(TargetFile, AMissingFolderIsAnError) {
    TargetFile file("/no/such/folder/out.ext");
    EXPECT_THROW(file.Finish(), Error);
}

}  // namespace
}  // namespace fabula::interchange
