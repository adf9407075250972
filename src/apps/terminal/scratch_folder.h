#pragma once

#include <filesystem>

namespace fabula::terminal {

/// A folder for one run, deleted with what it holds. The constructor throws fabula::Error when there can be
/// none.
class ScratchFolder {
  public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace fabula::terminal
