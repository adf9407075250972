#pragma once

#include <array>
#include <filesystem>
#include <memory>

#include "terminal/line_source.h"

namespace fabula::terminal {

/// Lines from a file or a pipe, read as they come.
class LineReader final : public LineSource {
  public:
    /// From a descriptor that is open, and stays so.
    explicit LineReader(int descriptor) : descriptor_(descriptor) {}
    /// From a file or a pipe. Throws fabula::Error for what is neither, and when it can't be opened.
    explicit LineReader(const std::filesystem::path& file);
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;
    ~LineReader() override;

    TypedLine Read(const Question& question) override;
    bool HasLine() const override;

  private:
    enum class Filled { Yes, TimeOut, End };
    Filled Fill(const Question& question);

    int descriptor_;
    bool owned_ = false;
    std::array<char, 16 * 1024> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::string line_;   ///< read so far
    bool first_ = true;  ///< no line was read yet
};

/// The lines of one source, and then those of another.
class LineSequence final : public LineSource {
  public:
    LineSequence(std::unique_ptr<LineSource> first, std::unique_ptr<LineSource> second)
        : first_(std::move(first)), second_(std::move(second)) {}

    TypedLine Read(const Question& question) override;
    bool HasLine() const override { return first_ ? first_->HasLine() : second_->HasLine(); }

  private:
    std::unique_ptr<LineSource> first_;  ///< nullptr when it has ended
    std::unique_ptr<LineSource> second_;
};

}  // namespace fabula::terminal
