#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The actions on flags, under their names (condact_table.cpp). Values are 16-bit: PLUS and MINUS clamp to
/// 0 to 999 behind the sum, LET does not.

bool Set(Game& game, FlagNumber flag);
bool Clear(Game& game, FlagNumber flag);
bool Plus(Game& game, FlagNumber flag, int value);
bool Minus(Game& game, FlagNumber flag, int value);
bool Let(Game& game, FlagNumber flag, int value);
bool Add(Game& game, FlagNumber from, FlagNumber to);
bool Sub(Game& game, FlagNumber from, FlagNumber to);
bool CopyFF(Game& game, FlagNumber from, FlagNumber to);
bool Random(Game& game, FlagNumber flag);
bool AutoDec(Game& game, FlagNumber flag, int kind);
bool AutoInc(Game& game, FlagNumber flag, int kind);

bool Ability(Game& game, int objects, int weight);
bool Mode(Game& game, int value);
bool Graphic(Game& game, int value);
bool Prompt(Game& game, SystemMessageNumber systemMessage);
bool Time(Game& game, int duration, int option);

}  // namespace fabula::engine
