#pragma once

#include <filesystem>
#include <string_view>

#include "platform/clock.h"

namespace fabula::authoring {

/// The clean-up list: pairs of a pattern of file names and an age in days.
inline constexpr std::string_view kCleanUpList =
    "temp*.*,0,*.tmp,0,!fc_dif,0,fcreport.txt,0,*.log,7,*.vel,7,*.trc,7,*.csv,10,*.db,60,*.ext,60,*.pex,30,"
    "*.sav,60,*.scr,90";

/// Deletes the files in `folder` that a pattern of the list fits and whose age in whole days is greater
/// than the pattern's number; gives how many. Only plain files that lie in the folder itself go: links
/// stay, and folders in it are not entered. What can't be deleted stays for the next time.
int DeleteOldWorkFiles(const std::filesystem::path& folder, const platform::Clock& clock,
                       std::string_view list = kCleanUpList);

}  // namespace fabula::authoring
