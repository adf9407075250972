#include "authoring/desk/search/findings_list.h"

#include <algorithm>
#include <iterator>

#include "text/encoding/utf8.h"

namespace fabula::authoring {

using references::Finding;
using references::LintLine;
using references::LintRule;
using references::LintSwitches;
using store::TableNum;

namespace {

LintSwitches SwitchesFor(std::string_view code, std::optional<std::int64_t> record) {
    LintSwitches switches;
    if (record) {
        switches.records.insert({std::string(code), *record});
    } else {
        switches.rules.insert(std::string(code));
    }
    return switches;
}

std::string FindingsIn(int count) {
    return std::to_string(count) + (count == 1 ? " finding" : " findings");
}

/// Of a character set the number is told, and shown is its first character.
std::int64_t ShownRecord(store::Adventure& adventure, const Finding& finding) {
    if (finding.code != "set-unused") return finding.record;
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Characters, "charkey", "charsetnum=?", "charkey");
    return row.First({finding.record}) ? row.Number(0) : finding.record;
}

/// Asks why something is switched off, until it fits; nullopt for Cancel.
std::optional<std::string> AskReason(platform::Dialogs& dialogs, const std::string& title) {
    const auto longest = static_cast<std::size_t>(references::kLongestReason);
    std::string proposal;
    for (;;) {
        const auto typed = dialogs.AskText(
            {.prompt = "Why? The reason is kept in the adventure.", .title = title, .proposal = proposal});
        if (!typed) return std::nullopt;
        std::string reason = references::ReasonOf(*typed);
        if (text::Length(reason) <= longest) return reason;
        dialogs.Tell("A reason has at most " + std::to_string(longest) + " characters.", "Error");
        proposal = *typed;
    }
}

}  // namespace

FindingLine FindingsList::LineOf(const Finding& finding, const std::vector<LintLine>& stored) {
    store::Adventure& adventure = main_.CurrentContext().document.Adventure();
    JumpLine place = navigator_.LineTo(finding.table, ShownRecord(adventure, finding));
    FindingLine line{.code = finding.code,
                     .where = std::move(place.text),
                     .text = finding.message,
                     .jump = place.jump,
                     .record = finding.record};
    for (const LintLine& kept : stored) {
        if (!kept.switches.Hides(finding)) continue;
        line.off = true;
        if (line.reason.empty()) line.reason = kept.reason;
    }
    return line;
}

void FindingsList::Read() {
    all_.clear();
    kinds_.clear();
    edition_ = navigator_.Edition();
    file_.clear();
    if (edition_ != 0) {
        Document& document = main_.CurrentContext().document;
        file_ = document.File();
        const std::vector<LintLine> stored = references::StoredLines(document.Adventure());
        for (const Finding& finding : references::Lint(document.Adventure()))
            all_.push_back(LineOf(finding, stored));
        ReadKinds(stored);
    }
    Choose(chosen_);
}

void FindingsList::ReadKinds(const std::vector<LintLine>& stored) {
    for (const LintRule& rule : references::AllLintRules()) {
        FindingKind kind{.code = rule.code, .meaning = rule.meaning};
        for (const FindingLine& line : all_) {
            if (line.code == rule.code) ++(line.off ? kind.off : kind.told);
        }
        for (const LintLine& line : stored) {
            if (!line.switches.rules.contains(rule.code)) continue;
            kind.switchedOff = true;
            if (kind.reason.empty()) kind.reason = line.reason;
        }
        if (kind.told + kind.off > 0 || kind.switchedOff) kinds_.push_back(std::move(kind));
    }
}

bool FindingsList::IsCurrent() {
    return edition_ == navigator_.Edition();
}

bool FindingsList::IsOfOpenAdventure() const {
    if (main_.GetState() == MainScreen::State::NoAdventure) return file_.empty();
    return main_.CurrentContext().document.File() == file_;
}

void FindingsList::Choose(std::string_view code) {
    const bool known =
        std::ranges::any_of(kinds_, [&](const FindingKind& kind) { return kind.code == code; });
    chosen_ = known ? code : "";
    lines_.clear();
    std::ranges::copy_if(all_, std::back_inserter(lines_), [&](const FindingLine& line) {
        return chosen_.empty() ? !line.off : line.code == chosen_;
    });
}

int FindingsList::Near(const FindingLine& line, int row) const {
    const auto same = std::ranges::find_if(lines_, [&](const FindingLine& each) {
        return each.code == line.code && each.jump == line.jump && each.text == line.text;
    });
    if (same != lines_.end()) return static_cast<int>(same - lines_.begin());
    return std::min(row, static_cast<int>(lines_.size()) - 1);
}

std::string FindingsList::Title() const {
    const auto told = static_cast<int>(std::ranges::count(all_, false, &FindingLine::off));
    if (chosen_.empty()) return FindingsIn(told);
    const auto shown = static_cast<int>(std::ranges::count(lines_, false, &FindingLine::off));
    return chosen_ + ": " + std::to_string(shown) + " of " + FindingsIn(told);
}

std::string FindingsList::Remark() const {
    const auto kind = std::ranges::find(kinds_, std::string_view(chosen_), &FindingKind::code);
    if (kind == kinds_.end()) {
        const auto off = std::ranges::count(kinds_, true, &FindingKind::switchedOff);
        if (off == 0) return "";
        return off == 1 ? "1 kind is switched off." : std::to_string(off) + " kinds are switched off.";
    }
    const std::string meaning(kind->meaning);
    if (!kind->switchedOff) return meaning;
    return meaning + (kind->reason.empty() ? " - switched off" : " - switched off: " + kind->reason);
}

bool FindingsList::CanSwitch() const {
    return main_.GetState() == MainScreen::State::Open && !main_.CurrentContext().document.IsReadOnly();
}

bool FindingsList::IsOff(std::string_view code) const {
    return std::ranges::any_of(
        kinds_, [&](const FindingKind& kind) { return kind.code == code && kind.switchedOff; });
}

bool FindingsList::SwitchOff(std::string_view code, std::optional<std::int64_t> record) {
    if (!CanSwitch()) return false;
    auto reason = AskReason(main_.CurrentContext().dialogs, "Switch Off " + std::string(code));
    if (!reason) return false;
    Put(code, record, std::move(reason));
    return true;
}

void FindingsList::SwitchOn(std::string_view code, std::optional<std::int64_t> record) {
    if (CanSwitch()) Put(code, record, std::nullopt);
}

/// Switches off for a reason, or without one on.
void FindingsList::Put(std::string_view code, std::optional<std::int64_t> record,
                       std::optional<std::string> reason) {
    Document& document = main_.CurrentContext().document;
    std::string name = (reason ? "switch off " : "switch on ") + std::string(code);
    if (record) name.append(" ").append(std::to_string(*record));
    Change change(document, name);
    const LintSwitches switches = SwitchesFor(code, record);
    if (reason) {
        references::SwitchOff(document.Adventure(), switches, *reason);
    } else {
        references::SwitchOn(document.Adventure(), switches);
    }
    change.Commit();
    main_.Refresh();
    main_.Say("Done: " + name);
    Read();
}

}  // namespace fabula::authoring
