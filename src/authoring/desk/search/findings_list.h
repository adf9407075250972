#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk/search/navigator.h"
#include "references/lint/lint.h"

namespace fabula::authoring {

/// Something that was found, as a line of a list.
struct FindingLine {
    std::string_view code;
    std::string where;  ///< "message 7: It is dark."
    std::string text;   ///< a sentence that names the record
    Jump jump;          ///< to the record
    std::int64_t record = 0;
    bool off = false;         ///< the adventure has it switched off
    std::string reason = {};  ///< why it is
};

/// A kind of finding that the adventure has, or has switched off.
struct FindingKind {
    std::string_view code;
    std::string_view meaning;
    int told = 0;  ///< how many there are that are not switched off
    int off = 0;   ///< and that are
    bool switchedOff = false;
    std::string reason = {};  ///< why it is
};

/// The list of what the open adventure has that can't be meant (references/lint/lint.h), of all kinds or of
/// one, and the switches that the adventure keeps. The adventure is looked through by `Read` and by nothing
/// else, since it takes a moment.
class FindingsList {
  public:
    FindingsList(MainScreen& main, Navigator& navigator) : main_(main), navigator_(navigator) {}
    FindingsList(const FindingsList&) = delete;
    FindingsList& operator=(const FindingsList&) = delete;

    /// Looks through the adventure as it is now; without one there is nothing. Throws fabula::Error when
    /// it can't be read.
    void Read();
    /// Whether nothing has changed since.
    bool IsCurrent();
    /// Whether what was read is of the adventure that is open.
    bool IsOfOpenAdventure() const;

    /// In the order of the rules.
    const std::vector<FindingKind>& Kinds() const { return kinds_; }
    /// Shows one kind, with what is switched off of it; "" shows all kinds, without.
    void Choose(std::string_view code);
    const std::string& Chosen() const { return chosen_; }
    const std::vector<FindingLine>& Lines() const { return lines_; }
    /// The line that stands for what `line` of an earlier list was, or else stands where it stood; -1 when
    /// the list is empty.
    int Near(const FindingLine& line, int row) const;

    /// "12 findings", "gap: 3 of 12 findings".
    std::string Title() const;
    /// More about what is shown: of a kind what it means and why it is switched off, else how many kinds
    /// are; "" when there is nothing to say.
    std::string Remark() const;

    /// Whether the adventure takes switches.
    bool CanSwitch() const;
    /// Asks why and switches a kind off in the adventure, or of that kind what is found at one record, as
    /// one change. False when the author would rather not.
    bool SwitchOff(std::string_view code, std::optional<std::int64_t> record = std::nullopt);
    /// Switches a kind on again, with all its records, or what is switched off at one record alone.
    void SwitchOn(std::string_view code, std::optional<std::int64_t> record = std::nullopt);
    /// Whether a kind is switched off as a whole.
    bool IsOff(std::string_view code) const;

  private:
    FindingLine LineOf(const references::Finding& finding, const std::vector<references::LintLine>& stored);
    void ReadKinds(const std::vector<references::LintLine>& stored);
    void Put(std::string_view code, std::optional<std::int64_t> record, std::optional<std::string> reason);

    MainScreen& main_;
    Navigator& navigator_;
    int edition_ = 0;             ///< of the navigator, when all was read
    std::filesystem::path file_;  ///< that was read
    std::vector<FindingLine> all_;
    std::vector<FindingKind> kinds_;
    std::string chosen_;
    std::vector<FindingLine> lines_;
};

}  // namespace fabula::authoring
