#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "pictures/drawstring.h"
#include "pictures/stepped_drawing.h"

namespace fabula::pictures {
namespace {

/// The words that a picture of lines, points and blocks takes.
PictureBook MakeBook() {
    PictureBook book;
    struct Row {
        int number;
        const char* name;
        int parameters;
    };
    for (const Row& row : {Row{kInk, "INK", 1}, Row{kPlot, "PLOT", 3}, Row{kLine, "LINE", 3},
                           Row{kBlock, "BLOCK", 4}, Row{kEnd, "END", 0}}) {
        Command command;
        command.number = row.number;
        command.name = row.name;
        command.drawnParameters = row.parameters;
        book.commands.Add(command);
    }
    book.characters.Add({0, kSolidCharacter, "Default", {255, 255, 255, 255, 255, 255, 255, 255}});
    return book;
}

/// 2,000 commands. Every fourth is a block: a small one, or one as large as the canvas.
std::vector<std::string> MakeWords(bool heavy) {
    std::string text;
    for (int i = 0; i < 500; ++i) {
        text += "INK " + std::to_string(i % 8) + " PLOT 0 " + std::to_string(i * 7 % 256) + " " +
                std::to_string(i * 11 % 176) + " LINE 0 " + std::to_string(i % 90 - 45) + " " +
                std::to_string(i % 70 - 35) + " ";
        text += heavy ? "BLOCK 21 31 0 0 "
                      : "BLOCK 1 2 " + std::to_string(i % 30) + " " + std::to_string(i % 20) + " ";
    }
    return DrawstringWords(text + "END");
}

/// One step back from the end and forward again, so that each round does the same.
void StepBackAtTheEnd(benchmark::State& state) {
    const PictureBook book = MakeBook();
    const std::vector<std::string> words = MakeWords(state.range(0) != 0);
    const std::size_t end = words.size() - 1;
    const std::size_t before = end - 5;
    SteppedDrawing stepped(book);
    stepped.Start(Picture{});
    stepped.GoTo(words, end);
    for (auto round : state) {
        stepped.GoTo(words, before);
        benchmark::DoNotOptimize(stepped.Planes());
        state.PauseTiming();
        stepped.GoTo(words, end);
        state.ResumeTiming();
    }
}
BENCHMARK(StepBackAtTheEnd)->ArgName("heavy")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// For comparison: what drawing up to there from the start takes.
void DrawFromTheStart(benchmark::State& state) {
    const PictureBook book = MakeBook();
    const std::vector<std::string> words = MakeWords(state.range(0) != 0);
    for (auto round : state) {
        SteppedDrawing stepped(book);
        stepped.Start(Picture{});
        stepped.GoTo(words, words.size() - 1);
        benchmark::DoNotOptimize(stepped.Planes());
    }
}
BENCHMARK(DrawFromTheStart)->ArgName("heavy")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace fabula::pictures
