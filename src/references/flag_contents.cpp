#include "references/flag_contents.h"

#include <utility>
#include <vector>

#include "references/condact_access.h"

namespace fabula::references {
namespace {

using condacts::FlagNumber;

/// Whether of two flags each holds what the other one may.
bool Links(Flow flow) {
    return flow == Flow::Copies || flow == Flow::Compares;
}

/// The flags that a statement names.
std::vector<FlagNumber> FlagsOf(const LintEntry& entry, const condacts::Statement& statement) {
    std::vector<FlagNumber> flags;
    for (std::size_t i = 0; i < statement.paramsGiven; ++i) {
        if (statement.condAct->params[i].kind != condacts::ParamKind::Flag) continue;
        if (const auto number = condacts::NumberOfToken(entry.line.Param(statement, i)))
            flags.emplace_back(*number);
    }
    return flags;
}

}  // namespace

FlagContents::FlagContents(const LintGame& game) {
    std::vector<std::pair<FlagNumber, FlagNumber>> links;
    for (const auto& entry : game.entries) {
        for (const condacts::Statement& statement : entry->line.statements) {
            const std::vector<FlagNumber> flags = FlagsOf(*entry, statement);
            if (flags.empty()) continue;
            for (const FlagNumber flag : flags) {
                if (const auto meaning = FindFlagMeaning(flag)) kinds_[flag].insert(meaning->kind);
            }
            const CondActAccess* access = FindCondActAccess(statement.condAct->name);
            if (access == nullptr) continue;
            if (access->carries) kinds_[flags[0]].insert(*access->carries);
            if (Links(access->flow) && flags.size() == 2) links.emplace_back(flags[0], flags[1]);
            if (access->flow == Flow::Counts) counted_.insert(flags.back());
        }
    }
    for (bool grown = true; grown;) {
        grown = false;
        for (const auto& [a, b] : links) {
            const std::size_t before = kinds_[a].size() + kinds_[b].size();
            kinds_[a].insert(kinds_[b].begin(), kinds_[b].end());
            kinds_[b].insert(kinds_[a].begin(), kinds_[a].end());
            const bool spreads = counted_.contains(a) && !counted_.contains(b);
            if (spreads) counted_.insert(b);
            grown = grown || spreads || kinds_[a].size() + kinds_[b].size() != before;
        }
    }
}

bool FlagContents::Holds(FlagNumber flag, Kind kind) const {
    const auto found = kinds_.find(flag);
    return found != kinds_.end() && found->second.contains(kind);
}

bool FlagContents::IsMixed(FlagNumber flag) const {
    const auto found = kinds_.find(flag);
    return found != kinds_.end() && found->second.size() > 1;
}

}  // namespace fabula::references
