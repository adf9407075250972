#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>

#include <benchmark/benchmark.h>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/manual_timers.h"
#include "platform/random_source.h"
#include "player/game_screen.h"
#include "player/vel_eng_main.h"
#include "qt/qt_dialogs.h"
#include "qt/strings.h"
#include "store/create.h"

namespace {

using namespace fabula;

/// A new adventure in a window on the offscreen screen.
class Played {
  public:
    explicit Played(bool characterSets) : settings_(folder_.filePath("s.ini"), QSettings::IniFormat) {
        const auto file = qt::PathFromQt(folder_.filePath("game.fbd"));
        store::frmSetup setup;
        setup.ChooseCharSets(characterSets);
        const platform::FixedClock clock({2026, 1, 1, 0, 0, 0});
        platform::NoEvents events;
        store::CreateAdventure(
            true, file, setup,
            {dialogs_, clock, events, std::filesystem::path(FABULA_SOURCE_DIR) / "data/Fabula.ini"});
        window_.show();
        QApplication::setActiveWindow(&window_);
        window_.Load(file);
    }

    /// Types a word that the game does not know, and draws the answer.
    void Turn() {
        QWidget* pane = QApplication::focusWidget();
        QTest::keyClicks(pane, "xyzzy");
        QTest::keyClick(pane, Qt::Key_Return);
        benchmark::DoNotOptimize(window_.grab());
    }

  private:
    QTemporaryDir folder_;
    QSettings settings_;
    platform::ManualTimers timers_;
    platform::SeededRandom random_{1};
    engine::SilentPlayer sound_;
    qt::QtDialogs dialogs_;
    player::frmVelEngMain window_{
        {timers_, dialogs_, sound_, random_, settings_, qt::PathFromQt(folder_.filePath("data"))}};
};

/// Six keys, and the whole window drawn once, after as many turns as the argument says.
void WindowTurn(benchmark::State& state, bool characterSets) {
    Played played(characterSets);
    for (int turn = 0; turn < state.range(0); ++turn)
        played.Turn();
    for (auto _ : state)
        played.Turn();
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

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
