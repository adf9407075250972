// Who uses what, what a game has that can't be meant, and numbering anew, as the program's users run them.

#include <fstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using Json = nlohmann::json;

constexpr const char* kUsedGame =
    "/CTL\n_\n/VOC\nNORTH 2 noun\nSOUTH 3 noun\nLAMP 50 noun\nGET 20 verb\nXYZZY 60 "
    "verb\n/MTX\n/0\nHello.\n"
    "/1\nNever.\n/OTX\n/0\nA lamp\n/LTX\n/0\nHall.\n/1\nCellar.\n/CON\n/0\nNORTH 1\n/1\nSOUTH 0\n/OBJ\n"
    "/0 1 2 N N LAMP _\n/PRO 0\nGET LAMP GET 0 SET 60 MESSAGE 0 OK\n/PRO 1\n_ _ NEWLINE LISTOBJ\n";

class References : public testing::Test {
  protected:
    References() {
        Write(kUsedGame);
        EXPECT_EQ(Run({"import", "ace", File("game.txt"), File("game.fbd")}).status, 0);
    }

    void Write(const std::string& text) { std::ofstream(folder_ / "game.txt") << text; }
    std::string File(const char* name) const { return (folder_ / name).string(); }
    static ProgramResult Run(const std::vector<std::string>& arguments) {
        return RunProgram(Program(), arguments);
    }

    TempFolder folder_;
};

using UsesVerb = References;
using LintVerb = References;
using RenumberVerb = References;

TEST_F(UsesVerb, ShowsEachPlaceOnALine) {
    const ProgramResult result = Run({"uses", File("game.fbd"), "flag", "60"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              "flag 60: 1 use\n  process table 0, entry 0 (GET LAMP): sets in condacts: SET 60\n");
    EXPECT_EQ(Run({"uses", File("game.fbd"), "message", "1"}).output, "message 1: not used\n");
}

TEST_F(UsesVerb, TakesAWordByItsLetters) {
    EXPECT_EQ(Run({"uses", File("game.fbd"), "word", "lamp"}).output,
              "Noun LAMP (50): 2 uses\n  object 0: names in objnoun: LAMP\n"
              "  process table 0, entry 0 (GET LAMP): names in w2: LAMP\n");
    EXPECT_EQ(Run({"uses", File("game.fbd"), "word", "nonsense"}).status, 1);
    EXPECT_EQ(Run({"uses", File("game.fbd"), "thing", "1"}).status, 2);
}

TEST_F(UsesVerb, TellsThatThereIsNoSuchRecord) {
    const ProgramResult result = Run({"uses", File("game.fbd"), "message", "9999"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: There is no message 9999.\n");
}

TEST_F(UsesVerb, WritesJson) {
    const Json list = Json::parse(Run({"uses", File("game.fbd"), "location", "1", "--json"}).output);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0]["table"], "Locations");
    EXPECT_EQ(list[0]["field"], "exits");
    EXPECT_EQ(list[0]["token"], 1);
    EXPECT_EQ(list[0]["text"], "NORTH 1");
}

TEST_F(LintVerb, TellsFindingsOfASourceAtTheirPlaces) {
    const ProgramResult result = Run({"lint", "--kind", "ace", File("game.txt")});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find(File("game.txt") +
                                 ":12:1: warning: No rule prints message 1. [message-unused]\n"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("warning: Nothing uses the Verb XYZZY (60). [word-unused]\n"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("warning: Flag 60 is set but never read. [flag-unread]\n"),
              std::string::npos)
        << result.output;
}

TEST_F(LintVerb, SwitchesOffInTheFileAndOnTheLine) {
    const ProgramResult line = Run({"lint", File("game.fbd"), "--off", "message-unused 1", "--off",
                                    "word-unused", "--off", "flag-unread"});
    EXPECT_EQ(line.output, "");
    EXPECT_EQ(line.status, 0);
    Write(std::string(
              "# lint off message-unused 1 for the second part\n# lint off word-unused flag-unread\n") +
          kUsedGame);
    EXPECT_EQ(Run({"lint", "--kind", "ace", File("game.txt")}).output, "");
    EXPECT_EQ(Run({"lint", File("game.fbd"), "--off", "nonsense"}).status, 2);
}

TEST_F(LintVerb, OnlyACommentSwitchesOff) {
    std::string game = kUsedGame;
    game.replace(game.find("/MTX\n/0\n"), 8, "/MTX\n/0\nThe sign says: lint off word-unused\n");
    Write(game);
    EXPECT_NE(Run({"lint", "--kind", "ace", File("game.txt")}).output.find("[word-unused]"),
              std::string::npos);
}

TEST_F(LintVerb, TellsASwitchThatNamesNoFindingWithItsPlace) {
    Write(std::string("# lint off wrod-unused\n") + kUsedGame);
    EXPECT_EQ(Run({"lint", "--kind", "ace", File("game.txt")}).errors,
              "game.txt Loaded\n" + File("game.txt") +
                  ":1: warning: there is no finding 'wrod-unused'; --rules shows them\n");
}

TEST_F(LintVerb, KeepsSwitchesInTheAdventureUntilTheyAreTakenBack) {
    const std::string game = File("game.fbd");
    EXPECT_EQ(Run({"lint", game, "--keep", "--off", "message-unused 1", "--off", "word-unused", "--off",
                   "flag-unread"})
                  .output,
              "");
    EXPECT_EQ(Run({"lint", game}).output, "");
    const std::string told = "No rule prints message 1. [message-unused]\n";
    EXPECT_EQ(Run({"lint", game, "--on", "message-unused"}).output, told);
    EXPECT_EQ(Run({"lint", game}).output, "") << "without --keep it is for once";
    EXPECT_EQ(Run({"lint", game, "--on", "message-unused", "--keep"}).output, told);
    EXPECT_EQ(Run({"lint", game}).output, told);
    EXPECT_EQ(Run({"lint", game, "--keep", "--on", "nonsense"}).status, 2);
    EXPECT_EQ(Run({"lint", "--kind", "ace", File("game.txt"), "--keep"}).status, 2);
}

TEST_F(LintVerb, WritesJson) {
    const Json list = Json::parse(Run({"lint", File("game.fbd"), "--json"}).output);
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[0]["code"], "flag-unread");
    EXPECT_EQ(list[0]["record"], 60);
}

TEST_F(LintVerb, FindsNothingInTheExamples) {
    for (const auto& [kind, source] :
         {std::pair("ace", "lighthouse/lighthouse.txt"), std::pair("pcvel", "signal_box/signal_box.sce"),
          std::pair("fabula", "cellar/cellar.ext")}) {
        const ProgramResult result =
            Run({"lint", "--kind", kind, (SourceFolder() / "examples" / source).string()});
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.status, 0) << source;
    }
}

TEST_F(RenumberVerb, ShowsWhatChangesAndDoesIt) {
    const std::vector<std::string> line = {"renumber", File("game.fbd"), "message", "0", "5"};
    std::vector<std::string> dry = line;
    dry.push_back("--dry-run");
    const std::string expected =
        "process table 0, entry 0 (GET LAMP), condacts: GET 0 SET 60 MESSAGE 0 OK -> GET 0 SET 60 MESSAGE "
        "5 OK\n"
        "process table 0, entry 0 (GET LAMP), numericcondacts: 201 0 224 60 250 0 267 -> 201 0 224 60 250 "
        "5 267\n"
        "message 0, msgnum: 0 -> 5\n";
    EXPECT_EQ(Run(dry).output, expected);
    EXPECT_EQ(Run({"uses", File("game.fbd"), "message", "5"}).status, 1);
    EXPECT_EQ(Run(line).output, expected);
    EXPECT_NE(Run({"uses", File("game.fbd"), "message", "5"}).output.find("MESSAGE 5"), std::string::npos);
    EXPECT_EQ(Run({"renumber", File("game.fbd"), "flag", "38", "60"}).status, 1);
}

struct Example {
    const char* name;
    const char* kind;
    const char* source;
    std::vector<std::vector<std::string>> renumberings;
};

class RenumberedExample : public testing::TestWithParam<Example> {};

TEST_P(RenumberedExample, PlaysItsWalkthroughWithTheSameTranscript) {
    const TempFolder folder;
    const std::filesystem::path examples = SourceFolder() / "examples";
    const std::string game = (folder / "game.fbd").string();
    ASSERT_EQ(
        RunProgram(Program(), {"import", GetParam().kind, (examples / GetParam().source).string(), game})
            .status,
        0);
    int done = 0;
    for (const auto& renumbering : GetParam().renumberings) {
        std::vector<std::string> arguments = {"renumber", game};
        arguments.insert(arguments.end(), renumbering.begin(), renumbering.end());
        const ProgramResult result = RunProgram(Program(), arguments);
        EXPECT_EQ(result.status, 0) << renumbering[0] << " " << renumbering[1] << ": " << result.errors;
        EXPECT_EQ(result.errors, "") << renumbering[0] << " " << renumbering[1];
        ++done;
    }
    EXPECT_GT(done, 5);
    const ProgramResult played =
        RunProgram(Program(), {"test", game, (examples / GetParam().name / "walkthrough.scr").string()});
    EXPECT_EQ(played.status, 0) << played.output.substr(0, 2000);
}

INSTANTIATE_TEST_SUITE_P(Examples, RenumberedExample,
                         testing::Values(Example{"lighthouse",
                                                 "ace",
                                                 "lighthouse/lighthouse.txt",
                                                 {{"message", "12", "40"},
                                                  {"message", "0", "900"},
                                                  {"location", "14", "15"},
                                                  {"object", "22", "60"},
                                                  {"process", "3", "30"},
                                                  {"process", "4", "5"},
                                                  {"flag", "70", "200"},
                                                  {"flag", "71", "73"}}},
                                         Example{"signal_box",
                                                 "pcvel",
                                                 "signal_box/signal_box.sce",
                                                 {{"message", "3", "30"},
                                                  {"message", "5", "250"},
                                                  {"location", "4", "5"},
                                                  {"location", "3", "4"},
                                                  {"message", "7", "31"},
                                                  {"flag", "67", "75"},
                                                  {"flag", "70", "190"}}},
                                         Example{"cellar",
                                                 "fabula",
                                                 "cellar/cellar.ext",
                                                 {{"message", "3", "30"},
                                                  {"message", "5", "250"},
                                                  {"location", "3", "4"},
                                                  {"location", "4", "5"},
                                                  {"message", "7", "31"},
                                                  {"flag", "15", "16"},
                                                  {"flag", "12", "13"}}}),
                         [](const testing::TestParamInfo<Example>& each) {
                             return std::string(each.param.name);
                         });

}  // namespace
}  // namespace fabula::test
