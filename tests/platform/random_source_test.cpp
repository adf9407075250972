#include "platform/random_source.h"

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

TEST(SeededRandom, SameSeedDrawsTheSameNumbers) {
    SeededRandom first(42);
    SeededRandom second(42);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(first.UpTo(100), second.UpTo(100));
}

TEST(SeededRandom, DrawsEveryNumberFromOneToTheBoundAndNoOther) {
    SeededRandom random(1);
    int seen[7] = {};
    for (int i = 0; i < 1000; ++i) {
        const int drawn = random.UpTo(6);
        ASSERT_GE(drawn, 1);
        ASSERT_LE(drawn, 6);
        ++seen[drawn];
    }
    for (int face = 1; face <= 6; ++face)
        EXPECT_GT(seen[face], 0) << face;
}

TEST(SeededRandom, ABoundOfOneAlwaysDrawsOne) {
    SeededRandom random(7);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(random.UpTo(1), 1);
}

}  // namespace
}  // namespace fabula::platform
