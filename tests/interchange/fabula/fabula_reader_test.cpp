#include "interchange/fabula/fabula_reader.h"

#include <fstream>

#include <gtest/gtest.h>

#include "interchange/reading.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

/// An export file of the present version.
Reading File(const std::string& lines) {
    return Reading("fabula", "4.0.0\r\n" + lines);
}

TEST(LoadFabula, RefusesAFileOfAnotherVersion) {
    const Reading game("fabula", "3.9.0\r\n5|advnum|1\r\n");
    EXPECT_FALSE(game.ok);
    EXPECT_TRUE(game.Told("File is not a Fabula Export file or Version  is incompatible."));
}

TEST(LoadFabula, RefusesAFirstLineThatIsNoVersionEvenIfAllElseIsGood) {
    EXPECT_FALSE(Reading("fabula", "5|advnum|1\r\n4.0.0\r\n").ok);
}

TEST(LoadFabula, RefusesAFileOfTheVersionLineAlone) {
    EXPECT_FALSE(Reading("fabula", "4.0.0\r\n").ok);
    EXPECT_FALSE(Reading("fabula", "4.0.0").ok);
    EXPECT_FALSE(Reading("fabula", "").ok);
}

TEST(LoadFabula, TellsItsSteps) {
    const Reading game = File("5|advnum|1\n8|vocindex|1\n2|msgnum|0\n34|locnum|0\n");
    EXPECT_TRUE(game.ok);
    EXPECT_TRUE(
        game.Told(" \nLoaded Adventure Settings \nLoaded Vocabulary \nLoaded Messages \n"
                  "Loaded Graphics Information"))
        << game.status;
}

TEST(LoadFabula, AddsRecords) {
    const Reading game = File("2|msgnum|3\r\n2|msgmsg|It is too dark.\r\n2|msgnum|4\r\n2|msgmsg|Ouch!\r\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=3", "msgmsg"), "It is too dark.");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=4", "msgmsg"), "Ouch!");
    EXPECT_EQ(game.Count(TableNum::Messages, "msgnum>=0"), 2);
}

TEST(LoadFabula, ARecordOfTheDefaultDataIsWrittenOverNotDoubled) {
    const Reading game = File("7|smsgnum|6\n7|smsgmsg|Eh?\n");
    EXPECT_EQ(game.Text(TableNum::SystemMessages, "smsgnum=6", "smsgmsg"), "Eh?");
    EXPECT_EQ(game.Count(TableNum::SystemMessages, "smsgnum=6"), 1);
}

TEST(LoadFabula, RecordsOfTheDefaultDataWithoutACounterpartStay) {
    const Reading game = File("7|smsgnum|6\n7|smsgmsg|Eh?\n");
    EXPECT_EQ(game.Text(TableNum::SystemMessages, "smsgnum=30", "smsgmsg"), "Y");
}

TEST(LoadFabula, TakesNamesOfFieldsInAnyCase) {
    EXPECT_EQ(File("2|MSGNUM|3\n2|MsgMsg|Hello\n").Text(TableNum::Messages, "msgnum=3", "msgmsg"), "Hello");
}

TEST(LoadFabula, LongTextsGetTheirLineEndsBack) {
    EXPECT_EQ(File("2|msgnum|3\n2|msgmsg|a<CR><CR>b\n").Text(TableNum::Messages, "msgnum=3", "msgmsg"),
              "a\u008C\u008C"
              "b");
}

TEST(LoadFabula, OtherTextsKeepTheTagOnPurpose) {
    EXPECT_EQ(File("5|advnum|1\n5|author|a<CR>b\n").Text(TableNum::Adventure, "advnum='1'", "author"),
              "a<CR>b");
}

TEST(LoadFabula, AValueEndsAtItsFirstBarOnPurpose) {
    EXPECT_EQ(File("2|msgnum|3\n2|msgmsg|left|right\n").Text(TableNum::Messages, "msgnum=3", "msgmsg"),
              "left");
}

TEST(LoadFabula, AnEmptyValueIsEmpty) {
    EXPECT_EQ(File("7|smsgnum|6\n7|smsgmsg|\n").Text(TableNum::SystemMessages, "smsgnum=6", "smsgmsg"), "");
}

TEST(LoadFabula, ALineWithoutAValueHasTheBarForOneOnPurpose) {
    EXPECT_EQ(File("2|msgnum|3\n2|msgmsg\n").Text(TableNum::Messages, "msgnum=3", "msgmsg"), "|");
}

TEST(LoadFabula, ReadsTruthValuesInAnyCase) {
    const Reading game = File("5|advnum|1\n5|sound|TRUE\n5|graphics|false\n");
    EXPECT_EQ(game.Number(TableNum::Adventure, "advnum='1'", "sound"), 1);
    EXPECT_EQ(game.Number(TableNum::Adventure, "advnum='1'", "graphics"), 0);
}

TEST(LoadFabula, ReadsMinusOneAndOneAsTruth) {
    const Reading game = File("5|advnum|1\n5|sound|-1\n5|graphics|1\n5|charsets|0\n");
    EXPECT_EQ(game.Number(TableNum::Adventure, "advnum='1'", "sound"), 1);
    EXPECT_EQ(game.Number(TableNum::Adventure, "advnum='1'", "graphics"), 1);
    EXPECT_EQ(game.Number(TableNum::Adventure, "advnum='1'", "charsets"), 0);
    EXPECT_EQ(game.faults, 0);
}

TEST(LoadFabula, ReadsDates) {
    EXPECT_EQ(File("5|advnum|1\n5|DateCreated|2001-03-05 14:07:09\n")
                  .Text(TableNum::Adventure, "advnum='1'", "datecreated"),
              "2001-03-05 14:07:09");
}

TEST(LoadFabula, TheSettingsAreOneRecordWhateverTheFileCallsIt) {
    const Reading game = File("5|advnum|7\n5|advname|The Cellar\n");
    EXPECT_EQ(game.Count(TableNum::Adventure, "advname<>''"), 1);
    EXPECT_EQ(game.Text(TableNum::Adventure, "advnum='7'", "advname"), "The Cellar");
}

TEST(LoadFabula, TheSettingsNeedNoKey) {
    EXPECT_EQ(
        File("5|advname|The Cellar\n5|startloc|3\n").Text(TableNum::Adventure, "startloc=3", "advname"),
        "The Cellar");
}

TEST(LoadFabula, TakesTablesInAnyOrder) {
    const Reading game = File(
        "1|locnum|0\n1|numericexits|2 1\n2|msgnum|0\n2|msgmsg|x\n8|vocindex|50\n8|vocnum|2\n"
        "8|voctypen|2\n8|word|NORTH\n2|msgnum|1\n2|msgmsg|y\n");
    EXPECT_TRUE(game.ok) << game.status;
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "exits"), "NORTH 1");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=1", "msgmsg"), "y");
}

TEST(LoadFabula, BlankLinesArePassedOver) {
    EXPECT_TRUE(File("\n2|msgnum|3\n\n2|msgmsg|x\n\n").ok);
}

TEST(LoadFabula, AMadeUpFileOfTwoRoomsComesInWhole) {
    const Reading game = File(
        "5|advname|The Cellar\n5|startloc|0\n"
        "8|vocindex|1\n8|word|NORTH\n8|vocnum|2\n8|voctypen|2\n"
        "8|vocindex|2\n8|word|_\n8|vocnum|255\n8|voctypen|7\n"
        "1|locnum|0\n1|locshortdesc|Cellar\n1|locdesc|A damp cellar.<CR>Steps lead north.\n1|numexits|2\n"
        "1|numericexits|2 1\n1|locnum|1\n1|locshortdesc|Stairs\n1|locdesc|Stone stairs.\n1|numexits|0\n"
        "1|numericexits|\n4|objnum|0\n4|objdesc|A rusty "
        "key\n4|objnumnoun|7\n4|objnumadject|255\n4|objloc|0\n"
        "4|objattrn|0\n2|msgnum|3\n2|msgmsg|It is too dark.\n"
        "6|canum|1\n6|estype|1\n6|w1num|255\n6|w2num|255\n6|numericcondacts|101 0 265\n"
        "9|flgnum|0\n9|flgdesc|Dark flag\n");
    EXPECT_TRUE(game.ok) << game.status;
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "locdesc"),
              "A damp cellar.\u008CSteps lead north.");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "exits"), "NORTH 1");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=1", "exits"), "");
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "vocindex=1", "voctype"), "Noun");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objnoun"), "") << "there is no word 7";
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objadject"), "_");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "At 0");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=1", "w1"), "_");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=1", "condacts"), "AT 0 DONE");
    EXPECT_EQ(game.Text(TableNum::Flags, "flgnum=0", "flgdesc"), "Dark flag");
}

TEST(CompanionTexts, NameTheAttributesOfAnObject) {
    const Reading game = File(
        "4|objnum|0\n4|objattrn|0\n4|objnum|1\n4|objattrn|1\n4|objnum|2\n4|objattrn|2\n"
        "4|objnum|3\n4|objattrn|3\n");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objattr"), "");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=1", "objattr"), "C");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=2", "objattr"), "WR");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=3", "objattr"), "CWR");
}

TEST(CompanionTexts, NameThePlaceOfAnObject) {
    const Reading game = File(
        "4|objnum|0\n4|objloc|251\n4|objnum|1\n4|objloc|252\n4|objnum|2\n4|objloc|253\n"
        "4|objnum|3\n4|objloc|254\n4|objnum|4\n4|objloc|300\n");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "At 251");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=1", "objlocdesc"), "Not Created");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=2", "objlocdesc"), "Worn");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=3", "objlocdesc"), "Carried");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=4", "objlocdesc"), "At 300");
}

TEST(CompanionTexts, NameTheTypesOfWords) {
    const Reading game = File(
        "8|vocindex|30\n8|word|A\n8|voctypen|0\n8|vocindex|31\n8|word|B\n8|voctypen|5\n"
        "8|vocindex|32\n8|word|C\n8|voctypen|7\n");
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "vocindex=30", "voctype"), "Verb");
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "vocindex=31", "voctype"), "Conjugation");
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "vocindex=32", "voctype"), "RESERVED");
}

TEST(CompanionTexts, TakeWordsOfTheTypesOfTheirField) {
    const Reading game = File(
        "8|vocindex|30\n8|word|GET\n8|vocnum|50\n8|voctypen|0\n"
        "8|vocindex|31\n8|word|LAMP\n8|vocnum|50\n8|voctypen|2\n"
        "8|vocindex|32\n8|word|RED\n8|vocnum|50\n8|voctypen|3\n"
        "4|objnum|0\n4|objnumnoun|50\n4|objnumadject|50\n"
        "6|canum|0\n6|w1num|50\n6|w2num|50\n6|numericcondacts|124 50 121 50\n");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objnoun"), "LAMP");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objadject"), "RED");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "w1"), "GET");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "w2"), "LAMP");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "NOUN2 LAMP ADJECT1 RED");
}

TEST(CompanionTexts, AnUnknownWordIsEmptyAndDoesNotStopTheLoad) {
    const Reading game = File("6|canum|0\n6|w1num|99\n6|w2num|99\n1|locnum|0\n1|numericexits|99 0\n");
    EXPECT_TRUE(game.ok);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "w1"), "");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "exits"), "0");
}

void ExpectRefused(const std::string& lines, const std::string& why) {
    const Reading game = File(lines);
    EXPECT_FALSE(game.ok) << lines;
    EXPECT_NE(game.status.find(why), std::string::npos) << game.status;
    EXPECT_EQ(game.faults, 1);
}

TEST(LoadFabula, RefusesALineThatIsNoFieldAndTellsWhere) {
    ExpectRefused("2|msgnum|3\nnonsense\n",
                  "game.ext:3:1: fault: The line does not begin with the number of a table.\n");
    ExpectRefused("99|x|y\n", "The line does not begin with the number of a table.");
    ExpectRefused(std::to_string(store::kHighestTable + 1) + "|x|y\n",
                  "The line does not begin with the number of a table.");
    ExpectRefused("-1|x|y\n", "The line does not begin with the number of a table.");
}

TEST(LoadFabula, RefusesAFieldThatDoesNotTravel) {
    ExpectRefused("2|msgnum|3\n2|colour|red\n", "The table has no field of this name that travels.");
    ExpectRefused("1|locnum|0\n1|exits|NORTH 1\n", "The table has no field of this name that travels.");
    ExpectRefused("12|fieldname|x\n", "The table has no field of this name that travels.");
    ExpectRefused("13|x|1\n", "The table has no field of this name that travels.");
}

TEST(LoadFabula, RefusesAValueThatIsNotOfItsType) {
    ExpectRefused("2|msgnum|three\n", "The value is not of the type of its field.");
    ExpectRefused("5|advnum|1\n5|sound|maybe\n", "The value is not of the type of its field.");
    ExpectRefused("5|advnum|1\n5|DateCreated|yesterday\n", "The value is not of the type of its field.");
    ExpectRefused("5|advnum|1\n5|DateCreated|2001/03/05 14:07:09\n",
                  "The value is not of the type of its field.");
    ExpectRefused("2|msgnum|99999\n", "game.ext:2:10: fault: ");
    ExpectRefused("5|advnum|1\n5|author|" + std::string(300, 'x') + "\n", "game.ext:3:10: fault: ");
}

TEST(LoadFabula, RefusesAListOfConditionsThatLacksAParameter) {
    ExpectRefused("6|canum|1\n6|estype|1\n6|numericcondacts|101\n",
                  "No parameter where there should be one");
}

TEST(LoadFabula, RefusesARecordWithoutItsKey) {
    ExpectRefused("2|msgmsg|x\n", "The line stands before the key of its record.");
    ExpectRefused("2|msgnum|\n", "The key of a record must be a number.");
}

TEST(LoadFabula, RecordsOfATableThatDoesNotTravelAreToldAndPassedOver) {
    const Reading game = File("3|sndnum|1\n2|msgnum|3\n2|msgmsg|x\n3|sndnum|2\n");
    EXPECT_TRUE(game.ok) << game.status;
    EXPECT_TRUE(game.ToldAt(2, "The record belongs to a table that is not loaded."));
    EXPECT_EQ(game.faults, 2);
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=3", "msgmsg"), "x");
}

TEST(LoadFabula, DefaultWordsThatTheAuthorDeletedDoNotComeBack) {
    const Reading game = File("8|vocindex|500\n8|word|LAMP\n8|vocnum|50\n8|voctypen|2\n");
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "voctypen<>7"), 1);
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "voctypen=2", "word"), "LAMP");
    EXPECT_GT(game.Count(TableNum::Vocabulary, "voctypen=7"), 0) << "the reserved words are the system's";
}

TEST(LoadFabula, AFileWithoutAVocabularyKeepsTheDefaultWords) {
    EXPECT_GT(File("2|msgnum|3\n").Count(TableNum::Vocabulary, "voctypen<>7"), 1);
}

TEST(SetupOfExport, IsTheTypeThatTheSettingsName) {
    const test::TempFolder folder;
    std::ofstream(folder / "a.ext") << "4.0.0\n5|advnum|1\n5|AdvenType|Marlo\n8|vocindex|1\n";
    EXPECT_EQ(SetupOfExport(folder / "a.ext").Type(), store::AdventureKind::Marlo);
    EXPECT_TRUE(SetupOfExport(folder / "a.ext").CharSets());
}

TEST(SetupOfExport, IsFabulaWhereTheSettingsNameNone) {
    const test::TempFolder folder;
    std::ofstream(folder / "a.ext") << "4.0.0\n2|msgnum|1\n5|AdvenType|Marlo\n";
    EXPECT_EQ(SetupOfExport(folder / "a.ext").Type(), store::AdventureKind::Fabula);
}

}  // namespace
}  // namespace fabula::interchange
