#include "engine/actions/object_actions.h"

#include "engine/actions/objects.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

namespace {

/// At the player's place, neither worn nor carried.
bool LiesHere(const Game& game, ObjectNumber object) {
    return game.IsHere(object) && !game.IsWorn(object) && !game.IsCarried(object);
}

bool IsTooHeavy(Game& game) {
    WeighCarried(game, flag::kWeightScratch);
    return game.Flag(flag::kObjectWeight) + game.Flag(flag::kWeightScratch) > game.Flag(flag::kMaxWeight);
}

bool RefuseForFullHands(Game& game) {
    game.stopDoAll = true;
    return Refuse(game, message::kHandsFull);
}

bool IsOutWearable(const Game& game) {
    return game.IsMarlo() || game.Flag(flag::kIsWearable) == 128;
}

}  // namespace

bool Get(Game& game, ObjectNumber object) {
    SetObjFlags(game, object);
    if (game.IsCarried(object) || game.IsWorn(object)) return Refuse(game, message::kAlreadyCarried);
    if (!game.IsPresent(object)) return Refuse(game, message::kNotHere);
    const bool tooHeavy = IsTooHeavy(game);
    if (!game.IsMarlo() && tooHeavy) return Refuse(game, message::kTooHeavy);
    if (game.Flag(flag::kCarriedCount) + 1 > game.Flag(flag::kMaxObjects)) return RefuseForFullHands(game);
    SetObjFlags(game, object);
    PlaceObject(game, object, place::kCarried);
    if (!game.IsMarlo()) SaySystemMessage(game, message::kTaken);
    return true;
}

bool Drop(Game& game, ObjectNumber object) {
    SetObjFlags(game, object);
    // In "marlo" a worn object is taken off and dropped at once, unless the hands are full.
    const bool wornRefused =
        !game.IsMarlo() || game.Flag(flag::kCarriedCount) == game.Flag(flag::kMaxObjects);
    if (game.IsWorn(object) && wornRefused) return Refuse(game, message::kStillWorn);
    if (LiesHere(game, object))
        return Refuse(game, game.IsMarlo() ? message::kDoNotHave : message::kNotCarried);
    if (!game.IsPresent(object)) return Refuse(game, message::kDoNotHave);
    SetObjFlags(game, object);
    PlaceObject(game, object, place::kHere);
    if (!game.IsMarlo()) SaySystemMessage(game, message::kDropped);
    return true;
}

bool Wear(Game& game, ObjectNumber object) {
    SetObjFlags(game, object);
    if (!game.IsMarlo() && LiesHere(game, object)) return Refuse(game, message::kNotCarried);
    if (game.IsWorn(object)) return Refuse(game, message::kAlreadyWorn);
    if (!game.IsCarried(object)) return Refuse(game, message::kDoNotHave);
    if (!IsOutWearable(game)) return Refuse(game, message::kCannotWear);
    PlaceObject(game, object, place::kWorn);
    if (!game.IsMarlo()) SaySystemMessage(game, message::kPutOn);
    return true;
}

bool Remove(Game& game, ObjectNumber object) {
    SetObjFlags(game, object);
    const bool notWorn = (game.IsHere(object) && !game.IsWorn(object)) || game.IsCarried(object);
    if (!game.IsMarlo() && notWorn) return Refuse(game, message::kNotWorn);
    if (!game.IsPresent(object)) return Refuse(game, message::kNotWearingAny);
    if (!IsOutWearable(game)) return Refuse(game, message::kCannotTakeOff);
    if (!game.IsMarlo() && game.Flag(flag::kCarriedCount) >= game.Flag(flag::kMaxObjects)) {
        return Refuse(game, message::kNoHandToTakeOff);
    }
    PlaceObject(game, object, place::kCarried);
    if (!game.IsMarlo()) SaySystemMessage(game, message::kTakenOff);
    return true;
}

bool Create(Game& game, ObjectNumber object) {
    PlaceObject(game, object, place::kHere);
    return true;
}

bool Destroy(Game& game, ObjectNumber object) {
    PlaceObject(game, object, place::kNotCreated);
    return true;
}

/// The count of carried objects is left alone.
bool Swap(Game& game, ObjectNumber object1, ObjectNumber object2) {
    const PlaceNumber place1 = game.state.ObjectPlace(object1);
    game.state.SetObjectPlace(object1, game.state.ObjectPlace(object2));
    game.state.SetObjectPlace(object2, place1);
    SetObjFlags(game, object2);
    return true;
}

bool Place(Game& game, ObjectNumber object, PlaceNumber location) {
    PlaceObject(game, object, location);
    return true;
}

bool PutO(Game& game, PlaceNumber location) {
    PlaceObject(game, ObjectNumber(game.Flag(flag::kObject)), location);
    return true;
}

bool DropAll(Game& game) {
    for (const ObjectNumber object : game.state.Objects()) {
        if (game.IsCarried(object) || game.IsWorn(object)) PlaceObject(game, object, place::kHere);
    }
    return true;
}

bool PutIn(Game& game, ObjectNumber object, ObjectNumber container) {
    SetObjFlags(game, object);
    if (game.IsWorn(object)) return Refuse(game, message::kStillWorn);
    if (LiesHere(game, object)) return Refuse(game, message::kNotCarried);
    if (!game.IsPresent(object)) return Refuse(game, message::kDoNotHave);
    PlaceObject(game, object, Inside(container));
    SayWithObject(game, message::kPutInto, container);
    return true;
}

bool TakeOut(Game& game, ObjectNumber object, ObjectNumber container) {
    SetObjFlags(game, object);
    if (game.IsWorn(object) || game.IsCarried(object)) return Refuse(game, message::kAlreadyCarried);
    if (game.IsHere(object)) return RefuseWithObject(game, message::kNotInside, container);
    if (game.state.ObjectPlace(object) != Inside(container))
        return RefuseWithObject(game, message::kNoneInside, container);
    const bool containerInHand = game.IsCarried(container) || game.IsWorn(container);
    const bool tooHeavy = IsTooHeavy(game);
    if (tooHeavy && !containerInHand) return Refuse(game, message::kTooHeavy);
    if (game.Flag(flag::kCarriedCount) >= game.Flag(flag::kMaxObjects)) return RefuseForFullHands(game);
    PlaceObject(game, object, place::kCarried);
    SaySystemMessage(game, message::kTaken);
    return true;
}

bool CopyOO(Game& game, ObjectNumber object1, ObjectNumber object2) {
    PlaceObject(game, object2, game.state.ObjectPlace(object1));
    SetObjFlags(game, object2);
    return true;
}

bool CopyOF(Game& game, ObjectNumber object, FlagNumber flag) {
    game.SetFlag(flag, game.state.ObjectPlace(object).value);
    return true;
}

/// The count of carried objects is left alone, unlike with PLACE.
bool CopyFO(Game& game, FlagNumber flag, ObjectNumber object) {
    game.state.SetObjectPlace(object, PlaceNumber(game.Flag(flag)));
    return true;
}

bool Weigh(Game& game, ObjectNumber object, FlagNumber flag) {
    game.SetFlag(flag, WeighObject(game, object));
    return true;
}

bool Weight(Game& game, FlagNumber flag) {
    WeighCarried(game, flag);
    return true;
}

}  // namespace fabula::engine
