#include "engine/actions/objects.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "condacts/limits.h"
#include "condacts/object_attributes.h"
#include "engine/game.h"

namespace fabula::engine {

namespace {

const ObjectData& DataOf(const Game& game, ObjectNumber object) {
    if (!game.state.HasObject(object)) FailMissing("object", object.value);
    return game.data.Object(object);
}

bool IsWearable(const Game& game, const ObjectData& object) {
    if (game.IsMarlo()) return object.noun >= condacts::kFirstMarloWearable;
    return (object.attributes & condacts::attribute::kWearable) != 0;
}

bool IsNamed(const Game& game, const ObjectData& object) {
    if (object.noun != game.Word(flag::kNoun)) return false;
    if (game.IsMarlo()) return true;
    const WordNumber adjective = game.Word(flag::kAdjective);
    return object.adjective == adjective || object.adjective == kNoWordNumber || adjective == kNoWordNumber;
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

/// What lies in which object, found out in one look at all of them.
class Contents {
  public:
    static constexpr int kNothing = -1;

    explicit Contents(const RunState& state)
        : first_(static_cast<std::size_t>(state.ObjectCount()), kNothing), next_(first_) {
        for (int number = state.ObjectCount() - 1; number >= 0; --number) {
            // The place inside an object bears the object's number.
            const int container = state.ObjectPlace(ObjectNumber(number)).value;
            if (container < 0 || container >= state.ObjectCount()) continue;
            next_[static_cast<std::size_t>(number)] = First(container);
            first_[static_cast<std::size_t>(container)] = number;
        }
    }

    /// The objects in one, in the order of their numbers: the first, and the one behind each.
    int First(int container) const { return first_[static_cast<std::size_t>(container)]; }
    int Next(int object) const { return next_[static_cast<std::size_t>(object)]; }

  private:
    std::vector<int> first_;
    std::vector<int> next_;
};

/// Weighs objects while none of them moves.
class Weighing {
  public:
    explicit Weighing(Game& game) : game_(game) {}

    int WeightOf(ObjectNumber object) {
        if (game_.IsMarlo()) {
            DataOf(game_, object);  // an object that does not exist is a fault there too
            return 0;
        }
        // When more are weighed than there are, one lies inside itself.
        int left = game_.state.ObjectCount();
        int weight = 0;
        std::vector<int> around;  // the containers that hold what is weighed, the outermost first
        for (int at = object.value;;) {
            if (--left < 0) throw RunFailure("object " + std::to_string(at) + " lies inside itself");
            const int inside = Weigh(ObjectNumber(at), weight);
            if (inside != Contents::kNothing) {
                around.push_back(at);
                at = inside;
                continue;
            }
            while (!around.empty() && contents_->Next(at) == Contents::kNothing) {
                at = around.back();
                around.pop_back();
            }
            if (around.empty()) return weight;
            at = contents_->Next(at);
        }
    }

  private:
    /// Adds the object's own weight. The first of the objects in it that weigh, too.
    int Weigh(ObjectNumber object, int& weight) {
        const ObjectData& data = DataOf(game_, object);
        ++game_.objectsWeighed;
        weight += data.weight;
        const bool container = (data.attributes & condacts::attribute::kContainer) != 0;
        if (!container || data.weight == 0) return Contents::kNothing;
        if (!contents_) {
            contents_.emplace(game_.state);
            game_.objectsWeighed += game_.state.ObjectCount();
        }
        return contents_->First(object.value);
    }

    Game& game_;
    std::optional<Contents> contents_;  ///< made when the first container is met
};

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
    return Weighing(game).WeightOf(object);
}

void WeighCarried(Game& game, FlagNumber flag) {
    Weighing weighing(game);
    int total = 0;
    for (const ObjectNumber object : game.state.Objects()) {
        if (!game.IsCarried(object) && (game.IsMarlo() || !game.IsWorn(object))) continue;
        game.SetFlag(flag::kWeightScratch, weighing.WeightOf(object));
        total += game.Flag(flag::kWeightScratch);
    }
    game.objectsWeighed += game.state.ObjectCount();
    game.SetFlag(flag, std::min(total, condacts::limit::kHeaviestLoad));
}

}  // namespace fabula::engine
