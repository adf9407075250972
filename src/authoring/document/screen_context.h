#pragma once

#include <string_view>

#include "authoring/document/document.h"
#include "platform/dialogs.h"
#include "store/record_limits.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// The process table that the grid shows: one of those that every game has, or all the others in one view.
inline constexpr int kOtherProcesses = store::kLastFixedProcess + 1;

/// What the main window and the screens share while an adventure is open.
struct ScreenContext {
    Document& document;
    platform::Dialogs& dialogs;

    store::TableNum currentTable = store::TableNum::Adventure;  ///< the table in the grid
    int currentEntry = 0;                                       ///< key of the grid's current record
    int currentESNum = 0;  ///< the process table in view, 0 to 2, or kOtherProcesses
    int nextEntry = 0;     ///< the next free `canum`
    int nextWord = 0;      ///< the next free `vocindex`

    /// Whether a new exit gets its way back, as the author chose last.
    bool exitsGoBack = true;
};

/// The number behind that of a record; the highest there is stays.
int NumberAfter(std::int64_t number);

/// Reads the next free keys, one above the highest, from the tables.
void ReadNextKeys(ScreenContext& context);

/// The record that a screen opens on.
struct ScreenKey {
    int key = 0;
    bool isNew = false;  ///< there is no such record yet; Update adds it
};

/// Tells why an input is refused, in a box titled "Error". False, so that a check can end with it.
bool Refuse(platform::Person& person, std::string_view message);

}  // namespace fabula::authoring
