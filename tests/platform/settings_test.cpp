#include "platform/settings.h"

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

TEST(MemorySettings, GiveWhatWasSet) {
    MemorySettings settings;
    settings.Set("Startup", "File", "/games/a.fbd");
    settings.Set("Startup", "File", "/games/b.fbd");
    EXPECT_EQ(settings.Get("Startup", "File"), "/games/b.fbd");
    EXPECT_EQ(settings.Get("MRUFiles", "File"), "");
    EXPECT_EQ(settings.Get("Startup", "CurrentSet", "5"), "5");
}

TEST(MemorySettings, ForgetAWholeSection) {
    MemorySettings settings;
    settings.Set("MRUFiles", "1", "/games/a.fbd");
    settings.Set("Startup", "File", "/games/a.fbd");
    settings.Clear("MRUFiles");
    EXPECT_EQ(settings.Get("MRUFiles", "1", "none"), "none");
    EXPECT_EQ(settings.Get("Startup", "File"), "/games/a.fbd");
}

}  // namespace
}  // namespace fabula::platform
