#pragma once

#include <optional>
#include <string>

#include "authoring/desk.h"
#include "authoring/entries/entries.h"

namespace fabula::test {

/// Makes a table and one of its records the current ones.
void StandOn(Desk& desk, store::TableNum table, int key);

/// The key that Add entry proposes on a table; nullopt when it is refused.
std::optional<int> KeyOfNew(Desk& desk, store::TableNum table);

std::optional<authoring::ScreenRequest> Edit(Desk& desk, store::TableNum table, int key);
bool Delete(Desk& desk, store::TableNum table, int key);

/// Stores what a screen would, as one change.
void Store(Desk& desk, const authoring::ScreenRequest& request, const std::string& name);

}  // namespace fabula::test
