#include "interchange/shared/source_extras.h"

#include <gtest/gtest.h>

#include "interchange/reading.h"

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

TEST(SourceName, IsKeptAsFarAsItsFieldHasRoomForCharacters) {
    std::string name;
    for (int i = 0; i < 255; ++i)
        name += "é";
    const Reading game("pcvel", "; Adventure Name: " + name + "é\n" + PcSource("", kRooms));
    EXPECT_EQ(game.Text(TableNum::Adventure, "", "advname"), name);
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

TEST(Extras, AValueThatIsTooLongForItsFieldIsToldAndTheGameComesIn) {
    const Reading game = WithComment("#! Adventure author " + std::string(300, 'x'));
    EXPECT_TRUE(game.ok);
    EXPECT_EQ(game.faults, 1);
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=1", "locdesc"), "Cellar.");
}

TEST(Extras, OfANumberBelowZeroAddNoRecord) {
    const Reading game = WithComment("#! Pictures -5 drawstring END");
    EXPECT_TRUE(game.ToldAt(1, "There is no such record."));
    EXPECT_EQ(game.Count(TableNum::Pictures, "locnum<0"), 0);
}

TEST(Comments, AnEmptyLineOfACommentMayHaveLostTheBlankAtItsEnd) {
    EXPECT_EQ(LineOfComment("! comment "), "");
    EXPECT_EQ(LineOfComment("! comment"), "");
    EXPECT_EQ(LineOfComment("! comments"), std::nullopt);
}

TEST(Extras, OrdinaryCommentsAreNone) {
    EXPECT_EQ(WithComment("# ! Adventure startloc 1").Number(TableNum::Adventure, "", "startloc"), 0);
    EXPECT_EQ(WithComment("#! Rooms").faults, 1);
    EXPECT_EQ(WithComment("# Rooms").faults, 0);
}

constexpr const char* kCommented =
    "#! Locations 1 comment Damp.<CR>Dark.\n"
    "#! Vocabulary LAMP/2 comment In the hall\n"
    "#! Flags 60 comment Oil left\n"
    "#! ProcDesc 1 comment Every turn\n";

TEST(Comments, OfRecordsAreTaken) {
    const Reading game("ace", std::string(kCommented) + PcSource("LAMP 50 noun\n", kRooms));
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=1", "comment"), "Damp.\u008CDark.");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "comment"), "");
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "word='LAMP'", "comment"), "In the hall");
    EXPECT_EQ(game.Text(TableNum::Flags, "flgnum=60", "comment"), "Oil left");
    EXPECT_EQ(game.Text(TableNum::ProcDesc, "pmsgnum=1", "comment"), "Every turn");
    EXPECT_EQ(game.faults, 0);
}

TEST(Comments, OfARecordThatIsNotThereAreTold) {
    EXPECT_TRUE(WithComment("#! Locations 7 comment x").ToldAt(1, "There is no such record."));
    EXPECT_TRUE(WithComment("#! Vocabulary LAMP/1 comment x").ToldAt(1, "There is no such record."));
    EXPECT_TRUE(WithComment("#! Vocabulary LAMP comment x").ToldAt(1, "There is no such record."));
    EXPECT_TRUE(WithComment("#! Codes 7 comment x").ToldAt(1, "ERROR: This line can't be understood."));
}

constexpr const char* kEntries =
    "/PRO 0\n"
    "GET LAMP OK\n"
    "#! comment The lamp is fixed.\n"
    "# an ordinary comment\n"
    "#! comment \n"
    "#! comment It hangs.\n"
    "_ LAMP OK\n"
    "         OK\n"
    "#! comment behind the last\n"
    "/PRO 1\n"
    "_ _ OK\n";

TEST(Comments, OfAnEntryStandInFrontOfIt) {
    const Reading game("ace", PcSource("GET 20 verb\nLAMP 50 noun\n", std::string(kRooms) + kEntries));
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "comment"), "");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=1", "comment"),
              "The lamp is fixed.\u008C\u008CIt hangs.");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=2", "comment"), "")
        << "one at the end of a section belongs to no entry";
    EXPECT_EQ(game.faults, 0);
}

TEST(Comments, ComeBackAsTheyWereWritten) {
    for (const char* kind : {"ace", "pcvel"}) {
        std::string source = PcSource("GET 20 verb\nLAMP 50 noun\n", std::string(kRooms) + kEntries);
        source = std::string(kCommented) + source;
        const Reading first("ace", source);
        const std::string written = Written(*first, kind);
        const Reading again(kind, written);
        EXPECT_EQ(again.faults, 0) << written;
        for (const auto& [table, where] :
             {std::pair(TableNum::Locations, "locnum=1"), std::pair(TableNum::Vocabulary, "word='LAMP'"),
              std::pair(TableNum::Flags, "flgnum=60"), std::pair(TableNum::ProcDesc, "pmsgnum=1"),
              std::pair(TableNum::ProcessTables, "canum=1")}) {
            EXPECT_NE(again.Text(table, where, "comment"), "") << kind << where << "\n" << written;
            EXPECT_EQ(again.Text(table, where, "comment"), first.Text(table, where, "comment")) << kind;
        }
    }
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
