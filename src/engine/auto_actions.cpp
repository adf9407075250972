#include <algorithm>

#include "engine/game.h"
#include "engine/messages.h"
#include "engine/object_actions.h"
#include "engine/objects.h"

namespace fabula::engine {

namespace {

constexpr SearchOrder kFromHere = {place::kHere, place::kCarried, place::kWorn, kInside};
constexpr SearchOrder kFromCarried = {place::kCarried, place::kWorn, place::kHere, kInside};
constexpr SearchOrder kFromWorn = {place::kWorn, place::kCarried, place::kHere, kInside};
constexpr SearchOrder kInHandOrHere = {place::kCarried, place::kWorn, place::kHere, kNowhere};
constexpr SearchOrder kFromInside = {kInside, place::kCarried, place::kWorn, place::kHere};

/// The sentence has a noun, and no object of the whole game bears it with the sentence's adjective.
bool NamesNoObject(Game& game) {
    const int noun = game.Flag(flag::kNoun);
    const int adjective = game.Flag(flag::kAdjective);
    if (!game.texts.IsNoun(noun)) return false;
    return std::none_of(game.data.objects.begin(), game.data.objects.end(), [&](const ObjectData& object) {
        return object.noun == noun && object.adjective == adjective;
    });
}

/// `refusal` is said when the object exists somewhere, or the word is no noun.
bool RefuseUnfound(Game& game, int refusal) {
    return Refuse(game, NamesNoObject(game) ? 8 : refusal);
}

}  // namespace

bool AutoG(Game& game, int, int) {
    int object = 0;
    return FindObject(game, object, kFromHere) ? Get(game, object, 0) : RefuseUnfound(game, 26);
}

bool AutoD(Game& game, int, int) {
    int object = 0;
    return FindObject(game, object, kFromCarried) ? Drop(game, object, 0) : RefuseUnfound(game, 28);
}

bool AutoW(Game& game, int, int) {
    int object = 0;
    return FindObject(game, object, kFromCarried) ? Wear(game, object, 0) : RefuseUnfound(game, 28);
}

bool AutoR(Game& game, int, int) {
    int object = 0;
    return FindObject(game, object, kFromWorn) ? Remove(game, object, 0) : RefuseUnfound(game, 23);
}

bool AutoP(Game& game, int container, int) {
    int object = container;
    return FindObject(game, object, kInHandOrHere) ? PutIn(game, object, container)
                                                   : RefuseUnfound(game, 28);
}

bool AutoT(Game& game, int container, int) {
    int object = container;
    if (FindObject(game, object, kFromInside)) return TakeOut(game, object, container);
    if (NamesNoObject(game)) return Refuse(game, 8);
    return RefuseWithObject(game, 52, container);
}

bool WhatO(Game& game, int, int) {
    int object = 0;
    FindObject(game, object, kFromCarried);
    SetObjFlags(game, object);
    return true;
}

}  // namespace fabula::engine
