// A large game as a source: 999 locations, 999 messages, 500 objects, 5,000 process entries; and the
// largest games of the older engines as listings: 250 locations, 250 messages, 2,000 entries. They are
// written by this program, read and written by `fabula`, each time as a process of its own, so that the
// memory is that of the job.

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "support/games/listing_writers.h"
#include "support/places.h"

extern char** environ;

namespace fabula::interchange {
namespace {

constexpr int kRecords = 999;
constexpr int kSourceObjects = 500;
constexpr int kEntries = 5000;
constexpr int kWords = 200;

std::string Sentence(int number) {
    return "You stand in room number " + std::to_string(number) +
           " of a castle with more rooms than anybody has counted.\nDust lies thick on the flagstones, and "
           "somewhere "
           "water drips.\n";
}

/// A word of five letters, which count in every kind of source.
std::string Word(char first, int number) {
    std::string word(1, first);
    for (int i = 0; i < 4; ++i, number /= 26)
        word += static_cast<char>('A' + number % 26);
    return word;
}

void WriteSource(const std::filesystem::path& file) {
    std::ofstream source(file);
    source << "/CTL\n_\n/VOC\nNORTH 2 noun\nSOUTH 3 noun\n";
    for (int i = 0; i < kWords; ++i)
        source << Word('V', i) << " " << 20 + i << " verb\n";
    for (int i = 0; i < kWords; ++i)
        source << Word('N', i) << " " << 50 + i << " noun\n";
    source << "/STX\n/MTX\n";
    for (int i = 0; i < kRecords; ++i)
        source << "/" << i << "\n" << Sentence(i);
    source << "/OTX\n";
    for (int i = 0; i < kSourceObjects; ++i)
        source << "/" << i << "\nthing number " << i << "\n";
    source << "/LTX\n";
    for (int i = 0; i < kRecords; ++i)
        source << "/" << i << "\n" << Sentence(i);
    source << "/CON\n";
    for (int i = 0; i < kRecords; ++i) {
        source << "/" << i << "\nNORTH " << (i + 1) % kRecords << "\nSOUTH "
               << (i + kRecords - 1) % kRecords << "\n";
    }
    source << "/OBJ\n";
    for (int i = 0; i < kSourceObjects; ++i) {
        source << "/" << i << " " << i % 250 << " 1 N N " << Word('N', i % kWords) << " _\n";
    }
    source << "/PRO 0\n";
    for (int i = 0; i < kEntries; ++i) {
        source << Word('V', i % kWords) << " " << Word('N', i / kWords) << " AT " << i % kRecords
               << "\n PRESENT " << i % kSourceObjects << "\n ZERO " << 60 + i % 100 << "\n SET "
               << 60 + i % 100 << "\n PLACE " << i % kSourceObjects << " CARRIED\n MESSAGE " << i % kRecords
               << "\n DONE\n";
    }
}

constexpr int kListedRecords = 250;
constexpr int kListedEntries = 2000;

test::ListedGame::Text ListedText(int number) {
    const std::string text = "You stand in room number " + std::to_string(number) +
                             " of a castle with more rooms than anybody has counted.";
    return {text, text, text};
}

/// A game of an older engine as large as they were, without pictures: entries of four conditions and
/// actions.
test::ListedGame LargeListedGame(bool isMarlo) {
    using Game = test::ListedGame;
    Game game;
    game.isMarlo = isMarlo;
    const std::size_t letters = isMarlo ? 4 : 5;
    game.words = {{"NORTH", 2}, {"SOUTH", 3}};
    for (int i = 0; i < 150; ++i)
        game.words.push_back({Word('V', i), 20 + i});
    for (Game::Word& word : game.words)
        word.word = word.word.substr(0, letters);
    for (int i = 0; i < kListedRecords; ++i) {
        Game::Location location{ListedText(i), {}};
        location.exits.push_back({game.words[0], (i + 1) % kListedRecords});
        location.exits.push_back({game.words[1], (i + kListedRecords - 1) % kListedRecords});
        game.locations.push_back(location);
        game.messages.push_back(ListedText(i));
        Game::Object object;
        object.text = {"a thing", "a thing", "a thing"};
        object.noun = game.words[static_cast<std::size_t>(2 + i % 150)];
        object.adjective = {"_", 255};
        object.place = i;
        game.objects.push_back(object);
    }
    game.systemMessages.assign(30, ListedText(0));
    game.userGraphics.assign(isMarlo ? 21 : 19, Game::Glyph(8));
    game.shades.assign(isMarlo ? 0 : 16, Game::Glyph(8));
    game.fonts.assign(1, std::vector<Game::Glyph>(96, Game::Glyph(8)));
    game.tables.resize(2);
    for (int i = 0; i < kListedEntries; ++i) {
        Game::Entry entry{game.words[static_cast<std::size_t>(2 + i % 150)], {"_", 255}, {}};
        for (const std::string& line :
             {"AT " + std::to_string(i % kListedRecords), "PRESENT " + std::to_string(i % kListedRecords),
              "MESSAGE " + std::to_string(i % kListedRecords), std::string("DONE")})
            entry.condActs.push_back({line, line});
        game.tables[static_cast<std::size_t>(i % 2)].push_back(entry);
    }
    return game;
}

/// A folder that is there while the program runs, with the source and the games made of it.
class Games {
  public:
    Games() {
        std::string name = (std::filesystem::temp_directory_path() / "fabula-bench-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        path_ = name;
        WriteSource(path_ / "game.txt");
        Run({"import", "ace", File("game.txt"), File("game.fbd"), "--force"});
        Run({"export", "fabula", File("game.fbd"), File("game.ext")});
        Run({"export", "pcvel", File("game.fbd"), File("game.sce")});
        std::ofstream(path_ / "game.unq") << test::UnMarloListing(LargeListedGame(true), 1);
        std::ofstream(path_ / "game.unp") << test::UnVelListing(LargeListedGame(false));
    }
    Games(const Games&) = delete;
    Games& operator=(const Games&) = delete;
    ~Games() { std::filesystem::remove_all(path_); }

    std::string File(const char* name) const { return (path_ / name).string(); }

    /// Runs `fabula` without output and gives the most memory that it held, in MiB.
    double Run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), test::Program());
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", 1, 0);
        pid_t child = 0;
        if (posix_spawn(&child, test::Program().c_str(), &actions, nullptr, pointers.data(), environ) != 0)
            std::abort();
        posix_spawn_file_actions_destroy(&actions);
        int status = 0;
        rusage usage{};
        if (wait4(child, &status, 0, &usage) != child || status != 0) std::abort();
        return static_cast<double>(usage.ru_maxrss) / 1024;
    }

  private:
    std::filesystem::path path_;
};

const Games& LargeGame() {
    static const Games games;
    return games;
}

struct Job {
    const char* verb;
    const char* kind;
    const char* source;
    const char* target;
};

constexpr std::array<Job, 8> kJobs = {{
    {"import", "ace", "game.txt", "new.fbd"},
    {"import", "pcvel", "game.sce", "new.fbd"},
    {"import", "fabula", "game.ext", "new.fbd"},
    {"export", "ace", "game.fbd", "new.out"},
    {"export", "pcvel", "game.fbd", "new.out"},
    {"export", "fabula", "game.fbd", "new.out"},
    {"import", "unmarlo", "game.unq", "new.fbd"},
    {"import", "unvel", "game.unp", "new.fbd"},
}};

void RunJob(benchmark::State& state) {
    const Games& games = LargeGame();
    const Job& job = kJobs[static_cast<std::size_t>(state.range(0))];
    std::vector<std::string> arguments{job.verb, job.kind, games.File(job.source), games.File(job.target)};
    arguments.emplace_back("--force");
    double memory = 0;
    for (auto _ : state)
        memory = games.Run(arguments);
    state.counters["MiB"] = memory;
    state.SetLabel(std::string(job.verb) + " " + job.kind);
}
BENCHMARK(RunJob)->Name("LargeGameAsAFile")->DenseRange(0, 7)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The complete listing, as text and as HTML.
void ListAll(benchmark::State& state) {
    const Games& games = LargeGame();
    const char* const output = state.range(0) == 0 ? "new.txt" : "new.html";
    double memory = 0;
    for (auto _ : state)
        memory = games.Run(
            {"list", games.File("game.fbd"), "adventure", "--output", games.File(output), "--force"});
    state.counters["MiB"] = memory;
    state.SetLabel(output);
}
BENCHMARK(ListAll)
    ->Name("LargeGameAsAListing")
    ->DenseRange(0, 1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace fabula::interchange
