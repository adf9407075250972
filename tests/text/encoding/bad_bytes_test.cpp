#include "text/encoding/bad_bytes.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

TEST(WithoutBadBytes, LeavesUtf8AsItIs) {
    EXPECT_EQ(WithoutBadBytes("Caf\u00E9 \u2014 1"), "Caf\u00E9 \u2014 1");
}

TEST(WithoutBadBytes, PutsTheReplacementCharacterInPlaceOfEachByteThatIsNone) {
    EXPECT_EQ(WithoutBadBytes("caf\xE9s \xC3"), "caf\uFFFDs \uFFFD");
}

}  // namespace
}  // namespace fabula::text
