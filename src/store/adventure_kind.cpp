#include "store/adventure_kind.h"

#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

struct KindRow {
    AdventureKind kind;
    std::string_view name;
};

constexpr KindRow kKinds[] = {
    {AdventureKind::Fabula, "Fabula"},
    {AdventureKind::Vel, "VEL"},
    {AdventureKind::Marlo, "Marlo"},
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

AdventureKind AdventureKindOf(std::string_view adventureType) {
    return AdventureKindFrom(adventureType).value_or(AdventureKind::Fabula);
}

}  // namespace fabula::store
