#include "engine/actions/flow_actions.h"

#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

bool Done(Game& game) {
    game.done = true;
    return true;
}

/// Process 0 then counts as not having acted, so that the exits are searched.
bool NotDone(Game& game) {
    game.done = true;
    game.SetFlag(flag::kActed, 0);
    return true;
}

bool Ok(Game& game) {
    SaySystemMessage(game, message::kOk);
    game.done = true;
    game.runner.ClearStack("OK");
    return true;
}

bool Process(Game& game, ProcessNumber process) {
    game.runner.CallProcess(process);
    return true;
}

bool DoAll(Game& game, PlaceNumber location) {
    game.stopDoAll = false;
    game.SetFlag(flag::kDoAllPlace, location.value);
    game.runner.BeginDoAll();
    return true;
}

bool NewText(Game& game) {
    game.ClearCommand();
    return true;
}

bool Nothing(Game&) {
    return true;
}

}  // namespace fabula::engine
