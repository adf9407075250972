#pragma once

#include <filesystem>
#include <vector>

#include "authoring/desk/grid/table_view.h"
#include "authoring/desk/open_tabs.h"
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

/// What the author had open in an adventure.
struct KeptDesk {
    OpenTabs tabs;
    std::vector<PlaceInView> places;  ///< the groupings of views that are in no tab

    friend bool operator==(const KeptDesk&, const KeptDesk&) = default;
};

/// What was kept of a file; nothing is known of one that was not among the latest
/// platform::RecentFiles::kMostFiles.
KeptDesk ReadKeptDesk(const platform::Settings& settings, const std::filesystem::path& file);
void WriteKeptDesk(platform::Settings& settings, const std::filesystem::path& file, const KeptDesk& desk);

/// Whether tables have a column that counts the uses of each record.
bool UsesColumn(const platform::Settings& settings);
void SetUsesColumn(platform::Settings& settings, bool on);

/// Whether test runs are traced.
bool TraceMode(const platform::Settings& settings);
void SetTraceMode(platform::Settings& settings, bool on);

}  // namespace fabula::authoring
