// The record against ifiction.rng, read by a program of others.

#include <gtest/gtest.h>

#include "packages/ifiction.h"
#include "support/places.h"
#include "support/run_program.h"
#include "text/str_edit.h"

namespace fabula::packages {
namespace {

/// What is wrong with a record; "" when nothing is.
std::string Faults(const std::string& record) {
    const auto schema = test::SourceFolder() / "tests/packages/ifiction.rng";
    const test::ProgramResult result =
        test::RunProgram("/usr/bin/xmllint", {"--noout", "--relaxng", schema.string(), "-"}, record);
    if (result.status == 0) return "";
    return result.errors.empty() ? "xmllint failed" : result.errors;
}

GameFacts Lamp() {
    GameFacts facts;
    facts.name = "The  Lamp & <the> \"Cellar\"\n";
    facts.author = "\tA. Nother ";
    facts.description = "  One.\n\n Two  &  three.\n";
    facts.ifid = "5EED0000-0000-4000-8000-00000000FA8A";
    return facts;
}

TEST(IFictionSchema, TakesARecordWithADescriptionAndACover) {
    for (const int side : {120, 1200}) {
        const Cover cover{"", "png", side, side};
        EXPECT_EQ(Faults(IFictionRecord(Lamp(), &cover)), "");
    }
}

TEST(IFictionSchema, TakesARecordOfAGameThatTellsNothingOfItself) {
    GameFacts facts;
    facts.ifid = "5EED0000-0000-4000-8000-00000000FA8A";
    EXPECT_EQ(Faults(IFictionRecord(facts, nullptr)), "");
}

TEST(IFictionSchema, TakesTheRecordsOfTheExampleGames) {
    for (const char* game : {"lighthouse", "signal_box", "cellar"}) {
        const std::string file = (test::ExampleGames() / (std::string(game) + ".fbd")).string();
        const test::ProgramResult printed = test::RunProgram(test::Program(), {"ifiction", file});
        ASSERT_EQ(printed.status, 0) << printed.errors;
        EXPECT_EQ(Faults(printed.output), "") << game;
    }
}

TEST(IFictionSchema, RefusesWhatTheFormatForbids) {
    const Cover cover{"", "jpg", 400, 300};
    const std::string record = IFictionRecord(Lamp(), &cover);
    const auto broken = [&record](std::string_view what, std::string_view by) {
        const std::string changed = text::ReplaceAll(record, what, by);
        EXPECT_NE(changed, record) << what;
        return Faults(changed);
    };
    EXPECT_NE(broken(" version=\"1.0\" xmlns", " xmlns"), "");
    EXPECT_NE(broken("protocol/iFiction/", "protocol/Other/"), "");
    EXPECT_NE(broken("5EED0000", "5eed0000"), "");
    EXPECT_NE(broken("<format>fabula</format>", ""), "");
    EXPECT_NE(broken("<author>A. Nother</author>", ""), "");
    EXPECT_NE(broken("A. Nother", " A. Nother"), "");
    EXPECT_NE(broken("A. Nother", "A.  Nother"), "");
    EXPECT_NE(broken("title>", "headline>"), "");
    EXPECT_NE(broken("<br/>", "<p/>"), "");
    EXPECT_NE(broken(">jpg<", ">bmp<"), "");
    EXPECT_NE(broken(">300<", ">119<"), "");
    EXPECT_NE(broken(">400<", ">1201<"), "");
}

}  // namespace
}  // namespace fabula::packages
