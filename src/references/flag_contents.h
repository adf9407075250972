#pragma once

#include <map>
#include <set>

#include "references/lint_game.h"

namespace fabula::references {

/// What the numbers that flags hold stand for, as the conditions and actions of a game show: a flag that
/// MESSGF takes holds messages, and so does one that is copied to it or compared with it.
class FlagContents {
  public:
    explicit FlagContents(const LintGame& game);

    /// Whether a flag holds numbers of this kind.
    bool Holds(int flag, Kind kind) const;
    /// Whether it also holds numbers of other kinds.
    bool IsMixed(int flag) const;
    /// Whether it is counted or drawn, so that it holds numbers that stand nowhere.
    bool IsCounted(int flag) const { return counted_.contains(flag); }

  private:
    std::map<int, std::set<Kind>> kinds_;
    std::set<int> counted_;
};

}  // namespace fabula::references
