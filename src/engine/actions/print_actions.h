#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The actions that print and that change how it looks, under their names (condact_table.cpp).

bool Mes(Game& game, MessageNumber message);
bool Message(Game& game, MessageNumber message);
bool SysMess(Game& game, SystemMessageNumber message);
bool MesF(Game& game, FlagNumber flag);
bool MessgF(Game& game, FlagNumber flag);
bool SysMsgF(Game& game, FlagNumber flag);
bool Print(Game& game, FlagNumber flag);
bool NewLine(Game& game);
bool Turns(Game& game);
bool Score(Game& game);
bool Cls(Game& game);

bool Inven(Game& game);
bool ListObj(Game& game);
bool ListAt(Game& game, PlaceNumber location);

bool PictureAction(Game& game, PlaceNumber location);
bool Paper(Game& game, int colour);
bool Ink(Game& game, int colour);
bool CharSet(Game& game, int font);
bool FntSize(Game& game, int code);
bool Bright(Game& game, int on);
bool Flash(Game& game, int on);
bool Inverse(Game& game, int on);
bool Over(Game& game, int on);

}  // namespace fabula::engine
