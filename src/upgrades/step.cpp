#include "upgrades/step.h"

#include <algorithm>
#include <array>

#include "text/encoding/utf8.h"

namespace fabula::upgrades {
namespace {

constexpr int kShortWord = 5;

/// The number of the last step of each group of upgrades. Steps of our own belong to the last.
constexpr std::array kLastOfGroup = {10, 20, 31, 44};

bool Decides(const FieldCondition& condition, const Work::FieldRow& row) {
    if (row.table != static_cast<int>(condition.table)) return false;
    if (!condition.field.empty() && !text::EqualsNoCase(row.field, condition.field)) return false;
    switch (condition.when) {
        case FieldCondition::NeededWhen::Missing:
            return true;
        case FieldCondition::NeededWhen::Text:
            return text::EqualsNoCase(row.type, "advarwchar");
        case FieldCondition::NeededWhen::Short:
            return row.size == kShortWord;
    }
    return false;
}

std::array<Group, kLastOfGroup.size() + 2> MakeGroups() {
    std::array<Group, kLastOfGroup.size() + 2> groups;
    Group rest = SchemaSteps();
    for (std::size_t i = 0; i < kLastOfGroup.size(); ++i) {
        const auto last = std::ranges::find(rest, kLastOfGroup[i], &Step::number);
        const auto count = static_cast<std::size_t>(last - rest.begin()) + 1;
        groups[i] = rest.first(count);
        rest = rest.subspan(count);
    }
    groups[kLastOfGroup.size()] = rest;
    groups.back() = Corrections();
    return groups;
}

}  // namespace

std::span<const Group> Groups() {
    static const auto groups = MakeGroups();
    return groups;
}

bool IsNeeded(Work& work, const Step& step) {
    if (step.needed) return step.needed(work);
    const bool found = std::ranges::any_of(work.FieldRows(),
                                           [&](const auto& row) { return Decides(step.condition, row); });
    return (step.condition.when == FieldCondition::NeededWhen::Missing) != found;
}

}  // namespace fabula::upgrades
