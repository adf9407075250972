#include "references/lint/lint.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "references/lighthouse.h"
#include "references/records.h"

namespace fabula::references {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

void Set(Adventure& game, TableNum table, const std::string& where, const std::string& field,
         text::Value value) {
    Cursor& records = game.OpenTable(table, "def", where);
    records.SetField(field, std::move(value));
    records.Update();
}

void Entry(Adventure& game, const char* line, const char* numbers = "", int process = 10, int key = 5000) {
    test::PutEntry(game, key, process, 255, 255, line, numbers);
}

void Describe(Adventure& game, int flag, const char* text) {
    Set(game, TableNum::Flags, "flgnum=" + std::to_string(flag), "flgdesc", std::string(text));
}

void PutProcess(Adventure& game, int number) {
    Cursor& processes = game.OpenTable(TableNum::ProcDesc, "def");
    processes.AddNew();
    processes.SetField("pmsgnum", std::int64_t{number});
    processes.SetField("pmsgmsg", std::string("More."));
    processes.Update();
}

/// A mistake that an author can make, and what is told of it.
struct Fault {
    const char* code;
    std::function<void(Adventure&)> plant;
    const char* message;
};

const std::vector<Fault>& Faults() {
    static const std::vector<Fault> faults = {
        {"start-missing",
         [](Adventure& g) { Set(g, TableNum::Adventure, "", "startloc", std::int64_t{77}); },
         "Play would begin in location 77, which does not exist."},
        {"exit-missing",
         [](Adventure& g) { Set(g, TableNum::Locations, "locnum=4", "numericexits", std::string("5 77")); },
         "Location 4 has an exit to location 77, which does not exist."},
        {"exit-nowhere",
         [](Adventure& g) {
             Set(g, TableNum::Locations, "locnum=4", "numericexits", std::string("5 254"));
         },
         "Location 4 has an exit to 254, which is no place."},
        {"location-missing", [](Adventure& g) { Entry(g, "GOTO 77 DESC", "234 77 263"); },
         "Process table 10, entry 5000 names location 77, which does not exist."},
        {"place-missing",
         [](Adventure& g) { Set(g, TableNum::Objects, "objnum=9", "objloc", std::int64_t{77}); },
         "Object 9 begins at location 77, which does not exist."},
        {"container-placeless", [](Adventure& g) { test::PutObject(g, 70, 4, 255, 255, true); },
         "Object 70 is a container, but there is no location 70."},
        {"room-missing", [](Adventure& g) { test::PutPicture(g, 4, "END", 77); },
         "Picture 4 belongs to location 77, which does not exist."},
        {"object-missing", [](Adventure& g) { Entry(g, "GET 77", "201 77"); },
         "Process table 10, entry 5000 names object 77, which does not exist."},
        {"message-missing", [](Adventure& g) { Entry(g, "MESSAGE 977", "250 977"); },
         "Process table 10, entry 5000 prints message 977, which does not exist."},
        {"sysmess-missing", [](Adventure& g) { Entry(g, "SYSMESS 177", "251 177"); },
         "Process table 10, entry 5000 prints system message 177, which does not exist."},
        {"flag-missing", [](Adventure& g) { Entry(g, "SET 2000", "224 2000"); },
         "Process table 10, entry 5000 names flag 2000, which does not exist."},
        {"process-missing", [](Adventure& g) { Entry(g, "PROCESS 77", "277 77"); },
         "Process table 10, entry 5000 calls process table 77, which does not exist."},
        {"picture-missing", [](Adventure& g) { test::PutPicture(g, 4, "GOSUB sc=0 77 END"); },
         "Picture 4 calls picture 77, which does not exist."},
        {"set-missing", [](Adventure& g) { test::PutPicture(g, 4, "TEXT 0 7 65 1 1 END"); },
         "Picture 4 names character set 7, which does not exist."},
        {"character-missing", [](Adventure& g) { test::PutPicture(g, 4, "TEXT 0 0 300 1 1 END"); },
         "Picture 4 shows character 300, which does not exist."},
        {"entry-word-missing", [](Adventure& g) { test::PutEntry(g, 5000, 0, 240, 255, "INVEN", "262"); },
         "Process table 0, entry 5000 answers to the word number 240, which no word has."},
        {"exit-word-missing",
         [](Adventure& g) {
             Set(g, TableNum::Locations, "locnum=4", "numericexits", std::string("240 5"));
         },
         "Location 4 has an exit with the word number 240, which no word has."},
        {"object-word-missing",
         [](Adventure& g) { Set(g, TableNum::Objects, "objnum=9", "objnumnoun", std::int64_t{240}); },
         "Object 9 is called by the word number 240, which no noun has."},
        {"asked-word-missing", [](Adventure& g) { Entry(g, "NOUN2 GONE INVEN", "124 240 262"); },
         "Process table 10, entry 5000 asks for the word number 240, which no such word has."},
        {"line-unknown", [](Adventure& g) { Entry(g, "DANCE 5", "201 5"); },
         "Process table 10, entry 5000 holds DANCE, which is no condition or action."},
        {"line-uncompiled", [](Adventure& g) { Entry(g, "INVEN", "263"); },
         "Process table 10, entry 5000 is compiled to something else than it says."},
        {"line-short", [](Adventure& g) { Entry(g, "INVEN GET", "262 201"); },
         "Process table 10, entry 5000 ends in GET without all its parameters."},
        {"entry-never",
         [](Adventure& g) {
             Entry(g, "AT 5 DONE", "101 5 265", 9, 5000);
             Entry(g, "AT 5 CARRIED 9 INVEN", "101 5 109 9 262", 9, 5001);
         },
         "Process table 9, entry 5001 can't run: entry 5000 answers before it and ends the table."},
        {"entry-contradicts", [](Adventure& g) { Entry(g, "AT 5 AT 6 INVEN", "101 5 101 6 262"); },
         "Process table 10, entry 5000 never gets past AT 6, which the conditions before it rule out."},
        {"entry-idle", [](Adventure& g) { Entry(g, "AT 5", "101 5"); },
         "Process table 10, entry 5000 does nothing: it has no action."},
        {"condition-twice", [](Adventure& g) { Entry(g, "AT 5 AT 5 INVEN", "101 5 101 5 262"); },
         "Process table 10, entry 5000 asks twice for AT 5."},
        {"action-dead", [](Adventure& g) { Entry(g, "AT 5 DONE INVEN", "101 5 265 262"); },
         "Process table 10, entry 5000 never comes to INVEN, for DONE ends it."},
        {"value-never",
         [](Adventure& g) { Entry(g, "LET 200 3 EQ 200 4 INVEN", "228 200 3 115 200 4 262"); },
         "Process table 10, entry 5000 asks for 4 in flag 200, which it is never given."},
        {"flag-unset", [](Adventure& g) { Entry(g, "NOTZERO 200 INVEN", "114 200 262"); },
         "Flag 200 is read but never set."},
        {"flag-unread", [](Adventure& g) { Entry(g, "SET 200", "224 200"); },
         "Flag 200 is set but never read."},
        {"flag-unused", [](Adventure& g) { Describe(g, 200, "the bell has rung"); },
         "Flag 200 is described and never used."},
        {"object-nowhere", [](Adventure& g) { test::PutObject(g, 23, 252, 255, 255); },
         "Object 23 is not created at first, and no rule brings it."},
        {"location-unreachable", [](Adventure& g) { test::PutLocation(g, 24, "", ""); },
         "No exit and no rule leads to location 24."},
        {"message-unused", [](Adventure& g) { test::PutMessage(g, 991, "Never."); },
         "No rule prints message 991."},
        {"sysmess-unused",
         [](Adventure& g) {
             Cursor& messages = g.OpenTable(TableNum::SystemMessages, "def");
             messages.AddNew();
             messages.SetField("smsgnum", std::int64_t{56});
             messages.SetField("smsgmsg", std::string("Never."));
             messages.Update();
         },
         "Neither the engine nor a rule prints system message 56."},
        {"word-unused", [](Adventure& g) { test::PutWord(g, 5000, "XYZZY", 240, 0); },
         "Nothing uses the Verb XYZZY (240)."},
        {"process-unused", [](Adventure& g) { PutProcess(g, 12); }, "No rule calls process table 12."},
        {"process-empty",
         [](Adventure& g) {
             PutProcess(g, 12);
             Entry(g, "PROCESS 12", "277 12");
         },
         "Process table 12 is called and has no entries."},
        {"picture-unused", [](Adventure& g) { test::PutPicture(g, 300, "END"); },
         "No drawing calls picture 300."},
        {"set-unused",
         [](Adventure& g) {
             Cursor& characters = g.OpenTable(TableNum::Characters, "def");
             characters.AddNew();
             characters.SetField("charkey", std::int64_t{3065});
             characters.SetField("charsetnum", std::int64_t{3});
             characters.SetField("charnum", std::int64_t{65});
             characters.Update();
         },
         "Nothing names character set 3."},
        {"exit-twice",
         [](Adventure& g) {
             Set(g, TableNum::Locations, "locnum=4", "exits", std::string("W 5 W 6"));
             Set(g, TableNum::Locations, "locnum=4", "numericexits", std::string("5 5 5 6"));
         },
         "Location 4 has two exits for W; the second is never taken."},
        {"word-twice", [](Adventure& g) { test::PutWord(g, 5000, "lantern", 50, 2); },
         "The vocabulary holds the Noun lantern twice."},
        {"number-twice", [](Adventure& g) { test::PutMessage(g, 12, "Another."); },
         "Two records bear the number message 12."},
        {"object-inside-itself",
         [](Adventure& g) { Set(g, TableNum::Objects, "objnum=2", "objloc", std::int64_t{2}); },
         "Object 2 is a container inside itself."},
        {"object-twin",
         [](Adventure& g) {
             test::PutObject(g, 23, 16, 90, 255);
             test::PutObject(g, 24, 16, 90, 255);
         },
         "Objects 23 and 24 begin at one place with one name; a player can't tell them apart."},
        {"text-empty",
         [](Adventure& g) { Set(g, TableNum::Messages, "msgnum=12", "msgmsg", std::string(" ")); },
         "Message 12 is printed and says nothing."},
        {"gap", [](Adventure& g) { test::PutMessage(g, 998, "Behind a gap."); }, "There are no messages"},
    };
    return faults;
}

bool Tells(const std::vector<Finding>& findings, const Fault& fault) {
    return std::any_of(findings.begin(), findings.end(), [&](const Finding& finding) {
        return finding.code == fault.code && finding.message.starts_with(fault.message);
    });
}

/// The lighthouse with pictures, so that what is wrong in drawings counts.
std::unique_ptr<Adventure> DrawnLighthouse() {
    auto game = test::Lighthouse();
    Set(*game, TableNum::Adventure, "", "graphics", std::int64_t{1});
    game->ReadSettings();
    return game;
}

TEST(Lint, FindsEachKindOfFaultThatIsPlantedInTheLighthouse) {
    const auto whole = DrawnLighthouse();
    const auto before = Lint(*whole);
    for (const Fault& fault : Faults()) {
        const auto game = whole->CopyInMemory();
        ASSERT_FALSE(Tells(before, fault)) << fault.code << " before it is planted";
        fault.plant(*game);
        EXPECT_TRUE(Tells(Lint(*game), fault)) << fault.code;
    }
}

TEST(Lint, AFaultOfEachRuleIsPlanted) {
    std::vector<std::string_view> planted;
    for (const Fault& fault : Faults())
        planted.push_back(fault.code);
    std::vector<std::string_view> rules;
    for (const LintRule& rule : AllLintRules())
        rules.push_back(rule.code);
    EXPECT_EQ(planted, rules);
    EXPECT_GE(planted.size(), 30U);
}

TEST(Lint, FindsThirtyFaultsAtOnce) {
    const auto game = DrawnLighthouse();
    int planted = 0;
    for (const Fault& fault : Faults()) {
        // Those that write one record or one key can't stand together; each has been planted alone.
        const std::string code = fault.code;
        if (code.starts_with("exit") || code == "flag-unused") continue;
        if (planted > 0 && (code.starts_with("line") || code.starts_with("process"))) continue;
        fault.plant(*game);
        ++planted;
    }
    const auto findings = Lint(*game);
    EXPECT_GE(planted, 30);
    EXPECT_GE(findings.size(), 30U);
}

bool CallsLocation24Unreachable(const Adventure& whole, const char* line) {
    const auto game = whole.CopyInMemory();
    test::PutLocation(*game, 24, "", "");
    Entry(*game, line);
    const auto findings = Lint(*game);
    return std::ranges::any_of(findings, [](const Finding& finding) {
        return finding.code == "location-unreachable" && finding.message.ends_with("leads to location 24.");
    });
}

TEST(Lint, NoLocationIsUnreachableWhereTheNumberOfThePlaceIsComputed) {
    const auto whole = test::Lighthouse();
    for (const char* line : {"AUTOINC 100 1 COPYFF 100 38", "AUTODEC 38 1", "PLUS 100 1 COPYFF 100 38",
                             "RANDOM 38", "ADD 60 38", "COPYOF 1 38"})
        EXPECT_FALSE(CallsLocation24Unreachable(*whole, line)) << line;
    for (const char* line : {"MOVE 38", "COPYFF 100 38", "PLUS 100 1", "LET 38 23"})
        EXPECT_TRUE(CallsLocation24Unreachable(*whole, line)) << line;
}

TEST(Lint, TellsAnEntryFromAnotherOneWithItsNumber) {
    const auto game = test::Lighthouse();
    Entry(*game, "INVEN", "262");
    Entry(*game, "LET 200 3 EQ 200 4 INVEN", "228 200 3 115 200 4 262");
    const Fault fault{"value-never", nullptr,
                      "Process table 10, entry 5000 asks for 4 in flag 200, which it is never given."};
    EXPECT_TRUE(Tells(Lint(*game), fault));
}

TEST(Lint, ReadsAnEntryThatHasLostItsText) {
    const auto game = test::Lighthouse();
    Entry(*game, "", "224 200 115 200 4 262");
    const Fault fault{"value-never", nullptr,
                      "Process table 10, entry 5000 asks for 4 in flag 200, which it is never given."};
    EXPECT_TRUE(Tells(Lint(*game), fault));
}

TEST(Lint, CanBeSwitchedOffByRuleAndByRecord) {
    const auto game = test::Lighthouse();
    test::PutMessage(*game, 991, "Never.");
    test::PutMessage(*game, 992, "Never.");
    LintSwitches switches;
    EXPECT_TRUE(switches.Add("gap message-unused 991 it comes in the next part"));
    const auto findings = Lint(*game, switches);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].message, "No rule prints message 992.");
    EXPECT_FALSE(switches.Add("no-such-code 5"));
}

TEST(Lint, AnAdventureCanKeepItsSwitches) {
    const auto game = test::Lighthouse();
    EXPECT_TRUE(StoredSwitches(*game).rules.empty());
    Cursor& headers = game->OpenTable(TableNum::Header, "def");
    headers.AddNew();
    headers.SetField("hdrkey", std::string(kLintHeader));
    headers.SetField("hdrmess", std::string("gap since numbers are kept free"));
    headers.Update();
    EXPECT_TRUE(StoredSwitches(*game).rules.contains("gap"));
}

LintSwitches Switches(std::initializer_list<const char*> lines) {
    LintSwitches switches;
    for (const char* line : lines)
        EXPECT_TRUE(switches.Add(line)) << line;
    return switches;
}

TEST(Lint, SwitchesCanBeKeptAndTakenBack) {
    const auto game = test::Lighthouse();
    SwitchOff(*game, Switches({"gap", "message-unused 7 40"}));
    SwitchOff(*game, Switches({"message-unused 40 41"}));
    EXPECT_EQ(StoredSwitches(*game).Lines(), (std::vector<std::string>{"gap", "message-unused 7 40 41"}));
    EXPECT_EQ(game->OpenTable(TableNum::Header, "def", "hdrkey='lint off'").RecordCount(), 3)
        << "what is off already is not kept twice";
    SwitchOn(*game, Switches({"message-unused 7"}));
    EXPECT_EQ(StoredSwitches(*game).Lines(), (std::vector<std::string>{"gap", "message-unused 40 41"}));
    SwitchOn(*game, Switches({"message-unused", "gap"}));
    EXPECT_EQ(StoredSwitches(*game).Lines(), (std::vector<std::string>{}));
    EXPECT_GT(game->OpenTable(TableNum::Header, "def").RecordCount(), 0) << "other records stay";
}

std::vector<std::string> Headers(Adventure& game) {
    std::vector<std::string> lines;
    Cursor& headers = game.OpenTable(TableNum::Header, "def", "hdrkey='lint off'");
    for (; !headers.Eof(); headers.MoveNext())
        lines.emplace_back(headers.Text("hdrmess"));
    return lines;
}

TEST(Lint, AReasonIsKeptBehindWhatItExplains) {
    const auto game = test::Lighthouse();
    SwitchOff(*game, Switches({"gap", "message-unused 7"}), "für später");
    EXPECT_EQ(Headers(*game), (std::vector<std::string>{"gap für später", "message-unused 7 für später"}));
    const auto lines = StoredLines(*game);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(lines[0].switches.rules.contains("gap"));
    EXPECT_EQ(lines[0].reason, "für später");
    EXPECT_EQ(lines[1].reason, "für später");
}

TEST(Lint, ALineOfWhichAPartIsSwitchedOnKeepsItsReason) {
    const auto game = test::Lighthouse();
    SwitchOff(*game, Switches({"message-unused 7 40"}), "they come later");
    SwitchOff(*game, Switches({"gap"}), "kept free");
    SwitchOn(*game, Switches({"message-unused 7"}));
    EXPECT_EQ(Headers(*game),
              (std::vector<std::string>{"gap kept free", "message-unused 40 they come later"}));
}

TEST(Lint, AReasonIsNeverTakenForCodesOrNumbers) {
    EXPECT_EQ(ReasonOf("  kept for later\n"), "kept for later");
    EXPECT_EQ(ReasonOf("two\nlines"), "two lines");
    EXPECT_EQ(ReasonOf("4 of them come later"), "- 4 of them come later");
    EXPECT_EQ(ReasonOf("gap or not"), "- gap or not");
    EXPECT_EQ(ReasonOf("ä 4"), "- ä 4");
    EXPECT_EQ(ReasonOf(""), "");
    const auto game = test::Lighthouse();
    SwitchOff(*game, Switches({"message-unused"}), ReasonOf("4 of them come later"));
    EXPECT_TRUE(StoredSwitches(*game).rules.contains("message-unused"));
    EXPECT_TRUE(StoredSwitches(*game).records.empty());
}

TEST(Lint, ManyRecordsThatAreSwitchedOffStandOnSeveralLines) {
    LintSwitches switches;
    for (int record = 100; record < 400; ++record)
        switches.records.insert({"message-unused", record});
    LintSwitches again;
    for (const std::string& line : switches.Lines()) {
        EXPECT_LE(line.size(), 255U);
        again.Add(line);
    }
    EXPECT_EQ(again.records, switches.records);
    EXPECT_TRUE(again.rules.empty());
}

TEST(Lint, AnEntryBehindOneThatMayChangeTheGameIsNotCalledDead) {
    const auto game = test::Lighthouse();
    Entry(*game, "ZERO 200 DONE", "113 200 265", 9, 5000);
    Entry(*game, "CLEAR 200", "225 200", 9, 5001);
    Entry(*game, "ZERO 200 AT 5 INVEN", "113 200 101 5 262", 9, 5002);
    for (const Finding& finding : Lint(*game))
        EXPECT_NE(finding.code, "entry-never") << finding.message;
}

}  // namespace
}  // namespace fabula::references
