#include "condacts/language/held_numbers.h"

#include <set>

#include <gtest/gtest.h>

namespace fabula::condacts {
namespace {

TEST(FindHeldNumber, TellsWhatTheFlagsOfTheEngineName) {
    EXPECT_EQ(FindHeldNumber(FlagNumber(38))->kind, ParamKind::Location);
    EXPECT_EQ(FindHeldNumber(FlagNumber(42))->kind, ParamKind::SystemMessage);
    EXPECT_EQ(FindHeldNumber(FlagNumber(51))->kind, ParamKind::Object);
    EXPECT_EQ(FindHeldNumber(FlagNumber(35))->kind, ParamKind::Word);
    EXPECT_EQ(FindHeldNumber(FlagNumber(35))->wordType, kAdjective);
}

TEST(FindHeldNumber, KnowsTheseFlagsAndNoOthers) {
    std::set<int> known;
    for (int flag = 0; flag <= 1024; ++flag) {
        if (FindHeldNumber(FlagNumber(flag)) != nullptr) known.insert(flag);
    }
    EXPECT_EQ(known, (std::set<int>{33, 34, 35, 36, 38,   42,   43,   44,   45,   46,
                                    47, 50, 51, 54, 1006, 1007, 1008, 1009, 1010, 1011}));
}

TEST(TakesNumberOfFlag, TellsTheSameFromBorders) {
    for (const char* name : {"EQ", "NOTEQ", "LET"})
        EXPECT_EQ(TakesNumberOfFlag(name), TakesNumber::AsTheSame) << name;
    for (const char* name : {"GT", "LT"})
        EXPECT_EQ(TakesNumberOfFlag(name), TakesNumber::AsABorder) << name;
    for (const char* name : {"PLUS", "MINUS", "SAME", "AT"})
        EXPECT_EQ(TakesNumberOfFlag(name), TakesNumber::No) << name;
}

}  // namespace
}  // namespace fabula::condacts
