#include "interchange/pc_extras.h"

#include <gtest/gtest.h>

#include "reading.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr const char* kRooms = "/LTX\n/0\nHall.\n/1\nCellar.\n";

Reading WithComment(const std::string& comment) {
    return Reading("ace", comment + "\n" + PcSource("", kRooms));
}

TEST(Extras, OfTheSettingsAreTaken) {
    EXPECT_EQ(WithComment("#! Adventure startloc 1").Number(TableNum::Adventure, "", "startloc"), 1);
    EXPECT_EQ(WithComment("#! adventure AUTHOR Ann Other").Text(TableNum::Adventure, "", "author"),
              "Ann Other");
}

TEST(Extras, OfALocationAreTakenWhereverTheyStand) {
    const Reading game = WithComment("#! Locations 1 locshortdesc The cellar<CR>again");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=1", "locshortdesc"), "The cellar\u008Cagain");
    EXPECT_EQ(game.faults, 0);
}

TEST(Extras, ThatMeanNothingAreTold) {
    EXPECT_TRUE(WithComment("#! Rooms 1 locdesc x").ToldAt(1, "ERROR: This line can't be understood."));
    EXPECT_TRUE(WithComment("#! Locations 1 locdesc x").ToldAt(1, "ERROR: This line can't be understood."))
        << "the texts of locations have their section";
    EXPECT_TRUE(
        WithComment("#! Adventure adventype VEL").ToldAt(1, "ERROR: This line can't be understood."));
    EXPECT_TRUE(WithComment("#! Locations 7 locshortdesc x").ToldAt(1, "There is no such record."));
    EXPECT_TRUE(
        WithComment("#! Adventure startloc Hall").ToldAt(1, "The value is not of the type of its field."));
}

TEST(Extras, OrdinaryCommentsAreNone) {
    EXPECT_EQ(WithComment("# ! Adventure startloc 1").Number(TableNum::Adventure, "", "startloc"), 0);
    EXPECT_EQ(WithComment("#! Rooms").faults, 1);
    EXPECT_EQ(WithComment("# Rooms").faults, 0);
}

TEST(Extras, AreListedWhenTheyAreWritten) {
    const Reading game = WithComment("#! Adventure startloc 1");
    std::string status;
    const std::string source = Written(*game, "ace", &status);
    EXPECT_NE(source.find("#! Adventure startloc 1\r\n"), std::string::npos) << source;
    EXPECT_TRUE(status.starts_with(
        "The source form has no place for these; they stand in comments that only Fabula reads:\n"));
    EXPECT_NE(status.find("    Adventure, startloc\n"), std::string::npos) << status;
}

}  // namespace
}  // namespace fabula::interchange
