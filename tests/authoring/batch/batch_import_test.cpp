#include "authoring/batch/batch_import.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "interchange/batch/batch_writer.h"
#include "random_adventure.h"
#include "support/places.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// Reads the text of a batch file into a document.
struct Reading {
    Reading(Document& document, const std::string& file) {
        const test::TempFolder folder;
        std::ofstream(folder / "edited.fbb", std::ios::binary) << file;
        interchange::NoObserver nobody;
        interchange::JobStatus status(nobody);
        result = ImportBatch(document, folder / "edited.fbb", status);
        for (const interchange::Fault& fault : status.AllFaults())
            faults.push_back(std::to_string(fault.place->line) + ": " + fault.message);
    }

    BatchImportResult result;
    std::vector<std::string> faults;
};

std::string Written(test::Desk& desk) {
    return interchange::ExportTable(desk.Adventure(), {});
}

/// A small game: two locations, an object, two messages, words and an entry.
class BatchImport : public testing::Test {
  protected:
    BatchImport() {
        const Reading made = Read(
            "/VOC\nNumber=200\nWord=LAMP\nType=Noun\nENDRECORD\n"
            "Number=2\nWord=N\nType=Verb\nENDRECORD\nNumber=3\nWord=S\nType=Verb\nENDRECORD\n/END\n"
            "/LOC\nLocation=0\nDescription=\nA cellar.\nENDDESC\nENDRECORD\n"
            "Location=1\nDescription=\nA hall.\nENDDESC\nExits=\nN 0\nENDEXITS\nENDRECORD\n/END\n"
            "/MSG\nMessage=0\nText=\nIt is damp.\nENDDESC\nENDRECORD\n"
            "Message=1\nText=\nIt glows.\nENDDESC\nENDRECORD\n/END\n"
            "/OBJ\nObject=0\nDescription=\na lamp\nENDDESC\nNoun=LAMP\nAt=1\nENDRECORD\n/END\n"
            "/PRO\nEntry=0\nProcess=0\nVerb=*\nNoun=LAMP\nCondActs=\nMESSAGE 1 DONE\nENDCONDACTS\n"
            "ENDRECORD\n/END\n");
        EXPECT_THAT(made.faults, IsEmpty());
    }

    Reading Read(const std::string& file) { return Reading(desk.document, file); }
    std::string Faulty(const std::string& file) {
        const test::Snapshot before = desk.Everything();
        const Reading reading = Read(file);
        EXPECT_FALSE(reading.result.done);
        EXPECT_EQ(desk.Everything(), before);
        return reading.faults.empty() ? "" : reading.faults.front();
    }

    test::Desk desk;
};

TEST_F(BatchImport, StoresCommentsAndWhatIsLeftOfThem) {
    const Reading read = Read(
        "/VOC\nNumber=200\nWord=LAMP\nType=Noun\nComment=\nIt glows.\nENDCOMMENT\nENDRECORD\n/END\n"
        "/MSG\nMessage=0\nComment=\nIn the cellar.\n\nTwice.\nENDCOMMENT\nENDRECORD\n/END\n"
        "/PRO\nEntry=0\nComment=\nWith the lamp.\nENDCOMMENT\nENDRECORD\n/END\n");
    EXPECT_THAT(read.faults, IsEmpty());
    EXPECT_THAT(desk.Rows(TableNum::Vocabulary, "comment", "word='LAMP'"), ElementsAre("It glows."));
    EXPECT_THAT(desk.Rows(TableNum::Messages, "msgmsg, comment", "msgnum=0"),
                ElementsAre("It is damp.|In the cellar.\u008C\u008CTwice."));
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "comment", "canum=0"), ElementsAre("With the lamp."));
    EXPECT_THAT(Read(Written(desk)).faults, IsEmpty());
    EXPECT_THAT(Read("/MSG\nMessage=0\nComment=\nENDCOMMENT\nENDRECORD\n/END\n").faults, IsEmpty());
    EXPECT_TRUE(desk.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=0").IsNull("comment"));
}

TEST_F(BatchImport, MadeTheGameOfItsTests) {
    EXPECT_THAT(desk.Rows(TableNum::Locations, "locnum,locdesc,exits,numericexits,numexits"),
                ElementsAre("0|A cellar.|||0", "1|A hall.|N 0|2 0|2"));
    EXPECT_THAT(desk.Rows(TableNum::Objects, "objnum,objdesc,objnoun,objnumnoun,objlocdesc"),
                ElementsAre("0|a lamp|LAMP|200|In Room 1."));
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "estype,w1,w2,w2num,condacts,numcas"),
                ElementsAre("0|*|LAMP|200|MESSAGE 1 DONE|3"));
}

TEST_F(BatchImport, OfAnUneditedFileChangesNothingAndIsNoStepOfUndo) {
    const test::Snapshot before = desk.Everything();
    const int changes = desk.document.Changes();
    const Reading reading = Read(Written(desk));
    EXPECT_THAT(reading.faults, IsEmpty());
    EXPECT_TRUE(reading.result.done);
    EXPECT_EQ(reading.result.changed, 0);
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.Changes(), changes);
}

TEST_F(BatchImport, OfATextAndAnEntryChangedInAnEditorChangesThoseTwoRecordsInOneStepOfUndo) {
    test::Snapshot expected = desk.Everything();
    const test::Snapshot before = expected;
    std::string file = text::ReplaceAll(Written(desk), "It is damp.", "It is damp.\nVery.");
    file = text::ReplaceAll(file, "MESSAGE 1 DONE", "MESSAGE 0\nOK");
    const Reading reading = Read(file);
    EXPECT_THAT(reading.faults, IsEmpty());
    EXPECT_EQ(reading.result.changed, 2);
    EXPECT_THAT(desk.Rows(TableNum::Messages, "msgmsg", "msgnum=0"), ElementsAre("It is damp.\u008CVery."));
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "condacts"), ElementsAre("MESSAGE 0 OK"));
    test::Snapshot after = desk.Everything();
    for (test::Snapshot* each : {&after, &expected}) {
        each->tables.erase("Messages");
        each->tables.erase("ProcessTables");
    }
    EXPECT_EQ(after, expected);
    EXPECT_THAT(desk.Rows(TableNum::Messages, "msgmsg", "msgnum<>0"), ElementsAre("It glows."));
    EXPECT_EQ(desk.document.UndoName(), "read edited.fbb");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST_F(BatchImport, LeavesFieldsAndRecordsThatAreNotNamed) {
    EXPECT_EQ(Read("/LOC\nLocation=1\nShort=Hall\nENDRECORD\n/END\n").result.changed, 1);
    EXPECT_THAT(desk.Rows(TableNum::Locations, "locnum,locshortdesc,locdesc,exits"),
                ElementsAre("0| |A cellar.|", "1|Hall|A hall.|N 0"));
}

TEST_F(BatchImport, TellsEveryFaultWithItsLineAndStoresNothing) {
    const test::Snapshot before = desk.Everything();
    const Reading reading = Read(
        "/LOC\nLocation=0\nDescription=\n<nonsense>\nENDDESC\nExits=\nXYZZY 1\nENDEXITS\nENDRECORD\n"
        "Location=1\nShort=A good one\nENDRECORD\n/END\n"
        "/PRO\nEntry=0\nCondActs=\nMESSAGE 99\nENDCONDACTS\nENDRECORD\n/END\n");
    EXPECT_THAT(reading.faults, ElementsAre(testing::StartsWith("3: "), "6: XYZZY is not a valid word",
                                            testing::StartsWith("16: ")));
    EXPECT_FALSE(reading.result.done);
    EXPECT_EQ(desk.Everything(), before);
}

TEST_F(BatchImport, GivesANewRecordTheNumberThatItsScreenGives) {
    EXPECT_EQ(Faulty("/MSG\nMessage=7\nText=\nNew.\nENDDESC\nENDRECORD\n/END\n"),
              "2: The number of a new record must be 2");
    EXPECT_TRUE(Read("/MSG\nMessage=3\nText=\nb\nENDDESC\nENDRECORD\nMessage=2\nText=\na\nENDDESC\n"
                     "ENDRECORD\n/END\n")
                    .result.done);
    EXPECT_THAT(desk.Rows(TableNum::Messages, "msgnum,msgmsg", "msgnum>1"), ElementsAre("2|a", "3|b"));
}

TEST_F(BatchImport, LetsExitsLeadToALocationThatComesLater) {
    EXPECT_TRUE(Read("/LOC\nLocation=0\nExits=\nS 2\nENDEXITS\nENDRECORD\n"
                     "Location=2\nDescription=\nA yard.\nENDDESC\nExits=\nN 0\nENDEXITS\nENDRECORD\n/END\n")
                    .result.done);
    EXPECT_THAT(desk.Rows(TableNum::Locations, "locnum,exits"), ElementsAre("0|S 2", "1|N 0", "2|N 0"));
}

TEST_F(BatchImport, MakesAProcessTableByItsFirstEntryAndDescribesIt) {
    EXPECT_TRUE(
        Read("/PRD\nProcess=3\nText=\nThe weather\nENDDESC\nENDRECORD\n/END\n"
             "/PRO\nEntry=1\nProcess=3\nVerb=_\nNoun=_\nCondActs=\nDONE\nENDCONDACTS\nENDRECORD\n/END\n")
            .result.done);
    EXPECT_THAT(desk.Rows(TableNum::ProcDesc, "pmsgnum,pmsgmsg", "pmsgnum>2"),
                ElementsAre("3|The weather"));
}

TEST_F(BatchImport, RefusesWhatTheScreensRefuse) {
    EXPECT_EQ(Faulty("/VOC\nNumber=201\nWord=LAMP\nType=Noun\nENDRECORD\n/END\n"),
              "2: Vocabulary cannot be edited");
    EXPECT_EQ(Faulty("/VOC\nNumber=300\nWord=ROPE\nType=Noun\nENDRECORD\n/END\n"),
              "2: Word # must be from 2 to 254 inclusive");
    EXPECT_EQ(Faulty("/OBJ\nObject=0\nNoun=ROPE\nENDRECORD\n/END\n"),
              "3: \"ROPE\" is no noun of the vocabulary.");
    EXPECT_EQ(Faulty("/OBJ\nObject=0\nAt=9\nENDRECORD\n/END\n"), "3: Invalid location");
    EXPECT_EQ(Faulty("/OBJ\nObject=0\nAttributes=X\nENDRECORD\n/END\n"),
              "3: The attributes of an object are C, WR, CWR or nothing.");
    EXPECT_EQ(Faulty("/OBJ\nObject=0\nWeight=64\nENDRECORD\n/END\n"), "3: Weight must be from 0 to 63");
    EXPECT_EQ(Faulty("/PRO\nEntry=0\nVerb=ROPE\nENDRECORD\n/END\n"), "3: ROPE is not a valid word");
    EXPECT_EQ(Faulty("/PRO\nEntry=0\nProcess=9\nENDRECORD\n/END\n"),
              "3: The new Process Table number must be 3");
    EXPECT_EQ(Faulty("/PRD\nProcess=1\nText=\nx\nENDDESC\nENDRECORD\n/END\n"),
              "2: That Process table Description cannot be edited");
    EXPECT_EQ(Faulty("/FLG\nFlag=5000\nUse=Timer\nENDRECORD\n/END\n"),
              "2: There is no such record, and none can be added: 5000");
    EXPECT_EQ(Faulty("/ADV\nStartLocation=77\nENDRECORD\n/END\n"),
              "2: There is not a location with a number of 77");
    EXPECT_EQ(Faulty("/ADV\nPaper=16\nENDRECORD\n/END\n"), "2: The settings do not offer the value 16");
    EXPECT_EQ(Faulty("/ADV\nCreated=2020-01-01 00:00:00\nENDRECORD\n/END\n"),
              "2: This setting cannot be edited.");
    EXPECT_EQ(Faulty("/MSG\nText=\nx\nENDDESC\nENDRECORD\n/END\n"),
              "2: The record has no number that is valid.");
    EXPECT_EQ(Faulty("/MSG\nMessage=1\nENDRECORD\nMessage=1\nENDRECORD\n/END\n"),
              "4: The record stands twice in the file.");
}

TEST_F(BatchImport, TakesNoPictureOutsideTheGamesFolder) {
    EXPECT_EQ(Faulty("/LOC\nLocation=0\nPicture=../secret.png\nENDRECORD\n/END\n"),
              "3: The Picture must be at or below the directory of the game");
    EXPECT_EQ(Faulty("/LOC\nLocation=0\nPicture=none.png\nENDRECORD\n/END\n"),
              "3: There is no picture none.png in the game's folder.");
}

TEST_F(BatchImport, ChangesTheSettings) {
    EXPECT_TRUE(Read("/ADV\nName=Damp\nAuthor=A. Nother\nInk=3\nSoundVolume=90\nMaxObjects=4\n"
                     "Description=\nOne\nTwo\nENDDESC\nENDRECORD\n/END\n")
                    .result.done);
    EXPECT_THAT(desk.Rows(TableNum::Adventure, "advname,author,textcolor,defsndvol,maxobj,advdesc"),
                ElementsAre("Damp|A. Nother|3|90|4|One\u008CTwo "));
}

TEST_F(BatchImport, ChecksDrawstringsAndAddsPictures) {
    EXPECT_THAT(Faulty("/GRA\nPicture=0\nDrawString=\nLINE 1\nENDDRAWSTRING\nENDRECORD\n/END\n"),
                testing::StartsWith("3: "));
    EXPECT_TRUE(
        Read("/GRA\nPicture=0\nInk=2\nDrawString=\nPLOT 0 1 1\nEND\nENDDRAWSTRING\nENDRECORD\n/END\n")
            .result.done);
    EXPECT_THAT(desk.Rows(TableNum::Pictures, "locnum,loctype,locink,drawstring"),
                ElementsAre("0|Picture|2|PLOT 0 1 1 END"));
}

/// Writes everything, reads it back, and compares.
void ExpectNothingChanges(test::Desk& desk) {
    const test::Snapshot before = desk.Everything();
    const Reading reading(desk.document, Written(desk));
    EXPECT_THAT(reading.faults, IsEmpty());
    EXPECT_EQ(reading.result.changed, 0);
    EXPECT_EQ(desk.Everything(), before);
}

TEST(BatchRoundTrip, ChangesNothingInAdventuresMadeAtRandom) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo}) {
        for (std::uint32_t seed = 1; seed <= 8; ++seed) {
            SCOPED_TRACE(seed);
            test::Desk desk(kind, true);
            interchange::FillAtRandom(desk.Adventure(), seed, kind == AdventureKind::Marlo ? 4 : 5);
            ExpectNothingChanges(desk);
        }
    }
}

TEST(BatchRoundTrip, ChangesNothingInTheExamples) {
    for (const char* name : {"lighthouse.fbd", "signal_box.fbd", "cellar.fbd"}) {
        SCOPED_TRACE(name);
        const test::TempFolder folder;
        std::filesystem::copy_file(test::ExampleGames() / name, folder / name);
        Document document(folder / name);
        const std::string before = interchange::ExportTable(document.Adventure(), {});
        EXPECT_GT(before.size(), 5000u);
        const Reading reading(document, before);
        EXPECT_THAT(reading.faults, IsEmpty());
        EXPECT_TRUE(reading.result.done);
        EXPECT_EQ(reading.result.changed, 0);
        EXPECT_EQ(document.Changes(), 0);
        EXPECT_EQ(interchange::ExportTable(document.Adventure(), {}), before);
    }
}

}  // namespace
}  // namespace fabula::authoring
