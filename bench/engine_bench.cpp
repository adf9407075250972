#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "engine/engine.h"
#include "engine/output/origin.h"
#include "store/adventure.h"
#include "support/doubles/scripted_person.h"
#include "support/temp_folder.h"

namespace fabula::bench {
namespace {

/// A window that takes everything and shows nothing.
class NoWindow final : public engine::GameWindow {
  public:
    void Write(std::string_view text, const engine::TextStyle&, engine::TextRole) override {
        bytes += text.size();
    }
    void EndLine(engine::LineEnd) override { ++bytes; }
    void Clear(int, int) override {}

    std::size_t bytes = 0;
};

constexpr engine::PaneMeasures kPanes{.textWidth = 80, .characterWidth = 80};

/// Learns of every run of text where it comes from, and keeps nothing of it.
class OriginCounter final : public engine::OriginSink {
  public:
    void Printing(std::string_view text, const engine::Origin& origin) override {
        bytes += text.size() + static_cast<std::size_t>(origin.record.number);
    }

    std::size_t bytes = 0;
};

/// Takes a trace as events.
class EventCounter final : public engine::TraceSink {
  public:
    void Tell(const engine::TraceEvent&) override { ++events; }

    std::size_t events = 0;
};

/// Takes a trace as lines.
class LineCounter final : public engine::TextTrace {
  public:
    void WriteLine(std::string_view line) override { bytes += line.size(); }

    std::size_t bytes = 0;
};

/// Who listens to a game beside its window.
struct Listeners {
    engine::OriginSink* origins = nullptr;
    engine::TraceSink* trace = nullptr;  ///< told everything from the start
};

/// A game of the bench with all that it is played with.
class BenchGame {
  public:
    explicit BenchGame(void (*build)(const std::filesystem::path&), const Listeners& listeners = {}) {
        build(folder_ / "game.fbd");
        adventure_ = store::Adventure::Open(folder_ / "game.fbd", store::OpenMode::ReadOnly);
        engine::Host host{window_, person_, random_, sound_, listeners.trace};
        host.parts.origins = listeners.origins;
        host.parts.measures = &kPanes;
        engine::Options options;
        options.traceFile = listeners.trace != nullptr;
        engine_ = std::make_unique<engine::Engine>(*adventure_, host, options);
    }

    engine::Engine& Engine() { return *engine_; }
    const NoWindow& Window() const { return window_; }
    bool HasFailed() const { return !person_.Boxes().empty(); }

  private:
    test::TempFolder folder_;
    std::unique_ptr<store::Adventure> adventure_;
    NoWindow window_;
    platform::ScriptedPerson person_;
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
void PlayTour(benchmark::State& state, BenchGame& game) {
    game.Engine().Initialize();
    std::size_t turn = 0;
    for (auto _ : state)
        game.Engine().EnterLine(kTour[turn++ % std::size(kTour)]);
    if (game.HasFailed() || game.Window().bytes == 0) state.SkipWithError("the game went wrong");
    state.SetItemsProcessed(state.iterations());
}

void PlayTurns(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    BenchGame game(build);
    PlayTour(state, game);
}
BENCHMARK_CAPTURE(PlayTurns, fabula, BuildFabula);
BENCHMARK_CAPTURE(PlayTurns, vel, BuildVel);
BENCHMARK_CAPTURE(PlayTurns, marlo, BuildMarlo);
BENCHMARK_CAPTURE(PlayTurns, large, BuildLargeGame);

/// The same with a host that is told of every text where it comes from.
void PlayTurnsWithOrigins(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    OriginCounter origins;
    BenchGame game(build, {&origins, nullptr});
    PlayTour(state, game);
    if (origins.bytes == 0) state.SkipWithError("no origins came");
}
BENCHMARK_CAPTURE(PlayTurnsWithOrigins, fabula, BuildFabula);
BENCHMARK_CAPTURE(PlayTurnsWithOrigins, large, BuildLargeGame);

/// The same with a trace of everything, as events and as the lines that are made of them.
void PlayTurnsTraced(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    EventCounter trace;
    BenchGame game(build, {nullptr, &trace});
    PlayTour(state, game);
    if (trace.events == 0) state.SkipWithError("no events came");
}
BENCHMARK_CAPTURE(PlayTurnsTraced, fabula, BuildFabula);
BENCHMARK_CAPTURE(PlayTurnsTraced, large, BuildLargeGame);

void PlayTurnsTracedAsText(benchmark::State& state, void (*build)(const std::filesystem::path&)) {
    LineCounter trace;
    BenchGame game(build, {nullptr, &trace});
    PlayTour(state, game);
    if (trace.bytes == 0) state.SkipWithError("no lines came");
}
BENCHMARK_CAPTURE(PlayTurnsTracedAsText, fabula, BuildFabula);
BENCHMARK_CAPTURE(PlayTurnsTracedAsText, large, BuildLargeGame);

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
