#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::interchange {

/// The largest source that is read, in bytes.
inline constexpr std::uintmax_t kLargestSource = 256 * 1024 * 1024;

/// How the bytes of a source are read.
enum class Encoding {
    Detect,  ///< by its byte-order mark; without one UTF-8 where all of the file is that, else Windows-1252
    Utf8,
    Windows1252,
};

/// A source file from anywhere, read line by line as UTF-8. Lines end in "\r\n", "\n" or "\r", also mixed;
/// the last one needs no end. NUL bytes count as blanks, bytes that are no UTF-8 in a file that is read as
/// UTF-8 are replaced by U+FFFD. Memory is that of the longest line.
class SourceFile {
  public:
    /// Throws fabula::Error when the file can't be read or is too large.
    explicit SourceFile(const std::filesystem::path& file, Encoding encoding = Encoding::Detect);

    /// "The text is read as UTF-8." or "The text is read as Windows-1252."; "" where it makes no
    /// difference, or a byte-order mark tells.
    std::string_view EncodingNote() const { return encodingNote_; }

    /// The next line, without its end; false behind the last.
    bool Next(std::string& line);

    const std::filesystem::path& File() const { return file_; }
    std::int64_t LineNumber() const { return lineNumber_; }
    std::int64_t BytesRead() const { return bytesRead_; }
    std::int64_t Size() const { return size_; }

  private:
    void Choose(Encoding encoding);
    void GoToStart();
    bool Fill();
    std::string Decoded(std::string bytes) const;

    std::filesystem::path file_;
    std::ifstream stream_;
    std::vector<char> buffer_;
    std::size_t position_ = 0;
    std::size_t end_ = 0;
    bool isUtf8_ = false;
    std::string_view encodingNote_;
    bool afterCarriageReturn_ = false;
    std::int64_t lineNumber_ = 0;
    std::int64_t bytesRead_ = 0;
    std::int64_t size_ = 0;
};

/// The words of a line: what stands between blanks and control characters.
std::vector<std::string_view> SplitWords(std::string_view line);

/// The line without blanks and control characters at its end.
std::string_view TrimRight(std::string_view line);

}  // namespace fabula::interchange
