#include <gtest/gtest.h>

#include "support/game_builder.h"

namespace fabula::test {
namespace {

TEST(At, HoldsWhereThePlayerIs) {
    EXPECT_TRUE(GameBuilder().Setting("startloc", 1).Holds("AT 1"));
}

TEST(At, FailsElsewhere) {
    EXPECT_FALSE(GameBuilder().Setting("startloc", 1).Holds("AT 2"));
}

}  // namespace
}  // namespace fabula::test
