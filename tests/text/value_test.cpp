#include "text/value.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

TEST(ToText, NullAndBytesGiveTheEmptyText) {
    EXPECT_EQ(ToText(Value{}), "");
    EXPECT_EQ(ToText(Value{Blob{std::byte{65}}}), "");
}

TEST(ToText, NumbersArePlainDecimalWithAPoint) {
    EXPECT_EQ(ToText(Value{std::int64_t{-12}}), "-12");
    EXPECT_EQ(ToText(Value{2.5}), "2.5");
}

}  // namespace
}  // namespace fabula::text
