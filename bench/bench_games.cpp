#include "bench_games.h"

#include "support/games/starter_game.h"

namespace fabula::bench {
namespace {

using store::AdventureKind;
using test::StarterGame;

constexpr int kLocations = 999;
constexpr int kMessages = 999;
constexpr int kObjects = 500;
constexpr int kEntriesForWords = 4000;
constexpr int kEntriesEachTurn = 500;
constexpr int kEntriesElsewhere = 500;

constexpr int kFirstVerb = 40;
constexpr int kVerbs = 100;
constexpr int kFirstNoun = 50;
constexpr int kNouns = 150;

/// Room 0 and room 1, and their lamp with number 0.
void AddTwoRooms(StarterGame& game, AdventureKind kind) {
    const std::string lineEnd = kind == AdventureKind::Marlo ? "\u008C" : "";
    game.Word("LAMP", kFirstNoun, condacts::kNoun);
    game.Location(0, "A wide hall with a stone floor. A door leads north." + lineEnd, " ", "NORTH 1");
    game.Location(1, "A small kitchen that smells of bread. The hall is to the south." + lineEnd, " ",
                  "SOUTH 0");
    game.Object(0, "a lamp", 0, "LAMP");
}

std::string VerbNumber(int number) {
    return "VERB" + std::to_string(number);
}

std::string NounNumber(int number) {
    return "NOUN" + std::to_string(number);
}

void AddWords(StarterGame& game) {
    for (int i = 0; i < kVerbs; ++i)
        game.Word(VerbNumber(i), kFirstVerb + i, condacts::kVerb);
    for (int i = 1; i < kNouns; ++i)
        game.Word(NounNumber(i), kFirstNoun + i, condacts::kNoun);
}

void AddRecords(StarterGame& game) {
    for (int i = 2; i < kLocations; ++i) {
        const std::string number = std::to_string(i);
        game.Location(
            i, "Room " + number + ", one of many, with a long description of what there is to see.",
            "Room " + number + ".", "NORTH " + std::to_string((i + 1) % kLocations) + " SOUTH 2 EAST 3");
    }
    for (int i = 2; i < kMessages; ++i)
        game.Message(i, "Message " + std::to_string(i) + " tells what came of something that was tried.");
    for (int i = 1; i < kObjects; ++i)
        game.Object(i, "thing " + std::to_string(i), 2 + i % 200, NounNumber(1 + i % (kNouns - 1)));
}

void AddEntries(StarterGame& game) {
    for (int i = 0; i < kEntriesForWords; ++i) {
        const std::string number = std::to_string(2 + i % 900);
        game.Entry(
            0, VerbNumber(i % kVerbs), NounNumber(1 + i % (kNouns - 1)),
            "AT " + number + " PRESENT " + std::to_string(i % kObjects) + " MESSAGE " + number + " DONE");
    }
    for (int i = 0; i < kEntriesEachTurn; ++i)
        game.Entry(2, "_", "_",
                   "AT " + std::to_string(2 + i) + " ZERO 60 SET 60 MESSAGE " + std::to_string(2 + i));
    for (int i = 0; i < kEntriesElsewhere; ++i)
        game.Entry(3 + i % 20, "_", "_",
                   "EQ 61 " + std::to_string(i % 200) + " MESSAGE " + std::to_string(2 + i));
}

}  // namespace

void BuildTwoRooms(const std::filesystem::path& file, AdventureKind kind) {
    StarterGame game(file, kind, kind == AdventureKind::Marlo);
    AddTwoRooms(game, kind);
    game.Finish();
}

void BuildLargeGame(const std::filesystem::path& file) {
    StarterGame game(file, AdventureKind::Fabula);
    AddTwoRooms(game, AdventureKind::Fabula);
    AddWords(game);
    AddRecords(game);
    AddEntries(game);
    game.Finish();
}

}  // namespace fabula::bench
