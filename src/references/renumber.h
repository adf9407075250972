#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "references/kinds.h"
#include "store/adventure.h"
#include "text/value.h"

namespace fabula::references {

/// A field of a record that gets another value. `record` is the number that the record bears before.
struct FieldChange {
    store::TableNum table = store::TableNum::Adventure;
    std::int64_t record = 0;
    std::int64_t storeKey = 0;  ///< of the record, whose number others may bear too
    std::string field;
    text::Value before;
    text::Value after;
};

/// What giving something another number would do.
struct RenumberPlan {
    std::string refusal;                ///< why it can't be done, a sentence; "" when it can
    std::vector<std::string> warnings;  ///< what can't be followed and has to be looked at, sentences
    bool swaps = false;                 ///< the new number is taken: the two change their places
    /// All fields that change, in the order of tables and records. What names either follows.
    std::vector<FieldChange> changes;
};

/// Plans to give something the number `to`. A number that is free is taken; with one that is not the two
/// records swap. Nothing changes yet.
///
/// Places, objects, texts, process tables, flags, pictures and character sets can be numbered anew. A
/// container and its place keep one number and go together. Numbers that flags hold follow where the
/// conditions and actions show what they stand for; where they don't, a warning tells. Numbers that the
/// engine knows, those that more than one record bears, and those that a rule compares by their order with
/// the new one on the other side, are refused.
RenumberPlan PlanRenumbering(store::Adventure& adventure, const Target& target, int to);

/// Does what a plan says, in the adventure as it was when the plan was made. Belongs into one transaction.
/// Opens the cursor Free22.
void Renumber(store::Adventure& adventure, const RenumberPlan& plan);

/// The lowest number from `from` up that is free for this kind.
int FreeNumber(store::Adventure& adventure, Kind kind, int from = 0);

}  // namespace fabula::references
