#include "engine/object_actions.h"

#include "engine/game.h"
#include "engine/messages.h"
#include "engine/objects.h"

namespace fabula::engine {

namespace {

/// At the player's place, neither worn nor carried.
bool LiesHere(const Game& game, int object) {
    return game.IsHere(object) && !game.IsWorn(object) && !game.IsCarried(object);
}

bool IsTooHeavy(Game& game) {
    WeighCarried(game, flag::kWeightScratch);
    return game.Flag(flag::kObjectWeight) + game.Flag(flag::kWeightScratch) > game.Flag(flag::kMaxWeight);
}

bool RefuseForFullHands(Game& game) {
    game.stopDoAll = true;
    return Refuse(game, 27);
}

bool IsOutWearable(const Game& game) {
    return game.IsMarlo() || game.Flag(flag::kIsWearable) == 128;
}

}  // namespace

bool Get(Game& game, int object, int) {
    SetObjFlags(game, object);
    if (game.IsCarried(object) || game.IsWorn(object)) return Refuse(game, 25);
    if (!game.IsPresent(object)) return Refuse(game, 26);
    const bool tooHeavy = IsTooHeavy(game);
    if (!game.IsMarlo() && tooHeavy) return Refuse(game, 43);
    if (game.Flag(flag::kCarriedCount) + 1 > game.Flag(flag::kMaxObjects)) return RefuseForFullHands(game);
    SetObjFlags(game, object);
    PlaceObject(game, object, place::kCarried);
    if (!game.IsMarlo()) SaySystemMessage(game, 36);
    return true;
}

bool Drop(Game& game, int object, int) {
    SetObjFlags(game, object);
    // In "marlo" a worn object is taken off and dropped at once, unless the hands are full.
    const bool wornRefused =
        !game.IsMarlo() || game.Flag(flag::kCarriedCount) == game.Flag(flag::kMaxObjects);
    if (game.IsWorn(object) && wornRefused) return Refuse(game, 24);
    if (LiesHere(game, object)) return Refuse(game, game.IsMarlo() ? 28 : 49);
    if (!game.IsPresent(object)) return Refuse(game, 28);
    SetObjFlags(game, object);
    PlaceObject(game, object, place::kHere);
    if (!game.IsMarlo()) SaySystemMessage(game, 39);
    return true;
}

bool Wear(Game& game, int object, int) {
    SetObjFlags(game, object);
    if (!game.IsMarlo() && LiesHere(game, object)) return Refuse(game, 49);
    if (game.IsWorn(object)) return Refuse(game, 29);
    if (!game.IsCarried(object)) return Refuse(game, 28);
    if (!IsOutWearable(game)) return Refuse(game, 40);
    PlaceObject(game, object, place::kWorn);
    if (!game.IsMarlo()) SaySystemMessage(game, 37);
    return true;
}

bool Remove(Game& game, int object, int) {
    SetObjFlags(game, object);
    const bool notWorn = (game.IsHere(object) && !game.IsWorn(object)) || game.IsCarried(object);
    if (!game.IsMarlo() && notWorn) return Refuse(game, 50);
    if (!game.IsPresent(object)) return Refuse(game, 23);
    if (!IsOutWearable(game)) return Refuse(game, 41);
    if (!game.IsMarlo() && game.Flag(flag::kCarriedCount) >= game.Flag(flag::kMaxObjects)) {
        return Refuse(game, 42);
    }
    PlaceObject(game, object, place::kCarried);
    if (!game.IsMarlo()) SaySystemMessage(game, 38);
    return true;
}

bool Create(Game& game, int object, int) {
    PlaceObject(game, object, place::kHere);
    return true;
}

bool Destroy(Game& game, int object, int) {
    PlaceObject(game, object, place::kNotCreated);
    return true;
}

/// The count of carried objects is left alone.
bool Swap(Game& game, int object1, int object2) {
    const int place1 = game.state.ObjectPlace(object1);
    game.state.SetObjectPlace(object1, game.state.ObjectPlace(object2));
    game.state.SetObjectPlace(object2, place1);
    SetObjFlags(game, object2);
    return true;
}

bool Place(Game& game, int object, int location) {
    PlaceObject(game, object, location);
    return true;
}

bool PutO(Game& game, int location, int) {
    PlaceObject(game, game.Flag(flag::kObject), location);
    return true;
}

bool DropAll(Game& game, int, int) {
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (game.IsCarried(object) || game.IsWorn(object)) PlaceObject(game, object, place::kHere);
    }
    return true;
}

bool PutIn(Game& game, int object, int container) {
    SetObjFlags(game, object);
    if (game.IsWorn(object)) return Refuse(game, 24);
    if (LiesHere(game, object)) return Refuse(game, 49);
    if (!game.IsPresent(object)) return Refuse(game, 28);
    PlaceObject(game, object, container);
    SayWithObject(game, 44, container);
    return true;
}

bool TakeOut(Game& game, int object, int container) {
    SetObjFlags(game, object);
    if (game.IsWorn(object) || game.IsCarried(object)) return Refuse(game, 25);
    if (game.IsHere(object)) return RefuseWithObject(game, 45, container);
    if (game.state.ObjectPlace(object) != container) return RefuseWithObject(game, 52, container);
    const bool containerInHand = game.IsCarried(container) || game.IsWorn(container);
    const bool tooHeavy = IsTooHeavy(game);
    if (tooHeavy && !containerInHand) return Refuse(game, 43);
    if (game.Flag(flag::kCarriedCount) >= game.Flag(flag::kMaxObjects)) return RefuseForFullHands(game);
    PlaceObject(game, object, place::kCarried);
    SaySystemMessage(game, 36);
    return true;
}

bool CopyOO(Game& game, int object1, int object2) {
    PlaceObject(game, object2, game.state.ObjectPlace(object1));
    SetObjFlags(game, object2);
    return true;
}

bool CopyOF(Game& game, int object, int flag) {
    game.SetFlag(flag, game.state.ObjectPlace(object));
    return true;
}

/// The count of carried objects is left alone, unlike with PLACE.
bool CopyFO(Game& game, int flag, int object) {
    game.state.SetObjectPlace(object, game.Flag(flag));
    return true;
}

bool Weigh(Game& game, int object, int flag) {
    game.SetFlag(flag, WeighObject(game, object));
    return true;
}

bool Weight(Game& game, int flag, int) {
    WeighCarried(game, flag);
    return true;
}

}  // namespace fabula::engine
