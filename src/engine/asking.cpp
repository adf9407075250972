#include "engine/asking.h"

#include "engine/game.h"
#include "engine/messages.h"
#include "text/utf8.h"

namespace fabula::engine {

namespace {

constexpr int kYesMessage = 30;
constexpr int kNoMessage = 31;

bool IsFirstVisit(const Game& game) {
    return game.Flag(flag::kAsking) == 0;
}

void BeginAsking(Game& game) {
    game.SetFlag(flag::kAsking, kSet);
    game.answer.clear();
}

/// Whether the answer begins as system message `message` does; an empty one is the default answer.
bool AnswerIs(Game& game, int message) {
    const std::string& given = game.answer.empty() ? game.defaultAnswer : game.answer;
    const std::string first = text::UpperCase(text::Left(given, 1));
    return !first.empty() && first == FirstCharacter(game, message);
}

}  // namespace

bool YesNo(Game& game, int message, int) {
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
    const bool yes = AnswerIs(game, kYesMessage);
    game.SetFlag(flag::kYesNo, yes ? 2 : 1);
    game.SetFlag(flag::kVerb, yes ? 2 : 1);
    return yes;
}

bool Quit(Game& game, int, int) {
    constexpr int kReallyQuit = 12;
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SaySystemMessage(game, kReallyQuit);
        BeginAsking(game);
        game.defaultAnswer = LastCharacter(game, game.texts.SystemMessage(kReallyQuit));
        return true;
    }
    game.SetFlag(flag::kAsking, 0);
    if (AnswerIs(game, kYesMessage)) return true;
    game.ClearCommand();
    game.done = true;
    return false;
}

bool AnyKey(Game& game, int, int) {
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SaySystemMessage(game, 16);
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

bool End(Game& game, int, int) {
    if (IsFirstVisit(game)) {
        game.printer.NewLine();
        SaySystemMessage(game, 13);
        BeginAsking(game);
        game.defaultAnswer.clear();
        return true;
    }
    game.SetFlag(flag::kAsking, 0);
    game.startX = -1;
    game.startY = -1;
    game.stopDoAll = true;
    game.SetFlag(flag::kEnded, kSet);
    game.restart = !AnswerIs(game, kNoMessage);
    game.runner.ClearStack("End");
    return true;
}

}  // namespace fabula::engine
