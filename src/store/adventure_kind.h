#pragma once

#include <optional>
#include <string_view>

namespace fabula::store {

/// The three types of an adventure: all constructs of this system, or those of one of the two older
/// engines.
enum class AdventureKind { Fabula, Vel, Marlo };

/// The kind's word in `adventype`: "Fabula", "VEL", "Marlo".
std::string_view NameOf(AdventureKind kind);
/// The kind that a word names, case ignored; nullopt for any other, "Unknwn" included.
std::optional<AdventureKind> AdventureKindFrom(std::string_view name);
/// The same, for whatever stands in `adventype`: a word that names no kind counts as Fabula.
AdventureKind AdventureKindOf(std::string_view adventureType);

}  // namespace fabula::store
