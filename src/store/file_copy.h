#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace fabula::store {

class Connection;

/// Writes a copy of the open adventure `source` to `target`: into a file beside it, checked and on the disk
/// before it takes the target's place. What is open is copied, whatever lies now where it was opened.
/// Throws fabula::Error and leaves `target` as it was.
void WriteCopy(const Connection& source, const std::filesystem::path& target);

/// A copy of the open adventure in memory. Throws fabula::Error when there is not enough of it.
std::unique_ptr<Connection> CopyOf(const Connection& source);

/// A name beside `target` for a file in the making; it does not exist yet.
std::filesystem::path TemporaryBeside(const std::filesystem::path& target);

/// Puts a finished file in the place of `target`: its bytes and the change of name are on the disk when
/// this returns. A journal that was left beside `target` is used up first, as it would spoil the new file.
/// Throws fabula::Error; `target` is then as it was.
void MoveIntoPlace(const std::filesystem::path& finished, const std::filesystem::path& target);

/// Writes a file whole: one that is there already is replaced when the new one is complete. Throws
/// fabula::Error and leaves it as it was.
void WriteFile(const std::filesystem::path& file, std::string_view bytes);

/// Deletes a file in the making, with its journal, unless it was moved into place.
class TemporaryFile {
  public:
    explicit TemporaryFile(std::filesystem::path path) : path_(std::move(path)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace fabula::store
