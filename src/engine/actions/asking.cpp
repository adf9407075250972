#include "engine/actions/asking.h"

#include "engine/game.h"
#include "engine/output/messages.h"
#include "text/encoding/utf8.h"

namespace fabula::engine {

namespace {

bool IsFirstVisit(const Game& game) {
    return game.Flag(flag::kAsking) == 0;
}

void BeginAsking(Game& game) {
    game.SetFlag(flag::kAsking, kSet);
    game.answer.clear();
}

/// Whether the answer begins as system message `message` does; an empty one is the default answer.
bool AnswerIs(Game& game, SystemMessageNumber message) {
    const std::string& given = game.answer.empty() ? game.defaultAnswer : game.answer;
    const std::string first = text::UpperCase(text::Left(given, 1));
    return !first.empty() && first == FirstCharacter(game, message);
}

}  // namespace

bool YesNo(Game& game, MessageNumber message) {
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SayMessage(game, message);
        BeginAsking(game);
        game.defaultAnswer = LastCharacter(game, game.texts.Message(message));
        game.SetFlag(flag::kYesNo, 0);
        return true;
    }
    game.SetFlag(flag::kAsking, 0);
    game.startY = -1;
    game.runner.ResetStartCell();
    const bool yes = AnswerIs(game, message::kYes);
    game.SetFlag(flag::kYesNo, yes ? 2 : 1);
    game.SetFlag(flag::kVerb, yes ? 2 : 1);
    return yes;
}

bool Quit(Game& game) {
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SaySystemMessage(game, message::kReallyQuit);
        BeginAsking(game);
        game.defaultAnswer = LastCharacter(game, game.texts.SystemMessage(message::kReallyQuit));
        return true;
    }
    game.SetFlag(flag::kAsking, 0);
    if (AnswerIs(game, message::kYes)) return true;
    game.ClearCommand();
    game.done = true;
    return false;
}

bool AnyKey(Game& game) {
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SaySystemMessage(game, message::kPressKey);
        BeginAsking(game);
        game.SetFlag(flag::kAnyKey, kSet);
        return true;
    }
    game.SetFlag(flag::kAsking, 0);
    game.SetFlag(flag::kAnyKey, 0);
    game.startX = -1;
    game.startY = -1;
    game.runner.ResetStartCell();
    return true;
}

bool End(Game& game) {
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SaySystemMessage(game, message::kPlayAgain);
        BeginAsking(game);
        game.defaultAnswer.clear();
        return true;
    }
    game.SetFlag(flag::kAsking, 0);
    game.startX = -1;
    game.startY = -1;
    game.stopDoAll = true;
    game.SetFlag(flag::kEnded, kSet);
    game.restart = !AnswerIs(game, message::kNo);
    game.runner.ClearStack("End");
    return true;
}

}  // namespace fabula::engine
