#include <exception>
#include <iostream>
#include <string_view>

#include "bench_games.h"

// Writes a game of the bench into a file: make_bench_game small|large FILE.
int main(int argc, char** argv) {
    using namespace fabula;
    const std::string_view size = argc == 3 ? argv[1] : "";
    if (size != "small" && size != "large") {
        std::cerr << "usage: make_bench_game small|large FILE\n";
        return 2;
    }
    try {
        if (size == "small") {
            bench::BuildTwoRooms(argv[2], store::AdventureKind::Fabula);
        } else {
            bench::BuildLargeGame(argv[2]);
        }
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
    return 0;
}
