#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "support/places.h"
#include "support/temp_folder.h"
#include "upgrades/upgrade.h"

namespace fabula::upgrades {
namespace {

/// A large adventure of the present form.
const std::filesystem::path& TheFile() {
    static const test::TempFolder folder;
    static const std::filesystem::path file = [] {
        bench::BuildLargeGame(folder / "large.fbd");
        return folder / "large.fbd";
    }();
    return file;
}

/// Opening without a look at what it needs: the yardstick of the next.
void OpenUnchecked(benchmark::State& state) {
    const auto& file = TheFile();
    for (auto _ : state)
        benchmark::DoNotOptimize(store::Adventure::OpenForChange(file));
}
BENCHMARK(OpenUnchecked)->Unit(benchmark::kMillisecond)->MinTime(1);

/// Opening a file for which the chain has nothing to do.
void OpenUpToDate(benchmark::State& state) {
    const auto& file = TheFile();
    const auto data = test::DefaultData();
    UpgradeHost host;
    for (auto _ : state)
        benchmark::DoNotOptimize(OpenUpgraded(file, data, host));
}
BENCHMARK(OpenUpToDate)->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace
}  // namespace fabula::upgrades
