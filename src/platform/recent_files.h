#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace fabula::platform {

/// The adventures that were opened last, the latest first.
class RecentFiles {
  public:
    RecentFiles() = default;
    explicit RecentFiles(std::vector<std::filesystem::path> files);

    /// Moves the file to the top; it stands in the list once.
    void AddMRUItem(const std::filesystem::path& file);
    void Remove(const std::filesystem::path& file);

    const std::vector<std::filesystem::path>& Files() const { return files_; }

    static constexpr std::size_t kMostFiles = 8;

  private:
    std::vector<std::filesystem::path> files_;
};

}  // namespace fabula::platform
