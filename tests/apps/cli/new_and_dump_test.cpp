#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

/// A folder to make files in, and the program.
class NewAndDump : public testing::Test {
  protected:
    ProgramResult Run(const std::vector<std::string>& arguments) {
        return RunProgram(test::Program(), arguments);
    }
    std::string File() const { return (folder_ / "game.fbd").string(); }

    TempFolder folder_;
};

using NewVerb = NewAndDump;
using DumpVerb = NewAndDump;
using TablesVerb = NewAndDump;
using CommandLine = NewAndDump;

std::vector<nlohmann::json> Records(const std::string& output) {
    std::vector<nlohmann::json> records;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        records.push_back(nlohmann::json::parse(line));
    return records;
}

TEST_F(NewVerb, MakesAFileAndSaysNothing) {
    const ProgramResult result = Run({"new", File()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(std::filesystem::exists(File()));
}

TEST_F(NewVerb, LeavesAnExistingFileAloneWithoutForce) {
    std::ofstream(File()) << "precious";
    const ProgramResult result = Run({"new", File()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "fabula: Could not write " + File() + ": it exists already; --force replaces it.\n");
    std::string content;
    std::getline(std::ifstream(File()), content);
    EXPECT_EQ(content, "precious");
}

TEST_F(NewVerb, ReplacesAnExistingFileWithForce) {
    std::ofstream(File()) << "old";
    EXPECT_EQ(Run({"new", File(), "--force"}).status, 0);
    EXPECT_EQ(Run({"tables", File()}).status, 0);
}

TEST_F(NewVerb, AddsDirectionsAndVerbsWithStarter) {
    for (const char* type : {"fabula", "vel", "marlo"}) {
        ASSERT_EQ(Run({"new", File(), "--type", type, "--starter", "--force"}).status, 0) << type;
        const auto north =
            Records(Run({"dump", File(), "vocabulary", "--where", "word like 'NORT%'", "--order", "vocnum"})
                        .output);
        ASSERT_FALSE(north.empty()) << type;
        EXPECT_EQ(north.front()["vocnum"], 2) << type;
        EXPECT_FALSE(Records(Run({"dump", File(), "processtables"}).output).empty()) << type;
    }
}

TEST_F(NewVerb, AnUnknownTypeIsWrongUsage) {
    const ProgramResult result = Run({"new", File(), "--type", "novel"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "fabula: --type must be fabula, vel or marlo, not 'novel'\n");
    EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(NewVerb, AFolderThatDoesNotExistIsToldInOneSentence) {
    const std::string file = (folder_ / "nowhere").string() + "/game.fbd";
    const ProgramResult result = Run({"new", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not create " + file + ": there is no folder " +
                                 (folder_ / "nowhere").string() + ".\n");
}

TEST_F(DumpVerb, WritesTheCondactsOfAVelAdventureAs123Lines) {
    ASSERT_EQ(Run({"new", File(), "--type", "vel"}).status, 0);
    const auto records = Records(Run({"dump", File(), "condacts"}).output);
    ASSERT_EQ(records.size(), 123u);
    EXPECT_EQ(records.front()["caname"], "AT");
    EXPECT_EQ(records.back()["canum"], 294);
}

TEST_F(DumpVerb, ShowsTheFieldsAskedForInTheOrderAskedFor) {
    ASSERT_EQ(Run({"new", File(), "--type", "marlo"}).status, 0);
    EXPECT_EQ(Run({"dump", File(), "adventure", "--fields", "adventype,charsets,startloc"}).output,
              "{\"adventype\":\"Marlo\",\"charsets\":true,\"startloc\":0}\n");
    const ProgramResult result =
        Run({"dump", File(), "10", "--fields", "caname", "--where", "canum<104", "--order", "canum desc"});
    EXPECT_EQ(result.output, "{\"caname\":\"ATGT\"}\n{\"caname\":\"NOTAT\"}\n{\"caname\":\"AT\"}\n");
}

TEST_F(DumpVerb, AFaultInTheFilterIsWrongUsageAndToldWithItsPlace) {
    ASSERT_EQ(Run({"new", File()}).status, 0);
    const ProgramResult result = Run({"dump", File(), "vocabulary", "--where", "word=5"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "fabula: --where word=5: at 6: expected a text in quotes\n");
}

TEST_F(DumpVerb, ATableThatDoesNotExistIsWrongUsage) {
    ASSERT_EQ(Run({"new", File()}).status, 0);
    const ProgramResult result = Run({"dump", File(), "words"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "fabula: there is no table 'words'; 'fabula tables' shows them\n");
}

TEST_F(DumpVerb, AFileOfAnotherKindIsRefusedAndLeftAsItWas) {
    std::ofstream(File()) << std::string(200, 'x');
    const ProgramResult result = Run({"dump", File(), "vocabulary"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not open " + File() + ": it is not an adventure file.\n");
    EXPECT_EQ(std::filesystem::file_size(File()), 200u);
}

TEST_F(DumpVerb, AFileThatIsNotThereIsToldSo) {
    const ProgramResult result = Run({"dump", File(), "vocabulary"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not open " + File() + ": there is no such file.\n");
}

TEST_F(TablesVerb, ShowsEveryTableWithItsNumberAndSize) {
    ASSERT_EQ(Run({"new", File()}).status, 0);
    const ProgramResult result = Run({"tables", File()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 21);
    EXPECT_NE(result.output.find(" 9  Flags            1025 records\n"), std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("30  System              1 record\n"), std::string::npos) << result.output;
}

TEST_F(CommandLine, HelpIsThereForTheProgramAndEveryVerb) {
    std::istringstream help(Run({"--help"}).output);
    int verbs = 0;
    bool isListed = false;
    for (std::string line; std::getline(help, line);) {
        if (isListed && line.starts_with("  ") && line[2] != ' ') {
            const std::string verb = line.substr(2, line.find(' ', 2) - 2);
            const std::string does = line.substr(line.find_first_not_of(' ', 2 + verb.size()));
            const ProgramResult result = Run({verb, "--help"});
            EXPECT_EQ(result.status, 0);
            EXPECT_EQ(result.output.rfind(does, 0), 0u) << result.output;
            EXPECT_NE(result.output.find("Usage: fabula " + verb), std::string::npos) << result.output;
            ++verbs;
        }
        isListed = isListed || line == "Subcommands:";
    }
    EXPECT_EQ(verbs, 21);
}

TEST_F(CommandLine, AnOptionBeforeTheVerbIsNotTakenForTheVerbs) {
    const ProgramResult result = Run({"--force", "new", File()});
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("--force"), std::string::npos) << result.errors;
    EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(CommandLine, NoVerbOrAnUnknownOneIsWrongUsage) {
    EXPECT_EQ(Run({}).status, 2);
    EXPECT_EQ(Run({"juggle"}).status, 2);
    EXPECT_EQ(Run({"new"}).status, 2);
}

TEST_F(CommandLine, TellsItsVersion) {
    EXPECT_EQ(Run({"--version"}).output.rfind("fabula ", 0), 0u);
}

}  // namespace
}  // namespace fabula::test
