#include "packages/travel_report.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "platform/error.h"
#include "support/places.h"
#include "support/raw_database.h"

namespace fabula::packages {
namespace {

using store::TableNum;
using testing::ElementsAre;

constexpr const char* kCave =
    "1\n1\tA ROAD.\n-1\tEND\n"
    "3\n1\t2\t2\t3\n1\t35004\t3\n2\t303501\t2\t9\n-1\n"
    "4\n2\tROAD\n2\tHILL\n3\tIN\n1001\tLAMP\n-1\n"
    "5\n1\tBRASS LANTERN\n000\tA LAMP IS HERE.\n2\tDOOR\n-1\n0\n";

class TravelReport : public testing::Test {
  protected:
    TravelReport() { desk.AddWord(90, "IN", 20, 2); }

    TravelResult Convert(const std::string& data) {
        std::ofstream(folder / kTravelData, std::ios::binary) << data;
        interchange::NoObserver nobody;
        interchange::JobStatus status(nobody);
        const TravelResult result =
            Analyze_advent(desk.document, folder / kTravelData, folder / kTravelReport, status);
        told = status.Text();
        return result;
    }

    test::Desk desk;
    const test::TempFolder folder;
    std::string told;
};

TEST_F(TravelReport, ListsRoomsAndObjects) {
    const TravelResult result = Convert(kCave);
    EXPECT_TRUE(result.done);
    EXPECT_EQ(test::ReadBytes(folder / kTravelReport),
              "Adventure Travel Table converted to Actions & Travel Verbs\r\n"
              "Room: 1\r\n"
              " Unconditional  To Location 2 for travel verb(s) ROAD (added to database: ROAD) IN\r\n"
              "35 probability  To Location 4 for travel verb(s) IN\r\n"
              "Room: 2\r\n"
              " if prop of object 3 <> 0 Print message 1 for travel verb(s) ROAD 9\r\n"
              "Object Nouns\r\n"
              " Object Word: LAMP\r\n"
              "  A LAMP IS HERE.\r\n"
              " Object Word: DOOR\r\n");
    EXPECT_EQ(result.rooms, 2);
    EXPECT_EQ(result.rows, 3);
    EXPECT_EQ(result.objects, 2);
    EXPECT_EQ(result.wordsAdded, 1);
}

TEST_F(TravelReport, AddsTheWordsThatAreNeitherVerbsNorNounsInOneStepOfUndo) {
    const auto before = desk.Everything();
    Convert(kCave);
    EXPECT_THAT(desk.Rows(TableNum::Vocabulary, "word,vocnum,voctype", "word='ROAD'"),
                ElementsAre("ROAD|2|Verb"));
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST_F(TravelReport, BringsExitsIntoTheirUsualForm) {
    desk.AddWord(91, "N", 2, 0);
    store::Cursor& room = desk.Adventure().OpenTable(TableNum::Locations, "def", "locnum=0");
    room.SetField("exits", std::string("  N   0 "));
    room.SetField("numexits", 9);
    room.SetField("numericexits", std::string("7 0"));
    room.Update();
    Convert(kCave);
    EXPECT_THAT(desk.Rows(TableNum::Locations, "exits,numexits,numericexits"), ElementsAre("N 0|2|2 0"));
}

TEST_F(TravelReport, OfFaultyDataIsNotWrittenAndChangesNothing) {
    const auto before = desk.Everything();
    EXPECT_FALSE(Convert("3\n1 2 x\n-1\n").done);
    EXPECT_THAT(told,
                testing::HasSubstr("advent-comm.dat:2:1: fault: A verb of a travel row is a number."));
    EXPECT_FALSE(std::filesystem::exists(folder / kTravelReport));
    EXPECT_EQ(desk.Everything(), before);
}

TEST_F(TravelReport, ThatCannotBeWrittenChangesNothing) {
    const auto before = desk.Everything();
    std::filesystem::create_directory(folder / kTravelReport);
    EXPECT_THROW(Convert(kCave), Error);
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_FALSE(desk.document.UndoName());
}

TEST_F(TravelReport, GivesEachNewWordAnIndexOfItsOwn) {
    desk.AddWord(300, "ABOVE", 21, 2);
    Convert("3\n1\t2\t2\t3\n-1\n4\n2\tROAD\n3\tHILL\n-1\n0\n");
    EXPECT_THAT(desk.Rows(TableNum::Vocabulary, "vocindex,word", "vocindex>299", "vocindex"),
                ElementsAre("300|ABOVE", "301|ROAD", "302|HILL"));
}

TEST_F(TravelReport, WithoutDataIsRefused) {
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    EXPECT_THROW(Analyze_advent(desk.document, folder / "none.dat", folder / kTravelReport, status), Error);
}

/// The data file of the classic game, where somebody has put it beside the project.
TEST_F(TravelReport, OfTheClassicGameTellsOfAllItsRooms) {
    const auto data = test::SourceFolder().parent_path() / "shared" / "classic" / "advent.dat";
    if (!std::filesystem::exists(data)) GTEST_SKIP() << "there is no " << data;
    const TravelResult result = Convert(test::ReadBytes(data));
    EXPECT_TRUE(result.done) << told;
    EXPECT_EQ(result.rooms, 140);
    EXPECT_EQ(told, "");
    const std::string report = test::ReadBytes(folder / kTravelReport);
    EXPECT_THAT(report, testing::HasSubstr("\r\nRoom: 140\r\n"));
    EXPECT_THAT(report, testing::HasSubstr(" Object Word: KEYS\r\n"));
}

}  // namespace
}  // namespace fabula::packages
