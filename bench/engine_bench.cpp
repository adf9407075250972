#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "engine/engine.h"
#include "platform/scripted_operator.h"
#include "store/adventure.h"
#include "support/temp_folder.h"

namespace fabula::bench {
namespace {

/// A window that takes everything and shows nothing.
class NoWindow final : public engine::GameWindow {
  public:
    int PrintWidth() const override { return 80; }
    int CharacterAdvance() const override { return 1; }
    void Write(std::string_view text, const engine::TextStyle&, engine::TextRole) override {
        bytes += text.size();
    }
    void EndLine(engine::LineEnd) override { ++bytes; }
    void Clear(int, int) override {}

    std::size_t bytes = 0;
};

/// A game of the bench with all that it is played with.
class BenchGame {
  public:
    explicit BenchGame(void (*build)(const std::filesystem::path&)) {
        build(folder_ / "game.fbd");
        adventure_ = store::Adventure::Open(folder_ / "game.fbd", store::OpenMode::ReadOnly);
        engine_ = std::make_unique<engine::Engine>(*adventure_,
                                                   engine::Host{window_, oper_, random_, sound_, nullptr});
    }

    engine::Engine& Engine() { return *engine_; }
    const NoWindow& Window() const { return window_; }
    bool HasFailed() const { return !oper_.Boxes().empty(); }

  private:
    test::TempFolder folder_;
    std::unique_ptr<store::Adventure> adventure_;
    NoWindow window_;
    platform::ScriptedOperator oper_;
    platform::SeededRandom random_{1};
    engine::SilentPlayer sound_;
    std::unique_ptr<engine::Engine> engine_;
};

void BuildFabula(const std::filesystem::path& file) {
    BuildTwoRooms(file, store::AdventureKind::Fabula);
}

void BuildVel(const std::filesystem::path& file) {
    BuildTwoRooms(file, store::AdventureKind::Vel);
}

void BuildMarlo(const std::filesystem::path& file) {
    BuildTwoRooms(file, store::AdventureKind::Marlo);
}

/// Turns of the tour, without a terminal.
void PlayTurns(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    BenchGame game(build);
    game.Engine().Initialize();
    std::size_t turn = 0;
    for (auto _ : state)
        game.Engine().EnterLine(kTour[turn++ % std::size(kTour)]);
    if (game.HasFailed() || game.Window().bytes == 0) state.SkipWithError("the game went wrong");
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(PlayTurns, fabula, BuildFabula);
BENCHMARK_CAPTURE(PlayTurns, vel, BuildVel);
BENCHMARK_CAPTURE(PlayTurns, marlo, BuildMarlo);
BENCHMARK_CAPTURE(PlayTurns, large, BuildLargeGame);

/// From an open adventure to the first prompt.
void StartGame(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    BenchGame game(build);
    for (auto _ : state)
        game.Engine().Initialize();
    if (game.HasFailed()) state.SkipWithError("the game went wrong");
}
BENCHMARK_CAPTURE(StartGame, fabula, BuildFabula)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StartGame, vel, BuildVel)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StartGame, marlo, BuildMarlo)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StartGame, large, BuildLargeGame)->Unit(benchmark::kMillisecond);

/// The checks and the reading that opening a file takes.
void OpenFile(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    const test::TempFolder folder;
    build(folder / "game.fbd");
    for (auto _ : state)
        benchmark::DoNotOptimize(store::Adventure::Open(folder / "game.fbd", store::OpenMode::ReadOnly));
}
BENCHMARK_CAPTURE(OpenFile, fabula, BuildFabula)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenFile, large, BuildLargeGame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace fabula::bench
