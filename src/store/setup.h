#pragma once

#include <optional>
#include <string_view>

namespace fabula::store {

class Adventure;

/// The three types of an adventure: all constructs of this system, or those of one of the two older
/// engines.
enum class AdventureKind { Fabula, Vel, Marlo };

/// The kind's word in `adventype`: "Fabula", "VEL", "Marlo".
std::string_view NameOf(AdventureKind kind);
/// The kind that a word names, case ignored; nullopt for any other, "Unknwn" included.
std::optional<AdventureKind> AdventureKindFrom(std::string_view name);

/// The screen "Choose Type of Adventure" without its window: three choices and the rules between them.
class frmSetup {
  public:
    static constexpr std::string_view kTitle = "Choose Type of Adventure";

    /// For a new adventure: type Fabula, no graphics, the system's fonts.
    frmSetup() = default;
    /// For an existing one: what its settings say. A type that is not known yet is Marlo when the game came
    /// through a decompiler, else Fabula.
    explicit frmSetup(Adventure& adventure);

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
