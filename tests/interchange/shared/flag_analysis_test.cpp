#include "interchange/shared/flag_analysis.h"

#include <gtest/gtest.h>

#include "condacts/language/load.h"
#include "support/games/template_adventure.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr const char* kHead = "\nUser Flag Analysis\n\nThe commands used for each flag are shown below\n\n";
constexpr const char* kFoot =
    "All flags in the above list which can be used by the User have been denoted as 'Used by this "
    "Adventure' in the "
    "Flag Description.\n";

/// The status text after an analysis of these conditions and actions.
std::string Analyse(store::Adventure& adventure, std::initializer_list<const char*> condActs) {
    FlagAnalysis analysis(adventure, condacts::LoadCatalogue(adventure));
    for (const char* condAct : condActs)
        analysis.CheckForFlags(condAct);
    NoObserver nobody;
    JobStatus status(nobody);
    analysis.PrintFlagAnal(adventure, status);
    return status.Text();
}

std::string Description(store::Adventure& adventure, const char* flag) {
    store::Cursor& flags = adventure.OpenTable(TableNum::Flags, "def", flag);
    return std::string(flags.Text("flgdesc"));
}

TEST(FlagAnalysis, TellsTheUsersOfEachFlagInTheOrderOfTheCatalogue) {
    test::OpenedAdventure adventure;
    EXPECT_EQ(Analyse(*adventure, {"SET 60", "LET 61 3", "ZERO 60", "SET 60"}),
              std::string(kHead) + "Flag 60:  ZERO SET\nFlag 61:  LET\n" + kFoot);
}

TEST(FlagAnalysis, CountsBothParameters) {
    test::OpenedAdventure adventure;
    EXPECT_EQ(Analyse(*adventure, {"COPYFF 60 61", "COPYOF 5 62"}),
              std::string(kHead) + "Flag 60:  COPYFF\nFlag 61:  COPYFF\nFlag 62:  COPYOF\n" + kFoot);
}

TEST(FlagAnalysis, FlagsOfTheSystemAreNotTold) {
    test::OpenedAdventure adventure;
    EXPECT_EQ(Analyse(*adventure, {"SET 0", "LET 42 3", "SET 1005"}), std::string(kHead) + kFoot);
}

TEST(FlagAnalysis, RamloadDoesNotCount) {
    test::OpenedAdventure adventure;
    EXPECT_EQ(Analyse(*adventure, {"RAMLOAD 60"}), std::string(kHead) + kFoot);
}

TEST(FlagAnalysis, OtherCondactsDoNotCount) {
    test::OpenedAdventure adventure;
    EXPECT_EQ(Analyse(*adventure, {"AT 60", "DONE", "", "SET", "SET X"}), std::string(kHead) + kFoot);
}

TEST(FlagAnalysis, DescribesAUsedFlagWithoutADescription) {
    test::OpenedAdventure adventure;
    Analyse(*adventure, {"SET 60"});
    EXPECT_EQ(Description(*adventure, "flgnum=60"), "Used by this Adventure.");
    EXPECT_EQ(Description(*adventure, "flgnum=61"), "");
}

TEST(FlagAnalysis, ADescriptionOfOneBlankCountsAsNone) {
    test::OpenedAdventure adventure;
    store::Cursor& flag = adventure->OpenTable(TableNum::Flags, "def", "flgnum=60");
    flag.SetField("flgdesc", std::string(" "));
    flag.Update();
    Analyse(*adventure, {"SET 60"});
    EXPECT_EQ(Description(*adventure, "flgnum=60"), "Used by this Adventure.");
}

TEST(FlagAnalysis, AddsToADescriptionInOtherWordsOnPurpose) {
    test::OpenedAdventure adventure;
    store::Cursor& flag = adventure->OpenTable(TableNum::Flags, "def", "flgnum=60");
    flag.SetField("flgdesc", std::string("Door."));
    flag.Update();
    Analyse(*adventure, {"SET 60"});
    EXPECT_EQ(Description(*adventure, "flgnum=60"), "Door. Used by the Adventure.");
}

TEST(FlagAnalysis, AFlagAboveTheLastRecordCountsAndGetsItsRecords) {
    test::OpenedAdventure adventure;
    adventure->DeleteFrom(TableNum::Flags, "flgnum>=100");
    EXPECT_EQ(Analyse(*adventure, {"SET 102"}), std::string(kHead) + "Flag 102:  SET\n" + kFoot);
    store::Cursor& flags = adventure->OpenTable(TableNum::Flags, "def", "flgnum>=100");
    ASSERT_EQ(flags.RecordCount(), 3);
    EXPECT_EQ(flags.Text("flgtype"), "User");
    EXPECT_EQ(flags.Text("flguse"), "Unknown");
    EXPECT_EQ(flags.Number("flgmod"), 2);
    EXPECT_EQ(flags.Text("flgdesc"), "");
    EXPECT_EQ(Description(*adventure, "flgnum=102"), "Used by this Adventure.");
}

TEST(FlagAnalysis, ASystemFlagAddsNoRecords) {
    test::OpenedAdventure adventure;
    adventure->DeleteFrom(TableNum::Flags, "flgnum>=100");
    Analyse(*adventure, {"SET 42"});
    EXPECT_EQ(adventure->OpenTable(TableNum::Flags, "def", "flgnum>=100").RecordCount(), 0);
}

}  // namespace
}  // namespace fabula::interchange
