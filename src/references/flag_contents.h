#pragma once

#include <map>
#include <set>

#include "condacts/numbers.h"
#include "references/lint/lint_game.h"

namespace fabula::references {

/// What the numbers that flags hold stand for, as the conditions and actions of a game show: a flag that
/// MESSGF takes holds messages, and so does one that is copied to it or compared with it.
class FlagContents {
  public:
    explicit FlagContents(const LintGame& game);

    /// Whether a flag holds numbers of this kind.
    bool Holds(condacts::FlagNumber flag, Kind kind) const;
    /// Whether it also holds numbers of other kinds.
    bool IsMixed(condacts::FlagNumber flag) const;
    /// Whether it is counted or drawn, so that it holds numbers that stand nowhere.
    bool IsCounted(condacts::FlagNumber flag) const { return counted_.contains(flag); }

  private:
    std::map<condacts::FlagNumber, std::set<Kind>> kinds_;
    std::set<condacts::FlagNumber> counted_;
};

}  // namespace fabula::references
