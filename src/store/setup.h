#pragma once

#include <string_view>

#include "store/adventure_kind.h"

namespace fabula::store {

class Adventure;

/// The screen "Choose Type of Adventure" without its window: three choices and the rules between them.
class AdventureSetup {
  public:
    static constexpr std::string_view kTitle = "Choose Type of Adventure";

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

    /// What the explanation box says of a choice.
    static std::string_view ExplainType(AdventureKind kind);
    static std::string_view ExplainGraphics(bool on);
    static std::string_view ExplainCharSets(bool on);

  private:
    AdventureKind type_ = AdventureKind::Fabula;
    bool graphics_ = false;
    bool charSets_ = false;
};

}  // namespace fabula::store
