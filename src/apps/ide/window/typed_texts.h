#pragma once

#include <string>

namespace fabula::ide {

/// What stands in the fields of texts of all windows that are shown and may not be stored yet: in a dialog
/// each field that can be changed, elsewhere those that somebody typed into. For each a heading,
/// "[Message 3: text]", from the window's title and the field's name, and its text; "" for none.
std::string TypedTexts();

}  // namespace fabula::ide
