#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace fabula::store {

class Connection;

/// A list of change sets on the disk, beside the adventure that they belong to: it may grow far beyond what
/// should stand in memory. The file has no name of its own once it is open, so nothing of it is left
/// whatever happens to the program.
class ChangeLog {
  public:
    /// Throws fabula::Error when the folder of `adventure` can't be written.
    explicit ChangeLog(const std::filesystem::path& adventure);
    ChangeLog(const ChangeLog&) = delete;
    ChangeLog& operator=(const ChangeLog&) = delete;
    ~ChangeLog();

    /// Stores a change set and gives the number to find it by.
    std::int64_t Add(const std::string& changes);
    std::string Get(std::int64_t number) const;
    void Remove(std::int64_t number);

  private:
    std::unique_ptr<Connection> connection_;
};

}  // namespace fabula::store
