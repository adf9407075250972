#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "condacts/flags.h"
#include "references/condact_access.h"
#include "references/lint/lint_game.h"

namespace fabula::references {
namespace {

using store::TableNum;

/// Conditions that may turn out otherwise when they are asked again.
constexpr std::string_view kAskedAgain[] = {"CHANCE", "YESNO", "QUIT"};

std::string TextOf(const LintEntry& entry, const condacts::Statement& statement) {
    std::string text = statement.condAct->name;
    for (std::size_t i = 0; i < statement.paramsGiven; ++i)
        text.append(" ").append(entry.line.Param(statement, i));
    return text;
}

std::string EntrySubject(const LintEntry& entry) {
    std::string name = NameOf(entry);
    name[0] = 'P';
    return name;
}

void Add(Findings& findings, std::string_view code, const LintEntry& entry, const std::string& sentence,
         std::size_t token) {
    findings.Add(code, TableNum::ProcessTables, entry.key, EntrySubject(entry) + " " + sentence, "condacts",
                 token);
}

void CheckLine(const LintEntry& entry, Findings& findings) {
    const condacts::ParsedLine& line = entry.line;
    if (line.unknownName) {
        Add(findings, "line-unknown", entry,
            "holds " + std::string(line.tokens[*line.unknownName].text) +
                ", which is no condition or action.",
            *line.unknownName);
        return;
    }
    for (const condacts::Statement& statement : line.statements) {
        if (statement.paramsGiven < static_cast<std::size_t>(statement.condAct->paramCount))
            return Add(findings, "line-short", entry,
                       "ends in " + statement.condAct->name + " without all its parameters.",
                       statement.name);
    }
    const auto numbers = condacts::SplitLine(entry.numbers);
    bool fits = numbers.size() == line.tokens.size();
    for (const condacts::Statement& statement : line.statements) {
        fits = fits && condacts::NumberOfToken(numbers[statement.name].text) == statement.condAct->number;
    }
    if (!fits) Add(findings, "line-uncompiled", entry, "is compiled to something else than it says.", 0);
}

/// What the conditions in front of an entry's first action say of one thing: a flag, a place, an object.
class Knowledge {
  public:
    /// Takes a condition to be true; false when it can't be with those before.
    bool Take(const std::string& name, std::optional<int> a, std::optional<int> b) {
        if (!a) return true;
        if (name == "AT") return Equal("place", *a);
        if (name == "NOTAT") return Differs("place", *a);
        if (name == "ATGT") return AtLeast("place", *a + 1);
        if (name == "ATLT") return AtMost("place", *a - 1);
        const std::string flag = "flag " + std::to_string(*a);
        if (*a == condacts::flag::kLocation.value && b) return Take(kPlaceNames.at(name), b, std::nullopt);
        if (name == "ZERO") return Equal(flag, 0);
        if (name == "NOTZERO") return Differs(flag, 0);
        if (name == "EQ" && b) return Equal(flag, *b);
        if (name == "NOTEQ" && b) return Differs(flag, *b);
        if (name == "GT" && b) return AtLeast(flag, *b + 1);
        if (name == "LT" && b) return AtMost(flag, *b - 1);
        if (name == "ISAT" && b) return Equal("object " + std::to_string(*a), *b);
        if (name == "ISNOTAT" && b) return Differs("object " + std::to_string(*a), *b);
        return TakeOpposites(name, *a);
    }

  private:
    /// What the conditions on a flag are called where the flag is the player's place.
    static inline const std::map<std::string, std::string> kPlaceNames = {
        {"EQ", "AT"}, {"NOTEQ", "NOTAT"}, {"GT", "ATGT"}, {"LT", "ATLT"}, {"SAME", ""}, {"NOTSAME", ""}};

    struct Range {
        int low = -100000;
        int high = 100000;
        std::set<int> without;
        bool Possible() const {
            if (low > high) return false;
            return low != high || !without.contains(low);
        }
    };

    bool AtLeast(const std::string& thing, int value) {
        ranges_[thing].low = std::max(ranges_[thing].low, value);
        return ranges_[thing].Possible();
    }
    bool AtMost(const std::string& thing, int value) {
        ranges_[thing].high = std::min(ranges_[thing].high, value);
        return ranges_[thing].Possible();
    }
    bool Equal(const std::string& thing, int value) {
        return AtLeast(thing, value) && AtMost(thing, value);
    }
    bool Differs(const std::string& thing, int value) {
        ranges_[thing].without.insert(value);
        return ranges_[thing].Possible();
    }

    bool TakeOpposites(const std::string& name, int number) {
        static const std::map<std::string, std::pair<std::string, int>> kSides = {
            {"PRESENT", {"present", 1}}, {"ABSENT", {"present", 0}},  {"WORN", {"worn", 1}},
            {"NOTWORN", {"worn", 0}},    {"CARRIED", {"carried", 1}}, {"NOTCARR", {"carried", 0}}};
        const auto side = kSides.find(name);
        if (side == kSides.end()) return true;
        return Equal(side->second.first + " " + std::to_string(number), side->second.second);
    }

    std::map<std::string, Range> ranges_;
};

void CheckConditions(const LintEntry& entry, Findings& findings) {
    Knowledge known;
    std::set<std::string> seen;
    for (const condacts::Statement& statement : entry.line.statements) {
        if (statement.condAct->isAction) return;
        const std::string text = TextOf(entry, statement);
        if (!seen.insert(text).second && !Holds(kAskedAgain, statement.condAct->name)) {
            Add(findings, "condition-twice", entry, "asks twice for " + text + ".", statement.name);
            continue;
        }
        const auto number = [&](std::size_t i) -> std::optional<int> {
            if (i >= statement.paramsGiven) return std::nullopt;
            return condacts::NumberOfToken(entry.line.Param(statement, i));
        };
        if (known.Take(statement.condAct->name, number(0), number(1))) continue;
        return Add(findings, "entry-contradicts", entry,
                   "never gets past " + text + ", which the conditions before it rule out.",
                   statement.name);
    }
}

void CheckActions(const LintEntry& entry, Findings& findings) {
    const auto& statements = entry.line.statements;
    const bool acts =
        std::any_of(statements.begin(), statements.end(), [](const condacts::Statement& each) {
            // QUIT asks the player, as an action would.
            return each.condAct->isAction || each.condAct->name == "QUIT" || each.condAct->name == "YESNO";
        });
    if (!acts && !entry.line.unknownName)
        Add(findings, "entry-idle", entry, "does nothing: it has no action.", 0);
    for (std::size_t i = 0; i + 1 < statements.size(); ++i) {
        if (!EndsTable(statements[i].condAct->name)) continue;
        return Add(findings, "action-dead", entry,
                   "never comes to " + TextOf(entry, statements[i + 1]) + ", for " +
                       statements[i].condAct->name + " ends it.",
                   statements[i + 1].name);
    }
}

/// The numbers that a flag can hold, when all that set it say which.
std::optional<std::set<int>> ValuesOf(const LintGame& game, condacts::FlagNumber flag) {
    std::set<int> values{0};
    for (const KeptUse& kept : game.UsesOf(Target::Of(flag))) {
        if (kept.use.table != TableNum::ProcessTables) continue;
        if (kept.use.access == Access::Names || kept.use.access == Access::Both || kept.computes)
            return std::nullopt;
        if (kept.use.access != Access::Sets) continue;
        if (kept.value) {
            values.insert(*kept.value);
            continue;
        }
        const std::string_view name = game.EntryOf(kept).CondActBefore(kept.use.token);
        if (name == "SET")
            values.insert(condacts::kSet);
        else if (name != "CLEAR")
            return std::nullopt;
    }
    return values;
}

void CheckValues(const LintGame& game, Findings& findings) {
    for (const LintFlag& flag : game.flags) {
        if (flag.system) continue;
        const auto& uses = game.UsesOf(Target::Of(flag.number));
        const auto values = ValuesOf(game, flag.number);
        // A flag that is never set is told as such.
        if (!values || values->size() == 1) continue;
        for (const KeptUse& kept : uses) {
            if (kept.use.access != Access::Reads || !kept.value || values->contains(*kept.value)) continue;
            const LintEntry& entry = game.EntryOf(kept);
            if (entry.CondActBefore(kept.use.token) != "EQ") continue;
            Add(findings, "value-never", entry,
                "asks for " + std::to_string(*kept.value) + " in flag " +
                    std::to_string(flag.number.value) + ", which it is never given.",
                kept.use.token);
        }
    }
}

}  // namespace

void CheckEntries(const LintGame& game, Findings& findings) {
    for (const auto& entry : game.entries) {
        CheckLine(*entry, findings);
        CheckConditions(*entry, findings);
        CheckActions(*entry, findings);
    }
    CheckValues(game, findings);
}

}  // namespace fabula::references
