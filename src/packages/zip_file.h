#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error.h"

namespace fabula::packages {

/// "Zip Error code 14: Error Writing To A File"; of a number that stands for nothing no text.
std::string ZipErrorText(int code);

/// A zip that could not be made; what() is the text of its code.
class ZipFailure : public Error {
  public:
    explicit ZipFailure(int code) : Error(ZipErrorText(code)), code_(code) {}
    int Code() const { return code_; }

  private:
    int code_;
};

/// The codes that this program gives.
namespace zip_code {
inline constexpr int kStructure = 3;
inline constexpr int kMemory = 4;
inline constexpr int kInternal = 5;
inline constexpr int kTooLarge = 6;
inline constexpr int kNothingToDo = 12;
inline constexpr int kWrite = 14;
inline constexpr int kOpenToWrite = 15;
}  // namespace zip_code

/// A file to be put into a zip.
struct PackedFile {
    std::string name;  ///< relative, with "/" between folders, in UTF-8
    std::string bytes;
    bool runs = false;  ///< a program
};

/// Writes a zip of the files in their order: beside `target` and in its place when it is complete, so that
/// a failure leaves what is there. A device or a pipe is written to, and so is the standard output for "-".
/// The same files give the same bytes, whenever and wherever. Throws
/// ZipFailure, and fabula::Error for a target that can't be replaced.
void WriteZip(const std::filesystem::path& target, const std::vector<PackedFile>& files);

}  // namespace fabula::packages
