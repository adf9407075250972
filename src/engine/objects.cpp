#include "engine/objects.h"

#include <algorithm>
#include <optional>

#include "condacts/limits.h"
#include "condacts/object_attributes.h"
#include "engine/game.h"

namespace fabula::engine {

namespace {

constexpr WordNumber kFirstMarloWearable{200};

const ObjectData& DataOf(const Game& game, ObjectNumber object) {
    if (!game.state.HasObject(object)) FailMissing("object", object.value);
    return game.data.Object(object);
}

bool IsWearable(const Game& game, const ObjectData& object) {
    if (game.IsMarlo()) return object.noun >= kFirstMarloWearable;
    return (object.attributes & condacts::attribute::kWearable) != 0;
}

bool IsNamed(const Game& game, const ObjectData& object) {
    if (object.noun != game.Word(flag::kNoun)) return false;
    if (game.IsMarlo()) return true;
    constexpr WordNumber kNone{kNoWord};
    const WordNumber adjective = game.Word(flag::kAdjective);
    return object.adjective == adjective || object.adjective == kNone || adjective == kNone;
}

/// The first object at a place that the words name.
std::optional<ObjectNumber> FindNamed(const Game& game, PlaceNumber where) {
    for (const ObjectNumber object : game.state.Objects()) {
        if (game.state.ObjectPlace(object) == where && IsNamed(game, DataOf(game, object))) return object;
    }
    return std::nullopt;
}

bool IsContainer(const Game& game, ObjectNumber object) {
    return object.value < game.state.ObjectCount() &&
           (DataOf(game, object).attributes & condacts::attribute::kContainer) != 0;
}

/// `left` counts down with each object: when more are weighed than there are, one lies inside itself.
int Weigh(const Game& game, ObjectNumber object, int& left) {
    if (--left < 0) throw RunFailure("object " + std::to_string(object.value) + " lies inside itself");
    const ObjectData& data = DataOf(game, object);
    const bool container = (data.attributes & condacts::attribute::kContainer) != 0;
    if (container && data.weight == 0) return 0;
    int weight = data.weight;
    if (!container) return weight;
    for (const ObjectNumber inside : game.state.Objects()) {
        if (game.state.ObjectPlace(inside) == Inside(object)) weight += Weigh(game, inside, left);
    }
    return weight;
}

}  // namespace

void SetObjFlags(Game& game, ObjectNumber object) {
    game.SetFlag(flag::kObject, object.value);
    game.SetFlag(flag::kIsContainer, 0);
    game.SetFlag(flag::kIsWearable, 0);
    if (object >= kNotFound) {
        game.SetFlag(flag::kObjectPlace, 0);
        game.SetFlag(flag::kObjectWeight, 0);
        return;
    }
    const ObjectData& data = DataOf(game, object);
    game.SetFlag(flag::kObjectPlace, game.state.ObjectPlace(object).value);
    game.SetFlag(flag::kObjectWeight, data.weight);
    if ((data.attributes & condacts::attribute::kContainer) != 0) game.SetFlag(flag::kIsContainer, 128);
    if (IsWearable(game, data)) game.SetFlag(flag::kIsWearable, 128);
}

void PlaceObject(Game& game, ObjectNumber object, PlaceNumber where) {
    if (game.IsCarried(object)) {
        game.state.Minus(flag::kCarriedCount, 1);
        if (game.trace.On()) {
            game.trace.Tell(CarriedChanged{object, false, game.Flag(flag::kCarriedCount)});
        }
    }
    game.state.SetObjectPlace(object, where == place::kHere ? game.Location() : where);
    if (game.IsCarried(object)) {
        game.state.Plus(flag::kCarriedCount, 1);
        if (game.trace.On()) {
            game.trace.Tell(CarriedChanged{object, true, game.Flag(flag::kCarriedCount)});
        }
    }
}

bool FindObject(Game& game, ObjectNumber& object, const SearchOrder& order) {
    const ObjectNumber container = object;
    for (const PlaceNumber where : {order.first, order.second, order.third, order.fourth}) {
        if (where == kNowhere || (where == kInside && !IsContainer(game, container))) continue;
        const std::optional<ObjectNumber> found =
            FindNamed(game, where == kInside ? Inside(container) : game.PlaceOf(where));
        if (!found) continue;
        object = *found;
        return true;
    }
    object = kNotFound;
    return false;
}

int WeighObject(Game& game, ObjectNumber object) {
    if (game.IsMarlo()) {
        DataOf(game, object);  // an object that does not exist is a fault there too
        return 0;
    }
    int left = game.state.ObjectCount();
    return Weigh(game, object, left);
}

void WeighCarried(Game& game, FlagNumber flag) {
    int total = 0;
    for (const ObjectNumber object : game.state.Objects()) {
        if (!game.IsCarried(object) && (game.IsMarlo() || !game.IsWorn(object))) continue;
        game.SetFlag(flag::kWeightScratch, WeighObject(game, object));
        total += game.Flag(flag::kWeightScratch);
    }
    game.SetFlag(flag, std::min(total, condacts::limit::kHeaviestLoad));
}

}  // namespace fabula::engine
