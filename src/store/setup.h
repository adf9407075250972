#pragma once

#include "store/adventure_kind.h"

namespace fabula::store {

class Adventure;

/// What the type of an adventure is chosen from: three choices and the rules between them.
class AdventureSetup {
  public:
    /// For a new adventure: type Fabula, no graphics, the system's fonts.
    AdventureSetup() = default;
    /// For an existing one: what its settings say. A type that is not known yet is Marlo when the game came
    /// through a decompiler, else Fabula.
    explicit AdventureSetup(Adventure& adventure);

    /// Marlo always uses character sets.
    void ChooseType(AdventureKind kind);
    void ChooseGraphics(bool on) { graphics_ = on; }
    /// Refused, and false, for Marlo without character sets.
    bool ChooseCharSets(bool on);

    AdventureKind Type() const { return type_; }
    bool Graphics() const { return graphics_; }
    bool CharSets() const { return charSets_; }

  private:
    AdventureKind type_ = AdventureKind::Fabula;
    bool graphics_ = false;
    bool charSets_ = false;
};

}  // namespace fabula::store
