#include "store/setup.h"

#include "store/adventure.h"

namespace fabula::store {

AdventureSetup::AdventureSetup(Adventure& adventure) {
    adventure.ReadSettings();
    graphics_ = adventure.GraphicsOn();
    charSets_ = adventure.CharSetsOn();
    const bool decompiled = adventure.OpenTable(TableNum::Adventure, "unmarloed").Number("unmarloed") != 0;
    ChooseType(decompiled ? AdventureKind::Marlo : adventure.Kind());
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

}  // namespace fabula::store
