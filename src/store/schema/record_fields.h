#pragma once

#include <string>
#include <string_view>

#include "store/schema/table_catalogue.h"

namespace fabula::store {

// The fields by which a record of any table is found and told. A record has more texts than one where a
// table says so: a location its short description, many a comment.

/// The field that numbers a table's records. Throws std::logic_error for a number without a table.
std::string KeyField(TableNum table);

/// The field that a table's records are there for: the text of a message, the line of a process entry, the
/// drawing of a picture. "" for a table whose records are more than one text, such as that of the settings.
std::string_view TextField(TableNum table);

/// Both as a list of fields: "msgnum, msgmsg". For tables with a TextField.
std::string KeyAndText(TableNum table);

}  // namespace fabula::store
