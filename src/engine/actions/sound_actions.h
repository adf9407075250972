#pragma once

namespace fabula::engine {

class Game;

/// Waits and sounds, under their names (condact_table.cpp).

bool Pause(Game& game, int value);
bool Beep(Game& game, int duration, int pitch);
bool Sound(Game& game, int voice);

/// Plays tones of `game.tones` until one needs a wait, which the runner is then asked for. False when none
/// is left.
bool PlayTones(Game& game);

}  // namespace fabula::engine
