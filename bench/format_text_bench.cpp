#include <vector>

#include <benchmark/benchmark.h>

#include "text/format.h"

namespace fabula::text {
namespace {

constexpr std::string_view kProcessLine = "%s4! !%s3! !%a10! !%a10! !%a";

/// A listing line as its writer makes it: the values of one record, then the line.
void FormatListingLine(benchmark::State& state) {
    std::int64_t number = 0;
    for (auto _ : state) {
        number = (number + 1) % 1000;
        benchmark::DoNotOptimize(FormatText(kProcessLine, {number, 0, "TAKE", "LAMP", "GET 5 DESC"}));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FormatListingLine);

/// The same with values that are at hand.
void FormatListingLineOfReadyValues(benchmark::State& state) {
    const std::vector<Value> values = {7, 0, "TAKE", "LAMP", "GET 5 DESC"};
    for (auto _ : state)
        benchmark::DoNotOptimize(FormatText(kProcessLine, values));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FormatListingLineOfReadyValues);

/// A row of default data: numbers and a description outside ASCII, without widths.
void FormatExportRow(benchmark::State& state) {
    const std::vector<Value> values = {16,
                                       "Vous êtes dans une petite pièce carrée. Une échelle mène vers le "
                                       "haut, et une porte s'ouvre à l'est."};
    for (auto _ : state)
        benchmark::DoNotOptimize(FormatText("%n!|!%a", values));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FormatExportRow);

/// A heading with tabulation and rules.
void FormatTabulatedLine(benchmark::State& state) {
    const std::vector<Value> values = {"3", "Système", "Ein Stück Käse"};
    for (auto _ : state)
        benchmark::DoNotOptimize(FormatText("!%a!%T10!%A!%t20!%a!%t60!%c10-", values));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FormatTabulatedLine);

}  // namespace
}  // namespace fabula::text
