#include "engine/cycle/prompt.h"

#include "condacts/limits.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

namespace {

constexpr int kArmedBit = 2;
constexpr int kFiredBit = 7;
constexpr int kFired = 128;

/// One of system messages 2 to 5.
SystemMessageNumber RandomPrompt(Game& game) {
    const int chance = game.host.random.UpTo(100);
    if (chance >= 91) return message::kLastPrompt;
    if (chance >= 61) return message::kThirdPrompt;
    return chance >= 31 ? message::kSecondPrompt : message::kFirstPrompt;
}

void OpenInput(Game& game) {
    game.printer.PrintText(game.prompt, false, true, TextRole::Prompt,
                           TextRecord::Of(message::kInputPrompt));
    if (TimeOutIsArmed(game)) StartTimeOut(game);
    game.inputReady = true;
    ShowTyped(game);
}

}  // namespace

void ProvidePrompt(Game& game) {
    const SystemMessageNumber chosen(game.Flag(flag::kPrompt));
    PrintSystemMessage(game, chosen.value != 0 ? chosen : RandomPrompt(game));
    game.printer.NewLine();
    game.command.clear();
    OpenInput(game);
}

void AskForInput(Game& game) {
    game.sitting.script.WriteAnswerMark();
    game.answer.clear();
    OpenInput(game);
}

void ShowTyped(Game& game) {
    const bool asking = game.Flag(flag::kAsking) != 0;
    const std::string& typed = asking ? game.answer : game.command;
    // The character pane shows no cursor behind the prompt of a sentence before the first key.
    const bool cursorShown = asking || !typed.empty() || !game.data.characterSets;
    game.parts.input.ShowInput(typed, cursorShown ? game.cursor : "");
}

bool TimeOutIsArmed(const Game& game) {
    return game.state.FlagBitSet(flag::kTimeOutOptions, kArmedBit) && game.Flag(flag::kTimeOut) != 0;
}

void StartTimeOut(Game& game) {
    // A game that came by its flags otherwise than by TIME, from a saved state, has no interval yet.
    const std::chrono::milliseconds interval =
        game.timeOutInterval != 0 ? std::chrono::milliseconds(game.timeOutInterval)
                                  : game.Flag(flag::kTimeOut) * condacts::limit::kTimeOutUnit;
    if (interval.count() <= 0) return;
    game.timeOutRunning = true;
    game.parts.timers.StartTimeOut(interval);
}

void StopTimeOut(Game& game) {
    if (!TimeOutIsArmed(game)) return;
    game.timeOutRunning = false;
    game.parts.timers.StopTimeOut();
    ClearTimeOutMark(game);
}

void ClearTimeOutMark(Game& game) {
    const int options = game.Flag(flag::kTimeOutOptions);
    if (BitSet(options, kFiredBit)) game.SetFlag(flag::kTimeOutOptions, options - kFired);
}

}  // namespace fabula::engine
