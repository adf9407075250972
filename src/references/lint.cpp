#include "references/lint.h"

#include <algorithm>

#include "condacts/parser.h"
#include "references/lint_game.h"
#include "text/utf8.h"

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

/// A line that an adventure keeps, in characters.
constexpr std::size_t kLongestLine = 255;

void AddLines(store::Adventure& adventure, const LintSwitches& switches) {
    store::Cursor& headers = adventure.OpenTable(store::TableNum::Header, "def");
    for (const std::string& line : switches.Lines()) {
        headers.AddNew();
        headers.SetField("hdrkey", std::string(kLintHeader));
        headers.SetField("hdrmess", line);
        headers.Update();
    }
}

}  // namespace

std::span<const LintRule> AllLintRules() {
    return kRules;
}

bool LintSwitches::Add(std::string_view line) {
    const auto tokens = condacts::SplitLine(line);
    if (tokens.empty() || !IsRule(tokens[0].text)) return false;
    for (std::size_t i = 0; i < tokens.size() && IsRule(tokens[i].text);) {
        const std::string code(tokens[i].text);
        std::size_t next = i + 1;
        for (; next < tokens.size(); ++next) {
            const auto number = condacts::WholeNumber(tokens[next].text);
            if (!number) break;
            records.insert({code, *number});
        }
        if (next == i + 1) rules.insert(code);
        i = next;
    }
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

LintSwitches StoredSwitches(store::Adventure& adventure) {
    LintSwitches switches;
    store::PreparedQuery rows = adventure.Prepare(store::TableNum::Header, "hdrkey, hdrmess", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        if (text::EqualsNoCase(rows.Text(0), kLintHeader)) switches.Add(rows.Text(1));
    }
    return switches;
}

void SwitchOff(store::Adventure& adventure, const LintSwitches& switches) {
    LintSwitches missing = switches;
    missing.Remove(StoredSwitches(adventure));
    AddLines(adventure, missing);
}

void SwitchOn(store::Adventure& adventure, const LintSwitches& switches) {
    LintSwitches kept;
    store::Cursor& headers = adventure.OpenTable(store::TableNum::Header, "def");
    for (; !headers.Eof(); headers.MoveNext()) {
        LintSwitches line;
        if (!text::EqualsNoCase(headers.Text("hdrkey"), kLintHeader) || !line.Add(headers.Text("hdrmess")))
            continue;
        const LintSwitches before = line;
        line.Remove(switches);
        if (line.rules == before.rules && line.records == before.records) continue;
        kept.rules.merge(line.rules);
        kept.records.merge(line.records);
        headers.Delete();
    }
    AddLines(adventure, kept);
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
