#pragma once

namespace fabula::engine {

class Game;

/// `ProvidePrompt`: asks for a sentence. The system message of flag 42, or one of 2 to 5 by chance, then
/// message 33 in front of the input (not in "marlo").
void ProvidePrompt(Game& game);

/// `AskForInput`: an action waits for an answer or a key.
void AskForInput(Game& game);

/// Shows the line being typed, with the cursor behind it.
void ShowTyped(Game& game);

/// True when flags 48 and 49 arm the time-out.
bool TimeOutIsArmed(const Game& game);
void StartTimeOut(Game& game);

/// The player has entered something: the time-out stops, and its mark goes.
void StopTimeOut(Game& game);

/// Takes bit 7 off flag 49, the mark that the time-out fired.
void ClearTimeOutMark(Game& game);

}  // namespace fabula::engine
