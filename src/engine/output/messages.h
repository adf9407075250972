#pragma once

#include <string>
#include <string_view>

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// Prints a system message as it stands: prompts, and what the turn cycle says.
void PrintSystemMessage(Game& game, SystemMessageNumber message);

/// Prints a message or system message for a condition or action: each "_" in it becomes the description of
/// the object of flag 51. When that flag names no object it stays.
void SayMessage(Game& game, MessageNumber message);
void SaySystemMessage(Game& game, SystemMessageNumber message);

/// Prints an object's description.
void PrintObject(Game& game, ObjectNumber object);

/// The ending of an action that can't be done: says the system message, throws the rest of the line away
/// and leaves the table. Returns true, as every action that does not itself end its entry.
bool Refuse(Game& game, SystemMessageNumber message);

/// A system message, the description of a container and system message 51 (the full stop).
void SayWithObject(Game& game, SystemMessageNumber message, ObjectNumber object);
/// The same, as a refusal.
bool RefuseWithObject(Game& game, SystemMessageNumber message, ObjectNumber object);

/// The last character of a text without its markup, "" when there is none.
std::string LastCharacter(Game& game, std::string_view text);

/// The first character of a system message without its markup, in upper case.
std::string FirstCharacter(Game& game, SystemMessageNumber message);

}  // namespace fabula::engine
