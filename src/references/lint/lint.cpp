#include "references/lint/lint.h"

#include <algorithm>
#include <optional>

#include "condacts/language/parser.h"
#include "references/lint/lint_game.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::references {
namespace {

constexpr LintRule kRules[] = {
    {"start-missing", "play begins in a location that does not exist"},
    {"exit-missing", "an exit leads to a location that does not exist"},
    {"exit-nowhere", "an exit leads to 252 to 255, which are no places that one can enter"},
    {"location-missing", "a rule names a location that does not exist"},
    {"place-missing", "an object begins at a location that does not exist"},
    {"container-placeless", "a container has no location of its number to hold what is in it"},
    {"room-missing", "a picture belongs to a location that does not exist"},
    {"object-missing", "a rule names an object that does not exist"},
    {"message-missing", "a rule prints a message that does not exist"},
    {"sysmess-missing", "a rule prints a system message that does not exist"},
    {"flag-missing", "a rule names a flag that does not exist"},
    {"process-missing", "a process table is called, or has entries, that has no description"},
    {"picture-missing", "a drawing calls a picture that does not exist"},
    {"set-missing", "a drawing or a text names a character set that does not exist"},
    {"character-missing", "a drawing shows a character that does not exist"},
    {"entry-word-missing", "an entry answers to a word that is not in the vocabulary"},
    {"exit-word-missing", "an exit has a word that is not in the vocabulary"},
    {"object-word-missing", "an object is called by a word that is not in the vocabulary"},
    {"asked-word-missing", "a condition asks for a word that is not in the vocabulary"},
    {"line-unknown", "an entry holds something that is no condition or action"},
    {"line-uncompiled", "the compiled form of an entry does not fit its text"},
    {"line-short", "a condition or action lacks a parameter"},
    {"entry-never", "an entry can't run, since another before it always ends the table first"},
    {"entry-contradicts", "the conditions of an entry can't be true together"},
    {"entry-idle", "an entry has conditions only and does nothing"},
    {"condition-twice", "an entry asks for the same thing twice"},
    {"action-dead", "an action stands behind one that ends the entry"},
    {"value-never", "a flag is compared with a number that it is never given"},
    {"flag-unset", "a flag is read but never set"},
    {"flag-unread", "a flag is set but never read"},
    {"flag-unused", "a flag is described and never used"},
    {"object-nowhere", "an object is not created at first and no rule brings it"},
    {"location-unreachable", "no exit and no rule leads to a location"},
    {"message-unused", "no rule prints a message"},
    {"sysmess-unused", "neither the engine nor a rule prints a system message"},
    {"word-unused", "no entry, exit, object or condition uses a word"},
    {"process-unused", "no rule calls a process table"},
    {"process-empty", "a process table is called and has no entries"},
    {"picture-unused", "no drawing calls a subroutine"},
    {"set-unused", "nothing names a character set"},
    {"exit-twice", "a location has two exits for one word"},
    {"word-twice", "the vocabulary holds a word twice"},
    {"number-twice", "two records have one number"},
    {"object-inside-itself", "a container is inside itself"},
    {"object-twin", "two objects at one place have one name"},
    {"text-empty", "a text that a rule prints says nothing"},
    {"gap", "numbers between two records are free"},
};

std::size_t OrderOf(std::string_view code) {
    const auto* rule = std::find_if(std::begin(kRules), std::end(kRules),
                                    [&](const LintRule& entry) { return entry.code == code; });
    return static_cast<std::size_t>(rule - std::begin(kRules));
}

bool IsRule(std::string_view code) {
    return OrderOf(code) < std::size(kRules);
}

/// What a line of switches takes besides its reason, in characters; with it at most as many as a header.
constexpr std::size_t kLongestLine = store::kDefaultTextSize - kLongestReason - 1;

void AddLines(store::Adventure& adventure, const LintLine& added) {
    store::Cursor& headers = adventure.OpenTable(store::TableNum::Header, "def");
    for (std::string line : added.switches.Lines()) {
        if (!added.reason.empty()) line.append(" ").append(added.reason);
        headers.AddNew();
        headers.SetField("hdrkey", std::string(kLintHeader));
        headers.SetField("hdrmess", std::move(line));
        headers.Update();
    }
}

/// Reads a line; nullopt when it begins with no code.
std::optional<LintLine> ReadLine(std::string_view line) {
    const auto tokens = condacts::SplitLine(line);
    if (tokens.empty() || !IsRule(tokens[0].text)) return std::nullopt;
    LintLine read;
    std::size_t i = 0;
    while (i < tokens.size() && IsRule(tokens[i].text)) {
        const std::string code(tokens[i].text);
        std::size_t next = i + 1;
        for (; next < tokens.size(); ++next) {
            const auto number = condacts::NumberOfToken(tokens[next].text);
            if (!number) break;
            read.switches.records.insert({code, *number});
        }
        if (next == i + 1) read.switches.rules.insert(code);
        i = next;
    }
    const condacts::Token& last = tokens[i - 1];
    read.reason = text::TrimBlanks(line.substr(last.position + last.text.size()));
    return read;
}

}  // namespace

std::span<const LintRule> AllLintRules() {
    return kRules;
}

bool LintSwitches::Add(std::string_view line) {
    const auto read = ReadLine(line);
    if (!read) return false;
    rules.insert(read->switches.rules.begin(), read->switches.rules.end());
    records.insert(read->switches.records.begin(), read->switches.records.end());
    return true;
}

void LintSwitches::Remove(const LintSwitches& others) {
    for (const std::string& rule : others.rules) {
        rules.erase(rule);
        std::erase_if(records, [&](const auto& record) { return record.first == rule; });
    }
    for (const auto& record : others.records)
        records.erase(record);
}

std::vector<std::string> LintSwitches::Lines() const {
    std::vector<std::string> lines(rules.begin(), rules.end());
    std::string code;
    for (const auto& [rule, record] : records) {
        const std::string number = " " + std::to_string(record);
        if (rule == code && lines.back().size() + number.size() <= kLongestLine) {
            lines.back() += number;
        } else {
            lines.push_back(rule + number);
        }
        code = rule;
    }
    return lines;
}

bool LintSwitches::Hides(const Finding& finding) const {
    return rules.contains(finding.code) || records.contains({std::string(finding.code), finding.record});
}

std::vector<LintLine> StoredLines(store::Adventure& adventure) {
    std::vector<LintLine> lines;
    store::PreparedQuery rows = adventure.Prepare(store::TableNum::Header, "hdrkey, hdrmess", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        if (!text::EqualsNoCase(rows.Text(0), kLintHeader)) continue;
        if (auto line = ReadLine(rows.Text(1))) lines.push_back(std::move(*line));
    }
    return lines;
}

LintSwitches StoredSwitches(store::Adventure& adventure) {
    LintSwitches switches;
    for (LintLine& line : StoredLines(adventure)) {
        switches.rules.merge(line.switches.rules);
        switches.records.merge(line.switches.records);
    }
    return switches;
}

std::string ReasonOf(std::string_view typed) {
    const std::string line =
        text::NormalizeLineEnds(text::ReplaceAll(typed, text::kLineEndMarker, " "), " ");
    const auto tokens = condacts::SplitLine(line);
    const bool misleads =
        !tokens.empty() && (IsRule(tokens[0].text) || condacts::NumberOfToken(tokens[0].text));
    return (misleads ? "- " : "") + std::string(text::TrimBlanks(line));
}

void SwitchOff(store::Adventure& adventure, const LintSwitches& switches, std::string_view reason) {
    LintSwitches missing = switches;
    missing.Remove(StoredSwitches(adventure));
    AddLines(adventure, {missing, std::string(reason)});
}

void SwitchOn(store::Adventure& adventure, const LintSwitches& switches) {
    std::vector<LintLine> kept;
    store::Cursor& headers = adventure.OpenTable(store::TableNum::Header, "def");
    for (; !headers.Eof(); headers.MoveNext()) {
        if (!text::EqualsNoCase(headers.Text("hdrkey"), kLintHeader)) continue;
        auto line = ReadLine(headers.Text("hdrmess"));
        if (!line) continue;
        const LintSwitches before = line->switches;
        line->switches.Remove(switches);
        if (line->switches.rules == before.rules && line->switches.records == before.records) continue;
        kept.push_back(std::move(*line));
        headers.Delete();
    }
    for (const LintLine& line : kept)
        AddLines(adventure, line);
}

std::vector<Finding> Lint(store::Adventure& adventure, const LintSwitches& switches) {
    const LintGame game(adventure);
    Findings findings;
    CheckMissing(game, findings);
    CheckEntries(game, findings);
    CheckOrder(game, findings);
    CheckUnused(game, findings);
    CheckReach(game, findings);
    CheckRecords(game, findings);
    std::vector<Finding>& all = findings.All();
    std::erase_if(all, [&](const Finding& finding) { return switches.Hides(finding); });
    std::stable_sort(all.begin(), all.end(), [](const Finding& a, const Finding& b) {
        return std::pair(OrderOf(a.code), a.record) < std::pair(OrderOf(b.code), b.record);
    });
    return std::move(all);
}

}  // namespace fabula::references
