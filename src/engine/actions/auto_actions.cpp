#include <algorithm>

#include "engine/actions/object_actions.h"
#include "engine/actions/objects.h"
#include "engine/game.h"
#include "engine/output/messages.h"

namespace fabula::engine {

namespace {

constexpr SearchOrder kFromHere = {place::kHere, place::kCarried, place::kWorn, kInside};
constexpr SearchOrder kFromCarried = {place::kCarried, place::kWorn, place::kHere, kInside};
constexpr SearchOrder kFromWorn = {place::kWorn, place::kCarried, place::kHere, kInside};
constexpr SearchOrder kInHandOrHere = {place::kCarried, place::kWorn, place::kHere, kNowhere};
constexpr SearchOrder kFromInside = {kInside, place::kCarried, place::kWorn, place::kHere};

/// The sentence has a noun, and no object of the whole game bears it with the sentence's adjective.
bool NamesNoObject(Game& game) {
    const WordNumber noun = game.Word(flag::kNoun);
    const WordNumber adjective = game.Word(flag::kAdjective);
    if (!game.texts.IsNoun(noun)) return false;
    return std::none_of(game.data.objects.begin(), game.data.objects.end(), [&](const ObjectData& object) {
        return object.noun == noun && object.adjective == adjective;
    });
}

/// `refusal` is said when the object exists somewhere, or the word is no noun.
bool RefuseUnfound(Game& game, SystemMessageNumber refusal) {
    return Refuse(game, NamesNoObject(game) ? message::kNoSuchThing : refusal);
}

}  // namespace

bool AutoG(Game& game) {
    ObjectNumber object;
    return FindObject(game, object, kFromHere) ? Get(game, object) : RefuseUnfound(game, message::kNotHere);
}

bool AutoD(Game& game) {
    ObjectNumber object;
    return FindObject(game, object, kFromCarried) ? Drop(game, object)
                                                  : RefuseUnfound(game, message::kDoNotHave);
}

bool AutoW(Game& game) {
    ObjectNumber object;
    return FindObject(game, object, kFromCarried) ? Wear(game, object)
                                                  : RefuseUnfound(game, message::kDoNotHave);
}

bool AutoR(Game& game) {
    ObjectNumber object;
    return FindObject(game, object, kFromWorn) ? Remove(game, object)
                                               : RefuseUnfound(game, message::kNotWearingAny);
}

bool AutoP(Game& game, ObjectNumber container) {
    ObjectNumber object = container;
    return FindObject(game, object, kInHandOrHere) ? PutIn(game, object, container)
                                                   : RefuseUnfound(game, message::kDoNotHave);
}

bool AutoT(Game& game, ObjectNumber container) {
    ObjectNumber object = container;
    if (FindObject(game, object, kFromInside)) return TakeOut(game, object, container);
    if (NamesNoObject(game)) return Refuse(game, message::kNoSuchThing);
    return RefuseWithObject(game, message::kNoneInside, container);
}

bool WhatO(Game& game) {
    ObjectNumber object;
    FindObject(game, object, kFromCarried);
    SetObjFlags(game, object);
    return true;
}

}  // namespace fabula::engine
