#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "references/find_replace.h"
#include "references/index.h"
#include "references/lint/lint.h"
#include "support/temp_folder.h"

namespace fabula::references {
namespace {

using store::TableNum;

/// The large game, open to be changed.
store::Adventure& TheGame() {
    static const test::TempFolder folder;
    static const std::unique_ptr<store::Adventure> game = [] {
        bench::BuildLargeGame(folder / "large.fbd");
        return store::Adventure::OpenForChange(folder / "large.fbd");
    }();
    return *game;
}

/// The whole index of uses.
void IndexTheGame(benchmark::State& state) {
    store::Adventure& game = TheGame();
    for (auto _ : state)
        benchmark::DoNotOptimize(Index(game));
}
BENCHMARK(IndexTheGame)->Unit(benchmark::kMillisecond)->MinTime(1);

/// What follows one edit of an entry: the index made to fit its change set. The edit itself is not counted.
void IndexAfterAnEdit(benchmark::State& state) {
    store::Adventure& game = TheGame();
    Index index(game);
    const store::Transaction undone(game);
    std::int64_t message = 0;
    for (auto _ : state) {
        state.PauseTiming();
        message = (message + 1) % 900;
        const std::string number = std::to_string(message);
        const store::ChangeRecorder recorder(game);
        store::Cursor& entry = game.OpenTable(TableNum::ProcessTables, "def", "canum=2000");
        entry.SetField("condacts", "MESSAGE " + number + " DONE");
        entry.SetField("numericcondacts", "250 " + number + " 265");
        entry.Update();
        const std::string changes = recorder.Changes();
        state.ResumeTiming();
        index.Update(game, changes);
    }
}
BENCHMARK(IndexAfterAnEdit)->Unit(benchmark::kMillisecond)->MinTime(1);

void FindInTheGame(benchmark::State& state, const Wanted& wanted, bool replacing) {
    store::Adventure& game = TheGame();
    std::size_t hits = 0;
    for (auto _ : state)
        hits = FindEverywhere(game, wanted, {}, replacing).size();
    state.counters["hits"] = static_cast<double>(hits);
}
BENCHMARK_CAPTURE(FindInTheGame, nothing, {.text = "xylophone"}, false)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);
BENCHMARK_CAPTURE(FindInTheGame, word, {.text = "lamp", .wholeWords = true}, false)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);
BENCHMARK_CAPTURE(FindInTheGame, expression, {.text = "m[aeiou]ss", .expression = true}, false)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);
BENCHMARK_CAPTURE(FindInTheGame, to_replace, {.text = "lamp", .replacement = "torch"}, true)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);

/// All findings.
void LintTheGame(benchmark::State& state) {
    store::Adventure& game = TheGame();
    for (auto _ : state)
        benchmark::DoNotOptimize(Lint(game));
}
BENCHMARK(LintTheGame)->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace
}  // namespace fabula::references
