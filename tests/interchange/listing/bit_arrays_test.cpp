#include "interchange/listing/bit_arrays.h"

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

TEST(BitArray, HoldsTheCharactersOfTheLargestArrayAndPassesOverWhatFollows) {
    BitArray array;
    for (int character = 0; character < 300; ++character)
        array.TakeLine("0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80,");
    EXPECT_EQ(array.Characters(1000).size(), 256U);
    EXPECT_EQ(array.Characters(1000).back(), "128 64 32 16 8 4 2 1");
}

}  // namespace
}  // namespace fabula::interchange
