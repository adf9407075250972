#include <fstream>

#include <gtest/gtest.h>

#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"

namespace fabula::test {
namespace {

/// What a terminal would obey: a title set by an escape sequence, a colour by a C1 character, DEL, and a
/// turn of direction.
const std::string kObeyed = "\x1B]0;owned\x07\u009B31m\x7F\u202E";

/// A game in UTF-8 whose texts and words a terminal would obey, with a fault that tells of one.
std::string HostileGame() {
    return "\xEF\xBB\xBF/CTL\n_\n/VOC\nNORTH 2 noun\nGET 20 verb\nLA" + kObeyed + "MP 50 noun\n/MTX\n/0\n" +
           kObeyed + "\n/OTX\n/0\n" + kObeyed +
           "\n/LTX\n/0\nHall.\n/CON\n/0\nNORTH 0\n/OBJ\n/0 0 1 _ _ LA" + kObeyed +
           "MP _\n/PRO 0\nGET _ FROB" + kObeyed + " 1\n";
}

/// Whether nothing but text and line ends stands in what a program wrote.
bool IsPlainText(const std::string& written) {
    for (std::size_t at = 0; at < written.size();) {
        const text::CodePoint point = text::DecodeAt(written, at);
        if (point.value != U'\n' && text::IsObeyed(point.value)) return false;
        at += point.size;
    }
    return true;
}

class HostileText : public testing::Test {
  protected:
    HostileText() { std::ofstream(File("game.txt"), std::ios::binary) << HostileGame(); }

    std::string File(const std::string& name) const { return (folder_.Path() / name).string(); }

    /// Runs the program; what it wrote must be plain, and must tell something.
    ProgramResult RunPlain(const std::vector<std::string>& arguments) {
        ProgramResult result = RunProgram(Program(), arguments);
        EXPECT_TRUE(IsPlainText(result.output)) << arguments[0] << " wrote:\n" << result.output;
        EXPECT_TRUE(IsPlainText(result.errors)) << arguments[0] << " told:\n" << result.errors;
        EXPECT_NE(result.output + result.errors, "") << arguments[0];
        return result;
    }

    TempFolder folder_;
};

TEST_F(HostileText, OfASourceReachesNoTerminalFromCheck) {
    const ProgramResult result = RunPlain({"check", File("game.txt")});
    EXPECT_NE(result.output.find("FROB is an invalid Condition/Action"), std::string::npos)
        << result.output;
}

TEST_F(HostileText, OfASourceReachesNoTerminalFromImportVerifyAndExport) {
    RunPlain({"import", "ace", File("game.txt"), File("game.fbd")});
    RunPlain({"verify", File("game.fbd")});
    RunPlain({"export", "pcvel", File("game.fbd"), File("game.sce")});
}

TEST_F(HostileText, InANameOfAFileReachesNoTerminal) {
    RunPlain({"tables", File("no" + kObeyed + "where.fbd")});
    RunPlain({"new", File("no" + kObeyed + "where") + "/game.fbd"});
}

TEST_F(HostileText, IsDumpedAsNumbers) {
    RunProgram(Program(), {"import", "ace", File("game.txt"), File("game.fbd")});
    const ProgramResult result = RunPlain({"dump", File("game.fbd"), "messages", "--fields", "msgmsg"});
    EXPECT_NE(result.output.find(R"(\u001b]0;owned\u0007\u009b31m)"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find(R"(\u202e)"), std::string::npos) << result.output;
}

TEST_F(HostileText, OfAGameTurnsNoDirectionWhilePlayed) {
    std::string game = HostileGame();
    game.replace(game.find("Hall."), 5, "Hall " + kObeyed + ".");
    game.resize(game.find("GET _ FROB"));
    std::ofstream(File("game.txt"), std::ios::binary) << game;
    RunProgram(Program(), {"import", "ace", File("game.txt"), File("game.fbd")});
    const ProgramResult result = RunPlain({"play", File("game.fbd")});
    EXPECT_NE(result.output.find("Hall "), std::string::npos) << result.output;
}

}  // namespace
}  // namespace fabula::test
