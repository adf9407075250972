#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::player {

/// The lines that were entered, for going back to one of them.
///
/// `Older` and `Newer` walk through the lines from the line being typed, which is kept and found again at
/// the end of the walk.
class History {
  public:
    /// A line was entered: the walk begins anew. Empty lines, and a line equal to the one before, are left
    /// out; of more than kMostLines the oldest goes.
    void Add(std::string_view line);

    /// The line before the one shown, or the one behind it; nullopt when there is none. `shown` is what
    /// stands in the input.
    std::optional<std::string> Older(std::string_view shown);
    std::optional<std::string> Newer();

    static constexpr std::size_t kMostLines = 500;

  private:
    std::vector<std::string> lines_;
    std::size_t place_ = 0;  ///< of the line shown; the number of lines for the one being typed
    std::string typed_;
};

}  // namespace fabula::player
