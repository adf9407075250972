// What keeps a write that fails from taking away the file that was there before.

#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/error.h"
#include "store/file/file_copy.h"
#include "support/child_process.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"

namespace {

/// What was flushed, in order: "d" for a folder, "f" for a file.
std::string flushed;

}  // namespace

/// In place of the C library's, to know what was flushed: nothing else tells before the machine loses its
/// power.
extern "C" int fsync(int handle) {
    struct stat status = {};
    if (fstat(handle, &status) == 0) flushed += S_ISDIR(status.st_mode) ? 'd' : 'f';
    return static_cast<int>(syscall(SYS_fsync, handle));
}

namespace fabula::store {
namespace {

TEST(WriteFile, ThatCannotWriteToTheEndReplacesNothing) {
    const test::TempFolder folder;
    const auto file = folder / "game.sav";
    test::WriteBytes(file, "a good save");
    const int refused = test::RunInChild([&file] {
        test::LimitFileSize(4096);
        try {
            WriteFile(file, std::string(100'000, 'x'));
        } catch (const Error& error) {
            return error.what() == "Could not write " + file.string() + ": File too large." ? 1 : 2;
        }
        return 0;
    });
    EXPECT_EQ(refused, 1);
    EXPECT_EQ(test::ReadBytes(file), "a good save");
}

TEST(WriteFile, WaitsUntilTheDiskHasTheBytesAndThenUntilTheFolderHasTheNewName) {
    const test::TempFolder folder;
    flushed.clear();
    WriteFile(folder / "game.sav", "text");
    EXPECT_EQ(flushed, "fd");
}

}  // namespace
}  // namespace fabula::store
