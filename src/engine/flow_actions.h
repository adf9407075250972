#pragma once

namespace fabula::engine {

class Game;

/// The actions that steer the tables, and the sounds, under their names (condact_table.cpp).

bool Done(Game& game, int, int);
bool NotDone(Game& game, int, int);
bool Ok(Game& game, int, int);
bool Process(Game& game, int process, int);
bool DoAll(Game& game, int location, int);
bool NewText(Game& game, int, int);
bool Nothing(Game& game, int, int);  ///< condacts kept for old games

bool Pause(Game& game, int value, int);
bool Beep(Game& game, int duration, int pitch);
bool Sound(Game& game, int voice, int);

/// Plays tones of `game.tones` until one needs a wait, which the runner is then asked for. False when none
/// is left.
bool PlayTones(Game& game);

}  // namespace fabula::engine
