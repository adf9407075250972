#include "references/find_replace.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "records.h"
#include "support/games/template_adventure.h"

namespace fabula::references {
namespace {

using store::TableNum;
using test::OpenedAdventure;

std::string Lines(const std::vector<Hit>& hits) {
    std::string lines;
    for (const Hit& hit : hits)
        lines.append(hit.where->name)
            .append(" ")
            .append(std::to_string(hit.record))
            .append(": ")
            .append(hit.Shown())
            .append("\n");
    return lines;
}

std::string Find(store::Adventure& game, const Wanted& wanted,
                 const SearchScope& scope = {"messages", "rules"}) {
    return Lines(FindEverywhere(game, wanted, scope, false));
}

std::string TextOf(store::Adventure& game, int message) {
    return std::string(
        game.OpenTable(TableNum::Messages, "def", "msgnum=" + std::to_string(message)).Text("msgmsg"));
}

void SetComment(store::Adventure& game, TableNum table, const std::string& where,
                const std::string& comment) {
    store::Cursor& record = game.OpenTable(table, "def", where);
    record.SetField("comment", comment);
    record.Update();
}

TEST(FindEverywhere, LooksThroughComments) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "A lamp.");
    test::PutEntry(*game, 1, 0, 255, 255, "MESSAGE 900");
    SetComment(*game, TableNum::Messages, "msgnum=900", "Until <b the lamp is lit");
    SetComment(*game, TableNum::ProcessTables, "canum=1", "Lamps only");
    EXPECT_EQ(Find(*game, {.text = "lamp"}, {"comments"}),
              "comments 900: Until <b the lamp is lit\ncomments 1: Lamps only\n");
}

TEST(ReplaceHits, TakesAnyTextInCommentsAndLeavesNoneWhereNothingIsLeft) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, 255, 255, "MESSAGE 900");
    test::PutEntry(*game, 2, 0, 255, 255, "MESSAGE 900");
    SetComment(*game, TableNum::ProcessTables, "canum=1", "lamp");
    SetComment(*game, TableNum::ProcessTables, "canum=2", "a lamp");
    const auto replaced = [&](const Wanted& wanted) {
        return ReplaceHits(*game, FindEverywhere(*game, wanted, {"comments"}, true)).records;
    };
    EXPECT_EQ(replaced({.text = "lamp", .replacement = "<not a tag>"}), 2);
    EXPECT_EQ(game->OpenTable(TableNum::ProcessTables, "def", "canum=2").Text("comment"), "a <not a tag>");
    EXPECT_EQ(replaced({.text = "<not a tag>", .replacement = ""}), 2);
    EXPECT_TRUE(game->OpenTable(TableNum::ProcessTables, "def", "canum=1").IsNull("comment"));
}

TEST(FindEverywhere, LooksThroughTextsAndRules) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "A brass lamp and a Lamp.");
    test::PutLocation(*game, 900, "", "");
    test::PutEntry(*game, 1, 0, 255, 255, "NOUN2 LAMP MESSAGE 900");
    EXPECT_EQ(Find(*game, {.text = "lamp"}),
              "messages 900: A brass lamp and a Lamp.\n"
              "messages 900: A brass lamp and a Lamp.\n"
              "rules 1: NOUN2 LAMP MESSAGE 900\n");
    EXPECT_EQ(Find(*game, {.text = "Lamp", .matchCase = true}), "messages 900: A brass lamp and a Lamp.\n");
    EXPECT_EQ(Find(*game, {.text = "amp", .wholeWords = true}), "");
    EXPECT_EQ(Find(*game, {.text = "A place"}, {"locations"}), "locations 900: A place.\n");
}

TEST(FindEverywhere, FindsNoPartsOfNumbersInRules) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, 255, 255, "SET 60 LET 160 60 SET 6");
    EXPECT_EQ(FindEverywhere(*game, {.text = "6"}, {"rules"}, false).size(), 1U);
    EXPECT_EQ(FindEverywhere(*game, {.text = "60"}, {"rules"}, false).size(), 2U);
    EXPECT_EQ(FindEverywhere(*game, {.text = "SET 6"}, {"rules"}, false).size(), 1U);
    EXPECT_EQ(FindEverywhere(*game, {.text = "ET"}, {"rules"}, false).size(), 0U);
}

TEST(FindEverywhere, TakesExpressions) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "It is 12 o'clock, or 7.");
    EXPECT_EQ(FindEverywhere(*game, {.text = "[0-9]+", .expression = true}, {"messages"}, false).size(),
              2U);
    EXPECT_THROW(Find(*game, {.text = "(", .expression = true}), Error);
    EXPECT_EQ(Find(*game, {.text = "(", .expression = false}), "");
    EXPECT_EQ(Find(*game, {.text = "x*", .expression = true}), "") << "empty places are none";
}

TEST(FindEverywhere, GivesUpAnExpressionThatTakesTooLong) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, std::string(60, 'a') + "!");
    EXPECT_THROW(Find(*game, {.text = "(a+)+$", .expression = true}), Error);
}

TEST(FindEverywhere, APlainTextStandsForItself) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "a.c \\E $1 abc");
    EXPECT_EQ(FindEverywhere(*game, {.text = "a.c"}, {"messages"}, false).size(), 1U);
    const auto hits = FindEverywhere(*game, {.text = "\\E", .replacement = "$1"}, {"messages"}, true);
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].Preview(), "a.c $1 $1 abc");
}

TEST(ReplaceHits, ReplacesWithWhatAnExpressionFound) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "lamp old, coin new");
    const auto hits = FindEverywhere(
        *game, {.text = "(\\w+) (\\w+)", .replacement = "$2 $1", .expression = true}, {"messages"}, true);
    const Replaced done = ReplaceHits(*game, hits);
    EXPECT_EQ(done.places, 2);
    EXPECT_EQ(done.records, 1);
    EXPECT_EQ(TextOf(*game, 900), "old lamp, new coin");
}

TEST(ReplaceHits, ReplacesOnlyWhatIsGiven) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "one one one");
    auto hits = FindEverywhere(*game, {.text = "one", .replacement = "two"}, {"messages"}, true);
    ASSERT_EQ(hits.size(), 3U);
    hits.erase(hits.begin() + 1);
    ReplaceHits(*game, hits);
    EXPECT_EQ(TextOf(*game, 900), "two one two");
}

TEST(ReplaceHits, CompilesRulesAnewAndKeepsTheirChecks) {
    OpenedAdventure game;
    test::PutEntry(*game, 1, 0, 255, 255, "SET 60 SET 61", "224 60 224 61");
    const auto hits = FindEverywhere(*game, {.text = "set 60", .replacement = "let 60 7"}, {"rules"}, true);
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].refusal, "");
    ReplaceHits(*game, hits);
    store::Cursor& entry = game->OpenTable(TableNum::ProcessTables, "def", "canum=1");
    EXPECT_EQ(entry.Text("condacts"), "LET 60 7 SET 61");
    EXPECT_EQ(entry.Text("numericcondacts"), "228 60 7 224 61");
    EXPECT_EQ(entry.Number("numcas"), 5);
}

TEST(ReplaceHits, LeavesOutWhatACheckRefuses) {
    OpenedAdventure game;
    test::PutMessage(*game, 900, "salt and pepper");
    test::PutEntry(*game, 1, 0, 255, 255, "SET 60", "224 60");
    auto hits = FindEverywhere(*game, {.text = "and", .replacement = "&"}, {"messages"}, true);
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].refusal,
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
    EXPECT_EQ(ReplaceHits(*game, hits).records, 0);
    EXPECT_EQ(TextOf(*game, 900), "salt and pepper");
    const auto rules = FindEverywhere(*game, {.text = "SET", .replacement = "DANCE"}, {"rules"}, true);
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].refusal, "DANCE is an invalid Condition/Action");
    EXPECT_EQ(ReplaceHits(*game, rules).refused,
              std::vector<std::string>{"entry 1: DANCE is an invalid Condition/Action"});
}

}  // namespace
}  // namespace fabula::references
