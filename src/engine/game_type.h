#pragma once

namespace fabula::engine {

/// The three types of an adventure, by `adventype`. Any other word counts as Fabula.
enum class GameType { Fabula, Vel, Marlo };

}  // namespace fabula::engine
