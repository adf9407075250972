#pragma once

#include <QString>

#include "authoring/table_view.h"

namespace fabula::ide {

inline constexpr const char* kMainWindowPage = "frmvelidemain.html";

/// The page of the help that tells about the records of a view.
QString HelpPageOf(const authoring::TableView& view);

}  // namespace fabula::ide
