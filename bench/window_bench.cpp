#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/random_source.h"
#include "player/panes/game_screen.h"
#include "player/play/played_game.h"
#include "player/window/player_window.h"
#include "qt/qt_dialogs.h"
#include "qt/strings.h"
#include "store/create.h"
#include "support/doubles/manual_timers.h"
#include "support/places.h"

namespace {

using namespace fabula;

/// The window on the offscreen screen, with a game.
class Played {
  public:
    Played() : settings_(folder_.filePath("s.ini"), QSettings::IniFormat) {
        window_.show();
        QApplication::setActiveWindow(&window_);
    }

    /// A new adventure.
    void LoadNew(bool characterSets) {
        const auto file = qt::PathFromQt(folder_.filePath("game.fbd"));
        store::AdventureSetup setup;
        setup.ChooseCharSets(characterSets);
        const platform::FixedClock clock({2026, 1, 1, 0, 0, 0});
        platform::NoEvents events;
        store::CreateAdventure(file, setup, {dialogs_, clock, events, test::DefaultData()});
        Load(file);
    }
    void Load(const std::filesystem::path& file) { window_.Load(file); }

    void Type(const std::string& text) { QTest::keyClicks(QApplication::focusWidget(), qt::ToQt(text)); }
    /// Enter, and the window with the answer drawn.
    void Enter() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        benchmark::DoNotOptimize(window_.grab());
    }
    /// Lets the pauses of the game pass.
    void Wait() {
        while (window_.Playing()->WaitingFor() == engine::Waiting::Pause)
            timers_.Advance(std::chrono::seconds(1));
    }

  private:
    QTemporaryDir folder_;
    QSettings settings_;
    platform::ManualTimers timers_;
    platform::SeededRandom random_{1};
    engine::SilentPlayer sound_;
    qt::QtDialogs dialogs_;
    player::PlayerWindow window_{
        {timers_, dialogs_, sound_, random_, settings_, qt::PathFromQt(folder_.filePath("data"))}};
};

/// A word of five letters that the game does not know, and the answer drawn, after as many turns as the
/// argument says.
void WindowTurn(benchmark::State& state, bool characterSets) {
    Played played;
    played.LoadNew(characterSets);
    const auto turn = [&] {
        played.Type("xyzzy");
        played.Enter();
    };
    for (int made = 0; made < state.range(0); ++made)
        turn();
    for (auto _ : state)
        turn();
}

std::vector<std::string> Lines(const std::filesystem::path& file) {
    std::ifstream input(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(input, line);)
        lines.push_back(line);
    return lines;
}

/// An example game from its start to its end. `longest` is the time from Enter to the drawn answer of the
/// slowest turn, `middle` that of the middle one.
void WindowWalkthrough(benchmark::State& state, const std::string& name) {
    using Clock = std::chrono::steady_clock;
    const std::filesystem::path sources = test::SourceFolder() / "examples" / name;
    const auto lines = Lines(sources / "walkthrough.scr");
    std::vector<double> times;
    for (auto _ : state) {
        Played played;
        played.Load(test::ExampleGames() / (name + ".fbd"));
        for (const std::string& line : lines) {
            played.Wait();
            played.Type(line);
            const auto begun = Clock::now();
            played.Enter();
            times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begun).count());
        }
    }
    std::sort(times.begin(), times.end());
    state.counters["middle"] = times[times.size() / 2];
    state.counters["longest"] = times.back();
}

}  // namespace

BENCHMARK_CAPTURE(WindowTurn, Text, false)
    ->Arg(10)
    ->Arg(2000)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WindowTurn, Characters, true)
    ->Arg(10)
    ->Arg(2000)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(WindowWalkthrough, Lighthouse, "lighthouse")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WindowWalkthrough, SignalBox, "signal_box")->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WindowWalkthrough, Cellar, "cellar")->Iterations(3)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
