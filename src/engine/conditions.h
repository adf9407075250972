#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The conditions, under their names (condact_table.cpp). Each returns whether it holds; a parameter that
/// it does not take is not named.

bool At(Game& game, PlaceNumber location);
bool NotAt(Game& game, PlaceNumber location);
bool AtGt(Game& game, PlaceNumber location);
bool AtLt(Game& game, PlaceNumber location);

bool Present(Game& game, ObjectNumber object);
bool Absent(Game& game, ObjectNumber object);
bool Worn(Game& game, ObjectNumber object);
bool NotWorn(Game& game, ObjectNumber object);
bool Carried(Game& game, ObjectNumber object);
bool NotCarr(Game& game, ObjectNumber object);
bool IsAt(Game& game, ObjectNumber object, PlaceNumber location);
bool IsNotAt(Game& game, ObjectNumber object, PlaceNumber location);

bool Zero(Game& game, FlagNumber flag);
bool NotZero(Game& game, FlagNumber flag);
bool Eq(Game& game, FlagNumber flag, int value);
bool NotEq(Game& game, FlagNumber flag, int value);
bool Gt(Game& game, FlagNumber flag, int value);
bool Lt(Game& game, FlagNumber flag, int value);
bool Same(Game& game, FlagNumber flag1, FlagNumber flag2);
bool NotSame(Game& game, FlagNumber flag1, FlagNumber flag2);

bool Adject1(Game& game, WordNumber word);
bool Adverb(Game& game, WordNumber word);
bool Prep(Game& game, WordNumber word);
bool Noun2(Game& game, WordNumber word);
bool Adject2(Game& game, WordNumber word);

bool Chance(Game& game, int percent);
bool TimeOut(Game& game);

}  // namespace fabula::engine
