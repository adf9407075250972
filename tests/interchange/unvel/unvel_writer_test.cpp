#include "interchange/unvel/unvel_writer.h"

#include <fstream>

#include <gtest/gtest.h>

#include "interchange/reading.h"
#include "support/games/listing_writers.h"

namespace fabula::interchange {
namespace {

using store::AdventureKind;
using store::TableNum;

/// What is written of an adventure, and what is told.
struct WrittenExtract {
    WrittenExtract(store::Adventure& adventure, const std::string& version = "") {
        const test::TempFolder folder;
        NoObserver nobody;
        JobStatus jobStatus(nobody);
        ExportContext context{adventure, folder / "out.pex", person, jobStatus, version};
        ok = ExportUnVel(context);
        status = jobStatus.Text();
        std::ifstream file(folder / "out.pex", std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    bool Has(const std::string& lines) const { return text.find(lines) != std::string::npos; }

    platform::ScriptedPerson person;
    bool ok = false;
    std::string status;
    std::string text;
};

void AddRecord(store::Adventure& adventure, TableNum table,
               std::initializer_list<std::pair<const char*, text::Value>> fields) {
    store::Cursor& record = adventure.OpenTable(table, "def");
    record.AddNew();
    for (const auto& [field, value] : fields)
        record.SetField(field, value);
    record.Update();
}

void AddEntry(store::Adventure& adventure, int table, const char* w1, const char* w2,
              const char* condActs) {
    AddRecord(adventure, TableNum::ProcessTables,
              {{"canum", std::int64_t{adventure.OpenTable(TableNum::ProcessTables, "canum").RecordCount()}},
               {"estype", std::int64_t{table}},
               {"w1", std::string(w1)},
               {"w2", std::string(w2)},
               {"condacts", std::string(condActs)}});
}

void AddWord(store::Adventure& adventure, const char* word, int number) {
    AddRecord(adventure, TableNum::Vocabulary,
              {{"vocindex", std::int64_t{900 + number}},
               {"vocnum", std::int64_t{number}},
               {"word", std::string(word)},
               {"voctypen", std::int64_t{2}},
               {"voctype", std::string("Noun")}});
}

void AddObject(store::Adventure& adventure, int number, int place) {
    AddRecord(adventure, TableNum::Objects,
              {{"objnum", std::int64_t{number}},
               {"objdesc", std::string("a lamp")},
               {"objnoun", std::string("LAMP")},
               {"objnumnoun", std::int64_t{50}},
               {"objadject", std::string("_")},
               {"objnumadject", std::int64_t{255}},
               {"objloc", std::int64_t{place}},
               {"objweight", std::int64_t{5}},
               {"objattrn", std::int64_t{3}}});
}

TEST(UnVelWriter, TheHeadNamesGameProgramAndForm) {
    const test::OpenedAdventure vel(AdventureKind::Vel);
    EXPECT_TRUE(WrittenExtract(*vel).text.starts_with(
        "VEL Database: New Adventure\r\n"
        "Extracted in UnVels format by Fabula Extract Version 4.0.0\r\n"
        "5.0.0\r\n\r\nGeneral data\r\n------------\r\n"));
    const test::OpenedAdventure marlo(AdventureKind::Marlo);
    EXPECT_TRUE(WrittenExtract(*marlo).text.starts_with("Marlo Database: New Adventure\r\n"));
}

TEST(UnVelWriter, TheFormIsAskedForOrThatOfTheSettingsOrTheNewest) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    EXPECT_TRUE(WrittenExtract(*game).Has("\r\n5.0.0\r\n"));
    store::Cursor& settings = game->OpenTable(TableNum::Adventure, "def");
    settings.SetField("version", std::string("2.2.0"));
    settings.Update();
    EXPECT_TRUE(WrittenExtract(*game).Has("\r\n2.2.0\r\n"));
    EXPECT_TRUE(WrittenExtract(*game, "2.1.0").Has("\r\n2.1.0\r\n"));
}

TEST(UnVelWriter, TwoWordsOfOneSpellingAreBothWritten) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddWord(*game, "GLEAM", 60);
    AddWord(*game, "GLEAM", 61);
    const WrittenExtract extract(*game);
    EXPECT_TRUE(extract.Has("GLEAM   60Noun\r\n")) << extract.text;
    EXPECT_TRUE(extract.Has("GLEAM   61Noun\r\n")) << extract.text;
    EXPECT_EQ(extract.status.find("another word"), std::string::npos) << extract.status;
}

TEST(UnVelWriter, AWordThatNeedsNoCutComesBeforeThoseThatBecomeIt) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddWord(*game, "QUARTERMASTER", 60);
    AddWord(*game, "QUART", 61);
    const WrittenExtract extract(*game);
    EXPECT_TRUE(extract.Has("QUART   61Noun\r\n")) << extract.text;
    EXPECT_EQ(extract.text.find("QUART   60"), std::string::npos);
    EXPECT_NE(extract.status.find(
                  "the word QUARTERMASTER would be QUART, which is another word. It is left out."),
              std::string::npos)
        << extract.status;
}

TEST(UnVelWriter, AWordThatIsCutToAnotherOneIsLeftOutAndTold) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddWord(*game, "QUARTER", 60);
    AddWord(*game, "QUARTERMASTER", 61);
    AddWord(*game, "QUARTERS", 60);
    const WrittenExtract extract(*game);
    EXPECT_TRUE(extract.Has("QUART   60Noun\r\n")) << extract.text;
    EXPECT_EQ(extract.text.find("QUART"), extract.text.rfind("QUART")) << "one word is written once";
    EXPECT_NE(extract.status.find(
                  "the word QUARTERMASTER would be QUART, which is another word. It is left out."),
              std::string::npos)
        << extract.status;
}

TEST(UnVelWriter, AFormThatIsUnknownIsRefused) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    const WrittenExtract extract(*game, "3.0.0");
    EXPECT_FALSE(extract.ok);
    EXPECT_EQ(extract.status, "UnVel extracts have no version 3.0.0.\n");
}

TEST(UnVelWriter, TheOldestFormHasTheSpellingsOfItsTime) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    EXPECT_TRUE(WrittenExtract(*game, "2.0.0").Has("\r\nOjects  "));
    EXPECT_TRUE(WrittenExtract(*game, "2.0.0").Has("INITIALY AT\r\n-----------\r\n"));
    EXPECT_TRUE(WrittenExtract(*game, "2.1.0").Has("\r\nObjects  "));
    EXPECT_TRUE(WrittenExtract(*game, "2.1.0").Has("INITIALLY AT\r\n------------\r\n"));
}

TEST(UnVelWriter, CommentsStandAtTheEndAndComeBack) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    EXPECT_FALSE(WrittenExtract(*game).Has("COMMENTS")) << "where there are none";
    AddEntry(*game, 0, "_", "_", "");
    AddEntry(*game, 1, "_", "_", "DESC");
    AddEntry(*game, 0, "_", "_", "INVEN");
    const auto comment = [&](TableNum table, const char* where, const char* text) {
        store::Cursor& record = game->OpenTable(table, "def", std::string_view(where));
        record.SetField("comment", std::string(text));
        record.Update();
    };
    comment(TableNum::ProcessTables, "canum=1", "Every\u008Cturn");
    comment(TableNum::ProcessTables, "canum=2", "What one has");
    comment(TableNum::Locations, "locnum=0", "The hall");
    comment(TableNum::Flags, "flgnum=60", "Oil");
    const WrittenExtract extract(*game);
    EXPECT_TRUE(
        extract.Has("\r\n; COMMENTS\r\n; --------\r\n"
                    "; ! Locations 0 comment The hall\r\n"
                    "; ! Flags 60 comment Oil\r\n"
                    "; ! ProcessTables 0 comment What one has\r\n"
                    "; ! ProcessTables 1 comment Every<CR>turn\r\n"))
        << extract.text;
    const Reading again("unvel", extract.text);
    EXPECT_EQ(again.Text(TableNum::ProcessTables, "condacts='INVEN'", "comment"), "What one has");
    EXPECT_EQ(again.Text(TableNum::ProcessTables, "condacts='DESC'", "comment"), "Every\u008Cturn");
    EXPECT_EQ(again.Text(TableNum::Locations, "locnum=0", "comment"), "The hall");
    EXPECT_EQ(again.Text(TableNum::Flags, "flgnum=60", "comment"), "Oil");
    EXPECT_EQ(again.faults, 0) << again.status;
}

TEST(UnVelWriter, ConnectionsStandInColumns) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    store::Cursor& location = game->OpenTable(TableNum::Locations, "def");
    location.SetField("exits", std::string("N 5 SOUTH 123"));
    location.SetField("numexits", std::int64_t{4});
    location.Update();
    EXPECT_TRUE(WrittenExtract(*game).Has("Location   0:  N      5\r\n               SOUTH123\r\n"));
    EXPECT_TRUE(
        WrittenExtract(*game, "2.0.0").Has("Location   0:  N      5\r\n                SOUTH123\r\n"));
}

TEST(UnVelWriter, ObjectsStandInFourSections) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddObject(*game, 0, 252);
    AddObject(*game, 1, 7);
    const WrittenExtract extract(*game);
    EXPECT_TRUE(extract.Has("OBJECT NAMES\r\n------------\r\nObject   0\r\na lamp\r\n"));
    EXPECT_TRUE(extract.Has("OBJECT WORDS\r\n------------\r\nObject   0    LAMP _\r\n"));
    EXPECT_TRUE(extract.Has("INITIALLY AT\r\n------------\r\nObject   0  NC\r\nObject   1  7\r\n"));
    EXPECT_TRUE(extract.Has("Object   0:  weights  5    CW\r\n"));
}

TEST(UnVelWriter, EntriesStandInColumns) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddEntry(*game, 0, "GET", "_", "EQ 11 5 PREP UNDER OK");
    EXPECT_TRUE(
        WrittenExtract(*game).Has("RESPONSE TABLE\r\n--------------\r\n"
                                  "GET   -          EQ            11   5\r\n"
                                  "                 PREP         206\r\n"
                                  "                 OK\r\n"));
}

TEST(UnVelWriter, CondActsOfThisSystemAloneAreNamedAndNothingIsWritten) {
    const test::OpenedAdventure game;
    AddEntry(*game, 0, "_", "_", "SOUND 5 AGAIN");
    const WrittenExtract extract(*game);
    EXPECT_FALSE(extract.ok);
    EXPECT_EQ(extract.text, "");
    EXPECT_EQ(extract.status,
              "Use of AGAIN Condition/Action. This is not a valid Vel Condition/Action.\n"
              "Use of SOUND Condition/Action. This is not a valid Vel Condition/Action.\n");
}

TEST(UnVelWriter, PicturesAreWrittenInTheColumnsOfTheirCommands) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddRecord(*game, TableNum::Pictures,
              {{"locnum", std::int64_t{0}},
               {"loctype", std::string("Picture")},
               {"locink", std::int64_t{1}},
               {"locpaper", std::int64_t{7}},
               {"drawstring",
                std::string("ABSMOVE 12 34 RELMOVE -12 7 LINE 11 0 -20 SHADE 1 2 3 35 TEXT 10 0 65 3 4 "
                            "BLOCK 1 2 3 4 GOSUB sc=4 12 INK 3 END")}});
    EXPECT_TRUE(
        WrittenExtract(*game).Has("Location   0 graphics flags: Picture     Ink=1 Paper=7 Bit6=0\r\n"
                                  "ABS MOVE     012  034\r\n"
                                  "REL MOVE    -012  007\r\n"
                                  "LINE     oi  000 -020\r\n"
                                  "SHADE     i  002  003  035\r\n"
                                  "TEXT     o   000  065  003  004\r\n"
                                  "BLOCK        001  002  003  004\r\n"
                                  "GOSUB     sc=4  012\r\n"
                                  "INK          003\r\n"
                                  "END\r\n"));
}

TEST(UnVelWriter, WhatWillNotComeBackIsTold) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    AddRecord(*game, TableNum::Messages, {{"msgnum", std::int64_t{0}}, {"msgmsg", std::string("<INK>")}});
    AddRecord(*game, TableNum::Messages,
              {{"msgnum", std::int64_t{1}}, {"msgmsg", std::string("Message   7")}});
    AddEntry(*game, 0, "_", "_", "");
    const WrittenExtract extract(*game);
    EXPECT_TRUE(extract.ok);
    EXPECT_EQ(extract.status,
              "Messages 0: the text will not come back as it is.\n"
              "Messages 1: the text will not come back as it is.\n"
              "ProcessTables 0: an entry without conditions and actions is not written.\n");
}

TEST(UnVelWriter, TheEndIsTold) {
    const test::OpenedAdventure game(AdventureKind::Vel);
    const WrittenExtract extract(*game);
    EXPECT_EQ(extract.person.Boxes().back().text, "UnVel Export completed");
}

TEST(ExportUnVel, ACharacterThatCannotBeWrittenIsAQuestionMarkAndALoss) {
    const test::OpenedAdventure adventure;
    store::Cursor& messages = adventure->OpenTable(store::TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", 5);
    messages.SetField("msgmsg", "Say 中.");
    messages.Update();
    std::string status;
    EXPECT_NE(Written(*adventure, "unvel", &status).find("Say ?.\r\n"), std::string::npos);
    EXPECT_NE(status.find("the character U+4E2D can't be written."), std::string::npos) << status;
}

}  // namespace
}  // namespace fabula::interchange
