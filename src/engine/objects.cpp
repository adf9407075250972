#include "engine/objects.h"

#include <algorithm>
#include <optional>

#include "engine/game.h"

namespace fabula::engine {

namespace {

constexpr int kContainerBit = 1;
constexpr int kWearableBit = 2;
constexpr int kFirstMarloWearable = 200;
constexpr int kHeaviest = 255;

const ObjectData& DataOf(const Game& game, int object) {
    if (object < 0 || object >= game.state.ObjectCount()) FailMissing("object", object);
    return game.data.objects[static_cast<std::size_t>(object)];
}

bool IsWearable(const Game& game, const ObjectData& object) {
    if (game.IsMarlo()) return object.noun >= kFirstMarloWearable;
    return (object.attributes & kWearableBit) != 0;
}

bool IsNamed(const Game& game, const ObjectData& object) {
    if (object.noun != game.Flag(flag::kNoun)) return false;
    if (game.IsMarlo()) return true;
    const int adjective = game.Flag(flag::kAdjective);
    return object.adjective == adjective || object.adjective == kNoWord || adjective == kNoWord;
}

/// The first object at a place that the words name.
std::optional<int> FindNamed(const Game& game, int where) {
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (game.state.ObjectPlace(object) == where && IsNamed(game, DataOf(game, object))) return object;
    }
    return std::nullopt;
}

bool IsContainer(const Game& game, int object) {
    return object < game.state.ObjectCount() && (DataOf(game, object).attributes & kContainerBit) != 0;
}

/// `left` counts down with each object: when more are weighed than there are, one lies inside itself.
int Weigh(const Game& game, int object, int& left) {
    if (--left < 0) throw RunFailure("object " + std::to_string(object) + " lies inside itself");
    const ObjectData& data = DataOf(game, object);
    const bool container = (data.attributes & kContainerBit) != 0;
    if (container && data.weight == 0) return 0;
    int weight = data.weight;
    if (!container) return weight;
    for (int inside = 0; inside < game.state.ObjectCount(); ++inside) {
        if (game.state.ObjectPlace(inside) == object) weight += Weigh(game, inside, left);
    }
    return weight;
}

}  // namespace

void SetObjFlags(Game& game, int object) {
    game.SetFlag(flag::kObject, object);
    game.SetFlag(flag::kIsContainer, 0);
    game.SetFlag(flag::kIsWearable, 0);
    if (object >= kNotFound) {
        game.SetFlag(flag::kObjectPlace, 0);
        game.SetFlag(flag::kObjectWeight, 0);
        return;
    }
    const ObjectData& data = DataOf(game, object);
    game.SetFlag(flag::kObjectPlace, game.state.ObjectPlace(object));
    game.SetFlag(flag::kObjectWeight, data.weight);
    if ((data.attributes & kContainerBit) != 0) game.SetFlag(flag::kIsContainer, 128);
    if (IsWearable(game, data)) game.SetFlag(flag::kIsWearable, 128);
}

void PlaceObject(Game& game, int object, int where) {
    if (game.IsCarried(object)) {
        game.state.Minus(flag::kCarriedCount, 1);
        if (game.trace.On()) {
            game.trace.Line(std::to_string(object) + " removed from carried. Value now " +
                            std::to_string(game.Flag(flag::kCarriedCount)));
        }
    }
    game.state.SetObjectPlace(object, where == place::kHere ? game.Flag(flag::kLocation) : where);
    if (game.IsCarried(object)) {
        game.state.Plus(flag::kCarriedCount, 1);
        if (game.trace.On()) {
            game.trace.Line(std::to_string(object) + " added to carried. Value now " +
                            std::to_string(game.Flag(flag::kCarriedCount)));
        }
    }
}

bool FindObject(Game& game, int& object, const SearchOrder& order) {
    const int container = object;
    for (const int where : {order.first, order.second, order.third, order.fourth}) {
        if (where == kNowhere || (where == kInside && !IsContainer(game, container))) continue;
        const std::optional<int> found =
            FindNamed(game, where == kInside ? container : game.PlaceOf(where));
        if (!found) continue;
        object = *found;
        return true;
    }
    object = kNotFound;
    return false;
}

int WeighObject(Game& game, int object) {
    int left = game.state.ObjectCount();
    const int weight = Weigh(game, object, left);
    return game.IsMarlo() ? 0 : weight;
}

void WeighCarried(Game& game, int flag) {
    int total = 0;
    for (int object = 0; object < game.state.ObjectCount(); ++object) {
        if (!game.IsCarried(object) && (game.IsMarlo() || !game.IsWorn(object))) continue;
        game.SetFlag(flag::kWeightScratch, WeighObject(game, object));
        total += game.Flag(flag::kWeightScratch);
    }
    game.SetFlag(flag, std::min(total, kHeaviest));
}

}  // namespace fabula::engine
