#pragma once

namespace fabula::engine {

class Game;

/// The actions that print and that change how it looks, under their names (condact_table.cpp).

bool Mes(Game& game, int message, int);
bool Message(Game& game, int message, int);
bool SysMess(Game& game, int message, int);
bool MesF(Game& game, int flag, int);
bool MessgF(Game& game, int flag, int);
bool SysMsgF(Game& game, int flag, int);
bool Print(Game& game, int flag, int);
bool NewLine(Game& game, int, int);
bool Turns(Game& game, int, int);
bool Score(Game& game, int, int);
bool Cls(Game& game, int, int);

bool Inven(Game& game, int, int);
bool ListObj(Game& game, int, int);
bool ListAt(Game& game, int location, int);

bool PictureAction(Game& game, int location, int);
bool Paper(Game& game, int colour, int);
bool Ink(Game& game, int colour, int);
bool CharSet(Game& game, int font, int);
bool FntSize(Game& game, int code, int);
bool Bright(Game& game, int on, int);
bool Flash(Game& game, int on, int);
bool Inverse(Game& game, int on, int);
bool Over(Game& game, int on, int);

}  // namespace fabula::engine
