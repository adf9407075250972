#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "store/adventure.h"
#include "store/create.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"

namespace fabula::store {
namespace {

constexpr int kTexts = 1000;
constexpr int kStoreEntries = 10000;

/// A folder that is there while the program runs.
class Folder {
  public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "fabula-bench-XXXXXX").string();
        if (!mkdtemp(name.data())) std::abort();
        path_ = name;
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(path_); }
    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

void Create(const std::filesystem::path& file) {
    platform::ScriptedPerson person;
    const platform::SystemClock clock;
    platform::NoEvents events;
    CreateAdventure(file, {}, {person, clock, events, test::DefaultData()});
}

void AddTexts(Adventure& adventure) {
    Cursor& locations = adventure.OpenTable(TableNum::Locations, "*");
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "*");
    for (int number = 0; number < kTexts; ++number) {
        locations.AddNew();
        locations.SetField("locnum", number);
        locations.SetField("numexits", 4);
        locations.SetField("exits", "NORTH 17 SOUTH 18");
        locations.SetField("numericexits", "12 17 13 18");
        locations.SetField("locshortdesc", "A room of the castle");
        locations.SetField("locdesc", std::string(200 + static_cast<std::size_t>(number) % 300, 'x'));
        locations.Update();
        messages.AddNew();
        messages.SetField("msgnum", number);
        messages.SetField("msgmsg", std::string(40 + static_cast<std::size_t>(number) % 100, 'x'));
        messages.Update();
    }
}

void AddStoreEntries(Adventure& adventure) {
    Cursor& entries = adventure.OpenTable(TableNum::ProcessTables, "*");
    for (int number = 1; number <= kStoreEntries; ++number) {
        entries.AddNew();
        entries.SetField("canum", number);
        entries.SetField("estype", number % 10);
        entries.SetField("w1", "EXAMINE");
        entries.SetField("w2", "LANTERN");
        entries.SetField("w1num", number % 50);
        entries.SetField("w2num", number % 200);
        entries.SetField("numcas", 7);
        entries.SetField("CondActs", "AT 5 CARRIED 3 MESSAGE 7 DONE");
        entries.SetField("numericcondacts", "101 5 109 3 250 7 265");
        entries.Update();
    }
}

/// A large adventure, opened through the store and past it.
class Game {
  public:
    Game() : file_(folder_.Path() / "game.fbd") {
        Create(file_);
        adventure_ = Adventure::Open(file_);
        Transaction transaction(*adventure_);
        adventure_->DeleteFrom(TableNum::Locations);
        AddTexts(*adventure_);
        AddStoreEntries(*adventure_);
        transaction.Commit();
        if (sqlite3_open(file_.c_str(), &raw_) != SQLITE_OK) std::abort();
    }
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;
    ~Game() { sqlite3_close_v2(raw_); }

    Adventure& Store() const { return *adventure_; }
    sqlite3_stmt* Prepare(const char* sql) const {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(raw_, sql, -1, &statement, nullptr) != SQLITE_OK) std::abort();
        return statement;
    }
    void Run(const char* sql) const {
        if (sqlite3_exec(raw_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
    }

  private:
    Folder folder_;
    std::filesystem::path file_;
    std::unique_ptr<Adventure> adventure_;
    sqlite3* raw_ = nullptr;
};

const Game& StoreGame() {
    static const Game game;
    return game;
}

struct Load {
    TableNum table;
    const char* sql;  ///< what the store makes of `OpenTable(table, "*")`
    int records;
};

constexpr Load kLoads[] = {
    {TableNum::Locations,
     "SELECT "
     "storekey,locnum,numexits,exits,numericexits,picloc,pickey,locshortdesc,locdesc,picgraphic,oldpicloc "
     "FROM Locations ORDER BY locnum, storekey",
     kTexts},
    {TableNum::Messages, "SELECT storekey,msgnum,msgmsg FROM Messages ORDER BY msgnum, storekey", kTexts},
    {TableNum::ProcessTables,
     "SELECT storekey,canum,estype,w1,w2,w1num,w2num,numcas,CondActs,numericcondacts FROM ProcessTables "
     "ORDER BY estype, w1num, w2num, canum, storekey",
     kStoreEntries},
};

/// Opens the whole table and reads every field of every record.
void LoadThroughCursor(benchmark::State& state) {
    const Load& load = kLoads[state.range(0)];
    Adventure& adventure = StoreGame().Store();
    std::size_t bytes = 0;
    for (auto _ : state) {
        Cursor& cursor = adventure.OpenTable(load.table, "*");
        for (; !cursor.Eof(); cursor.MoveNext()) {
            for (std::size_t column = 0; column < cursor.Fields().size(); ++column) {
                switch (ClassOf(cursor.Fields()[column].type)) {
                    case FieldClass::Text:
                        bytes += cursor.Text(column).size();
                        break;
                    case FieldClass::Binary:
                        bytes += text::IsNull(cursor.Field(column));
                        break;
                    default:
                        bytes += static_cast<std::size_t>(cursor.Number(column));
                }
            }
        }
    }
    benchmark::DoNotOptimize(bytes);
    state.SetItemsProcessed(state.iterations() * load.records);
}

/// The same query through the database alone, its statement prepared beforehand.
void LoadRaw(benchmark::State& state) {
    const Load& load = kLoads[state.range(0)];
    sqlite3_stmt* statement = StoreGame().Prepare(load.sql);
    std::size_t bytes = 0;
    for (auto _ : state) {
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 1; column < sqlite3_column_count(statement); ++column) {
                switch (sqlite3_column_type(statement, column)) {
                    case SQLITE_TEXT:
                        benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
                        bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
                        break;
                    case SQLITE_INTEGER:
                        bytes += static_cast<std::size_t>(sqlite3_column_int64(statement, column));
                        break;
                    default:
                        break;
                }
            }
        }
        sqlite3_reset(statement);
    }
    benchmark::DoNotOptimize(bytes);
    sqlite3_finalize(statement);
    state.SetItemsProcessed(state.iterations() * load.records);
}

/// One record by its key through OpenTable, with a new filter each time.
void LookUpThroughOpenTable(benchmark::State& state) {
    Adventure& adventure = StoreGame().Store();
    const ReadTransaction reading(adventure);
    std::size_t bytes = 0;
    int number = 0;
    for (auto _ : state) {
        number = (number + 7) % kTexts;
        bytes += adventure.OpenTable(TableNum::Messages, "msgmsg", "msgnum=" + std::to_string(number))
                     .Text(std::size_t{0})
                     .size();
    }
    benchmark::DoNotOptimize(bytes);
    state.SetItemsProcessed(state.iterations());
}

void LookUpThroughPreparedQuery(benchmark::State& state) {
    Adventure& adventure = StoreGame().Store();
    const ReadTransaction reading(adventure);
    PreparedQuery query = adventure.Prepare(TableNum::Messages, "msgmsg", "msgnum=?");
    std::size_t bytes = 0;
    int number = 0;
    for (auto _ : state) {
        number = (number + 7) % kTexts;
        query.First({number});
        bytes += query.Text(0).size();
    }
    benchmark::DoNotOptimize(bytes);
    state.SetItemsProcessed(state.iterations());
}

void LookUpRaw(benchmark::State& state) {
    const Game& game = StoreGame();
    game.Run("BEGIN");
    sqlite3_stmt* statement =
        game.Prepare("SELECT storekey,msgmsg FROM Messages WHERE msgnum=? ORDER BY msgnum, storekey");
    std::size_t bytes = 0;
    int number = 0;
    for (auto _ : state) {
        number = (number + 7) % kTexts;
        sqlite3_bind_int(statement, 1, number);
        if (sqlite3_step(statement) == SQLITE_ROW) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement, 1));
            bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, 1));
        }
        sqlite3_reset(statement);
    }
    benchmark::DoNotOptimize(bytes);
    sqlite3_finalize(statement);
    game.Run("COMMIT");
    state.SetItemsProcessed(state.iterations());
}

/// Tells how long single runs of `work` took: the middle, the 99th of a hundred, the longest, in
/// milliseconds.
template <typename Work>
void MeasureEach(benchmark::State& state, Work work) {
    std::vector<double> times;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::sort(times.begin(), times.end());
    state.counters["p50_ms"] = times[times.size() / 2];
    state.counters["p99_ms"] = times[times.size() * 99 / 100];
    state.counters["max_ms"] = times.back();
}

/// One field of one record, changed, written and on the disk.
void EditThroughCursor(benchmark::State& state) {
    Adventure& adventure = StoreGame().Store();
    int number = 0;
    MeasureEach(state, [&] {
        number = (number + 7) % kTexts;
        Cursor& message = adventure.OpenTable(TableNum::Messages, "*", "msgnum=" + std::to_string(number));
        message.SetField("msgmsg", "An edited text, number " + std::to_string(number) + ".");
        message.Update();
    });
}

void EditRaw(benchmark::State& state) {
    const Game& game = StoreGame();
    game.Run("PRAGMA synchronous=EXTRA");
    sqlite3_stmt* statement = game.Prepare("UPDATE Messages SET msgmsg='An edited text.' WHERE msgnum=?");
    int number = 0;
    MeasureEach(state, [&] {
        number = (number + 7) % kTexts;
        sqlite3_bind_int(statement, 1, number);
        if (sqlite3_step(statement) != SQLITE_DONE) std::abort();
        sqlite3_reset(statement);
    });
    sqlite3_finalize(statement);
}

void CreateAnAdventure(benchmark::State& state) {
    const Folder folder;
    MeasureEach(state, [&] { Create(folder.Path() / "new.fbd"); });
}

BENCHMARK(LoadThroughCursor)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadRaw)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(LookUpThroughOpenTable);
BENCHMARK(LookUpThroughPreparedQuery);
BENCHMARK(LookUpRaw);
BENCHMARK(EditThroughCursor)->Iterations(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(EditRaw)->Iterations(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(CreateAnAdventure)->Iterations(50)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace fabula::store
