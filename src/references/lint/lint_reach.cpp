#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "condacts/flags.h"
#include "condacts/places.h"
#include "references/condact_access.h"
#include "references/lint/lint_game.h"

namespace fabula::references {
namespace {

using condacts::FlagNumber;
using condacts::PlaceNumber;
using store::TableNum;

/// Actions behind which the player is at the location that they name.
constexpr std::string_view kGoing[] = {"GOTO", "RESET"};

/// Whether the number does not stand there and is known all the same: exits are looked at for themselves,
/// and what is copied from flag to flag is followed.
bool IsFollowed(const CondActAccess& access) {
    return access.flow == Flow::Walks || access.flow == Flow::Copies;
}

std::optional<int> NumberAt(const LintEntry& entry, const condacts::Statement& statement, std::size_t i) {
    if (i >= statement.paramsGiven) return std::nullopt;
    return condacts::NumberOfToken(entry.line.Param(statement, i));
}

/// The search for places that the player can come to.
class Reach {
  public:
    explicit Reach(const LintGame& game) : game_(game) {
        Visit(game.start);
        const std::set<FlagNumber> flags = FlagsOfPlace();
        for (const auto& entry : game.entries)
            ReadEntry(*entry, flags);
        while (!waiting_.empty()) {
            const PlaceNumber place = waiting_.back();
            waiting_.pop_back();
            for (const LintLocation& location : game.locations) {
                if (location.number == place) FollowExits(location);
            }
        }
    }

    /// The player may be sent anywhere by a number that no rule states.
    bool IsOpen() const { return open_; }
    bool Has(PlaceNumber place) const { return reached_.contains(place); }

  private:
    void Visit(PlaceNumber place) {
        if (reached_.insert(place).second) waiting_.push_back(place);
    }

    void FollowExits(const LintLocation& location) {
        for (std::size_t i = 1; i < location.numbers.size(); i += 2) {
            if (const auto to = condacts::NumberOfToken(location.numbers[i])) Visit(PlaceNumber(*to));
        }
    }

    /// The flags whose numbers come to be the player's place: its own flag, and what is copied to one of
    /// them.
    std::set<FlagNumber> FlagsOfPlace() const {
        std::set<FlagNumber> flags{condacts::flag::kLocation};
        for (std::size_t before = 0; before != flags.size();) {
            before = flags.size();
            for (const auto& entry : game_.entries) {
                for (const condacts::Statement& statement : entry->line.statements) {
                    if (FlowOf(statement.condAct->name) != Flow::Copies) continue;
                    const auto from = NumberAt(*entry, statement, 0);
                    const auto to = NumberAt(*entry, statement, 1);
                    if (from && to && flags.contains(FlagNumber(*to))) flags.insert(FlagNumber(*from));
                }
            }
        }
        return flags;
    }

    void ReadEntry(const LintEntry& entry, const std::set<FlagNumber>& flags) {
        for (const condacts::Statement& statement : entry.line.statements) {
            const std::string& name = statement.condAct->name;
            const auto first = NumberAt(entry, statement, 0);
            const auto second = NumberAt(entry, statement, 1);
            if (Holds(kGoing, name) && first) Visit(PlaceNumber(*first));
            const bool inFirst = first && flags.contains(FlagNumber(*first));
            const bool inSecond = second && flags.contains(FlagNumber(*second));
            if (name == "LET" && inFirst && second) Visit(PlaceNumber(*second));
            const CondActAccess* const access = FindCondActAccess(name);
            if (access == nullptr || IsFollowed(*access)) continue;
            open_ = open_ || (access->computes == 1 && inFirst) || (access->computes == 2 && inSecond);
        }
    }

    const LintGame& game_;
    std::set<PlaceNumber> reached_;
    std::vector<PlaceNumber> waiting_;
    bool open_ = false;
};

}  // namespace

void CheckReach(const LintGame& game, Findings& findings) {
    const Reach reach(game);
    if (reach.IsOpen()) return;
    std::set<PlaceNumber> containers;
    for (const LintObject& object : game.objects) {
        if (object.container) containers.insert(condacts::Inside(object.number));
    }
    for (const LintLocation& location : game.locations) {
        const bool special = condacts::IsSpecialPlace(location.number);
        if (special || reach.Has(location.number) || containers.contains(location.number)) continue;
        findings.Add(
            "location-unreachable", TableNum::Locations, location.number.value,
            "No exit and no rule leads to location " + std::to_string(location.number.value) + ".");
    }
}

}  // namespace fabula::references
