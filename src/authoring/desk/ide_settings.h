#pragma once

#include "authoring/desk/table_view.h"
#include "platform/recent_files.h"
#include "platform/settings.h"

namespace fabula::authoring {

// What the main window keeps in the user's settings, besides the files of start_up.h.

/// Where the author was: the view in the grid and the key of the current record.
struct LastView {
    TableView view;
    int key = 0;
};

/// What was kept; a view without sense is that of process 0.
LastView ReadLastView(const platform::Settings& settings);
void WriteLastView(platform::Settings& settings, const LastView& last);

/// The adventures that were opened last, in the section MRUFiles by position.
platform::RecentFiles ReadRecentFiles(const platform::Settings& settings);
void WriteRecentFiles(platform::Settings& settings, const platform::RecentFiles& recent);

/// Whether test runs are traced.
bool TraceMode(const platform::Settings& settings);
void SetTraceMode(platform::Settings& settings, bool on);

}  // namespace fabula::authoring
