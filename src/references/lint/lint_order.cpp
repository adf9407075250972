#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "condacts/words.h"
#include "references/condact_access.h"
#include "references/lint/lint_game.h"

namespace fabula::references {
namespace {

/// Conditions that may be false at one moment and true at the next with nothing done between.
constexpr std::string_view kUnsteady[] = {"CHANCE", "YESNO", "QUIT", "TIMEOUT"};
/// How far behind an entry those that it may hide are looked for.
constexpr std::size_t kFarthest = 200;

bool IsWild(condacts::WordNumber word) {
    return word == condacts::kNoWordNumber || word == condacts::kAnyWordNumber;
}

/// What an entry asks for in front of its first action, and whether it ends its table once it has got that
/// far.
struct Form {
    std::set<std::string> conditions;
    bool steady = true;  ///< what it asks for changes by actions only
    bool ends = false;
};

Form FormOf(const LintEntry& entry) {
    Form form;
    bool acting = false;
    for (const condacts::Statement& statement : entry.line.statements) {
        const std::string& name = statement.condAct->name;
        if (!statement.condAct->isAction) {
            // A condition behind an action may stop the entry before its end.
            if (acting) return form;
            form.steady = form.steady && !Holds(kUnsteady, name);
            std::string text = name;
            for (std::size_t i = 0; i < statement.paramsGiven; ++i)
                text.append(" ").append(entry.line.Param(statement, i));
            form.conditions.insert(text);
            continue;
        }
        acting = true;
        // MOVE is a condition, too, and DOALL and waits may leave the entry.
        if (name == "MOVE" || name == "DOALL" || name == "ANYKEY") return form;
        if (EndsTable(name)) {
            form.ends = true;
            return form;
        }
    }
    return form;
}

/// Whether an entry answers whenever the other one would.
bool AnswersAll(const LintEntry& entry, const LintEntry& other) {
    return (IsWild(entry.verb) || entry.verb == other.verb) &&
           (IsWild(entry.noun) || entry.noun == other.noun);
}

/// Whether some sentence fits both.
bool MayBothAnswer(const LintEntry& a, const LintEntry& b) {
    return (IsWild(a.verb) || IsWild(b.verb) || a.verb == b.verb) &&
           (IsWild(a.noun) || IsWild(b.noun) || a.noun == b.noun);
}

}  // namespace

/// An entry hides a later one of its table that answers to no more and asks for all that it asks for, and
/// more: had the later one anything to run for, the first would have run and ended the table. What changes
/// the game between the two may have made the first one's conditions true only behind it, so that the
/// search stops there.
void CheckOrder(const LintGame& game, Findings& findings) {
    std::vector<Form> forms;
    forms.reserve(game.entries.size());
    for (const auto& entry : game.entries)
        forms.push_back(FormOf(*entry));
    std::set<std::int64_t> told;
    for (std::size_t i = 0; i < game.entries.size(); ++i) {
        const LintEntry& first = *game.entries[i];
        if (!forms[i].ends || !forms[i].steady) continue;
        for (std::size_t j = i + 1; j < std::min(game.entries.size(), i + kFarthest); ++j) {
            const LintEntry& later = *game.entries[j];
            if (later.process != first.process) break;
            const bool hidden = AnswersAll(first, later) &&
                                std::includes(forms[j].conditions.begin(), forms[j].conditions.end(),
                                              forms[i].conditions.begin(), forms[i].conditions.end());
            if (hidden && told.insert(later.key).second) {
                std::string name = NameOf(later);
                name[0] = 'P';
                findings.Add("entry-never", store::TableNum::ProcessTables, later.key,
                             name + " can't run: entry " + std::to_string(first.key) +
                                 " answers before it and ends the table.",
                             "condacts");
            }
            const bool unconditional = forms[i].conditions.empty();
            if (!unconditional && MayBothAnswer(first, later) && !forms[j].ends) break;
        }
    }
}

}  // namespace fabula::references
