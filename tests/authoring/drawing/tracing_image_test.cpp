#include "authoring/drawing/tracing_image.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

const std::filesystem::path kGame = "/games/cellar.fbd";

TEST(TracingImage, IsRememberedByAdventureAndPicture) {
    platform::MemorySettings settings;
    const TracingImage photo{"/photos/a|b.png", 30, -5, 7, 300};
    KeepTracing(settings, kGame, 12, photo);
    EXPECT_EQ(FindTracing(settings, kGame, 12), photo);
    EXPECT_FALSE(FindTracing(settings, kGame, 13));
    EXPECT_FALSE(FindTracing(settings, "/games/other.fbd", 12));
}

TEST(TracingImage, CanBeForgotten) {
    platform::MemorySettings settings;
    KeepTracing(settings, kGame, 12, TracingImage{"/photos/a.png"});
    KeepTracing(settings, kGame, 12, std::nullopt);
    EXPECT_FALSE(FindTracing(settings, kGame, 12));
}

}  // namespace
}  // namespace fabula::authoring
