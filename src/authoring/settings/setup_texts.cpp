#include "authoring/settings/setup_texts.h"

namespace fabula::authoring {

std::string_view ExplainType(store::AdventureKind kind) {
    switch (kind) {
        case store::AdventureKind::Vel:
            return "VEL: Only original VEL constructs (Conditions, Actions, & Graphics Commands) are "
                   "available.";
        case store::AdventureKind::Marlo:
            return "Marlo: Only original Marlo/Mender/Limner constructs are available. Graphics Editor is "
                   "included if Graphic selected below.";
        case store::AdventureKind::Fabula:
            break;
    }
    return "Fabula: Takes all Fabula constructs, including extra Conditions & Actions.";
}

std::string_view ExplainGraphics(bool on) {
    return on ? "Graphic: Graphics Editor is included & used in game."
              : "Non-Graphic: Graphic Editor is NOT included.";
}

std::string_view ExplainCharSets(bool on) {
    return on ? "Yes - Marlo & VEL character sets used" : "No - Windows Fonts used (Saves memory)";
}

}  // namespace fabula::authoring
