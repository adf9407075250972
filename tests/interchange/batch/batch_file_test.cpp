#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "interchange/batch/batch_reader.h"
#include "interchange/batch/batch_writer.h"
#include "platform/error.h"
#include "support/games/template_adventure.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::HasSubstr;

class BatchFile : public testing::Test {
  protected:
    void SetText(int message, const std::string& text) {
        store::Cursor& messages =
            adventure_->OpenTable(TableNum::Messages, "def", "msgnum=" + std::to_string(message));
        if (messages.Eof()) {
            messages.AddNew();
            messages.SetField("msgnum", std::int64_t{message});
        }
        messages.SetField("msgmsg", text);
        messages.Update();
    }

    std::string Written(TableNum table) { return ExportTable(*adventure_, {.table = table}); }

    std::vector<BatchRecord> Read(const std::string& file) {
        std::ofstream(adventure_.Folder() / "edited.fbb", std::ios::binary) << file;
        faults_.clear();
        NoObserver nobody;
        JobStatus status(nobody);
        auto records = ReadBatchRecords(adventure_.Folder() / "edited.fbb", *adventure_, status);
        status_ = status.Text();
        for (const Fault& fault : status.AllFaults())
            faults_.push_back(std::to_string(fault.place->line) + ": " + fault.message);
        return records;
    }

    test::OpenedAdventure adventure_;
    std::vector<std::string> faults_;
    std::string status_;
};

TEST_F(BatchFile, HoldsASectionForEachTableInItsOrder) {
    std::vector<std::string> markers;
    std::string file = ExportTable(*adventure_, {});
    std::size_t start = 0;
    for (std::size_t end = file.find('\n'); end != std::string::npos; end = file.find('\n', start)) {
        const std::string line = file.substr(start, end - start);
        if (line.starts_with('/') && line != "/END") markers.push_back(line);
        start = end + 1;
    }
    EXPECT_THAT(markers,
                ElementsAre("/GRA", "/PRD", "/FLG", "/VOC", "/SMS", "/ADV", "/OBJ", "/MSG", "/LOC"));
}

TEST_F(BatchFile, WritesOneLineFieldsAndTextsAsTheTableSays) {
    SetText(0, "A cellar.\u008CIt is damp.");
    EXPECT_EQ(Written(TableNum::Messages),
              "/MSG\nMessage=0\nText=\nA cellar.\nIt is damp.\nENDDESC\nENDRECORD\n/END\n");
}

TEST_F(BatchFile, ABadByteOfOneTextLeavesTheOthersAsTheyAre) {
    SetText(0, "Caf\xE9");
    SetText(1, "Caf\u00E9");
    const std::string file = Written(TableNum::Messages);
    EXPECT_THAT(file, HasSubstr("Caf\uFFFD\n"));
    EXPECT_EQ(Read(file).at(1).entries.at(1).value, "Caf\u00E9");
}

TEST_F(BatchFile, TellsInWhichEncodingItIsRead) {
    Read("/MSG\nMessage=0\nText=\nCaf\xE9\nENDDESC\nENDRECORD\n/END\n");
    EXPECT_EQ(status_, "The text is read as Windows-1252.\n");
}

TEST_F(BatchFile, HasACommentWhereThereIsOne) {
    SetText(0, "A cellar.");
    SetText(1, "A hall.");
    store::Cursor& message = adventure_->OpenTable(TableNum::Messages, "def", "msgnum=1");
    message.SetField("comment", std::string("First.\u008CThen."));
    message.Update();
    const std::string file = Written(TableNum::Messages);
    EXPECT_EQ(file,
              "/MSG\nMessage=0\nText=\nA cellar.\nENDDESC\nENDRECORD\n"
              "Message=1\nText=\nA hall.\nENDDESC\nComment=\nFirst.\nThen.\nENDCOMMENT\n"
              "ENDRECORD\n/END\n");
    const auto records = Read(file);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[1].entries.back().value, "First.\nThen.");
    EXPECT_THAT(faults_, ElementsAre());
}

TEST_F(BatchFile, AnEmptyMultiLineFieldWritesItsNameLineAndDirectlyTheEndMarker) {
    SetText(0, " ");
    EXPECT_EQ(Written(TableNum::Messages), "/MSG\nMessage=0\nText=\nENDDESC\nENDRECORD\n/END\n");
}

TEST_F(BatchFile, LeavesReservedWordsAndTheFirstProcessDescriptionsOut) {
    EXPECT_THAT(Written(TableNum::Vocabulary), testing::Not(HasSubstr("RESERVED")));
    EXPECT_EQ(Written(TableNum::ProcDesc), "/PRD\n/END\n");
}

TEST_F(BatchFile, WritesTruthsAsTrueAndFalse) {
    EXPECT_THAT(Written(TableNum::Adventure), HasSubstr("\nGraphics=False\n"));
}

TEST_F(BatchFile, WritesSelectedRecordsOnly) {
    for (int message = 0; message < 4; ++message)
        SetText(message, "text " + std::to_string(message));
    EXPECT_EQ(ExportTable(*adventure_, {.table = TableNum::Messages, .keys = std::set<int>{1, 3}}),
              "/MSG\nMessage=1\nText=\ntext 1\nENDDESC\nENDRECORD\n"
              "Message=3\nText=\ntext 3\nENDDESC\nENDRECORD\n/END\n");
}

TEST_F(BatchFile, WritesASectionForEachProcessOfTheList) {
    EXPECT_EQ(ExportTable(*adventure_, {.table = TableNum::ProcessTables, .processes = "0,2-3"}),
              "/PRO\n/END\n/PRO\n/END\n/PRO\n/END\n");
    EXPECT_THROW(ExportTable(*adventure_, {.table = TableNum::ProcessTables, .processes = "5-2"}), Error);
}

TEST_F(BatchFile, TakesNumbersRangesAndAllAsAListOfProcesses) {
    EXPECT_EQ(ParseProcessList(*adventure_, "0,4-6,5"), (std::vector<int>{0, 4, 5, 6}));
    EXPECT_EQ(ParseProcessList(*adventure_, "all"), (std::vector<int>{}));
    for (const char* none : {"", "x", "3-", "-3", "6-4", "1,,2", "1000"})
        EXPECT_EQ(ParseProcessList(*adventure_, none), std::nullopt) << none;
}

TEST_F(BatchFile, RefusesATableThatDoesNotTravel) {
    EXPECT_THROW(ExportTable(*adventure_, {.table = TableNum::Codes}), Error);
}

TEST_F(BatchFile, ATextLineThatReadsLikeItsEndComesBackWithoutTheBlankInFront) {
    SetText(0, "ENDDESC\u008C ENDDESC\u008CENDRECORD\u008C/END");
    const std::string file = Written(TableNum::Messages);
    EXPECT_THAT(file, HasSubstr("Text=\n ENDDESC\n  ENDDESC\nENDRECORD\n/END\nENDDESC\n"));
    const auto records = Read(file);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].entries[1].value, "ENDDESC\n ENDDESC\nENDRECORD\n/END");
    EXPECT_THAT(faults_, ElementsAre());
}

TEST_F(BatchFile, IsReadWithAnyLineEndsAndBlankLinesBetween) {
    const auto records =
        Read("\r\n/msg\r\n\r\nmessage = 7\r\nText=\r\na\r\n\r\nENDDESC\r\nENDRECORD\r\n/END\r\n");
    EXPECT_THAT(faults_, ElementsAre());
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].table->number, TableNum::Messages);
    EXPECT_EQ(records[0].line, 4);
    EXPECT_EQ(records[0].entries[0].value, " 7");
    EXPECT_EQ(records[0].entries[1].value, "a\n");
    EXPECT_EQ(records[0].entries[1].line, 5);
}

TEST_F(BatchFile, TellsEveryLineThatItCannotRead) {
    Read(
        "/XYZ\nMessage=1\n/END\n/MSG\nMessage=1\nMessage=2\nColour=red\nno field\nText=here\nENDRECORD\n"
        "ENDRECORD\nMessage=3\n/END\n/LOC\nLocation=1\n");
    EXPECT_THAT(faults_,
                ElementsAre("1: This line is not the marker of a section.",
                            "6: The field stands twice in its record: Message",
                            "7: The table has no field of this name: Colour",
                            "8: This line is no field: it has no \"=\".",
                            "9: The text begins on the next line.", "11: The record has no fields.",
                            "12: The record has no ENDRECORD.", "14: The section has no /END."));
}

TEST_F(BatchFile, ARecordWithAFaultDoesNotComeInAndTheNextOneDoes) {
    const auto records = Read(
        "/MSG\nMessage=1\nMessage=2\nENDRECORD\nMessage=3\nText=here\nENDRECORD\nMessage=4\nENDRECORD\n"
        "/END\n");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].entries.at(0).value, "4");
}

TEST_F(BatchFile, HoldsAHundredThousandRecordsAndNotOneMore) {
    std::string most = "/MSG\n";
    for (std::size_t i = 0; i < kMostBatchRecords; ++i)
        most += "Message=1\nENDRECORD\n";
    EXPECT_EQ(Read(most + "/END\n").size(), kMostBatchRecords);
    EXPECT_THROW(Read(most + "Message=1\nENDRECORD\n/END\n"), Error);
}

TEST_F(BatchFile, TellsATextWithoutItsEnd) {
    Read("/MSG\nMessage=1\nText=\nand on and on\nENDRECORD\n/END\n");
    EXPECT_THAT(faults_, ElementsAre("3: The text has no ENDDESC.", "1: The section has no /END."));
}

}  // namespace
}  // namespace fabula::interchange
