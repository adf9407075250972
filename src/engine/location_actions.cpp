#include "engine/location_actions.h"

#include <optional>

#include "engine/game.h"
#include "engine/objects.h"

namespace fabula::engine {

namespace {

constexpr int kFirstPlainVerb = 14;

/// Where an exit leads from a location for a verb.
std::optional<int> FindExit(const Game& game, int location, int verb) {
    const auto exits = game.data.ExitsOf(game.data.locations[static_cast<std::size_t>(location)]);
    for (std::size_t pair = 0; pair + 1 < exits.size(); pair += 2) {
        if (exits[pair] == verb) return exits[pair + 1];
    }
    return std::nullopt;
}

}  // namespace

bool GoTo(Game& game, int location, int) {
    game.SetFlag(flag::kLocation, location);
    return true;
}

bool Move(Game& game, int flag, int) {
    const int location = game.Flag(flag);
    const int verb = game.Flag(flag::kVerb);
    if (location < 0 || location > game.data.LastLocation() || verb == 0) return false;
    const std::optional<int> destination = FindExit(game, location, verb);
    if (!destination) return false;
    game.SetFlag(flag, *destination);
    return true;
}

bool Desc(Game& game, int, int) {
    game.SetFlag(flag::kDescribe, kSet);
    game.stopDoAll = true;
    game.done = true;
    game.runner.ClearStack("Desc");
    return true;
}

bool Reset(Game& game, int location, int) {
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (game.IsPresent(object)) PlaceObject(game, object, location);
    }
    GoTo(game, location, 0);
    Desc(game, 0, 0);
    game.runner.ClearStack("Reset");
    return true;
}

ExitSearch SearchConnections(Game& game, int location) {
    game.SetFlag(flag::kDescribe, 0);
    const int verb = game.Flag(flag::kVerb);
    if (!game.data.LocationExists(location)) FailMissing("location", location);
    if (const std::optional<int> destination = FindExit(game, location, verb)) {
        GoTo(game, *destination, 0);
        Desc(game, 0, 0);
        return ExitSearch::Moved;
    }
    return verb < kFirstPlainVerb ? ExitSearch::NoExit : ExitSearch::NoDirection;
}

}  // namespace fabula::engine
