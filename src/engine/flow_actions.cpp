#include "engine/flow_actions.h"

#include "engine/game.h"
#include "engine/messages.h"

namespace fabula::engine {

bool Done(Game& game, int, int) {
    game.done = true;
    return true;
}

/// Process 0 then counts as not having acted, so that the exits are searched.
bool NotDone(Game& game, int, int) {
    game.done = true;
    game.SetFlag(flag::kActed, 0);
    return true;
}

bool Ok(Game& game, int, int) {
    SaySystemMessage(game, 15);
    game.done = true;
    game.runner.ClearStack("OK");
    return true;
}

bool Process(Game& game, int process, int) {
    game.runner.CallProcess(process);
    return true;
}

bool DoAll(Game& game, int location, int) {
    game.stopDoAll = false;
    game.SetFlag(flag::kDoAllPlace, location);
    game.runner.BeginDoAll();
    return true;
}

bool NewText(Game& game, int, int) {
    game.ClearCommand();
    return true;
}

bool Nothing(Game&, int, int) {
    return true;
}

}  // namespace fabula::engine
