#include "engine/output/messages.h"

#include <algorithm>

#include "engine/game.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::engine {

namespace {

constexpr std::size_t kLongestText = 1024 * 1024;

void Print(Game& game, std::string_view text, TextRecord record) {
    game.printer.PrintText(text, false, true, TextRole::Game, record);
}

/// What a refusal does behind its message.
bool GiveUp(Game& game) {
    game.ClearCommand();
    game.done = true;
    return true;
}

/// Prints a text with the description of the object of flag 51 in place of each "_".
void Say(Game& game, std::string_view text, TextRecord record) {
    const auto marks = static_cast<std::size_t>(std::count(text.begin(), text.end(), '_'));
    const ObjectNumber object(game.Flag(flag::kObject));
    if (marks == 0 || !game.state.HasObject(object)) return Print(game, text, record);
    const std::string description = text::CollapseBlanks(game.texts.Object(object));
    if (marks * description.size() + text.size() > kLongestText) {
        throw RunFailure("a message with the description of object " + std::to_string(object.value) +
                         " in it is too long");
    }
    Print(game, text::ReplaceAll(text, "_", description), record);
}

}  // namespace

void PrintSystemMessage(Game& game, SystemMessageNumber message) {
    Print(game, game.texts.SystemMessage(message), TextRecord::Of(message));
}

void SayMessage(Game& game, MessageNumber message) {
    Say(game, game.texts.Message(message), TextRecord::Of(message));
}

void SaySystemMessage(Game& game, SystemMessageNumber message) {
    Say(game, game.texts.SystemMessage(message), TextRecord::Of(message));
}

void PrintObject(Game& game, ObjectNumber object) {
    Print(game, game.texts.Object(object), TextRecord::Of(object));
}

bool Refuse(Game& game, SystemMessageNumber message) {
    SaySystemMessage(game, message);
    return GiveUp(game);
}

void SayWithObject(Game& game, SystemMessageNumber message, ObjectNumber object) {
    SaySystemMessage(game, message);
    PrintObject(game, object);
    SaySystemMessage(game, message::kStop);
}

bool RefuseWithObject(Game& game, SystemMessageNumber message, ObjectNumber object) {
    SayWithObject(game, message, object);
    return GiveUp(game);
}

std::string LastCharacter(Game& game, std::string_view text) {
    return std::string(text::Right(game.printer.WithoutMarkup(text), 1));
}

std::string FirstCharacter(Game& game, SystemMessageNumber message) {
    const std::string shown = game.printer.WithoutMarkup(game.texts.SystemMessage(message));
    return text::UpperCase(text::Left(shown, 1));
}

}  // namespace fabula::engine
