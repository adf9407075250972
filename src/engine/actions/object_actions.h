#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The actions that move objects, under their names (condact_table.cpp).

bool Get(Game& game, ObjectNumber object);
bool Drop(Game& game, ObjectNumber object);
bool Wear(Game& game, ObjectNumber object);
bool Remove(Game& game, ObjectNumber object);
bool Create(Game& game, ObjectNumber object);
bool Destroy(Game& game, ObjectNumber object);
bool Swap(Game& game, ObjectNumber object1, ObjectNumber object2);
bool Place(Game& game, ObjectNumber object, PlaceNumber location);
bool PutO(Game& game, PlaceNumber location);
bool PutIn(Game& game, ObjectNumber object, ObjectNumber container);
bool TakeOut(Game& game, ObjectNumber object, ObjectNumber container);
bool DropAll(Game& game);

bool CopyOO(Game& game, ObjectNumber object1, ObjectNumber object2);
bool CopyOF(Game& game, ObjectNumber object, FlagNumber flag);
bool CopyFO(Game& game, FlagNumber flag, ObjectNumber object);
bool Weigh(Game& game, ObjectNumber object, FlagNumber flag);
bool Weight(Game& game, FlagNumber flag);

/// The same for the object that the words of the sentence name.
bool AutoG(Game& game);
bool AutoD(Game& game);
bool AutoW(Game& game);
bool AutoR(Game& game);
bool AutoP(Game& game, ObjectNumber container);
bool AutoT(Game& game, ObjectNumber container);
bool WhatO(Game& game);

}  // namespace fabula::engine
