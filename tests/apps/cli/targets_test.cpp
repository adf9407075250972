// Nothing that a verb writes eats its source, another file of the program's, or a file that nobody gave up.

#include <algorithm>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/child_process.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// A folder with the source of a small game and its adventure.
class Targets : public testing::Test {
  protected:
    Targets() {
        std::ofstream(File("game.txt")) << "/CTL\n_\n/VOC\nNORTH 2 noun\nSAVE 30 verb\n/LTX\n/0\nHall.\n"
                                           "/CON\n/0\nNORTH 0\n/PRO 0\nSAVE _ SAVE\n/PRO 1\n_ _ NEWLINE\n";
        EXPECT_EQ(Run({"import", "ace", File("game.txt"), File("game.fbd")}).status, 0);
        adventure_ = Content(File("game.fbd"));
    }

    std::string File(const std::string& name) const { return (folder_.Path() / name).string(); }
    ProgramResult Run(const std::vector<std::string>& arguments, const std::string& input = "") {
        return RunProgram(Program(), arguments, input);
    }
    /// Runs what must be refused with this reason, and leave the adventure as it was.
    void ExpectRefused(const std::vector<std::string>& arguments, const std::string& target,
                       const std::string& reason) {
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.status, 1) << arguments[0];
        EXPECT_EQ(result.errors, "fabula: Could not write " + target + ": " + reason + ".\n");
        EXPECT_TRUE(Content(File("game.fbd")) == adventure_) << arguments[0] << " changed the adventure";
    }
    std::size_t FileCount() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()));
    }

    TempFolder folder_;
    std::string adventure_;
};

TEST_F(Targets, AnExportOntoItsOwnAdventureIsRefusedWithForceToo) {
    ExpectRefused({"export", "ace", File("game.fbd"), File("game.fbd"), "--force"}, File("game.fbd"),
                  "it is the source itself");
    fs::create_symlink("game.fbd", File("link"));
    ExpectRefused({"export", "ace", File("game.fbd"), File("link"), "--force"}, File("link"),
                  "it is the source itself");
}

TEST_F(Targets, AnExportOntoAnotherAdventureIsRefusedWithForceToo) {
    fs::copy_file(File("game.fbd"), File("other"));
    ExpectRefused({"export", "ace", File("game.fbd"), File("other"), "--force"}, File("other"),
                  "it is an adventure");
}

TEST_F(Targets, AnImportOntoItsOwnSourceIsRefusedWithForceToo) {
    const std::string source = Content(File("game.txt"));
    ExpectRefused({"import", "ace", File("game.txt"), File("game.txt"), "--force"}, File("game.txt"),
                  "it is the source itself");
    EXPECT_EQ(Content(File("game.txt")), source);
}

TEST_F(Targets, AFileThatExistsIsReplacedOnlyWithForce) {
    std::ofstream(File("out.txt")) << "precious";
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"export", "ace", File("game.fbd"), File("out.txt")},
          {"play", File("game.fbd"), "--transcript", File("out.txt")},
          {"play", File("game.fbd"), "--trace", File("out.txt")},
          {"play", File("game.fbd"), "--origins", File("out.txt")},
          {"charset", "save", File("game.fbd"), File("out.txt"), "0"}}) {
        ExpectRefused(arguments, File("out.txt"), "it exists already; --force replaces it");
        EXPECT_EQ(Content(File("out.txt")), "precious") << arguments[0];
    }
    EXPECT_EQ(Run({"export", "ace", File("game.fbd"), File("out.txt"), "--force"}).status, 0);
    EXPECT_NE(Content(File("out.txt")), "precious");
}

TEST_F(Targets, AnExportGoesToStandardOutputForAMinus) {
    ASSERT_EQ(Run({"export", "ace", File("game.fbd"), File("out.txt")}).status, 0);
    const ProgramResult result = Run({"export", "ace", File("game.fbd"), "-"});
    EXPECT_EQ(result.status, 0);
    // The first line names the target.
    const auto withoutFirstLine = [](const std::string& text) { return text.substr(text.find('\n')); };
    EXPECT_EQ(withoutFirstLine(result.output), withoutFirstLine(Content(File("out.txt"))));
    EXPECT_FALSE(fs::exists("-"));
}

TEST_F(Targets, TheTranscriptOverTheGameThatIsPlayedIsRefused) {
    ExpectRefused({"play", File("game.fbd"), "--transcript", File("game.fbd"), "--force"}, File("game.fbd"),
                  "it is the source itself");
}

TEST_F(Targets, ASavedGameIsNotWrittenOverTheGameThatIsPlayed) {
    const ProgramResult result = Run({"play", File("game.fbd")}, "save\n" + File("game.fbd") + "\n");
    EXPECT_NE(result.output.find("Could not write " + File("game.fbd") + ": it is an adventure."),
              std::string::npos)
        << result.output;
    EXPECT_TRUE(Content(File("game.fbd")) == adventure_);
}

TEST_F(Targets, AReadOnlyFileIsKeptWithForceToo) {
    std::ofstream(File("out.txt")) << "precious";
    fs::permissions(File("out.txt"), fs::perms::owner_read);
    ExpectRefused({"export", "ace", File("game.fbd"), File("out.txt"), "--force"}, File("out.txt"),
                  "it is read-only");
    EXPECT_EQ(Content(File("out.txt")), "precious");
}

TEST_F(Targets, AnAdventureIsNotCalledLikeAnotherKindOfFile) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"new", File("x.txt")},
                                                      {"import", "ace", File("game.txt"), File("x.txt")}}) {
        ExpectRefused(arguments, File("x.txt"), "the name of an adventure ends in .fbd, not in .txt");
        EXPECT_FALSE(fs::exists(File("x.txt")));
    }
    EXPECT_EQ(Run({"new", File("LOUD.FBD")}).status, 0);
    EXPECT_EQ(Run({"new", File("plain")}).status, 0) << "a name without an ending is taken as it is";
}

TEST(UnknownOption, IsNamedWhereverItStands) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--bogus"},
                                                      {"verify", "--bogus"},
                                                      {"--bogus", "verify", "game.fbd"},
                                                      {"verify", "a.fbd", "b", "--bogus"}}) {
        const ProgramResult result = RunProgram(Program(), arguments, "");
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors, "fabula: There is no option '--bogus'; --help tells more.\n")
            << arguments[0];
    }
}

TEST(UnknownOption, IsNoLoneDash) {
    for (const std::string dash : {"-", "--"}) {
        const ProgramResult result = RunProgram(Program(), {"verify", dash, "a.fbd", "b", "-"}, "");
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors.find("no option"), std::string::npos) << result.errors;
    }
}

TEST_F(Targets, ADeviceIsWrittenToWithoutForce) {
    EXPECT_EQ(Run({"export", "ace", File("game.fbd"), "/dev/null"}).status, 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Targets, AnAdventureThatIsOpenForChangeElsewhereIsNotChanged) {
    ASSERT_EQ(Run({"charset", "save", File("game.fbd"), File("sets.chr"), "0"}).status, 0);
    EXPECT_EQ(Run({"charset", "load", File("game.fbd"), File("sets.chr"), "0", "0"}).status, 0);
    fs::permissions(File("game.fbd"), static_cast<fs::perms>(0444));
    const ProgramResult result = Run({"charset", "load", File("game.fbd"), File("sets.chr"), "0", "0"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not open " + File("game.fbd") + ": it can only be read.\n");
}

TEST_F(Targets, ATranscriptOrTraceOnAFullDiskFails) {
    ProgramResult result = Run({"play", File("game.fbd"), "--transcript", "/dev/full"}, "");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors, "");
    result = Run({"play", File("game.fbd"), "--trace", "/dev/full"}, "");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not write the trace /dev/full.\n");
    result = Run({"play", File("game.fbd"), "--origins", "/dev/full"}, "");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not write all of the list of origins /dev/full.\n");
}

TEST(FullDisk, AHelpThatCanNotBeWrittenIsToldInOneSentence) {
    for (const char* command : {"exec \"$0\" --help >/dev/full", "exec \"$0\" --version >/dev/full",
                                "exec \"$0\" dump --help >/dev/full"}) {
        const ProgramResult result = RunProgram("/bin/sh", {"-c", command, Program()});
        EXPECT_EQ(result.status, 1) << command;
        EXPECT_EQ(result.errors, "fabula: Could not write the output: No space left on device.\n")
            << command;
    }
}

TEST_F(Targets, AnOutputThatCanNotBeWrittenIsToldWithTheReason) {
    const std::vector<std::string> verbs = {
        "dump \"$1\" Locations", "uses \"$1\" location 0", "verify \"$1\"",
        "list \"$1\" locations", "tables \"$1\"",          "play \"$1\" </dev/null",
    };
    for (const std::string& verb : verbs) {
        const std::string command = "exec \"$0\" " + verb + " >/dev/full";
        const ProgramResult result = RunProgram("/bin/sh", {"-c", command, Program(), File("game.fbd")});
        EXPECT_EQ(result.status, 1) << verb;
        EXPECT_EQ(result.errors, "fabula: Could not write the output: No space left on device.\n") << verb;
    }
}

TEST_F(Targets, APipeInPlaceOfAFileThatIsReadIsRefusedWithoutAWait) {
    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"import", "ace", File("pipe"), File("new.fbd")},
          {"charset", "load", File("game.fbd"), File("pipe"), "0", "0"},
          {"tables", File("pipe")}}) {
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.status, 1) << arguments[0];
        EXPECT_NE(result.errors, "") << arguments[0];
    }
}

TEST_F(Targets, AnEmptyNameIsRefusedBeforeAnythingIsRead) {
    const std::vector<std::vector<std::string>> commands = {
        {"export", "ace", File("game.fbd"), ""},
        {"import", "ace", File("game.txt"), ""},
    };
    for (const auto& arguments : commands) {
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.status, 2) << arguments[0];
        EXPECT_EQ(result.errors, "fabula: The name of the file to write is empty.\n") << arguments[0];
    }
}

TEST_F(Targets, AFailureIsOneLineWhateverTheNameOfTheFile) {
    const std::string errors = Run({"verify", File("no\nsuch.fbd")}).errors;
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
}

TEST_F(Targets, AStarterThatCannotBeAddedLeavesTheOldAdventure) {
    // A folder of data without starters.
    const fs::path data = folder_.Path() / "data/Fabula";
    fs::create_directories(data);
    for (const auto& entry : fs::directory_iterator(SourceFolder() / "data"))
        if (entry.path().filename() != "starters")
            fs::create_symlink(entry.path(), data / entry.path().filename());
    const fs::path bin = folder_.Path() / "bin";
    fs::create_directory(bin);
    fs::copy_file(Program(), bin / "fabula");
    fs::create_directories(folder_.Path() / "share");
    fs::create_directory_symlink(data, folder_.Path() / "share/fabula");
    const std::size_t files = FileCount();
    const ProgramResult result =
        RunProgram(bin / "fabula", {"new", File("game.fbd"), "--starter", "--force"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Content(File("game.fbd")) == adventure_);
    EXPECT_EQ(RunProgram(bin / "fabula", {"new", File("fresh.fbd"), "--starter"}).status, 1);
    EXPECT_FALSE(fs::exists(File("fresh.fbd")));
    EXPECT_EQ(FileCount(), files);
}

}  // namespace
}  // namespace fabula::test
