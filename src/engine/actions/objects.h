#pragma once

#include "condacts/limits.h"
#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// What the actions on objects are made of.

/// Flag 51 takes the object, flags 54 to 57 tell of it: place, weight, whether it is a container and
/// wearable. For "marlo" an object is wearable when its noun is 200 or more. A number of 255 and above is
/// no object: its place and weight are 0.
void SetObjFlags(Game& game, ObjectNumber object);

/// Moves an object and keeps the count of carried objects; 255 means where the player is.
void PlaceObject(Game& game, ObjectNumber object, PlaceNumber where);

/// The locations to search, in their order, and in each the objects by number.
struct SearchOrder {
    PlaceNumber first;
    PlaceNumber second;
    PlaceNumber third;
    PlaceNumber fourth;
};
inline constexpr PlaceNumber kInside{-1};   ///< in the container that `object` names on entry
inline constexpr PlaceNumber kNowhere{-2};  ///< no further place
inline constexpr ObjectNumber kNotFound = condacts::limit::kNoObject;

/// Finds the object that flags 34 and 35 name. `object` is the container to search on entry, the object
/// found on return, or kNotFound.
bool FindObject(Game& game, ObjectNumber& object, const SearchOrder& order);

/// The weight of an object with all that lies in it. A container without a weight of its own weighs
/// nothing, whatever it holds; in "marlo" nothing has weight.
int WeighObject(Game& game, ObjectNumber object);

/// The weight of what is carried and (other than in "marlo") worn, at most 255, into a flag. Leaves the
/// weight of the last such object in flag 1002.
void WeighCarried(Game& game, FlagNumber flag);

}  // namespace fabula::engine
