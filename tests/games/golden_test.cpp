#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <vector>

#include <gtest/gtest.h>

#include "games.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

// Whole games, played by script and compared with the transcript of an earlier day.
//
// A case is a folder GAME-SUBJECT of tests/golden with the commands in script.txt and all that is shown and
// typed in transcript.txt. Every folder that has a script is found and played. FABULA_RECORD=1 in the
// environment writes the transcripts anew instead.

namespace fabula::test {
namespace {

using Path = std::filesystem::path;

const std::map<std::string, std::function<void(const Path&)>>& Games() {
    static const std::map<std::string, std::function<void(const Path&)>> games = {
        {"fabula", [](const Path& file) { BuildFerryHouse(file, store::AdventureKind::Fabula); }},
        {"vel", [](const Path& file) { BuildFerryHouse(file, store::AdventureKind::Vel); }},
        {"marlo", BuildSignalBox},
    };
    return games;
}

Path CaseFolder() {
    return test::SourceFolder() / "tests" / "golden";
}

std::vector<std::string> FindCases() {
    std::vector<std::string> cases;
    for (const auto& entry : std::filesystem::directory_iterator(CaseFolder())) {
        if (std::filesystem::exists(entry.path() / "script.txt"))
            cases.push_back(entry.path().filename().string());
    }
    std::sort(cases.begin(), cases.end());
    return cases;
}

class GoldenTranscript : public testing::TestWithParam<std::string> {};

TEST_P(GoldenTranscript, IsWhatTheGameShows) {
    const std::string game = GetParam().substr(0, GetParam().find('-'));
    ASSERT_TRUE(Games().contains(game)) << "no game " << game << " for the case " << GetParam();
    const TempFolder folder;
    Games().at(game)(folder / "game.fbd");
    const Path place = CaseFolder() / GetParam();
    std::vector<std::string> line = {"test", folder / "game.fbd", place / "script.txt", "--transcript",
                                     place / "transcript.txt"};
    if (std::getenv("FABULA_RECORD")) line.push_back("--update");
    const ProgramResult result = RunProgram(Program(), line);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

std::string TestName(const testing::TestParamInfo<std::string>& golden) {
    std::string name = golden.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Case, GoldenTranscript, testing::ValuesIn(FindCases()), TestName);

TEST(GoldenTranscripts, EveryTypeHasCases) {
    const std::vector<std::string> cases = FindCases();
    for (const auto& [game, build] : Games()) {
        const std::string prefix = game + "-";
        const auto ofGame = [&prefix](const std::string& name) { return name.starts_with(prefix); };
        EXPECT_TRUE(std::any_of(cases.begin(), cases.end(), ofGame)) << game;
    }
}

}  // namespace
}  // namespace fabula::test
