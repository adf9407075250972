#include "engine/conditions.h"

#include "engine/game.h"

namespace fabula::engine {

namespace {

/// The five word conditions. A game that clears a word flag to 0 instead of 255 has no word there either.
bool WordIs(const Game& game, FlagNumber wordFlag, WordNumber word) {
    const int value = game.Flag(wordFlag);
    return value == word.value || (word.value == kNoWord && value == 0);
}

}  // namespace

bool At(Game& game, PlaceNumber location) {
    return game.Location() == location;
}

bool NotAt(Game& game, PlaceNumber location) {
    return game.Location() != location;
}

bool AtGt(Game& game, PlaceNumber location) {
    return game.Location() > location;
}

bool AtLt(Game& game, PlaceNumber location) {
    return game.Location() < location;
}

bool Present(Game& game, ObjectNumber object) {
    return game.IsPresent(object);
}

bool Absent(Game& game, ObjectNumber object) {
    return !game.IsPresent(object);
}

bool Worn(Game& game, ObjectNumber object) {
    return game.IsWorn(object);
}

bool NotWorn(Game& game, ObjectNumber object) {
    return !game.IsWorn(object);
}

bool Carried(Game& game, ObjectNumber object) {
    return game.IsCarried(object);
}

bool NotCarr(Game& game, ObjectNumber object) {
    return !game.IsCarried(object);
}

bool IsAt(Game& game, ObjectNumber object, PlaceNumber location) {
    return game.state.ObjectPlace(object) == game.PlaceOf(location);
}

bool IsNotAt(Game& game, ObjectNumber object, PlaceNumber location) {
    return !IsAt(game, object, location);
}

bool Zero(Game& game, FlagNumber flag) {
    return game.Flag(flag) == 0;
}

bool NotZero(Game& game, FlagNumber flag) {
    return game.Flag(flag) != 0;
}

bool Eq(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) == value;
}

bool NotEq(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) != value;
}

bool Gt(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) > value;
}

bool Lt(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) < value;
}

bool Same(Game& game, FlagNumber flag1, FlagNumber flag2) {
    return game.Flag(flag1) == game.Flag(flag2);
}

bool NotSame(Game& game, FlagNumber flag1, FlagNumber flag2) {
    return game.Flag(flag1) != game.Flag(flag2);
}

bool Adject1(Game& game, WordNumber word) {
    return WordIs(game, flag::kAdjective, word);
}

bool Adverb(Game& game, WordNumber word) {
    return WordIs(game, flag::kAdverb, word);
}

bool Prep(Game& game, WordNumber word) {
    return WordIs(game, flag::kPreposition, word);
}

bool Noun2(Game& game, WordNumber word) {
    return WordIs(game, flag::kNoun2, word);
}

bool Adject2(Game& game, WordNumber word) {
    return WordIs(game, flag::kAdjective2, word);
}

bool Chance(Game& game, int percent) {
    return game.host.random.UpTo(100) <= percent;
}

bool TimeOut(Game& game) {
    return game.state.FlagBitSet(flag::kTimeOutOptions, 7);
}

}  // namespace fabula::engine
