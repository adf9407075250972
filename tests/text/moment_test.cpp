#include "text/moment.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

constexpr platform::DateTime kNewYear{2027, 1, 2, 3, 4, 5};

TEST(Moment, IsWrittenWithALeadingZeroWhereANumberIsShort) {
    EXPECT_EQ(StoredMoment(kNewYear), "2027-01-02 03:04:05");
    EXPECT_EQ(StoredMoment({999, 12, 31, 23, 59, 59}), "0999-12-31 23:59:59");
}

TEST(Moment, IsReadAsItWasWritten) {
    EXPECT_EQ(ReadMoment("2027-01-02 03:04:05"), kNewYear);
}

TEST(Moment, OfAnotherFormIsNone) {
    for (const char* text : {"", "2027-01-02", "2027-1-2 03:04:05", "2027-01-02T03:04:05",
                             "2027-01-02 03:04:05 ", "2027-01-02 03:04:0x"}) {
        EXPECT_FALSE(IsMoment(text)) << text;
        EXPECT_EQ(ReadMoment(text), std::nullopt) << text;
    }
}

TEST(Moment, OfAMonthThatIsNoneHasTheFormAndIsNotRead) {
    EXPECT_TRUE(IsMoment("2027-13-02 03:04:05"));
    EXPECT_EQ(ReadMoment("2027-13-02 03:04:05"), std::nullopt);
    EXPECT_EQ(ReadMoment("2027-00-02 03:04:05"), std::nullopt);
}

}  // namespace
}  // namespace fabula::text
