#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "support/conversation.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"
#include "waiting_game.h"

namespace fabula::test {
namespace {

std::string Content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The game that waits for all there is, played from a pipe.
class PlayVerb : public testing::Test {
  protected:
    PlayVerb() { BuildWaitingGame(game_); }

    ProgramResult Play(const std::string& input, std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"play", game_});
        return RunProgram(Program(), options, input);
    }
    std::string File(const char* name) const { return folder_ / name; }

    TempFolder folder_;
    std::string game_ = folder_ / "game.fbd";
};

/// As a program for regression tests plays: it writes a command and reads up to the next prompt.
class PlayVerbByTurns : public PlayVerb {
  protected:
    PlayVerbByTurns() : talk_(Line::Pipe, Program(), {"play", game_}) { Answer(); }

    /// What the game says without the prompt, which must be the last that it says.
    std::string Answer() {
        std::string said = talk_.ReadUntil("\n>");
        said.resize(said.size() - 2);
        EXPECT_EQ(talk_.Unread(), "");
        return said;
    }
    std::string Say(const std::string& command) {
        talk_.Send(command + "\n");
        return Answer();
    }

    Conversation talk_;
};

TEST_F(PlayVerb, ShowsThePlaceAndThePromptAndEndsWithTheInput) {
    const ProgramResult result = Play("");
    EXPECT_EQ(result.output, "A room.\n?\n>\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(PlayVerb, EchoesNothing) {
    EXPECT_EQ(Play("inventory\ndance\n").output,
              "A room.\n?\n>You are carrying:\nnothing.\n?\n>Sorry, that gets you nowhere.\n?\n>\n");
}

TEST_F(PlayVerb, AGameThatEndsEndsTheProgram) {
    const ProgramResult result = Play("stop\nn\ninventory\n");
    EXPECT_EQ(result.output, "A room.\n?\n>\nWould you like to play again? (Y/N)\n>\n");
    EXPECT_EQ(result.status, 0);
}

TEST_F(PlayVerb, AGameThatIsPlayedAgainStartsAgain) {
    EXPECT_EQ(Play("stop\ny\n").output,
              "A room.\n?\n>\nWould you like to play again? (Y/N)\n>\nA room.\n?\n>\n");
}

TEST_F(PlayVerbByTurns, ASentenceIsAnsweredAtOnce) {
    EXPECT_EQ(Say("inventory"), "You are carrying:\nnothing.\n?");
    EXPECT_EQ(Say("dance"), "Sorry, that gets you nowhere.\n?");
}

TEST_F(PlayVerbByTurns, AnAnswerThatSaysNothingHasAPromptOfItsOwn) {
    talk_.Send("silent\n");
    EXPECT_EQ(talk_.ReadUntil("\n>"), "?\n>");
}

TEST_F(PlayVerbByTurns, AnEmptyLineHasAPromptOfItsOwn) {
    talk_.Send("\n");
    EXPECT_EQ(talk_.ReadUntil("\n>"), "\n>");
}

TEST_F(PlayVerbByTurns, YesNoWaits) {
    EXPECT_EQ(Say("ask"), "\nSure?");
    EXPECT_EQ(Say("yes"), "You said yes.\n?");
    Say("ask");
    EXPECT_EQ(Say("no"), "You said no.\n?");
}

TEST_F(PlayVerbByTurns, AnyKeyWaits) {
    EXPECT_EQ(Say("key"), "\nPress ENTER to go on.");
    EXPECT_EQ(Say(""), "You said yes.\n?");
}

TEST_F(PlayVerbByTurns, QuitAndEndWait) {
    EXPECT_EQ(Say("quit"), "\nDo you really want to stop playing? (Y/N)");
    EXPECT_EQ(Say("n"), "?");
    Say("quit");
    EXPECT_EQ(Say("y"),
              "You have scored 0 in all.\nYou have taken 2 turns.\n\nWould you like to play again? (Y/N)");
    talk_.Send("n\n");
    EXPECT_EQ(talk_.ReadToEnd(), "\n");
    EXPECT_EQ(talk_.Status(), 0);
}

TEST_F(PlayVerbByTurns, SaveAndLoadWaitForAName) {
    const std::string saved = File("mine.sav");
    EXPECT_EQ(Say("save"), "Save as a Fabula Save File");
    EXPECT_EQ(Say(saved), "A room.\n?");
    EXPECT_TRUE(std::filesystem::exists(saved));
    Say("inventory");
    EXPECT_EQ(Say("load"), "Open Existing Fabula Save File");
    EXPECT_EQ(Say(saved), "A room.\n?");
}

TEST_F(PlayVerbByTurns, SaveReplacesAFileWithoutAQuestion) {
    std::ofstream(File("mine.sav")) << "old";
    Say("save");
    EXPECT_EQ(Say(File("mine")), "A room.\n?");
    EXPECT_TRUE(Content(File("mine.sav")).starts_with("Fabula,"));
}

TEST_F(PlayVerbByTurns, AnEmptyNameGivesUp) {
    Say("save");
    EXPECT_EQ(Say(""), "?");
}

TEST_F(PlayVerbByTurns, AFileThatIsNotThereIsToldByItsName) {
    Say("load");
    EXPECT_EQ(Say("nowhere/missing"), "There is no file nowhere/missing.sav.\n?");
}

TEST_F(PlayVerbByTurns, AFileThatIsNoSavedGameIsRefused) {
    std::ofstream(File("letters.sav")) << "Fabula,letters\n";
    Say("load");
    EXPECT_EQ(Say(File("letters.sav")), "Invalid Save File for this Adventure\n?");
}

TEST_F(PlayVerbByTurns, ScriptWaitsForANameAndAnEmptyLinePlaysIt) {
    EXPECT_EQ(Say("record"), "Output SCRIPT Name");
    Say(File("walk.scr"));
    Say("inventory");
    Say("dance");
    EXPECT_EQ(Say("replay"), "Input SCRIPT Name");
    std::ofstream(File("other.scr")) << ">>dance\nwhat it said\n>>ask\n>>yes\n";
    EXPECT_EQ(Say(File("other.scr")), "An empty line plays the script, up to the next question.\n?");
    EXPECT_EQ(Say(""), "Sorry, that gets you nowhere.\n?\n\nSure?");
    EXPECT_EQ(Say(""), "You said yes.\n?\nEnd-of-file reached.");
}

TEST_F(PlayVerbByTurns, TheEndOfTheInputInAQuestionEndsTheProgram) {
    Say("save");
    EXPECT_EQ(talk_.ReadToEnd(), "?\n");
    EXPECT_EQ(talk_.Status(), 0);
}

TEST_F(PlayVerb, APausePassesAtOnce) {
    EXPECT_EQ(Play("rest\n").output, "A room.\n?\n>You said yes.\n?\n>\n");
}

TEST_F(PlayVerb, ATimeOutPassesAtAnEmptyLine) {
    EXPECT_EQ(Play("clock\n\ninventory\n").output,
              "A room.\n?\n>You said yes.\n?\n>The hour strikes.\n\nTime passes...\n?\n"
              ">You are carrying:\nnothing.\n?\n>\n");
}

TEST_F(PlayVerb, InRealTimeATimeOutPassesByItself) {
    Conversation talk(Line::Pipe, Program(), {"play", game_, "--real-time"});
    talk.ReadUntil("\n>");
    talk.Send("clock\n");
    EXPECT_EQ(talk.ReadUntil("\n>"), "You said yes.\n?\n>");
    EXPECT_EQ(talk.ReadUntil("\n>"), "The hour strikes.\n\nTime passes...\n?\n>");
}

TEST_F(PlayVerb, NothingThatATerminalWouldObeyIsWritten) {
    EXPECT_EQ(Play("escape\n").output, "A room.\n?\n>Before \uFFFD[2J\uFFFD31m\uFFFDbehind.\n?\n>\n");
}

TEST_F(PlayVerb, LinesBreakOnlyAtAWidth) {
    EXPECT_EQ(
        Play("long\n").output,
        "A room.\n?\n>one two three four five six seven eight nine ten eleven twelve thirteen\n?\n>\n");
    EXPECT_EQ(
        Play("long\n", {"--width", "24"}).output,
        "A room.\n?\n>one two three four five\nsix seven eight nine ten\neleven twelve thirteen\n?\n>\n");
}

TEST_F(PlayVerb, BlanksThatDoNotBreakAreBlanksThatDoNotBreak) {
    EXPECT_EQ(Play("together\n", {"--width", "32", "--transcript", File("transcript")}).output,
              "A room.\n?\n>Twenty columns, then\ntwo words together.\n?\n>\n");
    EXPECT_NE(Content(File("transcript")).find("then two words together."), std::string::npos);
}

TEST_F(PlayVerb, ColoursAreNotWrittenIntoAPipe) {
    EXPECT_EQ(Play("colour\n").output, "A room.\n?\n>An ink, a bright and a paper word.\n?\n>\n");
}

TEST_F(PlayVerb, ClearingTheScreenIsAnEmptyLine) {
    EXPECT_EQ(Play("inventory\nwipe\n").output, "A room.\n?\n>You are carrying:\nnothing.\n?\n>\n?\n>\n");
}

TEST_F(PlayVerb, ASeedMakesARunRepeatable) {
    const std::string rolls = "roll\nroll\nroll\nroll\nroll\nroll\n";
    const std::string first = Play(rolls, {"--seed", "7"}).output;
    EXPECT_EQ(Play(rolls, {"--seed", "7"}).output, first);
    EXPECT_NE(Play(rolls, {"--seed", "8"}).output, first);
}

TEST_F(PlayVerb, AScriptIsPlayedBeforeTheInput) {
    std::ofstream(File("script")) << "inventory\n";
    EXPECT_EQ(Play("dance\n", {"--script", File("script")}).output,
              "A room.\n?\n>You are carrying:\nnothing.\n?\n>Sorry, that gets you nowhere.\n?\n>\n");
}

TEST_F(PlayVerb, AScriptThatIsNotThereIsToldSo) {
    const ProgramResult result = Play("", {"--script", "/nowhere/script"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not read /nowhere/script: there is no such file.\n");
}

TEST_F(PlayVerb, TheTranscriptHasAllThatIsShownAndTypedUnbroken) {
    Play("long\nask\nyes\n", {"--transcript", File("transcript"), "--width", "20"});
    EXPECT_EQ(Content(File("transcript")),
              "A room.\n?\n"
              ">long\none two three four five six seven eight nine ten eleven twelve thirteen\n?\n"
              ">ask\n\nSure?\n"
              ">yes\nYou said yes.\n?\n");
}

TEST_F(PlayVerb, AScriptIsNoTargetOfTheSameRun) {
    std::ofstream(File("s.txt")) << "wait\n";
    for (const char* option : {"--transcript", "--trace", "--origins"}) {
        const ProgramResult result =
            Play("", {"--script", File("s.txt"), option, File("s.txt"), "--force"});
        EXPECT_EQ(result.status, 1) << option;
        EXPECT_EQ(result.errors,
                  "fabula: Could not write " + File("s.txt") + ": another option names it too.\n");
        EXPECT_EQ(Content(File("s.txt")), "wait\n") << option;
    }
}

TEST_F(PlayVerb, TwoThingsThatAreWrittenAreTwoFiles) {
    EXPECT_EQ(Play("", {"--transcript", File("t.txt"), "--origins", File("t.txt"), "--force"}).status, 1);
    EXPECT_EQ(Play("", {"--transcript", "/dev/null", "--origins", "/dev/null"}).status, 0);
}

TEST_F(PlayVerb, AScriptThatIsAFolderIsToldBeforeTheGameBegins) {
    const ProgramResult result = Play("", {"--script", File(".")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "fabula: Could not read " + File(".") + ": it is no file.\n");
}

TEST_F(PlayVerb, AScriptThatIsADeviceWithoutAnEndIsRefused) {
    const ProgramResult result = Play("", {"--script", "/dev/zero"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not read /dev/zero: it is no file.\n");
}

TEST_F(PlayVerb, TheTranscriptIsWrittenAsTheGameGoesOn) {
    Conversation talk(Line::Pipe, Program(), {"play", game_, "--transcript", File("transcript")});
    talk.ReadUntil("\n>");
    talk.Send("inventory\n");
    talk.ReadUntil("\n>");
    talk.Send("silent\n");
    talk.ReadUntil("\n>");
    EXPECT_EQ(Content(File("transcript")),
              "A room.\n?\n>inventory\nYou are carrying:\nnothing.\n?\n>silent\n");
}

TEST_F(PlayVerb, ATranscriptThatCannotBeWrittenIsToldSo) {
    const ProgramResult result = Play("", {"--transcript", "/nowhere/transcript"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "fabula: Could not write /nowhere/transcript.\n");
}

TEST_F(PlayVerb, TheTraceTellsWhatTheEngineDoes) {
    Play("inventory\n", {"--trace", File("trace")});
    EXPECT_NE(Content(File("trace")).find("inven"), std::string::npos);
    const std::string firstLine = Content(File("trace")).substr(0, Content(File("trace")).find('\n'));
    EXPECT_NE(firstLine.find(".fbd 20"), std::string::npos) << firstLine;
    EXPECT_EQ(firstLine.find_first_of("%*"), std::string::npos) << firstLine;
}

TEST_F(PlayVerb, TheOriginsTellEntryActionAndRecordOfEachText) {
    Play("silent\nlong\n", {"--origins", File("origins")});
    const std::string origins = Content(File("origins"));
    EXPECT_TRUE(origins.starts_with("-\tlocation 0\tA room.\n")) << origins;
    EXPECT_NE(origins.find(", MESSAGE 16\tmessage 16\tone two three four five six seven eight nine ten "
                           "eleven twelve thirteen\n"),
              std::string::npos)
        << origins;
    EXPECT_NE(origins.find("-\tsystem message 33\t>\n"), std::string::npos) << origins;
}

TEST_F(PlayVerb, DebugLinesLookIntoTheGameAndCountNoTurn) {
    EXPECT_EQ(Play(":F60\n:=5\n:F31\n:nonsense\n", {"--debug"}).output,
              "A room.\n?\n>F60 = 0\n>F60 = 5\n>F31 = 0\n>Invalid option\n>\n");
}

TEST_F(PlayVerb, WithoutDebugAColonIsOrdinary) {
    EXPECT_EQ(Play(":F60\n").output, "A room.\n?\n>Sorry, that gets you nowhere.\n?\n>\n");
}

TEST_F(PlayVerb, AGameThatGoesWrongSaysWhereAndEnds) {
    const ProgramResult result = Play("break\ninventory\n");
    EXPECT_NE(result.output.find("flag 2000"), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("carrying"), std::string::npos) << result.output;
    EXPECT_EQ(result.status, 1);
}

TEST_F(PlayVerb, CharacterSetsAreShownAsText) {
    BuildCharacterSetGame(game_);
    EXPECT_EQ(Play("").output, "£5 © █□.\n?\n>\n");
}

TEST_F(PlayVerb, AFileThatIsNoAdventureIsRefused) {
    std::ofstream(game_, std::ios::trunc) << std::string(200, 'x');
    const ProgramResult result = Play("");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "fabula: Could not open " + game_ + ": it is not an adventure file.\n");
}

}  // namespace
}  // namespace fabula::test
