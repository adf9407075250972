#pragma once

#include <filesystem>
#include <string>

struct sqlite3;

namespace fabula::test {

/// A file as the database sees it, past the store and its checks: for tests that damage files or lock them.
class RawDatabase {
  public:
    explicit RawDatabase(const std::filesystem::path& file);
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;
    ~RawDatabase();

    sqlite3* Handle() const { return handle_; }

    /// Runs statements; throws std::runtime_error with the database's message when one fails.
    void Run(const std::string& sql) const;
    /// The first column of the first row, as text; "" when there is none.
    std::string Ask(const std::string& sql) const;

  private:
    sqlite3* handle_ = nullptr;
};

/// All bytes of a file.
std::string ReadBytes(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace fabula::test
