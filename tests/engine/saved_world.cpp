#include "engine/saved_world.h"

#include <fstream>
#include <iterator>

namespace fabula::test {

std::string ReadState(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void WriteState(const std::filesystem::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

GameBuilder SavedWorld() {
    GameBuilder game;
    game.Word("SAVE", 101, 0)
        .Word("LOAD", 102, 0)
        .Word("KEEP", 103, 0)
        .Word("BACK", 104, 0)
        .Word("TAKE", 105, 0);
    game.Word("STEP", 106, 0);
    game.Object(0, {.place = 252}).Object(1, {.place = 0});
    game.Entry(0, "SAVE", "_", "SAVE SET 210").Entry(0, "LOAD", "_", "LOAD SET 211");
    game.Entry(0, "KEEP", "_", "RAMSAVE").Entry(0, "BACK", "_", "RAMLOAD 255");
    game.Entry(0, "TAKE", "_", "PLACE 1 CARRIED")
        .Entry(0, "STEP", "_", "PLUS 200 1 PLUS 300 1 PLUS 30 5 GOTO 1 DESC");
    return game;
}

std::string Save(GameRun& run, const char* name) {
    run.window.AnswerFile(run.File(name));
    run.Type("SAVE");
    return ReadState(run.File(name));
}

std::string Load(GameRun& run, const char* name) {
    const std::size_t boxes = run.person.Boxes().size();
    run.window.AnswerFile(run.File(name));
    run.Type("LOAD");
    return run.person.Boxes().size() > boxes ? run.Box() : "";
}

}  // namespace fabula::test
