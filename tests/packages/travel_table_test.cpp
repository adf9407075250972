#include "packages/travel_table.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace fabula::packages {
namespace {

using testing::ElementsAre;
using testing::Pair;

class TravelTableTest : public testing::Test {
  protected:
    TravelTable Read(const std::string& text) {
        const test::TempFolder folder;
        std::ofstream(folder / "cave.dat", std::ios::binary) << text;
        interchange::NoObserver nobody;
        interchange::JobStatus status(nobody);
        TravelTable table = ReadTravelTable(folder / "cave.dat", status);
        for (const interchange::Fault& fault : status.AllFaults())
            faults.push_back(std::to_string(fault.place->line) + ": " + fault.message);
        return table;
    }

    std::vector<std::string> faults;
};

TEST_F(TravelTableTest, ReadsTravelRowsPartedByBlanksOrTabs) {
    const TravelTable table = Read("3\n1\t2\t2\t44\n7 303008 11\n-1\n0\n");
    EXPECT_THAT(faults, ElementsAre());
    ASSERT_EQ(table.rows.size(), 2u);
    EXPECT_EQ(table.rows[0].room, 1);
    EXPECT_EQ(table.rows[0].condition, 0);
    EXPECT_EQ(table.rows[0].destination, 2);
    EXPECT_THAT(table.rows[0].verbs, ElementsAre(2, 44));
    EXPECT_EQ(table.rows[1].condition, 303);
    EXPECT_EQ(table.rows[1].destination, 8);
}

TEST_F(TravelTableTest, PassesOverOtherSectionsAndAnEndWithATabAndEnd) {
    const TravelTable table =
        Read("1\n1\tA ROOM\n140\tDEAD\tEND\n-1\tEND\n7\n64\t130\t-1\n-1\n3\n1\t2\t2\n-1\n0\nrest\n");
    EXPECT_THAT(faults, ElementsAre());
    EXPECT_EQ(table.rows.size(), 1u);
}

TEST_F(TravelTableTest, TakesTheFirstWordOfANumberWithoutTheCommentBehindIt) {
    const TravelTable table = Read("4\n2\tROAD\tof stone\n2\tHILL\n3 ENTER\n-1\n");
    EXPECT_THAT(table.words, ElementsAre(Pair(2, "ROAD"), Pair(3, "ENTER")));
}

TEST_F(TravelTableTest, ReadsObjectsWithTheirMessagesAndLeavesOutTextsThatAreNone) {
    const TravelTable table = Read(
        "5\n1\tSET OF KEYS\n000\tKEYS\tLIE HERE.\n000\tMANY.\n100\tNO KEYS.\n2\tA >$<\n000\tnothing\n"
        "3\t*GRATE\n000\t>$<\n200\tTHE GRATE IS OPEN.\n-1\n");
    EXPECT_THAT(faults, ElementsAre());
    ASSERT_EQ(table.objects.size(), 2u);
    EXPECT_EQ(table.objects[0].name, "SET OF KEYS");
    EXPECT_THAT(table.objects[0].messages, ElementsAre("KEYS\tLIE HERE.", "MANY.", "NO KEYS."));
    EXPECT_EQ(table.objects[1].name, "*GRATE");
    EXPECT_THAT(table.objects[1].messages, ElementsAre("THE GRATE IS OPEN."));
}

TEST_F(TravelTableTest, TellsWhatItCannotRead) {
    Read("3\n0\t1\t2\n1001 1 2\n1 x 2\n1 5 x\n1\n-1\n4\nROAD\n-1\n5\n600\tx\n-1\n3\n1 2 3\n");
    EXPECT_THAT(faults, ElementsAre("2: A travel row needs a room from 1 to 1000 and a value.",
                                    "3: A travel row needs a room from 1 to 1000 and a value.",
                                    "4: A travel row needs a room from 1 to 1000 and a value.",
                                    "5: A verb of a travel row is a number.",
                                    "6: A travel row needs a room from 1 to 1000 and a value.",
                                    "9: A word needs its number in front.",
                                    "12: The marks of messages are 000, 100, 200, 300, 400 and 500.",
                                    "14: The section has no -1."));
}

TEST_F(TravelTableTest, ATableOfTooManyRowsIsAnError) {
    std::string rows;
    for (std::size_t i = 0; i < kMostTravelRows; ++i)
        rows += "1\t2\n";
    EXPECT_EQ(Read("3\n" + rows + "-1\n0\n").rows.size(), kMostTravelRows);
    EXPECT_THROW(Read("3\n" + rows + "1\t2\n-1\n0\n"), Error);
}

TEST_F(TravelTableTest, StopsAtALineThatIsNoSection) {
    Read("three\n1 2 3\n");
    EXPECT_THAT(faults, ElementsAre("1: This line is not the number of a section."));
}

TEST(ConditionText, TellsEveryConditionOfATravelRow) {
    EXPECT_EQ(ConditionText(0), " Unconditional ");
    EXPECT_EQ(ConditionText(1), "1 probability ");
    EXPECT_EQ(ConditionText(99), "99 probability ");
    EXPECT_EQ(ConditionText(100), " Unconditional but forbidden to dwarves");
    EXPECT_EQ(ConditionText(101), " if carrying object 1");
    EXPECT_EQ(ConditionText(200), " if carrying object 100");
    EXPECT_EQ(ConditionText(201), " if carrying or in same room as object 1");
    EXPECT_EQ(ConditionText(300), " if carrying or in same room as object 100");
    EXPECT_EQ(ConditionText(303), " if prop of object 3 <> 0");
    EXPECT_EQ(ConditionText(400), " if prop of object 0 <> 0");
    EXPECT_EQ(ConditionText(401), " if prop of object 1 <> 1");
    EXPECT_EQ(ConditionText(512), " if prop of object 12 <> 2");
    EXPECT_EQ(ConditionText(601), " if prop of object 1 <> 3");
    EXPECT_EQ(ConditionText(701), " if prop of object 1 <> 4");
    EXPECT_EQ(ConditionText(900), " if prop of object 0 <> 5");
}

TEST(DestinationText, TellsEveryDestinationOfATravelRow) {
    EXPECT_EQ(DestinationText(7), " To Location 7");
    EXPECT_EQ(DestinationText(300), " To Location 300");
    EXPECT_EQ(DestinationText(301), "301 used in computed GOTO in code");
    EXPECT_EQ(DestinationText(500), "500 used in computed GOTO in code");
    EXPECT_EQ(DestinationText(595), " Print message 95");
}

}  // namespace
}  // namespace fabula::packages
