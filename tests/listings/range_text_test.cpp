#include "listings/range_text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "listed_adventure.h"

namespace fabula::listings {
namespace {

using store::TableNum;
using RangeOf = std::vector<int>;

/// Tables 0 to 9 but 7 have an entry, and pictures 0, 2 and 5 exist.
class RangeText : public testing::Test {
  protected:
    RangeText() {
        Empty(*adventure_, TableNum::ProcessTables);
        for (const int table : {0, 1, 2, 3, 4, 5, 6, 8, 9}) {
            AddRecord(*adventure_, TableNum::ProcessTables,
                      {{"canum", std::int64_t{table + 1}}, {"estype", std::int64_t{table}}});
        }
        Empty(*adventure_, TableNum::Pictures);
        for (const int picture : {0, 2, 5})
            AddRecord(*adventure_, TableNum::Pictures, {{"locnum", std::int64_t{picture}}});
    }

    RangeOf Tables(const std::string& text) {
        const RangeCheck check = ValidateRange(text, TableNum::ProcessTables, *adventure_);
        EXPECT_EQ(check.fault, "");
        return check.numbers;
    }
    std::string FaultOf(const std::string& text, TableNum table = TableNum::ProcessTables) {
        return ValidateRange(text, table, *adventure_).fault;
    }

    test::OpenedAdventure adventure_;
};

TEST_F(RangeText, NumbersAndRangesAreListedInTheirOrder) {
    EXPECT_EQ(Tables("1,3-5,9"), (RangeOf{1, 3, 4, 5, 9}));
    EXPECT_EQ(Tables("9,1"), (RangeOf{9, 1}));
}

TEST_F(RangeText, OpenRangeReachesToTheHighestTable) {
    EXPECT_EQ(Tables("3-"), (RangeOf{3, 4, 5, 6, 8, 9}));
}

TEST_F(RangeText, AllIsEveryTableThatHasEntries) {
    EXPECT_EQ(Tables("ALL"), (RangeOf{0, 1, 2, 3, 4, 5, 6, 8, 9}));
    EXPECT_EQ(Tables("all"), (RangeOf{0, 1, 2, 3, 4, 5, 6, 8, 9}));
}

TEST_F(RangeText, BlanksDoNotCount) {
    EXPECT_EQ(Tables(" 1 , 3 - 4 "), (RangeOf{1, 3, 4}));
}

TEST_F(RangeText, TableWithoutEntriesIsLeftOut) {
    EXPECT_EQ(Tables("6-8"), (RangeOf{6, 8}));
    EXPECT_EQ(Tables("7"), RangeOf{});
}

TEST_F(RangeText, TableThatIsNamedTwiceIsListedOnce) {
    EXPECT_EQ(Tables("2,1-3"), (RangeOf{2, 1, 3}));
}

TEST_F(RangeText, EmptyTextIsRefused) {
    EXPECT_EQ(FaultOf(""), "No Process Tables specified to print");
}

TEST_F(RangeText, BeginningAboveTheEndIsRefused) {
    EXPECT_EQ(FaultOf("5-3"), "Beginning range > ending range in 5-3");
    EXPECT_EQ(FaultOf("10-"), "Beginning range > ending range in 10-");
}

TEST_F(RangeText, TwoDashesAreRefused) {
    EXPECT_EQ(FaultOf("1--4"), "too many dashes in a row");
}

TEST_F(RangeText, PeriodsColonsAndSemicolonsAreRefused) {
    for (const char* text : {"1.5", "1:5", "1;5"})
        EXPECT_EQ(FaultOf(text), "Periods, Colons, or SemiColons not allowed");
}

TEST_F(RangeText, WhatIsNoNumberIsRefused) {
    EXPECT_EQ(FaultOf("1,x2"), "x2 is not numeric");
    EXPECT_EQ(FaultOf("1-x"), "x is not numeric");
    EXPECT_EQ(FaultOf("x-1"), "x is not numeric");
    EXPECT_EQ(FaultOf("+1"), "+1 is not numeric");
}

TEST_F(RangeText, NumberBeyondTheTablesIsRefused) {
    EXPECT_EQ(FaultOf("10"), "10 is outside range of Process Tables");
    EXPECT_EQ(FaultOf("10-11"), "10 is outside range of Process Tables");
    EXPECT_EQ(FaultOf("9-11"), "11 is outside range of Process Tables");
    EXPECT_EQ(FaultOf("99999999999999999999"), "9223372036854775807 is outside range of Process Tables");
}

TEST_F(RangeText, SpecialListingTakesOneTable) {
    const std::string fault = "Cannot print more than one table when Special Listing is checked";
    EXPECT_EQ(ValidateRange("1,2", TableNum::ProcessTables, *adventure_, true).fault, fault);
    EXPECT_EQ(ValidateRange("1-2", TableNum::ProcessTables, *adventure_, true).fault, fault);
    EXPECT_EQ(ValidateRange("2", TableNum::ProcessTables, *adventure_, true).numbers, RangeOf{2});
}

TEST_F(RangeText, ExtraEntriesMayNotLeaveTheTable) {
    EXPECT_EQ(ValidateRange("195", TableNum::Flags, *adventure_).numbers, RangeOf{195});
    EXPECT_EQ(FaultOf("196", TableNum::Flags), "196 extra entries would take it out of the table");
    EXPECT_EQ(FaultOf("x", TableNum::Flags), "x is not numeric");
    EXPECT_EQ(ValidateRange("", TableNum::Flags, *adventure_).numbers, RangeOf{});
}

TEST_F(RangeText, TheLargestNumberOfExtraEntriesIsTooLarge) {
    EXPECT_EQ(FaultOf("9223372036854775807", TableNum::Flags),
              "9223372036854775807 extra entries would take it out of the table");
}

TEST_F(RangeText, ProcessDescriptionsAcceptAnyText) {
    EXPECT_EQ(FaultOf("1..5--x", TableNum::ProcDesc), "");
}

TEST_F(RangeText, PicturesAreListedByNumber) {
    EXPECT_EQ(ValidateRange("0-2,5", TableNum::Pictures, *adventure_).numbers, (RangeOf{0, 2, 5}));
    EXPECT_EQ(ValidateRange("1-", TableNum::Pictures, *adventure_).numbers, (RangeOf{2, 5}));
}

TEST_F(RangeText, PicturesHaveMessagesOfTheirOwn) {
    EXPECT_EQ(FaultOf("", TableNum::Pictures), "No records specified for Listing");
    EXPECT_EQ(FaultOf("ALL", TableNum::Pictures), "Sorry, you can't do all of them.");
    EXPECT_EQ(FaultOf("1.5", TableNum::Pictures), "Periods, Colons, or SemiColons not allowed");
    EXPECT_EQ(FaultOf("1--4", TableNum::Pictures), "Too many dashes in a row");
    EXPECT_EQ(FaultOf("6", TableNum::Pictures), "6 is outside range of Graphics Table");
    EXPECT_EQ(FaultOf("6-7", TableNum::Pictures), "6 is outside range of  Graphics table");
    EXPECT_EQ(FaultOf("5-7", TableNum::Pictures), "7 is outside range of Graphics Table");
    EXPECT_EQ(FaultOf("5-2", TableNum::Pictures), "Beginning range > ending range in 5-2");
}

TEST_F(RangeText, RangeInTheEmptyTableIsOutside) {
    Empty(*adventure_, TableNum::ProcessTables);
    EXPECT_EQ(FaultOf("0"), "0 is outside range of Process Tables");
    EXPECT_EQ(FaultOf("ALL"), "");
}

TEST_F(RangeText, WordsAreListedByType) {
    AddRecord(*adventure_, TableNum::Vocabulary,
              {{"vocindex", std::int64_t{9000}},
               {"vocnum", std::int64_t{20}},
               {"word", std::string("X")},
               {"voctypen", std::int64_t{2}}});
    EXPECT_EQ(ValidateRange("2", TableNum::Vocabulary, *adventure_).numbers, RangeOf{2});
    EXPECT_EQ(FaultOf("8", TableNum::Vocabulary), "8 is outside range of Word Types");
}

}  // namespace
}  // namespace fabula::listings
