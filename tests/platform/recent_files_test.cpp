#include "platform/recent_files.h"

#include <string>

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

using Files = std::vector<std::filesystem::path>;

TEST(RecentFiles, TheLatestStandsFirstAndOnce) {
    RecentFiles recent({"a.fbd", "b.fbd", "c.fbd"});
    recent.AddMRUItem("c.fbd");
    EXPECT_EQ(recent.Files(), (Files{"c.fbd", "a.fbd", "b.fbd"}));
}

TEST(RecentFiles, KeepsEight) {
    RecentFiles recent;
    for (int i = 1; i <= 9; ++i)
        recent.AddMRUItem(std::to_string(i));
    EXPECT_EQ(recent.Files(), (Files{"9", "8", "7", "6", "5", "4", "3", "2"}));
}

}  // namespace
}  // namespace fabula::platform
