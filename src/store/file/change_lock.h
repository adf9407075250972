#pragma once

#include <filesystem>
#include <memory>

namespace fabula::store {

/// Marks an adventure file as open for change as long as the object lives, so that a second program, or a
/// second window of this one, notices. Readers are not kept away, and the database's own locks are others.
/// The mark goes with its process, however that ends.
class ChangeLock {
  public:
    /// nullptr when the file is marked already. Where files can't be marked, none ever is. Throws
    /// fabula::Error when the file can't be opened for writing.
    static std::unique_ptr<ChangeLock> Take(const std::filesystem::path& file);
    /// Whether anybody has marked the file, this program included.
    static bool IsHeld(const std::filesystem::path& file);

    ChangeLock(const ChangeLock&) = delete;
    ChangeLock& operator=(const ChangeLock&) = delete;
    ~ChangeLock();

  private:
    explicit ChangeLock(int handle) : handle_(handle) {}

    int handle_;
};

}  // namespace fabula::store
