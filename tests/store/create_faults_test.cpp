#include <gtest/gtest.h>

#include "store/create_fixture.h"

namespace fabula::store {
namespace {

using Lines = std::vector<std::string>;

TEST_F(Create, NeedsEverySchemaSection) {
    const Lines complete = lines_;
    for (const TableEntry& table : AllTables()) {
        lines_ = complete;
        const std::string section = "VEL" + std::string(table.sectionStem) + "DB";
        RemoveSection(section);
        EXPECT_EQ(ErrorOf(), "has no section ::" + section + ".");
        EXPECT_TRUE(FilesInGames().empty());
    }
}

TEST_F(Create, NeedsEveryCommonSection) {
    const Lines complete = lines_;
    for (const char* section : {"INFO", "VELFLAGS", "VELCONDACT", "VELDATABASE", "VELPACKAGE",
                                "VELPROCDESC", "VELHEADER", "VELCODES", "VELCOMMANDS", "VELCHARACTERS"}) {
        lines_ = complete;
        RemoveSection(section);
        EXPECT_EQ(ErrorOf(), std::string("has no section ::") + section + ".");
        EXPECT_TRUE(FilesInGames().empty());
    }
}

TEST_F(Create, AMissingFileOfDataIsAnError) {
    try {
        MakeWith(folder_ / "nothing.ini");
        FAIL() << "it was created";
    } catch (const Error& error) {
        EXPECT_EQ(error.what(), "Could not read the default data " + (folder_ / "nothing.ini").string() +
                                    ": there is no such file.");
    }
    EXPECT_TRUE(FilesInGames().empty());
}

TEST_F(Create, WhatCouldNotBeOpenedIsNotPutIntoPlace) {
    const auto isText = [](const std::string& line) { return line.rfind("msgmsg|", 0) == 0; };
    lines_.erase(std::find_if(lines_.begin(), lines_.end(), isText));
    WriteData();
    EXPECT_THROW(MakeWith(DataFile()), OpenError);
    EXPECT_TRUE(FilesInGames().empty());
}

TEST_F(Create, ASectionWithoutAnEndIsAnError) {
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(Find("::VELTABLESDB")) - 2);
    EXPECT_EQ(ErrorOf(), "is wrong in section ::INFO at line 7: the section has no end.");
}

TEST_F(Create, ASectionThatStandsThereTwiceIsAnError) {
    lines_.push_back("::VELHEADER");
    lines_.push_back("::END");
    EXPECT_EQ(ErrorOf(), "is wrong in section ::VELHEADER at line " + std::to_string(lines_.size() - 1) +
                             ": the section stands there twice.");
}

TEST_F(Create, MalformedRowsTellSectionAndLine) {
    EXPECT_EQ(ErrorIn("VELCONDACT", {"101|Condition|AT"}),
              "is wrong in section ::VELCONDACT at line @1: it has too few columns.");
    EXPECT_FALSE(std::filesystem::exists(file_));
}

class MalformedRow : public Create {};

TEST_F(MalformedRow, ANumberThatIsNone) {
    EXPECT_EQ(ErrorIn("VELPROCDESC", {"0|fine", "one|not fine"}),
              "is wrong in section ::VELPROCDESC at line @2: 'one' is no number.");
}

TEST_F(MalformedRow, ANumberBeyondItsField) {
    EXPECT_EQ(
        ErrorIn("VELPROCDESC", {"40000|far"}),
        "is wrong in section ::VELPROCDESC at line @1: ProcDesc.pmsgnum can't hold the number 40000.");
}

TEST_F(MalformedRow, ANumberBeyondAllNumbers) {
    EXPECT_EQ(ErrorIn("VELPROCDESC", {"99999999999999999999|far"}),
              "is wrong in section ::VELPROCDESC at line @1: ProcDesc.pmsgnum can't hold the number "
              "9223372036854775807.");
}

TEST_F(MalformedRow, ATextTooLongForItsField) {
    EXPECT_EQ(
        ErrorIn("FABULAVOCABULARY", {"2|" + std::string(31, 'X') + "|0|Verb"}),
        "is wrong in section ::FABULAVOCABULARY at line @1: Vocabulary.Word can't hold a text of more than "
        "30 characters.");
}

TEST_F(MalformedRow, ATruthValueThatIsNone) {
    EXPECT_EQ(ErrorIn("VELFLAGS", {"/0", "System|Switch|0|maybe|text"}),
              "is wrong in section ::VELFLAGS at line @2: 'maybe' is not True or False.");
}

TEST_F(MalformedRow, ARecordWithoutANumber) {
    EXPECT_EQ(ErrorIn("FABULAMESSAGES", {"text"}),
              "is wrong in section ::FABULAMESSAGES at line @1: there is no line \"/n\" before it.");
}

TEST_F(MalformedRow, ARecordsNumberThatIsNone) {
    EXPECT_EQ(ErrorIn("FABULAMESSAGES", {"/", "text"}),
              "is wrong in section ::FABULAMESSAGES at line @1: '' is no number.");
    EXPECT_EQ(
        ErrorIn("FABULAMESSAGES", {"/40000", "text"}),
        "is wrong in section ::FABULAMESSAGES at line @1: Messages.msgnum can't hold the number 40000.");
}

TEST_F(MalformedRow, ACharacterWithoutEightValues) {
    EXPECT_EQ(ErrorIn("VELCHARACTERS", {"0|65|Default|1 2 3 4 5 6 7"}),
              "is wrong in section ::VELCHARACTERS at line @1: a character has eight values.");
    EXPECT_EQ(ErrorIn("VELCHARACTERS", {"0|65|Default|1 2 3 4 5 6 7 256"}),
              "is wrong in section ::VELCHARACTERS at line @1: a value is from 0 to 255.");
    EXPECT_EQ(
        ErrorIn("VELCHARACTERS", {"0|65|A name of twenty-one.|1 2 3 4 5 6 7 8"}),
        "is wrong in section ::VELCHARACTERS at line @1: Characters.charsetname can't hold a text of more "
        "than 20 characters.");
    EXPECT_EQ(ErrorIn("VELCHARACTERS", {"99999999|65|Default|1 2 3 4 5 6 7 8"}),
              "is wrong in section ::VELCHARACTERS at line @1: Characters.charkey can't hold the number "
              "99999999065.");
}

TEST_F(MalformedRow, ASizeThatIsNoNumber) {
    EXPECT_EQ(ErrorIn("VELHEADERDB", {"hdrkey|advarwchar|wide|N|2|1|N"}),
              "is wrong in section ::VELHEADERDB at line @1: 'wide' is no number.");
}

TEST_F(MalformedRow, AFieldThatStandsThereTwice) {
    EXPECT_EQ(ErrorIn("VELHEADERDB", {"hdrkey|advarwchar|0|N|2|1|N", "HDRKEY|advarwchar|0|N|2|1|N"}),
              "is wrong in section ::VELHEADERDB at line @2: the field stands there twice.");
}

TEST_F(MalformedRow, AFieldsNameThatIsAStatement) {
    EXPECT_EQ(
        ErrorIn("VELSOUNDSDB", {"a INTEGER); DROP TABLE Tables; --|adinteger|0|N|2|1|N"}),
        "is wrong in section ::VELSOUNDSDB at line @1: 'a INTEGER); DROP TABLE Tables; --' is no name of a "
        "field.");
    EXPECT_EQ(ErrorIn("VELSOUNDSDB", {"|adinteger|0|N|2|1|N"}),
              "is wrong in section ::VELSOUNDSDB at line @1: '' is no name of a field.");
    EXPECT_EQ(ErrorIn("VELSOUNDSDB", {"storekey|adinteger|0|N|2|1|N"}),
              "is wrong in section ::VELSOUNDSDB at line @1: 'storekey' is no name of a field.");
}

}  // namespace
}  // namespace fabula::store
