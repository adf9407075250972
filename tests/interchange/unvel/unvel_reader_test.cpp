#include <gtest/gtest.h>

#include "interchange/reading.h"
#include "interchange/unvel/unvel_general_data.h"
#include "support/decimal_comma.h"
#include "support/games/listing_writers.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr const char* kCharacters = "\nCharset 0\n";

std::string Section(const std::string& title, const std::string& lines) {
    return "\n" + title + "\n" + std::string(title.size(), '-') + "\n" + lines;
}

/// The parts of a listing; a test changes what it is about.
struct UnVelParts {
    std::string head = "VEL Database : The Mill\nExtracted by UnVELS v2.0\n";
    std::string general = "Default ink color                    6\n";
    std::string words =
        "GET     20Verb\nNORTH    2Noun\nLAMP    50Noun\nBRASS   60Adjetive\nUNDER  206Preposition\n";
    std::string texts = Section("MESSAGES", "Message   0\nHello.\n") +
                        Section("SYSTEM MESSAGES", "System Message   0\nDark.\n") +
                        Section("LOCATIONS", "Location   0\nA hall.\nLocation   1\nA cellar.\n");
    std::string connections = "Location   0:  NORTH  1\n";
    std::string objects = "Object   0\na lamp\n";
    std::string objectWords = "Object   0    LAMP BRASS\n";
    std::string places = Section("INITIALLY AT", "Object   0  NC\n");
    std::string weights = "Object   0:  weights  5    CW\n";
    std::string tables =
        Section("RESPONSE TABLE", "GET   LAMP       GET            0\n") + Section("PROCESS   1", "");
    std::string pictures = Section("GRAPHICS DATA", "");
    std::string characters = kCharacters;
    std::string rest;

    std::string Listing() const {
        return head + general + std::string(74, '-') + "\n" + Section("Vocabulary", words) + texts +
               Section("CONNECTIONS", connections) + Section("OBJECT NAMES", objects) +
               Section("OBJECT WORDS", objectWords) + places + Section("OBJECT WEIGHT AND TYPE", weights) +
               tables + pictures + characters + rest;
    }
};

Reading ReadUnVel(const UnVelParts& parts) {
    return Reading("unvel", parts.Listing());
}

std::string Box(const Reading& reading) {
    return reading.person.Boxes().empty() ? "" : reading.person.Boxes().back().text;
}

TEST(UnVelReader, AListingBecomesAGame) {
    const Reading game = ReadUnVel({});
    ASSERT_TRUE(game.ok) << game.status;
    EXPECT_EQ(game.faults, 0) << game.status;
    EXPECT_EQ(game.Text(TableNum::Adventure, "", "advname"), "The Mill");
    EXPECT_EQ(game.Number(TableNum::Adventure, "", "textcolor"), 6);
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "numericexits"), "2 1");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objadject"), "BRASS");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objnumadject"), 60);
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objweight"), 5);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "numericcondacts"), "201 0");
}

TEST(UnVelReader, CwIsStoredAsCwrWithThree) {
    const Reading game = ReadUnVel({});
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objattr"), "CWR");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objattrn"), 3);
}

TEST(UnVelReader, EachSectionTellsThatItIsDone) {
    const Reading game = ReadUnVel({});
    for (const char* line :
         {"Loaded UnVel Vocabulary", "Loaded Vel Messages", "Loaded Vel System Messages",
          "Loaded Vel Locations", "Loaded UnVel Location Connections", "Loaded Vel Object Names",
          "Loaded UnVel Object Words", "Loaded UnVel Object Locations",
          "Loaded UnVel Object Weight and Attributes", "Loaded UnVel Graphics", "Loaded UnVel Characters",
          "Commands have been added in the Status Table to control SCRIPT (SCRI) and GRAPHICS (GRAP)."}) {
        EXPECT_TRUE(game.Told(line)) << line << "\n" << game.status;
    }
}

TEST(UnVelReader, AFileWithoutADatabaseIsRefused) {
    const Reading game("unvel", "Anything\nat all\n");
    EXPECT_FALSE(game.ok);
    EXPECT_EQ(Box(game), "Not an UnVEL file");
    EXPECT_EQ(game.person.Boxes().back().title, "Error");
}

TEST(UnVelReader, AnUnknownVersionIsRefusedWithItsLine) {
    UnVelParts parts;
    parts.head = "VEL Database : The Mill\nExtracted by UnVELS v9.9\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_FALSE(game.ok);
    EXPECT_EQ(
        Box(game),
        "Incorrect version of UnVels. Let the makers of Fabula know about 'Extracted by UnVELS v9.9'");
}

TEST(UnVelReader, AVelGameOfTheFirstVersionIsRefused) {
    UnVelParts parts;
    parts.head = "VEL Database : The Mill\nExtracted by UnVELS 0.1 Beta\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_FALSE(game.ok);
    EXPECT_EQ(Box(game),
              "This version of UnVels is < 1.0. It is not compatible with Fabula 4.0 and Vel snapshots. It "
              "does not "
              "support characters and Graphics correctly.");
}

TEST(UnVelReader, AMarloGameOfAVersionBelowTwoIsRefused) {
    UnVelParts parts;
    parts.head = "Marlo Database : The Mill\nExtracted by UnVELS v1.1\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_FALSE(game.ok);
    EXPECT_EQ(Box(game),
              "This version of UnVels is < 2.0. It is not compatible with Fabula 4.0 and Marlo snapshots. "
              "It does "
              "not support characters and Graphics correctly.");
}

TEST(UnVelReader, EveryVersionOfTheTableIsTakenForVel) {
    for (const char* version : {"VELS 1.0", "on 2.1.0", "ELS v1.1", "S32 v1.1", "on 2.2.0", "on 4.0.0",
                                "v2.0beta", "ELS v2.0", "S32 v2.0", "ELS v2.1", "S32 v2.1", "on 5.0.0"}) {
        UnVelParts parts;
        parts.head = std::string("VEL Database : The Mill\nExtracted with ") + version + "  \n";
        EXPECT_TRUE(ReadUnVel(parts).ok) << version;
    }
}

TEST(UnVelReader, TheDatabaseLineNeedsNoBlank) {
    UnVelParts parts;
    parts.head = "VEL Database: The Mill\nExtracted by UnVELS v2.0\n";
    EXPECT_EQ(ReadUnVel(parts).Text(TableNum::Adventure, "", "advname"), "The Mill");
}

TEST(UnVelReader, TheSpellingsOfTheFirstVersionAreTaken) {
    UnVelParts parts;
    parts.general += "Ojects                               1\n";
    parts.places = Section("INITIALY AT", "Object   0  C\n");
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "Carried.");
}

TEST(UnVelReader, PlacesHaveLettersOrNumbers) {
    UnVelParts parts;
    parts.objects = "Object   0\na\nObject   1\nb\nObject   2\nc\nObject   3\nd\n";
    parts.places = Section("INITIALLY AT", "Object   0  NC\nObject   1  W\nObject   2  C\nObject   3  1\n");
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "Not created.");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=1", "objloc"), 253);
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=2", "objloc"), 254);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=3", "objlocdesc"), "In Room 1.");
}

TEST(UnVelReader, TypesOfWordsAreThoseOfTheListAndElseNouns) {
    UnVelParts parts;
    parts.words =
        "A        2Adverb\nB        3Adjective\nC        4Conj.\nD        5Conjunction\nE        "
        "6Conjugation\n"
        "F        7Pronoun\nG        8RESERVED\nH        9Thing\nI       10\n";
    parts.connections.clear();
    parts.tables = Section("RESPONSE TABLE", "");
    const Reading game = ReadUnVel(parts);
    const auto type = [&](const char* where) {
        return game.Number(TableNum::Vocabulary, where, "voctypen");
    };
    EXPECT_EQ(type("word='A'"), 1);
    EXPECT_EQ(type("word='B'"), 3);
    EXPECT_EQ(type("word='C'"), 5);
    EXPECT_EQ(type("word='D'"), 5);
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "word='D'", "voctype"), "Conjugation");
    EXPECT_EQ(type("word='E'"), 5);
    EXPECT_EQ(type("word='F'"), 6);
    EXPECT_EQ(type("word='G'"), 7);
    EXPECT_EQ(type("word='H'"), 2);
    EXPECT_EQ(type("word='I'"), 2);
}

TEST(UnVelReader, AWordTwiceIsToldAsSuch) {
    UnVelParts parts;
    parts.words += "LAMP    51Noun\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_NE(game.status.find("ERROR: Duplicate Word. Word LAMP deleted."), std::string::npos)
        << game.status;
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='LAMP'", "vocnum"), 50);
}

TEST(UnVelReader, TheGamesOwnWordsGoBeforeTheDefaultOnes) {
    const Reading game = ReadUnVel({});
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='UNDER'"), 1);
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='UNDER'", "vocnum"), 206);
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='_'"), 1);
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='WITH' and voctypen=4"), 1);
}

TEST(UnVelReader, NumbersOfWordConditionsBecomeWords) {
    UnVelParts parts;
    parts.tables = Section("RESPONSE TABLE",
                           "GET   LAMP       PREP         206\n                 NOUN2         50\n"
                           "                 ADJECT1      255\n                 OK\n");
    EXPECT_EQ(ReadUnVel(parts).Text(TableNum::ProcessTables, "canum=0", "condacts"),
              "PREP UNDER NOUN2 LAMP ADJECT1 _ OK");
}

TEST(UnVelReader, AWordNumberThatIsNotThereIsReported) {
    UnVelParts parts;
    parts.tables = Section("RESPONSE TABLE", "GET   LAMP       PREP          99\n                 OK\n");
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.faults, 1);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "OK");
}

TEST(UnVelReader, ExternStaysAsItStands) {
    UnVelParts parts;
    parts.tables = Section("RESPONSE TABLE", "-     -          EXTERN         7\n");
    EXPECT_EQ(ReadUnVel(parts).Text(TableNum::ProcessTables, "canum=0", "condacts"), "EXTERN 7");
}

TEST(UnVelReader, ADashIsTheWordThatFitsAny) {
    UnVelParts parts;
    parts.tables = Section("RESPONSE TABLE", "-     LAMP       OK\n");
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "w1"), "_");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "w1num"), 255);
}

TEST(UnVelReader, ProcessTablesFromThreeUpGetADescription) {
    UnVelParts parts;
    parts.tables += Section("PROCESS   2", "") + Section("PROCESS   3", "-     -          OK\n") +
                    Section("PROCESS   5", "");
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.Count(TableNum::ProcDesc, "pmsgnum=3 or pmsgnum=5"), 2);
    EXPECT_EQ(game.Count(TableNum::ProcDesc, "pmsgnum=4"), 0);
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "estype=3", "canum"), 1);
}

TEST(UnVelReader, AVelGameGetsTheCommandsOfTheScript) {
    const Reading game = ReadUnVel({});
    const auto script = game.Number(TableNum::Vocabulary, "word='SCRIP' and voctypen=2", "vocnum");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "condacts='PREP ON SCRIPT 1'", "w2num"), script);
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "w1='LOAD' and w2='SCRIP'", "w2num"), script);
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='LOAD' and voctypen=0"), 1);
}

TEST(UnVelReader, EntriesOfTurnGraphAreRewritten) {
    UnVelParts parts;
    parts.words += "TURN    21Verb\nGRAPH   51Noun\nON     204Preposition\n";
    parts.tables =
        Section("RESPONSE TABLE", "TURN  GRAPH      PREP         204\n                 PICTURE        0\n");
    EXPECT_EQ(ReadUnVel(parts).Text(TableNum::ProcessTables, "canum=0", "condacts"),
              "PREP ON GRAPHIC 1 DESC");
}

TEST(UnVelReader, AListingWithoutPicturesAndCharactersIsRefused) {
    UnVelParts parts;
    parts.pictures.clear();
    parts.characters.clear();
    const Reading game = ReadUnVel(parts);
    EXPECT_FALSE(game.ok);
    EXPECT_TRUE(
        game.Told("Character sets and graphics not found. -C -G option not on UnVel\nLoad aborted"));
}

TEST(UnVelReader, AListingWithoutCharactersSaysSo) {
    UnVelParts parts;
    parts.characters.clear();
    const Reading game = ReadUnVel(parts);
    EXPECT_TRUE(game.ok);
    EXPECT_TRUE(game.Told("Character sets not found. -C option not on UnVel"));
}

TEST(UnVelReader, CharactersMayComeBeforePictures) {
    UnVelParts parts;
    std::swap(parts.pictures, parts.characters);
    parts.characters += "Location   0 graphics flags: Picture     Ink=1 Paper=2 Bit6=0\nEND\n";
    EXPECT_EQ(ReadUnVel(parts).Number(TableNum::Pictures, "locnum=0", "locpaper"), 2);
}

TEST(UnVelReader, ACommandThatIsNoneIsReported) {
    UnVelParts parts;
    parts.pictures +=
        "Location   0 graphics flags: Picture     Ink=1 Paper=2 Bit6=0\nSPLASH   001\n"
        "INVERSE   001\nINK  003\nEND\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_TRUE(game.Told("Command SPLASH not found in Command Table")) << game.status;
    EXPECT_TRUE(game.Told("Command INVERSE not found in Command Table")) << game.status;
    EXPECT_EQ(game.Text(TableNum::Pictures, "locnum=0", "drawstring"), "INK 3 END");
}

TEST(UnVelReader, APictureWithoutALocationIsDropped) {
    UnVelParts parts;
    parts.pictures += "Location  77 graphics flags: Picture     Ink=1 Paper=2 Bit6=0\nEND\n";
    EXPECT_EQ(ReadUnVel(parts).Count(TableNum::Pictures, "locnum>=0"), 0);
}

TEST(UnVelReader, SetsOfCharactersAreNamedAfterTheGame) {
    UnVelParts parts;
    parts.characters +=
        "static char font_bits_2[] = {\n 0x80, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};\n"
        "static char shade_bits[] = {\n 0xff, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};\n"
        "static char odd_bits[] = {\n 0xff};\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.Text(TableNum::Characters, "charkey=2032", "charvals"), "1 0 0 0 0 0 0 0");
    EXPECT_EQ(game.Text(TableNum::Characters, "charkey=2032", "charset"), "SET 0002");
    EXPECT_TRUE(game.Text(TableNum::Characters, "charkey=2032", "charsetname").ends_with(" Set 2"));
    EXPECT_EQ(game.Text(TableNum::Characters, "charkey=0", "charvals"), "255 0 0 0 0 0 0 0");
    EXPECT_TRUE(game.Told("Invalid data odd_bits"));
}

TEST(UnVelReader, ASectionThatComesTooLateIsPassedOver) {
    UnVelParts parts;
    parts.rest = Section("MESSAGES", "Message   0\nToo late.\n");
    const Reading game = ReadUnVel(parts);
    EXPECT_TRUE(game.ok);
    EXPECT_EQ(game.faults, 1);
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "Hello.");
}

TEST(UnVelReader, DescriptionsOfFlagsStandInPlaceOfTheMarks) {
    UnVelParts parts;
    parts.tables =
        Section("RESPONSE TABLE", "-     -          SET           60\n                 SET           61\n");
    EXPECT_EQ(ReadUnVel(parts).Text(TableNum::Flags, "flgnum=60", "flgdesc"), "Used by this Adventure.");
    parts.rest =
        "\n; FLAG DESCRIPTIONS\n; -----------------\n; This section was added to give documentation on the "
        "Flags\n; Flag    60\n; The lamp is lit\n";
    const Reading game = ReadUnVel(parts);
    EXPECT_EQ(game.Text(TableNum::Flags, "flgnum=60", "flgdesc"), "The lamp is lit");
    EXPECT_EQ(game.Text(TableNum::Flags, "flgnum=61", "flgdesc"), "");
}

TEST(UnVelReader, AListingCutAtAnyLineIsRefusedOrRead) {
    const std::string listing = UnVelListing(test::RandomListedGame(false, 5));
    const std::size_t end = listing.find("\nGRAPHICS DATA\n-");
    int lines = 0;
    for (std::size_t at = listing.find('\n'); at != std::string::npos; at = listing.find('\n', at + 1)) {
        if (++lines % 9 != 0) continue;  // each cut is a whole import
        const Reading game("unvel", listing.substr(0, at + 1));
        ASSERT_EQ(game.ok, at > end + 14) << lines << "\n" << game.status;
    }
}

TEST(UnVelReader, ALineOfTenMegabytesIsAText) {
    UnVelParts parts;
    parts.texts = Section("MESSAGES", "Message   0\n" + std::string(10'000'000, 'x') + "\n") +
                  Section("LOCATIONS", "Location   0\nA hall.\nLocation   1\nA cellar.\n");
    EXPECT_EQ(ReadUnVel(parts).Text(TableNum::Messages, "msgnum=0", "msgmsg").size(), 10'000'000U);
}

TEST(GetColor, FractionsAreSevenAboveSixAndElseZero) {
    EXPECT_EQ(GetColor("6.5"), 7);
    EXPECT_EQ(GetColor("3.5"), 0);
    EXPECT_EQ(GetColor("15"), 15);
    EXPECT_EQ(GetColor("16"), std::nullopt);
    EXPECT_EQ(GetColor("red"), std::nullopt);
}

TEST(GetColor, AFractionHasAPointWhereTheDesktopCountsWithACommaToo) {
    const test::DecimalComma desktop;
    EXPECT_EQ(GetColor("16777215.0"), 7);
    EXPECT_EQ(GetColor("0.0"), 0);
    EXPECT_EQ(GetColor("16777215,0"), std::nullopt);
}

}  // namespace
}  // namespace fabula::interchange
