#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>

#include "authoring/screens/location_screen.h"
#include "authoring/screens/process_entry_screen.h"
#include "bench_games.h"
#include "ide/dialogs/records/location_dialog.h"
#include "ide/dialogs/records/process_entry_dialog.h"
#include "ide/window/main_window.h"
#include "platform/random_source.h"
#include "qt/qt_programs.h"
#include "qt/qt_settings.h"
#include "qt/strings.h"
#include "support/doubles/manual_timers.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace {

using namespace fabula;

/// The window of the authoring tool on the offscreen screen, with the large adventure.
class Tool {
  public:
    Tool() {
        bench::BuildLargeGame(File());
        Open();
    }

    std::filesystem::path File() const { return folder_ / "large.fbd"; }
    ide::MainWindow& Window() { return *window_; }
    authoring::MainScreen& Logic() { return window_->Logic(); }
    QAction& Action(const char* name) { return *window_->findChild<QAction*>(name); }

    /// A new window, the adventure opened in it, and its first picture.
    void Open() {
        window_ =
            std::make_unique<ide::MainWindow>(ide::Services{timers_, dialogs_, settings_, store_, clock_,
                                                            events_, sound_, random_, programs_},
                                              Places());
        window_->show();
        window_->Start(File());
        Draw();
        if (Logic().GetState() != authoring::MainScreen::State::Open)
            throw std::runtime_error("the large adventure was not opened");
    }
    void Close() { window_.reset(); }

    /// Clicks a table of the tree, by its name.
    void Choose(const char* name) {
        auto* tree = window_->findChild<QTreeWidget*>("Tree");
        tree->setCurrentItem(tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).first());
    }

    /// Does what waits, and draws the whole window.
    void Draw() {
        QApplication::processEvents();
        benchmark::DoNotOptimize(window_->grab());
    }

  private:
    ide::Places Places() const {
        return {.desk = {.defaultData = test::DefaultData(),
                         .state = folder_ / "state",
                         .versionFolders = {folder_ / "versions"},
                         .version = "1.0.0"},
                .help = {},
                .examples = {},
                .ownGames = folder_ / "own",
                .playersData = folder_ / "players"};
    }

    test::TempFolder folder_;
    QSettings store_{qt::PathToQt(folder_ / "settings.ini"), QSettings::IniFormat};
    qt::QtSettings settings_{store_};
    platform::ManualTimers timers_;
    platform::ScriptedDialogs dialogs_;
    platform::SystemClock clock_;
    platform::NoEvents events_;
    engine::SilentPlayer sound_;
    platform::SeededRandom random_{1};
    qt::QtPrograms programs_;
    std::unique_ptr<ide::MainWindow> window_;
};

/// From nothing to the drawn window, the adventure on its process table.
void OpenTheDesk(benchmark::State& state) {
    Tool tool;
    tool.Choose("Response (P0)");
    for (auto _ : state) {
        state.PauseTiming();
        tool.Close();
        state.ResumeTiming();
        tool.Open();
    }
}

/// A click on a table of the tree, and the window drawn.
void SwitchDrawnTables(benchmark::State& state, const char* table) {
    Tool tool;
    for (auto _ : state) {
        state.PauseTiming();
        tool.Choose("Adventure Settings");
        tool.Draw();
        state.ResumeTiming();
        tool.Choose(table);
        tool.Draw();
    }
    state.counters["records"] = tool.Logic().Grid().RecordCount();
}

/// Find of a text that is in the last entry alone, from the first, and the window drawn on that row.
void FindAndDraw(benchmark::State& state) {
    Tool tool;
    tool.Choose("Response (P0)");
    tool.Action("Find").trigger();
    const authoring::TableGrid& grid = tool.Logic().Grid();
    const int last = grid.RowCount() - 1;
    const std::string text = grid.CellText(last, static_cast<int>(grid.Columns().size()) - 1);
    for (auto _ : state) {
        state.PauseTiming();
        tool.Logic().SelectRow(0);
        tool.Logic().Finder().text = text;
        state.ResumeTiming();
        tool.Action("FindNext").trigger();
        tool.Draw();
    }
    state.counters["row"] = tool.Logic().CurrentRow();
}

/// Page Down, and the window drawn.
void ScrollAPage(benchmark::State& state) {
    Tool tool;
    tool.Choose("Response (P0)");
    auto* grid = tool.Window().findChild<QTableView*>("Grid");
    for (auto _ : state) {
        if (tool.Logic().CurrentRow() + 1 == tool.Logic().Grid().RowCount()) {
            state.PauseTiming();
            grid->selectRow(0);
            state.ResumeTiming();
        }
        QTest::keyClick(grid, Qt::Key_PageDown);
        tool.Draw();
    }
}

/// An arrow key in the rows, and the window drawn with the next record beside them.
void NextRecordBeside(benchmark::State& state, const char* table) {
    Tool tool;
    tool.Choose(table);
    tool.Action("RecordBeside").setChecked(true);
    auto* grid = tool.Window().findChild<QTableView*>("Grid");
    grid->selectRow(0);
    tool.Draw();
    for (auto _ : state) {
        if (tool.Logic().CurrentRow() + 1 == tool.Logic().Grid().RowCount()) {
            state.PauseTiming();
            grid->selectRow(0);
            state.ResumeTiming();
        }
        QTest::keyClick(grid, Qt::Key_Down);
        tool.Draw();
    }
    if (tool.Window().findChild<QWidget*>("RecordPane")->isHidden()) state.SkipWithError("no record");
}

/// The middle record of a table.
authoring::ScreenRequest MiddleOf(Tool& tool, const char* table) {
    tool.Choose(table);
    tool.Logic().SelectRow(tool.Logic().Grid().RowCount() / 2);
    return tool.Logic().Run(authoring::Command::Edit).value();
}

void DrawDialog(QDialog& dialog) {
    dialog.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(dialog.grab());
}

/// From the record to its drawn screen, and back.
void ProcessEditor(benchmark::State& state) {
    Tool tool;
    const auto request = MiddleOf(tool, "Response (P0)");
    for (auto _ : state) {
        authoring::ProcessEntryScreen screen(tool.Logic().CurrentContext(), request);
        ide::ProcessEntryDialog dialog(screen, &tool.Window());
        DrawDialog(dialog);
    }
}

/// The same for a location, whose exits may lead to all others.
void LocationEditor(benchmark::State& state) {
    Tool tool;
    const auto request = MiddleOf(tool, "Locations");
    for (auto _ : state) {
        authoring::LocationScreen screen(tool.Logic().CurrentContext(), request.key);
        ide::LocationDialog dialog(screen, &tool.Window());
        DrawDialog(dialog);
    }
}

/// A letter typed into the line of a process entry, which offers the messages that fit.
void TypeAMessage(benchmark::State& state) {
    Tool tool;
    authoring::ProcessEntryScreen screen(tool.Logic().CurrentContext(), MiddleOf(tool, "Response (P0)"));
    ide::ProcessEntryDialog dialog(screen, &tool.Window());
    DrawDialog(dialog);
    auto* line = dialog.findChild<QPlainTextEdit*>("line");
    for (auto _ : state) {
        state.PauseTiming();
        line->setPlainText("MESSAGE");
        line->moveCursor(QTextCursor::End);
        state.ResumeTiming();
        QTest::keyClick(line, Qt::Key_Space);
        QApplication::processEvents();
        benchmark::DoNotOptimize(dialog.grab());
    }
}

}  // namespace

BENCHMARK(OpenTheDesk)->Unit(benchmark::kMillisecond)->MinTime(1)->UseRealTime();
BENCHMARK_CAPTURE(SwitchDrawnTables, locations, "Locations")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(SwitchDrawnTables, messages, "Messages")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(SwitchDrawnTables, process, "Response (P0)")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(FindAndDraw)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ScrollAPage)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(NextRecordBeside, process, "Response (P0)")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(NextRecordBeside, locations, "Locations")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(NextRecordBeside, messages, "Messages")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ProcessEditor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(LocationEditor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(TypeAMessage)->Unit(benchmark::kMillisecond)->UseRealTime();
