#include <QAction>
#include <cctype>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "player/play/played_game.h"
#include "player/played_window.h"
#include "support/places.h"

namespace fabula::test {
namespace {

namespace fs = std::filesystem;
using engine::Waiting;
using std::chrono::milliseconds;

/// The games of examples/, as the build made them.
class ExampleGames : public testing::TestWithParam<const char*> {};

std::string Contents(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

/// A transcript with what was typed in capitals, as the window shows it.
std::string InCapitals(const std::string& transcript) {
    std::istringstream lines(transcript);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('>'))
            for (char& c : line)
                c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        result += line + '\n';
    }
    return result;
}

void PlayLine(PlayedWindow& played, const std::string& line) {
    while (played.Window().Playing()->WaitingFor() == Waiting::Pause)
        played.Pass(milliseconds(1000));
    if (played.Window().Playing()->WaitingFor() == Waiting::AnyKey) return played.Press(Qt::Key_Return);
    played.Type(QString::fromStdString(line));
    played.Press(Qt::Key_Return);
}

TEST_P(ExampleGames, WindowTellsWhatTheTerminalTells) {
    const fs::path sources = test::SourceFolder() / "examples" / GetParam();
    for (const std::string script : {"walkthrough", "wrong_things"}) {
        PlayedWindow played;
        played.Window().Load(test::ExampleGames() / (std::string(GetParam()) + ".fbd"));
        played.random = platform::SeededRandom(1);
        played.dialogs.AnswerFile(played.folder / "transcript.txt");
        played.Action("Transcript").trigger();
        played.Action("StartAgain").trigger();
        std::ifstream lines(sources / (script + ".scr"));
        for (std::string line; std::getline(lines, line);)
            PlayLine(played, line);
        played.Action("Transcript").trigger();
        EXPECT_EQ(Contents(played.folder / "transcript.txt"),
                  InCapitals(Contents(sources / (script + ".transcript"))));
    }
}

INSTANTIATE_TEST_SUITE_P(Games, ExampleGames,
                         testing::Values("lighthouse", "signal_box", "cellar", "honey_run",
                                         "stuck_cockerel"),
                         [](const auto& example) { return example.param; });

}  // namespace
}  // namespace fabula::test
