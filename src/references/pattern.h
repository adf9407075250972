#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::references {

/// What is looked for in texts.
struct Wanted {
    std::string text;
    std::string replacement = {};  ///< of an expression with $0 to $9 for what it found
    bool matchCase = false;
    bool wholeWords = false;
    bool expression = false;  ///< a regular expression
};

/// A place in a text where it stands, in bytes, and what would stand there instead.
struct Match {
    std::size_t start = 0;
    std::size_t length = 0;
    std::string replacement;
};

/// Something to look for, ready to look with. An expression that would take too long on a text is given up:
/// it may not take more steps, memory and depth than a text of a game can need.
class Pattern {
  public:
    /// Throws fabula::Error for an expression that is none.
    explicit Pattern(const Wanted& wanted);
    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;
    ~Pattern();

    /// All places in a text, from its start, none overlapping and none empty. Throws fabula::Error when the
    /// expression takes too long.
    std::vector<Match> FindAll(std::string_view text) const;

  private:
    struct Code;

    std::string Expanded(std::string_view text, const std::size_t* places, std::size_t count) const;

    std::unique_ptr<Code> code_;
    std::string replacement_;
    bool expression_;
};

}  // namespace fabula::references
