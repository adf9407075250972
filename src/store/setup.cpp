#include "store/setup.h"

#include "store/adventure.h"

namespace fabula::store {
namespace {

/// By AdventureKind.
constexpr std::string_view kExplanations[] = {
    "Fabula: Takes all Fabula constructs, including extra Conditions && Actions.",
    "VEL: Only original VEL constructs (Conditions, Actions, && Graphics Commands) are available.",
    "Marlo: Only original Marlo/Mender/Limner constructs are available. Graphics Editor is included if "
    "Graphic "
    "selected below.",
};

}  // namespace

AdventureSetup::AdventureSetup(Adventure& adventure) {
    adventure.ReadSettings();
    graphics_ = adventure.GraphicsOn();
    charSets_ = adventure.CharSetsOn();
    const bool decompiled = adventure.OpenTable(TableNum::Adventure, "unmarloed").Number("unmarloed") != 0;
    const auto stored = AdventureKindFrom(adventure.AdventureType());
    ChooseType(decompiled ? AdventureKind::Marlo : stored.value_or(AdventureKind::Fabula));
}

void AdventureSetup::ChooseType(AdventureKind kind) {
    type_ = kind;
    if (kind == AdventureKind::Marlo) charSets_ = true;
}

bool AdventureSetup::ChooseCharSets(bool on) {
    if (type_ == AdventureKind::Marlo && !on) return false;
    charSets_ = on;
    return true;
}

std::string_view AdventureSetup::ExplainType(AdventureKind kind) {
    return kExplanations[static_cast<std::size_t>(kind)];
}

std::string_view AdventureSetup::ExplainGraphics(bool on) {
    return on ? "Graphic: Graphics Editor is included && used in game."
              : "Non-Graphic: Graphic Editor is NOT included.";
}

std::string_view AdventureSetup::ExplainCharSets(bool on) {
    return on ? "Yes - Marlo && VEL character sets used" : "No - Windows Fonts used (Saves memory)";
}

}  // namespace fabula::store
