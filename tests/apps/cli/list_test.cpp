// Listings on the command line.

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

namespace fs = std::filesystem;

class List : public testing::Test {
  protected:
    static ProgramResult Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"list", (ExampleGames() / "cellar.fbd").string()});
        return RunProgram(Program(), arguments);
    }
    std::string File(const char* name) const { return (folder_ / name).string(); }
    static std::string Content(const fs::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    TempFolder folder_;
};

TEST_F(List, GoesToStandardOutputAsText) {
    const ProgramResult result = Run({"locations"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, Content(SourceFolder() / "tests/listings/golden/cellar/locations.txt"));
}

TEST_F(List, GoesToAFileInTheFormOfItsExtension) {
    EXPECT_EQ(Run({"locations", "--output", File("rooms.txt")}).status, 0);
    EXPECT_EQ(Run({"locations", "--output", File("rooms.html")}).status, 0);
    EXPECT_TRUE(Content(File("rooms.txt")).starts_with("                                Location Listing"));
    EXPECT_TRUE(Content(File("rooms.html")).starts_with("<!DOCTYPE html>"));
}

TEST_F(List, WholeAdventureInHtmlLinksItsRecords) {
    EXPECT_EQ(Run({"adventure", "--output", File("game.html")}).status, 0);
    const std::string file = Content(File("game.html"));
    EXPECT_NE(file.find("id=\"locations-1\""), std::string::npos);
    EXPECT_NE(file.find("href=\"#locations-1\""), std::string::npos);
    EXPECT_NE(file.find("href=\"#messages-3\""), std::string::npos);
    EXPECT_NE(file.find("data:image/png;base64,"), std::string::npos);
}

TEST_F(List, RangeChoosesTables) {
    const ProgramResult result = Run({"processes", "--range", "1"});
    EXPECT_EQ(result.output.find("Process Table 0"), std::string::npos);
    EXPECT_NE(result.output.find("Process Table 1"), std::string::npos);
}

TEST_F(List, RangeThatIsNoneIsTold) {
    const ProgramResult result = Run({"processes", "--range", "5-3"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Beginning range > ending range in 5-3\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(Run({"processes", "--range", ""}).errors, "fabula: No Process Tables specified to print\n");
}

TEST_F(List, ReportThatTakesNoRangeSaysSo) {
    const ProgramResult result = Run({"objects", "--range", "1"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "fabula: the report 'objects' takes no range\n");
}

TEST_F(List, ReportThatTakesNoWordsSaysSo) {
    const ProgramResult result = Run({"locations", "--verb", "GET"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "fabula: the report 'locations' takes no verb and no noun\n");
    EXPECT_EQ(Run({"verb-noun", "--verb", "GET", "--range", "0"}).status, 0);
}

TEST_F(List, UnknownReportIsAWrongUse) {
    const ProgramResult result = Run({"rooms"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "fabula: there is no report 'rooms'; 'fabula list --help' shows them\n");
}

TEST_F(List, BriefAndVerboseExcludeEachOther) {
    EXPECT_EQ(Run({"adventure", "--brief", "--verbose"}).status, 2);
    EXPECT_TRUE(Run({"adventure", "--brief"}).output.starts_with("                              Brief"));
}

TEST_F(List, FileThatIsThereIsReplacedByForceAlone) {
    std::ofstream(File("rooms.txt")) << "mine";
    EXPECT_EQ(Run({"locations", "--output", File("rooms.txt")}).status, 1);
    EXPECT_EQ(Content(File("rooms.txt")), "mine");
    EXPECT_EQ(Run({"locations", "--output", File("rooms.txt"), "--force"}).status, 0);
    EXPECT_NE(Content(File("rooms.txt")), "mine");
}

TEST_F(List, AdventureIsNoPlaceForAListing) {
    fs::copy_file(ExampleGames() / "cellar.fbd", File("other.fbd"));
    EXPECT_EQ(Run({"locations", "--output", File("other.fbd"), "--force"}).status, 1);
    EXPECT_EQ(Content(File("other.fbd")), Content(ExampleGames() / "cellar.fbd"));
}

TEST_F(List, OutputThatCannotBeWrittenIsToldInOneSentence) {
    const ProgramResult result = Run({"locations", "--output", File("no/such/folder.txt")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    EXPECT_NE(result.errors.find("Could not write"), std::string::npos);
}

TEST_F(List, FullDiskLeavesTheOldListing) {
    std::ofstream(File("rooms.txt")) << "mine";
    const int status = RunInChild([&] {
        LimitFileSize(1000);
        return RunProgram(Program(), {"list", (ExampleGames() / "cellar.fbd").string(), "locations",
                                      "--output", File("rooms.txt"), "--force"})
            .status;
    });
    EXPECT_EQ(status, 1);
    EXPECT_EQ(Content(File("rooms.txt")), "mine");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()), 1);
}

TEST_F(List, AFileByTheNameOfAnotherFormIsRefused) {
    const ProgramResult result = Run({"locations", "--output", File("rooms.pdf")});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "fabula: a listing is a *.txt or *.html file, not *.pdf\n");
    EXPECT_FALSE(fs::exists(File("rooms.pdf")));
}

TEST_F(List, TemplateIsNamedByTheRange) {
    EXPECT_NE(Run({"templates", "--range", "keypad_small"}).output.find("|INS|HOM|PUP|"),
              std::string::npos);
    EXPECT_EQ(Run({"templates", "--range", "tiny"}).errors, "fabula: tiny is not available\n");
}

}  // namespace
}  // namespace fabula::test
