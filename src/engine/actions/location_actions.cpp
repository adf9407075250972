#include "engine/actions/location_actions.h"

#include <optional>

#include "engine/actions/objects.h"
#include "engine/game.h"

namespace fabula::engine {

namespace {

/// Where an exit leads from a location for a verb.
std::optional<PlaceNumber> FindExit(const Game& game, PlaceNumber location, WordNumber verb) {
    const auto exits = game.data.ExitsOf(location);
    for (std::size_t pair = 0; pair + 1 < exits.size(); pair += 2) {
        if (exits[pair] == verb.value) return PlaceNumber(exits[pair + 1]);
    }
    return std::nullopt;
}

}  // namespace

bool GoTo(Game& game, PlaceNumber location) {
    game.SetFlag(flag::kLocation, location.value);
    return true;
}

bool Move(Game& game, FlagNumber flag) {
    const PlaceNumber location(game.Flag(flag));
    const WordNumber verb = game.Word(flag::kVerb);
    if (location.value < 0 || location > game.data.LastLocation() || verb.value == 0) return false;
    const std::optional<PlaceNumber> destination = FindExit(game, location, verb);
    if (!destination) return false;
    game.SetFlag(flag, destination->value);
    return true;
}

bool Desc(Game& game) {
    game.SetFlag(flag::kDescribe, kSet);
    game.stopDoAll = true;
    game.done = true;
    game.runner.ClearStack("Desc");
    return true;
}

bool Reset(Game& game, PlaceNumber location) {
    for (const ObjectNumber object : game.state.Objects()) {
        if (game.IsPresent(object)) PlaceObject(game, object, location);
    }
    GoTo(game, location);
    Desc(game);
    game.runner.ClearStack("Reset");
    return true;
}

ExitSearch SearchConnections(Game& game, PlaceNumber location) {
    game.SetFlag(flag::kDescribe, 0);
    const WordNumber verb = game.Word(flag::kVerb);
    if (!game.data.LocationExists(location)) FailMissing("location", location.value);
    if (const std::optional<PlaceNumber> destination = FindExit(game, location, verb)) {
        GoTo(game, *destination);
        Desc(game);
        return ExitSearch::Moved;
    }
    return verb < condacts::kFirstPlainVerb ? ExitSearch::NoExit : ExitSearch::NoDirection;
}

}  // namespace fabula::engine
