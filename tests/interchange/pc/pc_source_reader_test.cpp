#include <gtest/gtest.h>

#include "interchange/reading.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr const char* kReadWords =
    "NORTH 2 noun\nSOUTH 3 noun\nGO 20 verb\nLIGHT 21 verb\nLAMP 50 noun\nLIGHT 51 noun\nRED 2 adjective\n"
    "UNDER 6 preposition\n";
constexpr const char* kReadRooms = "/LTX\n/0\nHall.\n/1\nCellar.\n";

Reading PcGame(const std::string& sections) {
    return Reading("pcvel", PcSource(kReadWords, sections));
}
Reading AceGame(const std::string& sections) {
    return Reading("ace", PcSource(kReadWords, sections));
}

TEST(PcSource, TellsItsSteps) {
    const Reading game =
        PcGame("/STX\n/MTX\n/OTX\n/0\nA lamp\n/LTX\n/0\nHall.\n/CON\n/OBJ\n/PRO 0\n_ _ DONE\n");
    EXPECT_TRUE(game.ok);
    EXPECT_TRUE(game.Told("Look for a User Flag Analysis at end of Status"));
    EXPECT_TRUE(game.Told("Loaded VEL source Vocabulary"));
    EXPECT_TRUE(game.Told("Loaded Vel source Message Text"));
    EXPECT_TRUE(game.Told("Loaded Vel source Object Text"));
    EXPECT_TRUE(game.Told("Loaded Vel source Location Text"));
    EXPECT_TRUE(game.Told("Loaded Vel Source Location Connections"));
    EXPECT_TRUE(game.Told("Loaded Vel Source Object Definitions"));
    EXPECT_TRUE(game.Told("Loaded PCVEL Source Process Tables."));
    EXPECT_TRUE(game.Told("User Flag Analysis"));
    EXPECT_EQ(game.faults, 0) << game.status;
}

TEST(PcSource, WithoutACtlIsInvalid) {
    const Reading game("pcvel", "/VOC\nGO 20 verb\n");
    EXPECT_FALSE(game.ok);
    EXPECT_TRUE(game.Told("ERROR: Invalid file.\nCannot find /CTL keyword\nImport aborted"));
}

TEST(PcSource, WithoutAVocIsInvalid) {
    const Reading game("pcvel", "/CTL\n_\n");
    EXPECT_FALSE(game.ok);
    EXPECT_TRUE(
        game.Told("ERROR: Invalid file.\nCannot find /VOC keyword\nAdd it at the start of your vocabulary\n"
                  "Import aborted."));
}

TEST(PcSource, AnEmptyFileIsInvalid) {
    EXPECT_FALSE(Reading("pcvel", "").ok);
}

TEST(PcSource, TextBeforeTheCtlIsPassedOver) {
    EXPECT_TRUE(Reading("pcvel", "My old game\n/CTL\n_\n/VOC\nGO 20 verb\n").ok);
}

TEST(PcSource, KeywordsMayBeInLowerCase) {
    EXPECT_TRUE(Reading("pcvel", "/ctl\n_\n/voc\nGO 20 verb\n").ok);
}

TEST(PcSource, ASectionOutOfOrderIsPassedOver) {
    const Reading game = PcGame("/LTX\n/0\nHall.\n/MTX\n/0\nLate.\n/PRO 0\n_ _ DONE\n");
    EXPECT_TRUE(game.ToldAt(15, "ERROR: The section stands behind one that must follow it."));
    EXPECT_EQ(game.Count(TableNum::Messages, "msgnum>=0"), 0);
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "condacts='DONE'"), 1);
}

TEST(PcSource, DocumentationSectionsArePassedOver) {
    const Reading game = PcGame("/PRO 0\n_ _ DONE\n/FLG The flags\n/60\nDoor\n/PRD The tables\n/3\nSub\n");
    EXPECT_EQ(game.faults, 0) << game.status;
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "condacts='DONE'"), 1);
}

TEST(PcSource, TakesTheNameOfTheAdventureFromItsHead) {
    const Reading game("pcvel", "; Adventure Name: The Signal Box\n/CTL\n_\n/VOC\n");
    EXPECT_EQ(game.Text(TableNum::Adventure, "advnum='1'", "advname"), "The Signal Box");
}

TEST(PcSourceVocabulary, HoldsTheReservedWordsAndThoseOfTheSourceOnly) {
    const Reading game("ace",
                       PcSource("GO 20 verb\nslowly 5 adverb\nthen 2 conjugation\nit 2 pronoun\n", ""));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "voctypen<7"), 4);
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "voctypen=7"), 2);
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='GO'", "vocnum"), 20);
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "word='GO'", "voctype"), "Verb");
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='THEN'", "voctypen"), 5);
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "word='THEN'", "voctype"), "Conjugation");
}

TEST(PcSourceVocabulary, WordsOfAPcSourceHaveFiveLetters) {
    const Reading game("pcvel", PcSource("lighthouse 50 noun\n", ""));
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "vocnum=50", "word"), "LIGHT");
}

TEST(PcSourceVocabulary, WordsOfAnAceSourceHaveThirty) {
    const Reading game("ace", PcSource("lighthouse 50 noun\n", ""));
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "vocnum=50", "word"), "LIGHTHOUSE");
}

TEST(PcSourceVocabulary, ATypeInCapitalsCounts) {
    const Reading game("ace", PcSource("lamp 50 NOUN\nand 2 Conjunction\n", ""));
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='LAMP'", "voctypen"), 2);
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='AND'", "voctypen"), 5);
}

TEST(PcSourceVocabulary, AnyOtherTypeIsReserved) {
    const Reading game("ace", PcSource("what 9 mystery\n", ""));
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='WHAT'", "voctypen"), 7);
    EXPECT_EQ(game.Text(TableNum::Vocabulary, "word='WHAT'", "voctype"), "RESERVED");
}

TEST(PcSourceVocabulary, ADuplicateWordIsDroppedAndTold) {
    const Reading game("pcvel", PcSource("LAMP 50 noun\nLAMP 50 noun\n", ""));
    EXPECT_TRUE(game.ok);
    EXPECT_TRUE(game.ToldAt(5, "ERROR: Duplicate Word. Word LAMP deleted."));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='LAMP'"), 1);
}

TEST(PcSourceVocabulary, AVerbAndANounOfOneSpellingMayBothCome) {
    const Reading game("pcvel", PcSource("LIGHT 30 verb\nLIGHT 50 noun\n", ""));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='LIGHT'"), 2);
    EXPECT_EQ(game.faults, 0);
}

TEST(PcSourceVocabulary, AWordOfAnotherTypeMayNotRepeatASpelling) {
    const Reading game("pcvel", PcSource("LIGHT 30 verb\nLIGHT 5 adjective\n", ""));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='LIGHT'"), 1);
    EXPECT_EQ(game.faults, 1) << game.status;
}

TEST(PcSourceVocabulary, ABadNumberIsToldWithItsLine) {
    const Reading game("pcvel",
                       PcSource("LAMP 1 noun\nROPE 255 noun\nBOX many noun\nTIN 5\nKEY 50 noun\n", ""));
    EXPECT_TRUE(game.ToldAt(4, "Word # must be from 2 to 254 inclusive"));
    EXPECT_TRUE(game.ToldAt(5, "Word # must be from 2 to 254 inclusive"));
    EXPECT_TRUE(game.ToldAt(6, "ERROR: This line can't be understood."));
    EXPECT_TRUE(game.ToldAt(7, "ERROR: This line can't be understood."));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='KEY'"), 1);
}

TEST(PcSourceTexts, JoinTheirLinesByLineEnds) {
    const Reading game = PcGame("/MTX\n/3\nOne.\nTwo.\n\nFour.\n/4\nNext\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=3", "msgmsg"),
              "One.\u008CTwo.\u008C\u008C"
              "Four.");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=4", "msgmsg"), "Next");
}

TEST(PcSourceTexts, ABlankLineAtTheEndIsALineEnd) {
    const Reading game = PcGame("/MTX\n/0\nOne.\n\n/1\nTwo.\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "One.\u008C");
}

TEST(PcSourceTexts, BlanksAtBothEndsOfALineStay) {
    const Reading game = PcGame("/MTX\n/0\n  One. \n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "  One. ");
}

TEST(PcSourceTexts, ATextWithoutLinesIsEmpty) {
    const Reading game = PcGame("/MTX\n/0\n/1\nTwo.\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "");
}

TEST(PcSourceTexts, ATailCommentCutsAlsoInsideATextOnPurpose) {
    const Reading game = PcGame("/MTX\n/0\nStop; wait.\n; a whole line\n   ; and an indented one\nGo.\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "Stop\u008CGo.");
}

TEST(PcSourceTexts, TheCommentOfAnAceSourceIsAHash) {
    const Reading game = AceGame("/MTX\n/0\nStop; wait. # not this\n# nor this\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "Stop; wait.");
}

TEST(PcSourceTexts, AmpersandsAndTabsAreTurnedIntoMarkup) {
    const Reading game = PcGame("/MTX\n/0\nFish & chips<ht>5\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "Fish &amp; chips<tab>5");
}

TEST(PcSourceTexts, AnEntityIsTextOfTheGameLikeAnyOther) {
    const Reading game = AceGame("/MTX\n/0\n5 &amp; 6 &lt;\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "5 &amp;amp; 6 &amp;lt;");
}

TEST(PcSourceTexts, ABracketThatBelongsToNoTagIsOneOfTheText) {
    const Reading game = PcGame("/STX\n/33\n>\n/MTX\n/0\na < b > c <INK=2>d\n");
    EXPECT_EQ(game.Text(TableNum::SystemMessages, "smsgnum=33", "smsgmsg"), "&gt;");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "a &lt; b &gt; c <INK=2>d");
}

TEST(PcSourceTexts, TagsOfAnAceSourceAreTurned) {
    const Reading game = AceGame("/MTX\n/0\n<COLOR=bright red>Hot</BRIGHT>\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "<ink=10>Hot</bright>");
}

TEST(PcSourceTexts, TagsOfAPcSourceAreNot) {
    const Reading game = PcGame("/MTX\n/0\n<COLOR=bright red>Hot\n");
    EXPECT_EQ(game.Text(TableNum::Messages, "msgnum=0", "msgmsg"), "&lt;COLOR=bright red&gt;Hot");
    EXPECT_EQ(game.faults, 1) << "they are told";
}

TEST(PcSourceTexts, SystemMessagesTakeTheScriptMessagesBehindTheLast) {
    const Reading game = PcGame("/STX\n/60\nLast.\n");
    EXPECT_EQ(game.Text(TableNum::SystemMessages, "smsgnum=60", "smsgmsg"), "Last.");
    EXPECT_EQ(game.Text(TableNum::SystemMessages, "smsgnum=61", "smsgmsg"), "Script IS on.");
    EXPECT_EQ(game.Text(TableNum::SystemMessages, "smsgnum=62", "smsgmsg"), "Script IS off.");
}

TEST(PcSourceTexts, ScriptMessagesThatAreThereAreNotAddedAgain) {
    const Reading game = PcGame("/STX\n/54\nScript IS on.\n/55\nScript IS off.\n");
    EXPECT_EQ(game.Count(TableNum::SystemMessages, "smsgnum>=54"), 2);
}

TEST(PcSourceTexts, ANewObjectIsNotCreated) {
    const Reading game = PcGame("/OTX\n/2\nA rope\n");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=2", "objdesc"), "A rope");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=2", "objloc"), 252);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=2", "objlocdesc"), "Not Created");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=2", "objnoun"), "_");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=2", "objnumnoun"), 255);
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=2", "objnumadject"), 255);
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=2", "objweight"), 1);
}

TEST(PcSourceTexts, ANewLocationHasNoExits) {
    const Reading game = PcGame("/LTX\n/5\nShaft.\n");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=5", "exits"), "");
    EXPECT_EQ(game.Number(TableNum::Locations, "locnum=5", "numexits"), 0);
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=5", "locshortdesc"), " ");
}

TEST(PcSourceTexts, ABadNumberIsToldAndItsTextPassedOver) {
    const Reading game = PcGame("/MTX\n/1000\nToo far.\n/x\nWhat.\n/0\nGood.\n");
    EXPECT_TRUE(game.ToldAt(13, "ERROR: This line can't be understood."));
    EXPECT_EQ(game.Count(TableNum::Messages, "msgnum>=0"), 1);
}

TEST(PcSourceTexts, ComeInAtTheNumbersGiven) {
    const Reading game = PcGame("/LTX\n/252\nA.\n/999\nB.\n");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=252", "locdesc"), "A.");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=999", "locdesc"), "B.");
}

TEST(PcSourceVocabulary, TakesTheNumbersUpTo254) {
    const Reading game("pcvel", PcSource("OWL 254 noun\nELK 255 noun\n", ""));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='OWL'"), 1);
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='ELK'"), 0);
    EXPECT_EQ(game.faults, 1);
}

TEST(PcSourceConnections, BecomeTheExitsOfTheirLocation) {
    const Reading game = PcGame(std::string(kReadRooms) + "/CON\n/0\nnorth 1\nGO 0\n/1\nSOUTH 0 NORTH 1\n");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "exits"), "NORTH 1 GO 0");
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "numericexits"), "2 1 20 0");
    EXPECT_EQ(game.Number(TableNum::Locations, "locnum=0", "numexits"), 4) << "tokens, two for each exit";
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=1", "exits"), "SOUTH 0 NORTH 1");
}

TEST(PcSourceConnections, AWordMayLeadElsewhereFromAnotherLocation) {
    EXPECT_EQ(PcGame(std::string(kReadRooms) + "/CON\n/0\nNORTH 1\n/1\nNORTH 0\n").faults, 0);
    EXPECT_EQ(PcGame(std::string(kReadRooms) + "/CON\n/0\nNORTH 1\nNORTH 0\n").faults, 1);
}

TEST(PcSourceConnections, BadOnesAreToldAndDropped) {
    const Reading game = PcGame(std::string(kReadRooms) +
                                "/CON\n/0\nXYZ 1\nLAMP 1\nNORTH x\nNORTH 9\nNORTH\nSOUTH 1\n/7\nNORTH 0\n");
    EXPECT_TRUE(game.ToldAt(19, "XYZ is not a valid word"));
    EXPECT_TRUE(game.Told("LAMP is not a valid word")) << "a noun from 20 up is no movement word";
    EXPECT_TRUE(game.Told("TO location for NORTHmust be numeric"));
    EXPECT_TRUE(game.Told("There is not a location with a number of 9 for NORTH"));
    EXPECT_TRUE(game.ToldAt(23, "ERROR: This line can't be understood."));
    EXPECT_TRUE(game.ToldAt(25, "ERROR: This line can't be understood."));
    EXPECT_EQ(game.Text(TableNum::Locations, "locnum=0", "exits"), "SOUTH 1");
}

Reading Objects(const std::string& lines) {
    return PcGame("/OTX\n/0\nA lamp\n/1\nA rope\n/LTX\n/3\nShed.\n/OBJ\n" + lines);
}

TEST(PcSourceObjects, TakePlaceWeightAttributesAndWords) {
    const Reading game = Objects("/0 3 7 Y N LAMP RED\n");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objloc"), 3);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "At 3.");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objweight"), 7);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objattr"), "C");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objattrn"), 1);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objnoun"), "LAMP");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objnumnoun"), 50);
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objadject"), "RED");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objnumadject"), 2);
}

TEST(PcSourceObjects, KnowThePlacesThatAreNoRoom) {
    const Reading worn = Objects("/0 WORN 1 N Y _ _\n/1 254 1 Y Y _ _\n");
    EXPECT_EQ(worn.Number(TableNum::Objects, "objnum=0", "objloc"), 253);
    EXPECT_EQ(worn.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "Worn.");
    EXPECT_EQ(worn.Text(TableNum::Objects, "objnum=0", "objattr"), "WR");
    EXPECT_EQ(worn.Number(TableNum::Objects, "objnum=1", "objloc"), 254);
    EXPECT_EQ(worn.Text(TableNum::Objects, "objnum=1", "objlocdesc"), "Carried.");
    EXPECT_EQ(worn.Text(TableNum::Objects, "objnum=1", "objattr"), "CWR");
    EXPECT_EQ(worn.Number(TableNum::Objects, "objnum=1", "objattrn"), 3);
    const Reading none = Objects("/0 252 1 N N _ _\n/1 carried 1 N N _\n");
    EXPECT_EQ(none.Text(TableNum::Objects, "objnum=0", "objlocdesc"), "Not created.");
    EXPECT_EQ(none.Number(TableNum::Objects, "objnum=1", "objloc"), 254);
}

TEST(PcSourceObjects, ABadAdjectiveIsSetToNone) {
    const Reading game = Objects("/0 0 1 N N LAMP LAMP\n");
    EXPECT_TRUE(
        game.ToldAt(21, "ERROR: Adjective shown for object 0 is not an Adjective. Adjective set to _"));
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objnoun"), "LAMP");
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objadject"), "_");
}

TEST(PcSourceObjects, ABadNounSetsBothWordsToNone) {
    const Reading game = Objects("/0 0 1 N N XYZ RED\n");
    EXPECT_TRUE(game.Told("ERROR: Noun shown for object 0 is not a Noun. Noun and Adjective set to _"));
    EXPECT_EQ(game.Text(TableNum::Objects, "objnum=0", "objnoun"), "_");
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objnumadject"), 255);
}

TEST(PcSourceObjects, BadLinesLeaveTheObjectAsItIs) {
    const Reading game =
        Objects("/0 nowhere 1 N N LAMP _\n/1 0 64 N N _ _\n/7 0 1 N N _ _\n/0 0 1\nhello\n");
    EXPECT_TRUE(game.ToldAt(21, "Invalid location"));
    EXPECT_TRUE(game.Told("Weight must be from 0 to 63"));
    EXPECT_TRUE(game.ToldAt(23, "ERROR: This line can't be understood."));
    EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objloc"), 252);
    EXPECT_EQ(game.faults, 5);
}

TEST(PcSourceObjects, WeighAtMost63) {
    EXPECT_EQ(Objects("/0 3 63 N N _ _\n").Number(TableNum::Objects, "objnum=0", "objweight"), 63);
}

TEST(PcSourceObjects, NoneBeginsWhereThePlayerIs) {
    for (const char* line : {"/0 HERE 1 N N _ _\n", "/0 255 1 N N _ _\n"}) {
        const Reading game = Objects(line);
        EXPECT_TRUE(game.ToldAt(21, "Invalid location")) << line;
        EXPECT_EQ(game.Number(TableNum::Objects, "objnum=0", "objloc"), 252) << line;
    }
}

Reading Processes(const std::string& lines) {
    return PcGame(lines);
}

TEST(PcSourceProcesses, TakeEntriesWithCondactsOnLinesOfTheirOwn) {
    const Reading game = Processes("/PRO 0\nLIGHT LAMP\n AT 0\n SET 60\n DONE\n");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "estype=0", "canum"), 0);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "w1"), "LIGHT");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "w1num"), 21);
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "w2num"), 50);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "AT 0 SET 60 DONE");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "numericcondacts"), "101 0 224 60 265");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "numcas"), 5);
}

TEST(PcSourceProcesses, CondactsMayBeginOnTheLineOfTheWords) {
    const Reading game = Processes("/PRO 0\nLIGHT LAMP at 0\n\n  done\n");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "AT 0 DONE");
}

TEST(PcSourceProcesses, AnUnderlineIsNotLookedUp) {
    const Reading game = Processes("/PRO 0\n_ LAMP DONE\nGO _ DONE\n");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "w2num=50", "w1"), "_");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "w2num=50", "w1num"), 255);
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "w1num=20", "w2num"), 255);
}

TEST(PcSourceProcesses, TheCtlSectionMayNameAnotherNullWord) {
    const Reading game("pcvel", "/CTL\n*\n/VOC\nGO 20 verb\n/PRO 0\n* * DONE\n");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "w1"), "_");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "w2num"), 255);
}

TEST(PcSourceProcesses, ADirectionNounMayStandForTheVerb) {
    const Reading game = Processes("/PRO 0\nNORTH _ DONE\n");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "w1num"), 2);
}

TEST(PcSourceProcesses, ABadFirstWordDropsTheEntry) {
    const Reading game = Processes("/PRO 0\nLAMP _\n DONE\nGO _ DONE\n");
    EXPECT_TRUE(game.ToldAt(13, "Word1 (LAMP) not a verb") && game.Told("Record LAMP _\nRecord Deleted"));
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "w2<>'SCRIP'"), 1);
}

TEST(PcSourceProcesses, ABadSecondWordDropsTheEntry) {
    const Reading game = Processes("/PRO 0\nGO RED\n DONE\n");
    EXPECT_TRUE(game.ToldAt(13, "Word2 (RED) is not a Noun") && game.Told("Record GO RED\nRecord Deleted"));
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "w2<>'SCRIP'"), 0);
}

TEST(PcSourceProcesses, ABadCondactDropsTheEntryAndTellsItsLine) {
    const Reading game = Processes("/PRO 0\nGO LAMP\n AT 0\n XYZ 3\n DONE\nGO _\n PREP LAMP\n");
    EXPECT_TRUE(game.ToldAt(15, "XYZ is an invalid Condition/Action") &&
                game.Told("Record GO LAMP\nRecord Deleted"));
    EXPECT_TRUE(game.Told("word LAMP Type doesn't agree with PREP"));
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "w2<>'SCRIP'"), 0);
}

TEST(PcSourceProcesses, LocationWordsBecomeNumbers) {
    const Reading game =
        Processes("/PRO 0\n_ _ PLACE 0 carried ISAT 0 WORN PLACE 0 _ PLACE 0 NOTCR PREP _\n");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"),
              "PLACE 0 254 ISAT 0 253 PLACE 0 252 PLACE 0 252 PREP _");
}

TEST(PcSourceProcesses, WordsOfConditionsAreCutAsTheVocabularyIs) {
    const Reading game("pcvel", PcSource("through 5 preposition\n", "/PRO 0\n_ _ PREP through\n"));
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "PREP THROU");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "numericcondacts"), "123 5");
}

TEST(PcSourceProcesses, BellIsNeverStored) {
    const Reading game = Processes("/PRO 0\n_ _\n bell\n AT 0 BELL DONE\n");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"),
              "BEEP 120 100 AT 0 BEEP 120 100 DONE");
    EXPECT_TRUE(game.Told("All BELL Actions have been converted to BEEP 120 100"));
}

TEST(PcSourceProcesses, BellIsAWordWhereAWordIsMeant) {
    const Reading game("pcvel", PcSource("BELL 50 noun\n", "/PRO 0\n_ BELL NOUN2 BELL\n"));
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "NOUN2 BELL");
    EXPECT_FALSE(game.Told("All BELL Actions have been converted to BEEP 120 100"));
}

TEST(PcSourceProcesses, ATableOutOfNumberIsRenumbered) {
    const Reading game = Processes("/PRO 0\n_ _ DONE\n/PRO 1\n/PRO 7\n_ _ CLS\n");
    EXPECT_TRUE(game.Told("Changed Process # from 7 to 2"));
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "estype=2", "condacts"), "CLS");
}

TEST(PcSourceProcesses, TablesAboveTwoGetADescription) {
    const Reading game = Processes("/PRO 0\n_ _ DONE\n/PRO 1\n/PRO 2\n/PRO 3\n_ _ CLS\n/PRO 4\n");
    EXPECT_EQ(game.Text(TableNum::ProcDesc, "pmsgnum=3", "pmsgmsg"), " ");
    EXPECT_EQ(game.Count(TableNum::ProcDesc, "pmsgnum=4"), 1);
    EXPECT_EQ(game.Count(TableNum::ProcDesc, "pmsgnum>=0"), 5);
}

TEST(PcSourceProcesses, ThereAreAtMost257Tables) {
    std::string tables;
    for (int i = 0; i < 260; ++i)
        tables += "/PRO " + std::to_string(i) + "\n_ _ DONE\n";
    const Reading game = Processes(tables);
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "estype=256"), 1);
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "estype>256"), 0);
    EXPECT_TRUE(game.Told("ERROR: Too many process tables."));
}

TEST(PcSourceProcesses, AnEntryMayBeEmptyButIsTold) {
    const Reading game = Processes("/PRO 0\nGO LAMP\n");
    EXPECT_EQ(game.allFaults,
              (std::vector<std::string>{"13:1 GO LAMP: Cannot have a record with no Condition/Actions"}));
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "condacts"), "");
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "canum=0", "numericcondacts"), "");
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "canum=0", "numcas"), 0);
}

TEST(PcSourceProcesses, CondactsBeforeAnyWordsAreTold) {
    const Reading game = Processes("/PRO 0\n DONE\n");
    EXPECT_TRUE(game.ToldAt(13, "ERROR: This line can't be understood."));
}

TEST(PcSourceProcesses, AGameWithoutEntriesIsTold) {
    EXPECT_TRUE(Processes("/PRO 0\n").Told("No status records generated from file"));
}

TEST(PcSourceProcesses, FlagsAreAnalysed) {
    EXPECT_TRUE(Processes("/PRO 0\n_ _ SET 60 LET 61 3\n").Told("Flag 60:  SET\nFlag 61:  LET"));
}

TEST(ScriptCommands, AreAddedToAPcGameWithTheirWords) {
    const Reading game("pcvel", PcSource("LOAD 30 verb\n", "/PRO 0\n_ _ DONE\n"));
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='TURN' and voctypen=0", "vocnum"), 20);
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='SCRIP' and voctypen=2", "vocnum"), 20);
    EXPECT_EQ(
        game.Count(TableNum::ProcessTables, "w1='TURN' and w2='SCRIP' and condacts='PREP OFF SCRIPT 0'"),
        1);
    EXPECT_EQ(
        game.Count(TableNum::ProcessTables, "w1='TURN' and w2='SCRIP' and condacts='PREP ON SCRIPT 1'"), 1);
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "w1='LOAD' and w2='SCRIP' and condacts='SCRIPT 2'"), 1);
    EXPECT_EQ(game.Number(TableNum::ProcessTables, "w1='LOAD'", "estype"), 0);
    EXPECT_EQ(game.Text(TableNum::ProcessTables, "w1='LOAD'", "numericcondacts"), "281 2");
}

TEST(ScriptCommands, TakeTheNextFreeNumber) {
    const Reading game("pcvel", PcSource("TAKE 20 verb\nPUT 21 verb\n", "/PRO 0\n_ _ DONE\n"));
    EXPECT_EQ(game.Number(TableNum::Vocabulary, "word='TURN'", "vocnum"), 22);
}

TEST(ScriptCommands, WithoutAVerbLoadThereIsNoEntryForIt) {
    const Reading game = PcGame("/PRO 0\n_ _ DONE\n");
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "w2='SCRIP'"), 2);
}

TEST(ScriptCommands, ThatAreThereAreNotAddedAgain) {
    const Reading game("pcvel",
                       PcSource("TURN 30 verb\nSCRIP 50 noun\nON 2 preposition\nOFF 3 preposition\n",
                                "/PRO 0\nTURN SCRIP PREP OFF SCRIPT 0\nTURN SCRIP PREP ON SCRIPT 1\n"));
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "estype=0"), 2);
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='TURN'"), 1);
}

TEST(ScriptCommands, GiveWayToAGameThatUsesTheirWordsOtherwise) {
    const Reading game("pcvel", PcSource("ON 5 adverb\n", "/PRO 0\n_ _ DONE\n"));
    EXPECT_EQ(game.Count(TableNum::Vocabulary, "word='ON'"), 1);
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "condacts='PREP ON SCRIPT 1'"), 0);
    EXPECT_EQ(game.Count(TableNum::ProcessTables, "condacts='PREP OFF SCRIPT 0'"), 1);
}

TEST(ScriptCommands, AreNotForAceGames) {
    EXPECT_EQ(AceGame("/PRO 0\n_ _ DONE\n").Count(TableNum::ProcessTables, "estype=0"), 1);
}

}  // namespace
}  // namespace fabula::interchange
