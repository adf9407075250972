#pragma once

namespace fabula::engine {

class Game;

/// The actions that move objects, under their names (condact_table.cpp).

bool Get(Game& game, int object, int);
bool Drop(Game& game, int object, int);
bool Wear(Game& game, int object, int);
bool Remove(Game& game, int object, int);
bool Create(Game& game, int object, int);
bool Destroy(Game& game, int object, int);
bool Swap(Game& game, int object1, int object2);
bool Place(Game& game, int object, int location);
bool PutO(Game& game, int location, int);
bool PutIn(Game& game, int object, int container);
bool TakeOut(Game& game, int object, int container);
bool DropAll(Game& game, int, int);

bool CopyOO(Game& game, int object1, int object2);
bool CopyOF(Game& game, int object, int flag);
bool CopyFO(Game& game, int flag, int object);
bool Weigh(Game& game, int object, int flag);
bool Weight(Game& game, int flag, int);

/// The same for the object that the words of the sentence name.
bool AutoG(Game& game, int, int);
bool AutoD(Game& game, int, int);
bool AutoW(Game& game, int, int);
bool AutoR(Game& game, int, int);
bool AutoP(Game& game, int container, int);
bool AutoT(Game& game, int container, int);
bool WhatO(Game& game, int, int);

}  // namespace fabula::engine
