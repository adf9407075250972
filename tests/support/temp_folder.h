#pragma once

#include <filesystem>

namespace fabula::test {

/// A folder of its own for one test, deleted with everything in it at the end.
class TempFolder {
  public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const char* name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

}  // namespace fabula::test
