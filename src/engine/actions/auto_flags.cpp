#include "engine/actions/auto_flags.h"

#include <algorithm>
#include <cstdlib>

#include "engine/game.h"

namespace fabula::engine {

namespace {

struct DefaultKind {
    FlagNumber flag;
    int kind;
};

constexpr DefaultKind kDefaultKinds[] = {
    {flag::kDescriptions, -4}, {flag::kDarkDescriptions, -5}, {flag::kUnlitDescriptions, -6},
    {flag::kTurns1, -1},       {flag::kTurns2, -1},           {flag::kTurns3, -1},
    {flag::kTurns4, -1},       {flag::kDarkTurns, -2},        {flag::kUnlitTurns, -3},
};

bool IsDue(const Game& game, int kind, bool isDescribe) {
    const bool dark = game.Flag(flag::kDark) != 0;
    switch (kind) {
        case 1:
            return !isDescribe;
        case 2:
            return !isDescribe && dark;
        case 3:
            return !isDescribe && dark && !game.LightIsPresent();
        case 4:
            return isDescribe;
        case 5:
            return isDescribe && dark;
        case 6:
            return isDescribe && dark && !game.LightIsPresent();
        case 7:
            return !isDescribe && game.state.ObjectCount() > 0 &&
                   game.state.ObjectPlace(kLight) != place::kNotCreated;
        default:
            return false;
    }
}

}  // namespace

void SetAutoFlags(Game& game) {
    for (const DefaultKind& row : kDefaultKinds)
        SetAutoFlag(game, row.flag, row.kind);
}

void SetAutoFlag(Game& game, FlagNumber flag, int kind) {
    if (!game.state.HasFlag(flag)) FailMissing("flag", flag.value);
    std::vector<RunState::AutoFlag>& autoFlags = game.state.autoFlags;
    const auto at = std::find_if(autoFlags.begin(), autoFlags.end(),
                                 [&](const RunState::AutoFlag& other) { return other.flag >= flag; });
    if (at != autoFlags.end() && at->flag == flag) {
        at->kind = kind;
    } else {
        autoFlags.insert(at, {flag, kind});
    }
}

void DoAutoFlags(Game& game, bool isDescribe) {
    for (const auto& [flag, kind] : game.state.autoFlags) {
        if (!IsDue(game, std::abs(kind), isDescribe)) continue;
        if (kind < 0 && game.Flag(flag) == 0) continue;
        game.state.Plus(flag, kind < 0 ? -1 : 1);
    }
}

}  // namespace fabula::engine
