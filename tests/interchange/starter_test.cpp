#include "interchange/starter.h"

#include <fstream>

#include <gtest/gtest.h>

#include "condacts/language/load.h"
#include "condacts/language/validate.h"
#include "platform/error.h"
#include "support/games/template_adventure.h"
#include "support/places.h"

namespace fabula::interchange {
namespace {

using store::AdventureKind;
using store::TableNum;

std::filesystem::path Starter(const char* name) {
    return test::SourceFolder() / "data" / "starters" / name;
}

/// Adds a starter file of these lines.
void Add(const test::OpenedAdventure& adventure, const char* lines) {
    const std::filesystem::path file = adventure.Folder() / "starter.ini";
    std::ofstream(file) << "Remark.\n::INFO\nDelimiter=|\n::END\n" << lines;
    AddStarter(*adventure, file);
}

class StarterOfEachKind : public testing::TestWithParam<std::pair<AdventureKind, const char*>> {};

TEST_P(StarterOfEachKind, HoldsNothingThatTheAdventureRefuses) {
    test::OpenedAdventure adventure(GetParam().first);
    AddStarter(*adventure, Starter(GetParam().second));
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(*adventure);
    condacts::Facts facts = condacts::LoadFacts(*adventure);
    store::Cursor& entries = adventure->OpenTable(TableNum::ProcessTables, "def");
    EXPECT_GT(entries.RecordCount(), 10);
    for (; !entries.Eof(); entries.MoveNext()) {
        EXPECT_EQ(condacts::ValidateCondActs(entries.Text("condacts"), catalogue, facts), std::nullopt)
            << entries.Text("condacts");
    }
}

INSTANTIATE_TEST_SUITE_P(AllKinds, StarterOfEachKind,
                         testing::Values(std::pair(AdventureKind::Fabula, "fabula.ini"),
                                         std::pair(AdventureKind::Vel, "vel.ini"),
                                         std::pair(AdventureKind::Marlo, "marlo.ini")));

TEST(AddStarter, AddsWordsBehindThoseThatAreThere) {
    test::OpenedAdventure adventure;
    const int before = adventure->OpenTable(TableNum::Vocabulary, "def").RecordCount();
    Add(adventure, "::VOCABULARY\n50|LAMP|2|Noun\n::END\n");
    store::Cursor& words = adventure->OpenTable(TableNum::Vocabulary, "def", "word='LAMP'");
    ASSERT_EQ(words.RecordCount(), 1);
    EXPECT_EQ(words.Number("vocindex"), before + 1);
    EXPECT_EQ(words.Number("vocnum"), 50);
    EXPECT_EQ(words.Number("voctypen"), 2);
    EXPECT_EQ(words.Text("voctype"), "Noun");
}

TEST(AddStarter, JoinsTheLinesOfAMessageByLineEnds) {
    test::OpenedAdventure adventure;
    Add(adventure, "::MESSAGES\n/3\nOne.\nTwo.\n::END\n");
    store::Cursor& messages = adventure->OpenTable(TableNum::Messages, "def", "msgnum=3");
    ASSERT_EQ(messages.RecordCount(), 1);
    EXPECT_EQ(messages.Text("msgmsg"), "One.\u008CTwo.");
}

TEST(AddStarter, CompilesItsEntriesWithItsOwnWords) {
    test::OpenedAdventure adventure;
    Add(adventure,
        "::PROCESSTABLES\n0|LIGHT|_|30|255|3|NOUN2 LAMP DONE\n::END\n"
        "::VOCABULARY\n30|LIGHT|0|Verb\n50|LAMP|2|Noun\n::END\n");
    store::Cursor& entries = adventure->OpenTable(TableNum::ProcessTables, "def");
    ASSERT_EQ(entries.RecordCount(), 1);
    EXPECT_EQ(entries.Number("canum"), 0);
    EXPECT_EQ(entries.Number("estype"), 0);
    EXPECT_EQ(entries.Text("w1"), "LIGHT");
    EXPECT_EQ(entries.Number("w1num"), 30);
    EXPECT_EQ(entries.Number("w2num"), 255);
    EXPECT_EQ(entries.Number("numcas"), 3);
    EXPECT_EQ(entries.Text("numericcondacts"), "124 50 265");
}

TEST(AddStarter, AFaultyLineLeavesTheAdventureAsItWas) {
    test::OpenedAdventure adventure;
    EXPECT_THROW(
        Add(adventure, "::MESSAGES\n/0\nHello.\n::END\n::PROCESSTABLES\n0|_|_|255|255|1|NONSENSE\n::END\n"),
        Error);
    EXPECT_EQ(adventure->OpenTable(TableNum::Messages, "def").RecordCount(), 0);
    EXPECT_EQ(adventure->OpenTable(TableNum::ProcessTables, "def").RecordCount(), 0);
}

TEST(AddStarter, NamesTheFaultyLine) {
    test::OpenedAdventure adventure;
    try {
        Add(adventure, "::VOCABULARY\n50|LAMP|2\n::END\n");
        FAIL();
    } catch (const Error& error) {
        EXPECT_NE(std::string(error.what()).find("::VOCABULARY at line 6"), std::string::npos)
            << error.what();
    }
}

TEST(AddStarter, NamesTheFaultyEntry) {
    test::OpenedAdventure adventure;
    try {
        Add(adventure, "::PROCESSTABLES\n0|_|_|255|255|1|NONSENSE\n::END\n");
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(
            error.what(),
            "The starter has a faulty entry \"NONSENSE\": NONSENSE is an invalid Condition/Action.");
    }
}

TEST(AddStarter, AMissingFileIsAnError) {
    test::OpenedAdventure adventure;
    EXPECT_THROW(AddStarter(*adventure, adventure.Folder() / "none.ini"), Error);
}

}  // namespace
}  // namespace fabula::interchange
