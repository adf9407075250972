#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "condacts/language/catalogue.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// What the numbers in conditions and actions stand for, as an author knows it: the beginnings of texts, on
/// one line and without markup, by number. Of a flag it is the description or, without one, the use.
/// A text that says nothing is "".
struct RecordTexts {
    std::vector<ListItem> locations;
    std::vector<ListItem> messages;
    std::vector<ListItem> objects;
    std::vector<ListItem> processes;
    std::vector<ListItem> systemMessages;
    std::vector<ListItem> flags;

    /// The records that a parameter of a kind may name; none for words and plain values.
    const std::vector<ListItem>& Of(condacts::ParamKind kind) const;
};

RecordTexts LoadRecordTexts(store::Adventure& adventure);

}  // namespace fabula::authoring
