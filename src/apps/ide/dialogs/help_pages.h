#pragma once

#include <QString>

#include "authoring/desk/grid/table_grid.h"
#include "qt/help/help_request.h"

namespace fabula::ide {

inline constexpr const char* kMainWindowPage = "frmvelidemain.html";
inline constexpr const char* kUsesPage = "uses.html";

/// The page of the help that tells about the records of a view.
QString HelpPageOf(const authoring::TableView& view);

/// The topic of a row of the grid: of a condition, an action or a drawing command its own page, of a flag
/// or a system message its place on the page of its table. Without such a row (-1) that of the view.
qt::HelpTopic HelpTopicOf(const authoring::TableGrid& grid, int row);

}  // namespace fabula::ide
