#pragma once

#include <filesystem>

namespace fabula::store {

/// A new, empty file in which another file is made: beside its target, so that it can take the target's
/// place in one step, or in the folder for temporary files when the target is a device or a pipe. It is
/// named by the target and this process. What programs that are gone have left of the same target is
/// deleted first.
///
/// It goes with its journal at the end unless it was moved into place. Throws fabula::Error, which names
/// the target, when it can't be made.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::filesystem::path& target);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// Where a file that is written to `target` really lies: links are followed, those to nothing too. A device
/// or a pipe is its own place. Throws fabula::Error for links that lead in a ring.
std::filesystem::path PlaceOf(const std::filesystem::path& target);

/// The folder that a file lies in, "." for one without a path.
std::filesystem::path FolderOf(const std::filesystem::path& file);

/// Whether a target is written to and never replaced: a device, a pipe, a socket.
bool IsStream(const std::filesystem::path& target);

}  // namespace fabula::store
