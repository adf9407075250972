#include "engine/actions/flag_actions.h"

#include "condacts/limits.h"
#include "engine/actions/auto_flags.h"
#include "engine/game.h"

namespace fabula::engine {

bool Set(Game& game, FlagNumber flag) {
    game.SetFlag(flag, kSet);
    return true;
}

bool Clear(Game& game, FlagNumber flag) {
    game.SetFlag(flag, 0);
    return true;
}

bool Plus(Game& game, FlagNumber flag, int value) {
    game.state.Plus(flag, value);
    return true;
}

bool Minus(Game& game, FlagNumber flag, int value) {
    game.state.Minus(flag, value);
    return true;
}

bool Let(Game& game, FlagNumber flag, int value) {
    game.SetFlag(flag, value);
    return true;
}

bool Add(Game& game, FlagNumber from, FlagNumber to) {
    return Plus(game, to, game.Flag(from));
}

bool Sub(Game& game, FlagNumber from, FlagNumber to) {
    return Minus(game, to, game.Flag(from));
}

bool CopyFF(Game& game, FlagNumber from, FlagNumber to) {
    return Let(game, to, game.Flag(from));
}

bool Random(Game& game, FlagNumber flag) {
    return Let(game, flag, game.host.random.UpTo(100));
}

bool AutoDec(Game& game, FlagNumber flag, int kind) {
    SetAutoFlag(game, flag, -kind);
    return true;
}

bool AutoInc(Game& game, FlagNumber flag, int kind) {
    SetAutoFlag(game, flag, kind);
    return true;
}

bool Ability(Game& game, int objects, int weight) {
    game.SetFlag(flag::kMaxObjects, objects);
    game.SetFlag(flag::kMaxWeight, weight);
    return true;
}

bool Mode(Game& game, int value) {
    if (value == 1 || value == 4) game.SetFlag(flag::kClearMode, 1);
    if (value == 0 || value == 2 || value == 3) game.SetFlag(flag::kClearMode, 0);
    return true;
}

bool Graphic(Game& game, int value) {
    const FlagNumber mode = game.IsMarlo() ? flag::kMarloGraphicsMode : flag::kGraphicsMode;
    if (value >= 0 && value <= 3) game.SetFlag(mode, value * 32);
    return true;
}

bool Prompt(Game& game, SystemMessageNumber systemMessage) {
    game.SetFlag(flag::kPrompt, systemMessage.value);
    return true;
}

bool Time(Game& game, int duration, int option) {
    const auto interval = static_cast<int>((duration * condacts::limit::kTimeOutUnit).count());
    if (!condacts::FitsNumber(interval)) {
        FailRange("the time-out of " + std::to_string(duration) + " units", interval);
    }
    game.SetFlag(flag::kTimeOut, duration);
    game.timeOutInterval = interval;
    game.SetFlag(flag::kTimeOutOptions, option);
    return true;
}

}  // namespace fabula::engine
