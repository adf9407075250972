#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/adventure.h"

namespace fabula::references {

/// A kind of finding: the code that it is told and switched off by, and what it means.
struct LintRule {
    std::string_view code;
    std::string_view meaning;
};

/// All of them, in the order in which they are told.
std::span<const LintRule> AllLintRules();

/// Something that an author would want to know of a game.
struct Finding {
    std::string_view code;  ///< of a rule
    store::TableNum table = store::TableNum::Adventure;
    std::int64_t record = 0;      ///< its number; 0 for the settings
    std::string_view field = {};  ///< "" for the record as a whole
    std::size_t token = 0;        ///< which word of the field, from 0
    std::string message = {};     ///< a sentence that names the record
};

/// What is not to be told: rules as a whole, and rules for one record.
struct LintSwitches {
    std::set<std::string, std::less<>> rules;
    std::set<std::pair<std::string, std::int64_t>> records;

    /// Adds what a line says: codes, each perhaps with the numbers of records behind it, up to the first
    /// word that is neither: "message-unused 40 41 gap they are kept for later". False when it begins with
    /// no code.
    bool Add(std::string_view line);
    /// Takes `others` out: a rule that is named goes with all its records.
    void Remove(const LintSwitches& others);
    /// What is off, a code to a line, its records behind it. `Add` of all gives the same again.
    std::vector<std::string> Lines() const;
    bool Hides(const Finding& finding) const;
};

/// A line that an adventure keeps: what it switches off, and the words behind that, which say why.
struct LintLine {
    LintSwitches switches;
    std::string reason;
};

/// The lines that an adventure keeps for itself: the texts of `Header` whose key is kLintHeader.
std::vector<LintLine> StoredLines(store::Adventure& adventure);
/// What they switch off together.
LintSwitches StoredSwitches(store::Adventure& adventure);
inline constexpr std::string_view kLintHeader = "lint off";

/// Switches findings off, or on again, in the adventure itself: `switches` are added to those it keeps, or
/// taken out of them. The reason stands behind each line that is added; it begins with a word that is
/// neither a code nor a number, and is at most kLongestReason characters long. What other lines switch off
/// keeps its reason. Belongs into one transaction.
void SwitchOff(store::Adventure& adventure, const LintSwitches& switches, std::string_view reason = {});
void SwitchOn(store::Adventure& adventure, const LintSwitches& switches);
inline constexpr int kLongestReason = 120;

/// A reason as the author typed it, on one line and so that it is not taken for a part of what it explains.
std::string ReasonOf(std::string_view typed);

/// Looks through a whole game. The findings come in the order of the rules, then of the records.
std::vector<Finding> Lint(store::Adventure& adventure, const LintSwitches& switches = {});

}  // namespace fabula::references
