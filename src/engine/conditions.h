#pragma once

namespace fabula::engine {

class Game;

/// The conditions, under their names (condact_table.cpp). Each returns whether it holds; a parameter that
/// it does not take is not named.

bool At(Game& game, int location, int);
bool NotAt(Game& game, int location, int);
bool AtGt(Game& game, int location, int);
bool AtLt(Game& game, int location, int);

bool Present(Game& game, int object, int);
bool Absent(Game& game, int object, int);
bool Worn(Game& game, int object, int);
bool NotWorn(Game& game, int object, int);
bool Carried(Game& game, int object, int);
bool NotCarr(Game& game, int object, int);
bool IsAt(Game& game, int object, int location);
bool IsNotAt(Game& game, int object, int location);

bool Zero(Game& game, int flag, int);
bool NotZero(Game& game, int flag, int);
bool Eq(Game& game, int flag, int value);
bool NotEq(Game& game, int flag, int value);
bool Gt(Game& game, int flag, int value);
bool Lt(Game& game, int flag, int value);
bool Same(Game& game, int flag1, int flag2);
bool NotSame(Game& game, int flag1, int flag2);

bool Adject1(Game& game, int word, int);
bool Adverb(Game& game, int word, int);
bool Prep(Game& game, int word, int);
bool Noun2(Game& game, int word, int);
bool Adject2(Game& game, int word, int);

bool Chance(Game& game, int percent, int);
bool TimeOut(Game& game, int, int);

}  // namespace fabula::engine
