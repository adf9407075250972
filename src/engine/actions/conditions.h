#pragma once

#include "engine/game.h"

namespace fabula::engine {

// The conditions, under their names (condact_table.cpp). Each returns whether it holds. Most entries of a
// turn end at one: they stand here so that the table calls them without a step between.

/// The five word conditions. A game that clears a word flag to 0 instead of 255 has no word there either.
inline bool WordIs(const Game& game, FlagNumber wordFlag, WordNumber word) {
    const int value = game.Flag(wordFlag);
    return value == word.value || (word == kNoWordNumber && value == 0);
}

inline bool At(Game& game, PlaceNumber location) {
    return game.Location() == location;
}

inline bool NotAt(Game& game, PlaceNumber location) {
    return game.Location() != location;
}

inline bool AtGt(Game& game, PlaceNumber location) {
    return game.Location() > location;
}

inline bool AtLt(Game& game, PlaceNumber location) {
    return game.Location() < location;
}

inline bool Present(Game& game, ObjectNumber object) {
    return game.IsPresent(object);
}

inline bool Absent(Game& game, ObjectNumber object) {
    return !game.IsPresent(object);
}

inline bool Worn(Game& game, ObjectNumber object) {
    return game.IsWorn(object);
}

inline bool NotWorn(Game& game, ObjectNumber object) {
    return !game.IsWorn(object);
}

inline bool Carried(Game& game, ObjectNumber object) {
    return game.IsCarried(object);
}

inline bool NotCarr(Game& game, ObjectNumber object) {
    return !game.IsCarried(object);
}

inline bool IsAt(Game& game, ObjectNumber object, PlaceNumber location) {
    return game.state.ObjectPlace(object) == game.PlaceOf(location);
}

inline bool IsNotAt(Game& game, ObjectNumber object, PlaceNumber location) {
    return !IsAt(game, object, location);
}

inline bool Zero(Game& game, FlagNumber flag) {
    return game.Flag(flag) == 0;
}

inline bool NotZero(Game& game, FlagNumber flag) {
    return game.Flag(flag) != 0;
}

inline bool Eq(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) == value;
}

inline bool NotEq(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) != value;
}

inline bool Gt(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) > value;
}

inline bool Lt(Game& game, FlagNumber flag, int value) {
    return game.Flag(flag) < value;
}

inline bool Same(Game& game, FlagNumber flag1, FlagNumber flag2) {
    return game.Flag(flag1) == game.Flag(flag2);
}

inline bool NotSame(Game& game, FlagNumber flag1, FlagNumber flag2) {
    return game.Flag(flag1) != game.Flag(flag2);
}

inline bool Adject1(Game& game, WordNumber word) {
    return WordIs(game, flag::kAdjective, word);
}

inline bool Adverb(Game& game, WordNumber word) {
    return WordIs(game, flag::kAdverb, word);
}

inline bool Prep(Game& game, WordNumber word) {
    return WordIs(game, flag::kPreposition, word);
}

inline bool Noun2(Game& game, WordNumber word) {
    return WordIs(game, flag::kNoun2, word);
}

inline bool Adject2(Game& game, WordNumber word) {
    return WordIs(game, flag::kAdjective2, word);
}

inline bool Chance(Game& game, int percent) {
    return game.host.random.UpTo(100) <= percent;
}

inline bool TimeOut(Game& game) {
    return game.state.FlagBitSet(flag::kTimeOutOptions, 7);
}

}  // namespace fabula::engine
