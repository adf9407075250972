#include "engine/conditions.h"

#include "engine/game.h"

namespace fabula::engine {

namespace {

/// The five word conditions. A game that clears a word flag to 0 instead of 255 has no word there either.
bool WordIs(const Game& game, int wordFlag, int word) {
    const int value = game.Flag(wordFlag);
    return value == word || (word == kNoWord && value == 0);
}

}  // namespace

bool At(Game& game, int location, int) {
    return game.Flag(flag::kLocation) == location;
}

bool NotAt(Game& game, int location, int) {
    return game.Flag(flag::kLocation) != location;
}

bool AtGt(Game& game, int location, int) {
    return game.Flag(flag::kLocation) > location;
}

bool AtLt(Game& game, int location, int) {
    return game.Flag(flag::kLocation) < location;
}

bool Present(Game& game, int object, int) {
    return game.IsPresent(object);
}

bool Absent(Game& game, int object, int) {
    return !game.IsPresent(object);
}

bool Worn(Game& game, int object, int) {
    return game.IsWorn(object);
}

bool NotWorn(Game& game, int object, int) {
    return !game.IsWorn(object);
}

bool Carried(Game& game, int object, int) {
    return game.IsCarried(object);
}

bool NotCarr(Game& game, int object, int) {
    return !game.IsCarried(object);
}

bool IsAt(Game& game, int object, int location) {
    return game.state.ObjectPlace(object) == game.PlaceOf(location);
}

bool IsNotAt(Game& game, int object, int location) {
    return !IsAt(game, object, location);
}

bool Zero(Game& game, int flag, int) {
    return game.Flag(flag) == 0;
}

bool NotZero(Game& game, int flag, int) {
    return game.Flag(flag) != 0;
}

bool Eq(Game& game, int flag, int value) {
    return game.Flag(flag) == value;
}

bool NotEq(Game& game, int flag, int value) {
    return game.Flag(flag) != value;
}

bool Gt(Game& game, int flag, int value) {
    return game.Flag(flag) > value;
}

bool Lt(Game& game, int flag, int value) {
    return game.Flag(flag) < value;
}

bool Same(Game& game, int flag1, int flag2) {
    return game.Flag(flag1) == game.Flag(flag2);
}

bool NotSame(Game& game, int flag1, int flag2) {
    return game.Flag(flag1) != game.Flag(flag2);
}

bool Adject1(Game& game, int word, int) {
    return WordIs(game, flag::kAdjective, word);
}

bool Adverb(Game& game, int word, int) {
    return WordIs(game, flag::kAdverb, word);
}

bool Prep(Game& game, int word, int) {
    return WordIs(game, flag::kPreposition, word);
}

bool Noun2(Game& game, int word, int) {
    return WordIs(game, flag::kNoun2, word);
}

bool Adject2(Game& game, int word, int) {
    return WordIs(game, flag::kAdjective2, word);
}

bool Chance(Game& game, int percent, int) {
    return game.host.random.UpTo(100) <= percent;
}

bool TimeOut(Game& game, int, int) {
    return game.state.FlagBitSet(flag::kTimeOutOptions, 7);
}

}  // namespace fabula::engine
