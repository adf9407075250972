#pragma once

namespace fabula::engine {

class Game;

/// The actions on flags, under their names (condact_table.cpp). Values are 16-bit: PLUS and MINUS clamp to
/// 0 to 999 behind the sum, LET does not.

bool Set(Game& game, int flag, int);
bool Clear(Game& game, int flag, int);
bool Plus(Game& game, int flag, int value);
bool Minus(Game& game, int flag, int value);
bool Let(Game& game, int flag, int value);
bool Add(Game& game, int from, int to);
bool Sub(Game& game, int from, int to);
bool CopyFF(Game& game, int from, int to);
bool Random(Game& game, int flag, int);
bool AutoDec(Game& game, int flag, int kind);
bool AutoInc(Game& game, int flag, int kind);

bool Ability(Game& game, int objects, int weight);
bool Mode(Game& game, int value, int);
bool Graphic(Game& game, int value, int);
bool Prompt(Game& game, int systemMessage, int);
bool Time(Game& game, int duration, int option);

}  // namespace fabula::engine
