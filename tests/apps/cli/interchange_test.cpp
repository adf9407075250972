#include <fstream>

#include <gtest/gtest.h>

#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

constexpr const char* kGame =
    "/CTL\n_\n/VOC\nNORTH 2 noun\nSOUTH 3 noun\nLAMP 50 noun\nGET 20 verb\n/MTX\n/0\nHello.\n/OTX\n/0\nA "
    "lamp\n"
    "/LTX\n/0\nHall.\n/1\nCellar.\n/CON\n/0\nNORTH 1\n/1\nSOUTH 0\n/OBJ\n/0 1 2 N N LAMP _\n"
    "/PRO 0\nGET LAMP GET 0 OK\n/PRO 1\n_ _ NEWLINE LISTOBJ\n";

/// A folder with a small game as a source.
class Interchange : public testing::Test {
  protected:
    Interchange() { Write("game.txt", kGame); }

    void Write(const char* name, const std::string& text) { std::ofstream(folder_ / name) << text; }
    std::string File(const char* name) const { return (folder_ / name).string(); }
    ProgramResult Run(const std::vector<std::string>& arguments) {
        return RunProgram(Program(), arguments);
    }
    bool Exists(const char* name) const { return std::filesystem::exists(folder_ / name); }

    TempFolder folder_;
};

using ImportVerb = Interchange;
using ExportVerb = Interchange;
using VerifyVerb = Interchange;
using CheckVerb = Interchange;

TEST_F(ImportVerb, MakesAnAdventureAndTellsItsStatusOnStandardError) {
    const ProgramResult result = Run({"import", "ace", File("game.txt"), File("game.fbd")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.errors.find("Loaded ACE Source Process Tables.\n"), std::string::npos)
        << result.errors;
    EXPECT_TRUE(Exists("game.fbd"));
}

TEST_F(ImportVerb, LeavesAnExistingFileAloneWithoutForce) {
    Write("game.fbd", "precious");
    EXPECT_EQ(Run({"import", "ace", File("game.txt"), File("game.fbd")}).status, 1);
    EXPECT_EQ(Run({"import", "ace", File("game.txt"), File("game.fbd"), "--force"}).status, 0);
}

TEST_F(ImportVerb, ABadSourceFailsAndLeavesNoFile) {
    Write("bad.txt", "nothing\n");
    EXPECT_EQ(Run({"import", "ace", File("bad.txt"), File("game.fbd")}).status, 1);
    EXPECT_FALSE(Exists("game.fbd"));
}

TEST_F(ImportVerb, SaysWhyASourceCannotBeRead) {
    const ProgramResult missing = Run({"import", "ace", File("none.txt"), File("game.fbd")});
    EXPECT_EQ(missing.errors, "fabula: Could not read " + File("none.txt") + ": there is no such file.\n");
    const ProgramResult folder = Run({"import", "ace", File("."), File("game.fbd")});
    EXPECT_EQ(folder.errors, "fabula: Could not read " + File(".") + ": it is no file.\n");
}

TEST_F(ImportVerb, AnUnknownKindIsWrongUsage) {
    const ProgramResult result = Run({"import", "word", File("game.txt"), File("game.fbd")});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "fabula: the kind must be one of unmarlo, unvel, pcvel, fabula, ace, not 'word'\n");
}

TEST_F(ExportVerb, WritesEachKindAndReadsItBack) {
    Run({"import", "ace", File("game.txt"), File("game.fbd")});
    for (const char* kind : {"fabula", "ace", "pcvel"}) {
        const std::string target = File(kind);
        EXPECT_EQ(Run({"export", kind, File("game.fbd"), target}).status, 0) << kind;
        EXPECT_EQ(Run({"import", kind, target, File("again.fbd"), "--force"}).status, 0) << kind;
        EXPECT_EQ(Run({"verify", File("again.fbd")}).status, 0) << kind;
    }
}

TEST_F(ExportVerb, OnlyAnUnVelExtractHasAVersion) {
    Run({"import", "ace", File("game.txt"), File("game.fbd")});
    EXPECT_EQ(Run({"export", "ace", File("game.fbd"), File("out.txt"), "--version", "9.9"}).status, 2);
    EXPECT_FALSE(Exists("out.txt"));
}

TEST_F(ExportVerb, AFolderOfAnyNameCanHoldTheAdventure) {
    const std::filesystem::path folder = folder_ / "\u6587\u5B57";
    std::filesystem::create_directory(folder);
    Run({"import", "ace", File("game.txt"), (folder / "\u7070.fbd").string()});
    for (const char* kind : {"ace", "pcvel"}) {
        const ProgramResult result = Run({"export", kind, (folder / "\u7070.fbd").string(), File(kind)});
        EXPECT_EQ(result.status, 0) << result.errors;
    }
}

TEST_F(ExportVerb, AnAdventureThatDoesNotPassLeavesTheTargetAsItWas) {
    Write("own.txt", "/CTL\n_\n/VOC\n/PRO 0\n_ _ OOPS 1\n");
    Run({"import", "ace", File("own.txt"), File("own.fbd")});
    Write("own.sce", "precious");
    const ProgramResult result = Run({"export", "pcvel", File("own.fbd"), File("own.sce"), "--force"});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(
        result.errors.find("Use of OOPS Condition/Action. This is not a valid PCVel Condition/Action.\n"),
        std::string::npos);
    std::string content;
    std::getline(std::ifstream(File("own.sce")), content);
    EXPECT_EQ(content, "precious");
}

TEST_F(VerifyVerb, PrintsItsStatusOnStandardOutput) {
    Run({"import", "ace", File("game.txt"), File("game.fbd")});
    const ProgramResult result = Run({"verify", File("game.fbd")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "Verifying Process/Response Tables \nNo Errors Found\nVerify Completed\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(VerifyVerb, ErrorsGiveStatusOne) {
    Write("bad.txt", "/CTL\n_\n/VOC\n/PRO 0\n_ _ MESSAGE 9\n");
    Run({"import", "ace", File("bad.txt"), File("bad.fbd")});
    const ProgramResult result = Run({"verify", File("bad.fbd")});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("MESSAGE 9 is an invalid Condition/Action\n"), std::string::npos);
}

TEST_F(VerifyVerb, ChecksForAnExport) {
    Write("own.txt", "/CTL\n_\n/VOC\n/PRO 0\n_ _ OOPS 1\n");
    Run({"import", "ace", File("own.txt"), File("own.fbd")});
    EXPECT_EQ(Run({"verify", File("own.fbd")}).status, 0);
    EXPECT_EQ(Run({"verify", File("own.fbd"), "--for", "fabula"}).status, 0);
    EXPECT_EQ(Run({"verify", File("own.fbd"), "--for", "pcvel"}).status, 1);
    EXPECT_EQ(Run({"verify", File("own.fbd"), "--for", "word"}).status, 2);
}

TEST_F(CheckVerb, ReadsAndVerifiesASourceAndLeavesNothing) {
    const ProgramResult result = Run({"check", File("game.txt")});
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_TRUE(result.output.ends_with("No Errors Found\nVerify Completed\n"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.Path()),
                            std::filesystem::directory_iterator()),
              1);
}

TEST_F(CheckVerb, AFaultInTheSourceGivesStatusOneAndItsLine) {
    Write("bad.txt", std::string(kGame) + "_ _ NONSENSE\n");
    const ProgramResult result = Run({"check", File("bad.txt")});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("bad.txt:30:5: fault: _ _: NONSENSE is an invalid Condition/Action\n"),
              std::string::npos)
        << result.output;
}

TEST_F(CheckVerb, TellsHowItReadASourceWithoutAMark) {
    const std::string source(kGame);
    const std::size_t at = source.find("Hello.");
    Write("utf8.txt", std::string(source).insert(at, "Caf\u00E9 "));
    EXPECT_NE(Run({"check", File("utf8.txt")}).output.find("The text is read as UTF-8.\n"),
              std::string::npos);
    const ProgramResult decided = Run({"check", File("utf8.txt"), "--encoding", "windows-1252"});
    EXPECT_NE(decided.output.find("The text is read as Windows-1252.\n"), std::string::npos);
    const ProgramResult inCapitals = Run({"check", File("utf8.txt"), "--encoding", "UTF-8"});
    EXPECT_NE(inCapitals.output.find("The text is read as UTF-8.\n"), std::string::npos);
    EXPECT_EQ(Run({"check", File("utf8.txt"), "--encoding", "latin"}).status, 2);
}

TEST_F(CheckVerb, TakesTheKindFromTheNameOrFromAnOption) {
    Write("game.src", kGame);
    EXPECT_EQ(Run({"check", File("game.src")}).status, 2);
    EXPECT_EQ(Run({"check", File("game.src"), "--kind", "ace"}).status, 0);
}

}  // namespace
}  // namespace fabula::test
