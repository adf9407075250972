#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include "authoring/desk/main_screen.h"
#include "authoring/desk/search/findings_list.h"
#include "bench_games.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

/// The main window of the authoring tool without its widgets, and a large adventure.
class Tool {
  public:
    Tool() {
        paths_.defaultData = test::DefaultData();
        paths_.state = folder_ / "state";
        paths_.version = "1.0.0";
        paths_.versionFolders = {folder_ / "versions"};
        bench::BuildLargeGame(File());
        main.OpenFile(File());
        if (main.GetState() != MainScreen::State::Open)
            throw std::runtime_error("the large adventure was not opened");
    }

    std::filesystem::path File() const { return folder_ / "large.fbd"; }

  private:
    test::TempFolder folder_;
    platform::ScriptedDialogs dialogs_;
    platform::MemorySettings settings_;
    platform::SystemClock clock_;
    platform::NoEvents events_;
    IdePaths paths_;

  public:
    MainScreen main{{dialogs_, settings_, clock_, events_}, paths_};
};

Tool& TheTool() {
    static Tool tool;
    return tool;
}

/// What a window reads of the rows that it shows at a time.
void ReadScreen(const TableGrid& grid, int firstRow) {
    constexpr int kRowsOnScreen = 50;
    for (int row = firstRow; row < std::min(firstRow + kRowsOnScreen, grid.RowCount()); ++row) {
        for (int column = 0; column < static_cast<int>(grid.Columns().size()); ++column)
            benchmark::DoNotOptimize(grid.CellText(row, column));
    }
}

/// Opening the adventure until the first screen of its process table can be shown.
void OpenInTheTool(benchmark::State& state) {
    Tool& tool = TheTool();
    for (auto _ : state) {
        state.PauseTiming();
        tool.main.Show({TableNum::ProcessTables, 0});
        tool.main.Close();
        state.ResumeTiming();
        tool.main.OpenFile(tool.File());
        ReadScreen(tool.main.Grid(), 0);
    }
}
BENCHMARK(OpenInTheTool)->Unit(benchmark::kMillisecond)->MinTime(1)->UseRealTime();

/// Showing another table, its first screen included.
void SwitchTables(benchmark::State& state, const TableView& view) {
    MainScreen& main = TheTool().main;
    for (auto _ : state) {
        main.Show(view);
        ReadScreen(main.Grid(), 0);
    }
    state.counters["records"] = main.Grid().RecordCount();
}
BENCHMARK_CAPTURE(SwitchTables, locations, TableView{TableNum::Locations})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SwitchTables, messages, TableView{TableNum::Messages})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SwitchTables, objects, TableView{TableNum::Objects})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SwitchTables, flags, TableView{TableNum::Flags})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SwitchTables, process, TableView{TableNum::ProcessTables, 0})
    ->Unit(benchmark::kMillisecond);

/// Find of a text that no entry of the process table has.
void FindInTheProcessTable(benchmark::State& state) {
    MainScreen& main = TheTool().main;
    main.Show({TableNum::ProcessTables, 0});
    FindBox& finder = main.Finder();
    for (auto _ : state) {
        finder.text = "no such condact";
        benchmark::DoNotOptimize(main.Run(Command::Find));
    }
}
BENCHMARK(FindInTheProcessTable)->Unit(benchmark::kMillisecond);

/// One more letter of a filter.
void FilterTheProcessTable(benchmark::State& state) {
    MainScreen& main = TheTool().main;
    main.Show({TableNum::ProcessTables, 0});
    for (auto _ : state) {
        main.SetFilter("message");
        main.SetFilter("message 9");
    }
    main.SetFilter("");
}
BENCHMARK(FilterTheProcessTable)->Unit(benchmark::kMillisecond);

/// A click on the widest column.
void SortTheProcessTable(benchmark::State& state) {
    MainScreen& main = TheTool().main;
    main.Show({TableNum::ProcessTables, 0});
    for (auto _ : state)
        main.ClickColumn(3);
}
BENCHMARK(SortTheProcessTable)->Unit(benchmark::kMillisecond);

/// Scrolling by a screen.
void ScrollTheProcessTable(benchmark::State& state) {
    MainScreen& main = TheTool().main;
    main.Show({TableNum::ProcessTables, 0});
    int row = 0;
    for (auto _ : state) {
        ReadScreen(main.Grid(), row);
        row = (row + 50) % main.Grid().RowCount();
    }
}
BENCHMARK(ScrollTheProcessTable)->Unit(benchmark::kMicrosecond);

/// What happens when a screen has closed: everything that is shown is read again.
void ShowWhatAScreenStored(benchmark::State& state) {
    MainScreen& main = TheTool().main;
    main.Show({TableNum::ProcessTables, 0});
    main.SelectRow(2000);
    const auto request = main.Run(Command::Edit);
    for (auto _ : state)
        main.ScreenClosed(*request);
}
BENCHMARK(ShowWhatAScreenStored)->Unit(benchmark::kMillisecond);

/// The list of findings, made anew after a change.
void ReadTheFindings(benchmark::State& state) {
    MainScreen& main = TheTool().main;
    Navigator navigator(main);
    FindingsList list(main, navigator);
    for (auto _ : state)
        list.Read();
    state.counters["findings"] = static_cast<double>(list.Lines().size());
}
BENCHMARK(ReadTheFindings)->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace
}  // namespace fabula::authoring
