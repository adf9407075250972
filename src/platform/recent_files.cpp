#include "platform/recent_files.h"

#include <utility>

namespace fabula::platform {

RecentFiles::RecentFiles(std::vector<std::filesystem::path> files) {
    for (auto file = files.rbegin(); file != files.rend(); ++file)
        AddMRUItem(*file);
}

void RecentFiles::AddMRUItem(const std::filesystem::path& file) {
    Remove(file);
    files_.insert(files_.begin(), file);
    if (files_.size() > kMostFiles) files_.resize(kMostFiles);
}

void RecentFiles::Remove(const std::filesystem::path& file) {
    std::erase(files_, file);
}

}  // namespace fabula::platform
