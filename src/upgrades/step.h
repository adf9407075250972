#pragma once

#include <span>
#include <string_view>

#include "store/schema/table_catalogue.h"
#include "upgrades/work.h"

namespace fabula::upgrades {

/// A condition on `Tables`: which row decides whether a step is needed.
struct FieldCondition {
    enum class NeededWhen {
        Missing,  ///< no row tells of the field; without a field, none tells of the table
        Text,     ///< a row says that its type is `advarwchar`
        Short     ///< a row says that its size is that of the short words, 5
    };
    store::TableNum table = store::TableNum::Tables;
    std::string_view field = {};
    NeededWhen when = NeededWhen::Missing;
};

/// One step of the chain. It is needed when its condition says so, on the file as it then is; its effect
/// makes the condition say no, but for what `reportsOnly`.
struct Step {
    int number;             ///< corrections count below zero
    std::string_view text;  ///< what the author reads, "1 - Add of AdvDesc & AdvPicLoc to Adventure"
    FieldCondition condition;
    bool (*needed)(Work& work);  ///< in place of `condition`; nullptr where that decides
    void (*effect)(Work& work, const Step& step);
    bool reportsOnly = false;  ///< changes nothing that a reader would see
};

/// Steps that are tested together before the first of them runs.
using Group = std::span<const Step>;

/// The six groups in their order: five of upgrades, which add tables and fields, then the corrections,
/// which mend records.
std::span<const Group> Groups();

/// The steps that add tables and fields, and the corrections, in their order.
Group SchemaSteps();
Group Corrections();

bool IsNeeded(Work& work, const Step& step);

}  // namespace fabula::upgrades
