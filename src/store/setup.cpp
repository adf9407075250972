#include "store/setup.h"

#include "store/adventure.h"
#include "text/utf8.h"

namespace fabula::store {
namespace {

struct KindRow {
    AdventureKind kind;
    std::string_view name;
    std::string_view explanation;
};

constexpr KindRow kKinds[] = {
    {AdventureKind::Fabula, "Fabula",
     "Fabula: Takes all Fabula constructs, including extra Conditions && Actions."},
    {AdventureKind::Vel, "VEL",
     "VEL: Only original VEL constructs (Conditions, Actions, && Graphics Commands) are available."},
    {AdventureKind::Marlo, "Marlo",
     "Marlo: Only original Marlo/Mender/Limner constructs are available. Graphics Editor is included if "
     "Graphic "
     "selected below."},
};

}  // namespace

std::string_view NameOf(AdventureKind kind) {
    return kKinds[static_cast<std::size_t>(kind)].name;
}

std::optional<AdventureKind> AdventureKindFrom(std::string_view name) {
    for (const KindRow& row : kKinds) {
        if (text::EqualsNoCase(row.name, name)) return row.kind;
    }
    return std::nullopt;
}

frmSetup::frmSetup(Adventure& adventure) {
    const Cursor& settings =
        adventure.OpenTable(TableNum::Adventure, "adventype, graphics, charsets, unmarloed");
    graphics_ = settings.Truth("graphics");
    charSets_ = settings.Truth("charsets");
    const bool decompiled = settings.Number("unmarloed") != 0;
    const auto stored = AdventureKindFrom(settings.Text("adventype"));
    ChooseType(decompiled ? AdventureKind::Marlo : stored.value_or(AdventureKind::Fabula));
}

void frmSetup::ChooseType(AdventureKind kind) {
    type_ = kind;
    if (kind == AdventureKind::Marlo) charSets_ = true;
}

bool frmSetup::ChooseCharSets(bool on) {
    if (type_ == AdventureKind::Marlo && !on) return false;
    charSets_ = on;
    return true;
}

std::string_view frmSetup::ExplainType(AdventureKind kind) {
    return kKinds[static_cast<std::size_t>(kind)].explanation;
}

std::string_view frmSetup::ExplainGraphics(bool on) {
    return on ? "Graphic: Graphics Editor is included && used in game."
              : "Non-Graphic: Graphic Editor is NOT included.";
}

std::string_view frmSetup::ExplainCharSets(bool on) {
    return on ? "Yes - Marlo && VEL character sets used" : "No - Windows Fonts used (Saves memory)";
}

}  // namespace fabula::store
