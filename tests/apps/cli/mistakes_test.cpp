#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

/// A game without a mistake; the numbers are those of its lines.
constexpr const char* kGoodGame[] = {
    /* 1 */ "/CTL",
    /* 2 */ "_",
    /* 3 */ "/VOC",
    /* 4 */ "NORTH 2 noun",
    /* 5 */ "SOUTH 3 noun",
    /* 6 */ "GET 20 verb",
    /* 7 */ "LAMP 50 noun",
    /* 8 */ "BOX 51 noun",
    /* 9 */ "RED 30 adjective",
    /* 10 */ "UNDER 40 preposition",
    /* 11 */ "/MTX",
    /* 12 */ "/0",
    /* 13 */ "Hello.",
    /* 14 */ "/OTX",
    /* 15 */ "/0",
    /* 16 */ "a lamp",
    /* 17 */ "/1",
    /* 18 */ "a box",
    /* 19 */ "/LTX",
    /* 20 */ "/0",
    /* 21 */ "Hall.",
    /* 22 */ "/1",
    /* 23 */ "Inside the box.",
    /* 24 */ "/2",
    /* 25 */ "Cellar.",
    /* 26 */ "/CON",
    /* 27 */ "/0",
    /* 28 */ "NORTH 2",
    /* 29 */ "/1",
    /* 30 */ "/2",
    /* 31 */ "SOUTH 0",
    /* 32 */ "/OBJ",
    /* 33 */ "/0 2 1 N N LAMP _",
    /* 34 */ "/1 0 1 Y N BOX _",
    /* 35 */ "/PRO 0",
    /* 36 */ "GET LAMP GET 0 OK",
    /* 37 */ "/PRO 1",
    /* 38 */ "_ _ LISTOBJ",
    /* 39 */ "/PRO 2",
};

enum class Place { InsteadOf, Behind };

/// A mistake, and the one line that tells it, behind the path of the source.
struct Mistake {
    const char* name;
    Place place;
    int line;
    const char* text;
    const char* told;
};

using enum Place;

constexpr Mistake kMistakes[] = {
    {"AWordWithoutAType", Behind, 8, "KEY 52", "9:5: fault: ERROR: This line can't be understood."},
    {"AWordWhoseNumberIsNone", Behind, 8, "KEY many noun",
     "9:5: fault: ERROR: This line can't be understood."},
    {"AWordNumberOutOfRange", Behind, 8, "KEY 1 noun",
     "9:5: fault: Word # must be from 2 to 254 inclusive"},
    {"AWordTwice", Behind, 8, "LAMP 50 noun", "9:1: fault: ERROR: Duplicate Word. Word LAMP deleted."},
    {"AMisspeltWordType", Behind, 8, "KEY 52 nuon",
     "9:8: fault: ERROR: nuon is no word type. RESERVED is taken."},
    {"MoreBehindAWord", Behind, 8, "KEY 52 noun brass",
     "9:13: fault: ERROR: The rest of this line is not read."},
    {"ATextBeforeItsNumber", Behind, 11, "Stray.", "12:1: fault: ERROR: This line can't be understood."},
    {"ATextNumberThatIsNone", Behind, 13, "/one", "14:1: fault: ERROR: This line can't be understood."},
    {"AMessageTwice", Behind, 13, "/0\nBye.",
     "14:1: fault: ERROR: Message 0 stands here twice. This text counts."},
    {"ALocationTextTwice", Behind, 25, "/0\nAnother hall.",
     "26:1: fault: ERROR: Location 0 stands here twice. This text counts."},
    {"ATextOnTheLineOfItsNumber", Behind, 13, "/1 Bye.",
     "14:4: fault: ERROR: The rest of this line is not read."},
    {"AnUnknownTag", Behind, 13, "Press <enter>.", "14:7: fault: Invalid Tag: <ENTER>"},
    {"AnUnknownColour", Behind, 13, "<color=reddish>Hot",
     "14:1: fault: Invalid color REDDISH for tag COLOR=REDDISH"},
    {"ExitsOfNoLocation", Behind, 31, "/7", "32:1: fault: ERROR: This line can't be understood."},
    {"AnExitToNowhere", Behind, 28, "SOUTH", "29:1: fault: ERROR: This line can't be understood."},
    {"AnExitByNoDirection", Behind, 28, "LAMP 1", "29:1: fault: LAMP is not a valid word"},
    {"AnExitWhoseNumberIsNone", Behind, 28, "SOUTH down",
     "29:7: fault: TO location for SOUTHmust be numeric"},
    {"AnExitToAMissingLocation", Behind, 28, "SOUTH 9",
     "29:7: fault: There is not a location with a number of 9 for SOUTH"},
    {"AnExitToAPlaceThatIsNoRoom", Behind, 28, "SOUTH 254",
     "29:7: fault: There is not a location with a number of 254 for SOUTH"},
    {"TwoExitsInOneDirection", Behind, 28, "NORTH 1", "29:1: fault: ERROR: NORTH leads elsewhere already."},
    {"TheExitsOfALocationTwice", Behind, 31, "/0",
     "32:1: fault: ERROR: Location 0 stands here twice. These exits count."},
    {"ExitsOnTheLineOfTheirLocation", InsteadOf, 30, "/2 NORTH 0",
     "30:4: fault: ERROR: The rest of this line is not read."},
    {"AnObjectWithoutAText", Behind, 34, "/7 0 1 N N _ _",
     "35:1: fault: ERROR: This line can't be understood."},
    {"AWeightTooHeavy", InsteadOf, 33, "/0 2 99 N N LAMP _", "33:6: fault: Weight must be from 0 to 63"},
    {"AnObjectNowhere", InsteadOf, 33, "/0 nowhere 1 N N LAMP _", "33:4: fault: Invalid location"},
    {"AnObjectInAMissingLocation", InsteadOf, 33, "/0 9 1 N N LAMP _", "33:4: fault: Invalid location"},
    {"AnObjectWhoseNounIsNone", InsteadOf, 33, "/0 2 1 N N RED _",
     "33:12: fault: ERROR: Noun shown for object 0 is not a Noun. Noun and Adjective set to _"},
    {"AnObjectWhoseAdjectiveIsNone", InsteadOf, 33, "/0 2 1 N N LAMP BOX",
     "33:17: fault: ERROR: Adjective shown for object 0 is not an Adjective. Adjective set to _"},
    {"AnObjectTwice", Behind, 34, "/0 2 1 N N LAMP _",
     "35:1: fault: ERROR: Object 0 stands here twice. This definition counts."},
    {"AContainerInsideItself", InsteadOf, 34, "/1 1 1 Y N BOX _",
     "34:4: fault: Object 1: A container cannot be inside itself."},
    {"AnEntryWhoseVerbIsNone", Behind, 36, "LAMP _ DONE", "37:1: fault: LAMP _: Word1 (LAMP) not a verb"},
    {"AnEntryWhoseNounIsNone", Behind, 36, "GET RED DONE",
     "37:5: fault: GET RED: Word2 (RED) is not a Noun"},
    {"AnUnknownAction", Behind, 36, "GET _\n NONSENSE",
     "38:2: fault: GET _: NONSENSE is an invalid Condition/Action"},
    {"AMissingParameter", Behind, 36, "GET _ PLACE 0",
     "37:7: fault: GET _: No parameter where there should be one"},
    {"AWordWhereANumberIsMeant", Behind, 36, "GET _ MESSAGE LAMP",
     "37:15: fault: GET _: Invalid number for parameter 1"},
    {"AWordOfTheWrongType", Behind, 36, "GET _ PREP LAMP",
     "37:12: fault: GET _: word LAMP Type doesn't agree with PREP"},
    {"AWordThatIsNotThere", Behind, 36, "GET _ NOUN2 SATCHEL",
     "37:13: fault: GET _: word SATCHEL Type doesn't agree with NOUN2"},
    {"AMissingMessage", Behind, 36, "GET _\n AT 0\n MESSAGE 9",
     "39:10: fault: Process Table 0 Entry # 1 (GET _ AT 0 MESSAGE 9): MESSAGE 9 is an invalid "
     "Condition/Action: Invalid number for parameter 1"},
    {"AMissingLocation", Behind, 36, "GET _ GOTO 7",
     "37:12: fault: Process Table 0 Entry # 1 (GET _ GOTO 7): GOTO 7 is an invalid Condition/Action: "
     "Invalid number for parameter 1"},
    {"ActionsBeforeAnyWords", Behind, 35, " DONE", "36:1: fault: ERROR: This line can't be understood."},
    {"AnEntryWithoutActions", Behind, 36, "GET BOX",
     "37:1: fault: GET BOX: Cannot have a record with no Condition/Actions"},
    {"AProcessOutOfNumber", InsteadOf, 37, "/PRO 5", "37:6: fault: Changed Process # from 5 to 1"},
    {"ASectionTooLate", Behind, 39, "/MTX",
     "40:2: fault: ERROR: The section stands behind one that must follow it."},
    {"LinesBehindALink", Behind, 39, "/LNK more\n_ _ DONE",
     "41:1: fault: ERROR: The lines behind the link are not read."},
};

std::string SourceWith(const Mistake* mistake) {
    std::string source;
    for (int line = 1; line <= static_cast<int>(std::size(kGoodGame)); ++line) {
        const bool isHere = mistake != nullptr && mistake->line == line;
        if (!isHere || mistake->place == Behind) source.append(kGoodGame[line - 1]).append("\n");
        if (isHere) source.append(mistake->text).append("\n");
    }
    return source;
}

/// A folder with a source.
class Mistakes : public testing::Test {
  protected:
    ProgramResult Run(std::vector<std::string> arguments, const std::string& source) {
        std::ofstream(folder_ / "game.txt") << source;
        std::ofstream(folder_ / "more.txt") << "_ _ DONE\n";
        return RunProgram(Program(), arguments);
    }
    std::string Path() const { return (folder_ / "game.txt").string(); }

    TempFolder folder_;
};

std::string LastLine(const std::string& text) {
    const std::size_t end = text.find_last_not_of('\n');
    const std::size_t start = text.rfind('\n', end) + 1;
    return text.substr(start, end + 1 - start);
}

/// The lines that tell of a fault.
std::vector<std::string> FaultLines(const std::string& output) {
    std::vector<std::string> lines;
    std::istringstream stream(output);
    for (std::string line; std::getline(stream, line);) {
        if (line.find(": fault: ") != std::string::npos) lines.push_back(line);
    }
    return lines;
}

TEST_F(Mistakes, TheGameHasNoneOfItself) {
    const ProgramResult result = Run({"check", Path()}, SourceWith(nullptr));
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_TRUE(result.output.ends_with("No Errors Found\nVerify Completed\n")) << result.output;
}

TEST_F(Mistakes, TheFolderThatIsMadeForACheckIsNotTold) {
    const ProgramResult result = Run({"check", Path()}, SourceWith(nullptr));
    EXPECT_TRUE(result.output.starts_with("Creating default database for check.fbd\n")) << result.output;
}

TEST_F(Mistakes, AreAllToldWithTheirPlaceOnOneLine) {
    for (const Mistake& mistake : kMistakes) {
        SCOPED_TRACE(mistake.name);
        const ProgramResult result = Run({"check", Path()}, SourceWith(&mistake));
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(FaultLines(result.output), std::vector<std::string>{Path() + ":" + mistake.told});
        EXPECT_EQ(LastLine(result.output), "1 fault.") << result.output;
        EXPECT_EQ(result.output.find("No Errors Found"), std::string::npos);
    }
}

TEST_F(Mistakes, AnImportThatLeavesSomethingOutEndsWithStatusOneAndTheirNumber) {
    const Mistake two{"", Behind, 36, "GET RED NONSENSE", ""};
    const ProgramResult result =
        Run({"import", "ace", Path(), (folder_ / "game.fbd").string()}, SourceWith(&two));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(FaultLines(result.errors),
              (std::vector<std::string>{
                  Path() + ":37:5: fault: GET RED: Word2 (RED) is not a Noun",
                  Path() + ":37:9: fault: GET RED: NONSENSE is an invalid Condition/Action"}));
    EXPECT_EQ(LastLine(result.errors), "2 faults.");
    EXPECT_TRUE(std::filesystem::exists(folder_ / "game.fbd")) << "the rest is a game";
}

TEST_F(Mistakes, AreToldAsJson) {
    const Mistake two{"", Behind, 36, "GET RED DONE\nGET _ GOTO 7", ""};
    const ProgramResult result = Run({"check", Path(), "--json"}, SourceWith(&two));
    EXPECT_EQ(result.status, 1);
    const auto expected = nlohmann::json::array(
        {{{"file", Path()},
          {"line", 37},
          {"column", 5},
          {"entry", "GET RED"},
          {"message", "Word2 (RED) is not a Noun"}},
         {{"file", Path()},
          {"line", 38},
          {"column", 12},
          {"entry", "Process Table 0 Entry # 1 (GET _ GOTO 7)"},
          {"message", "GOTO 7 is an invalid Condition/Action: Invalid number for parameter 1"}}});
    EXPECT_EQ(nlohmann::json::parse(result.output), expected) << result.output;
}

TEST_F(Mistakes, AGameWithoutAnyIsAnEmptyJsonArray) {
    const ProgramResult result = Run({"check", Path(), "--json"}, SourceWith(nullptr));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "[]\n");
}

TEST_F(Mistakes, NumbersThatCannotBeDecodedRefuseALineOfAnExport) {
    const std::pair<const char*, const char*> kLines[] = {
        {"101 0 999", "5:25: fault: 999 is an invalid Condition/Action"},
        {"208 4", "5:23: fault: No parameter where there should be one"},
        {"250 x", "5:23: fault: Invalid number for parameter 1"},
    };
    const std::string file = (folder_ / "game.ext").string();
    for (const auto& [numbers, told] : kLines) {
        std::ofstream(file) << "4.0.0\n6|canum|1\n6|estype|0\n6|w1num|255\n6|numericcondacts|" << numbers
                            << "\n";
        const ProgramResult result = RunProgram(Program(), {"check", file});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(FaultLines(result.output), std::vector<std::string>{file + ":" + told});
    }
}

}  // namespace
}  // namespace fabula::test
