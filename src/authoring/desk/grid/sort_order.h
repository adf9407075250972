#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "authoring/document/document.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// The order that the adventure keeps for a table: objnum, "voctypen, vocnum, word" and so on; nullopt for
/// a table whose order can't be changed.
std::optional<std::string> StoredSort(const store::Adventure& adventure, store::TableNum table);

/// The order that such a table has at first.
std::string PlainSort(store::TableNum table);

/// Why a text is no order for the records of a table, a sentence; "" when it is one.
std::string FaultOfSort(const store::Adventure& adventure, store::TableNum table, std::string_view order);

/// Keeps another order for a table, as one step of Undo. The order that it has already stores nothing.
/// Throws fabula::Error when the file can't be written.
void StoreSort(Document& document, store::TableNum table, std::string_view order);

/// Puts the orders of the context back to their plain forms and reads the tables in them, until the
/// settings are read again.
void ReadInPlainOrder(store::Adventure& adventure);

}  // namespace fabula::authoring
