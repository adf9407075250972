#include "text/unified_diff.h"

#include <algorithm>
#include <vector>

namespace fabula::text {
namespace {

constexpr std::size_t kContext = 3;

/// Texts with more differences than this are not compared any closer: the search takes memory by the
/// square of their number.
constexpr int kMostChanges = 2000;

using Lines = std::vector<std::string_view>;

/// Each line with its end, so that a last line without one differs from one that has it.
Lines SplitLines(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

/// A line of the difference; `kind` is the character in front of it.
struct Step {
    char kind;
    std::string_view line;
};
constexpr char kSame = ' ';
constexpr char kRemoved = '-';
constexpr char kAdded = '+';

/// Looks for the shortest way from one list of lines to another. On diagonal k the place in `before` is k
/// ahead of the place in `after`; a removed line leads to the next diagonal, an added one to the one
/// before.
class Search {
  public:
    Search(const Lines& before, const Lines& after) : before_(before), after_(after) {}

    std::vector<Step> Steps() {
        const int changes = CountChanges();
        std::vector<Step> steps = changes < 0 ? ReplaceAll() : WalkBack(changes);
        std::reverse(steps.begin(), steps.end());
        return steps;
    }

  private:
    /// How far a number of changes reaches in `before`, by diagonal from -changes - 1 to changes + 1.
    using Reach = std::vector<int>;

    static int& At(Reach& reach, int changes, int diagonal) {
        return reach[static_cast<std::size_t>(diagonal + changes + 1)];
    }

    bool AddsLast(int changes, int diagonal) {
        Reach& last = reaches_[static_cast<std::size_t>(changes) - 1];
        if (diagonal == -changes) return true;
        return diagonal != changes &&
               At(last, changes - 1, diagonal - 1) < At(last, changes - 1, diagonal + 1);
    }

    /// The place in `before` at which the last of `changes` changes leads to a diagonal.
    int Arrival(int changes, int diagonal) {
        if (changes == 0) return 0;
        Reach& last = reaches_[static_cast<std::size_t>(changes) - 1];
        return AddsLast(changes, diagonal) ? At(last, changes - 1, diagonal + 1)
                                           : At(last, changes - 1, diagonal - 1) + 1;
    }

    /// The number of changes in the shortest way, -1 when they are too many.
    int CountChanges() {
        const int beforeSize = static_cast<int>(before_.size());
        const int afterSize = static_cast<int>(after_.size());
        for (int changes = 0; changes <= std::min(beforeSize + afterSize, kMostChanges); ++changes) {
            reaches_.emplace_back(static_cast<std::size_t>(2 * changes + 3), 0);
            for (int diagonal = -changes; diagonal <= changes; diagonal += 2) {
                int place = Arrival(changes, diagonal);
                while (place < beforeSize && place - diagonal < afterSize &&
                       before_[static_cast<std::size_t>(place)] ==
                           after_[static_cast<std::size_t>(place - diagonal)]) {
                    ++place;
                }
                At(reaches_.back(), changes, diagonal) = place;
                if (place >= beforeSize && place - diagonal >= afterSize) return changes;
            }
        }
        return -1;
    }

    std::vector<Step> WalkBack(int changes) {
        std::vector<Step> steps;
        std::size_t place = before_.size();
        int diagonal = static_cast<int>(before_.size()) - static_cast<int>(after_.size());
        for (; changes >= 0; --changes) {
            const auto arrival = static_cast<std::size_t>(Arrival(changes, diagonal));
            for (; place > arrival; --place)
                steps.push_back({kSame, before_[place - 1]});
            if (changes == 0) break;
            if (AddsLast(changes, diagonal)) {
                const auto added = static_cast<std::size_t>(static_cast<int>(place) - diagonal) - 1;
                steps.push_back({kAdded, after_[added]});
                ++diagonal;
            } else {
                steps.push_back({kRemoved, before_[--place]});
                --diagonal;
            }
        }
        return steps;
    }

    std::vector<Step> ReplaceAll() const {
        std::vector<Step> steps;
        for (std::size_t i = after_.size(); i > 0; --i)
            steps.push_back({kAdded, after_[i - 1]});
        for (std::size_t i = before_.size(); i > 0; --i)
            steps.push_back({kRemoved, before_[i - 1]});
        return steps;
    }

    const Lines& before_;
    const Lines& after_;
    std::vector<Reach> reaches_;  ///< by number of changes
};

/// All lines of the difference in order. What both texts begin and end with is set aside first.
std::vector<Step> Compare(Lines before, Lines after) {
    std::vector<Step> head;
    std::vector<Step> tail;
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        tail.push_back({kSame, before.back()});
        before.pop_back();
        after.pop_back();
    }
    std::size_t equal = 0;
    for (; equal < std::min(before.size(), after.size()) && before[equal] == after[equal]; ++equal)
        head.push_back({kSame, before[equal]});
    before.erase(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(equal));
    after.erase(after.begin(), after.begin() + static_cast<std::ptrdiff_t>(equal));
    const std::vector<Step> middle = Search(before, after).Steps();
    head.insert(head.end(), middle.begin(), middle.end());
    head.insert(head.end(), tail.rbegin(), tail.rend());
    return head;
}

/// A place in both texts, counted in lines.
struct Place {
    std::size_t before = 0;
    std::size_t after = 0;

    void Pass(const Step& step) {
        if (step.kind != kAdded) ++before;
        if (step.kind != kRemoved) ++after;
    }
};

/// "12,7", "12" for one line, and for none the line in front of it: "11,0".
std::string Range(std::size_t first, std::size_t end) {
    const std::size_t count = end - first;
    if (count == 1) return std::to_string(end);
    return std::to_string(count == 0 ? first : first + 1) + "," + std::to_string(count);
}

void AppendHunk(const std::vector<Step>& steps, std::size_t first, std::size_t end, Place& place,
                std::string& diff) {
    const Place start = place;
    std::string body;
    for (std::size_t i = first; i < end; ++i) {
        place.Pass(steps[i]);
        body += steps[i].kind;
        body += steps[i].line;
        if (body.back() != '\n') body += "\n\\ No newline at end of file\n";
    }
    diff += "@@ -" + Range(start.before, place.before) + " +" + Range(start.after, place.after) + " @@\n";
    diff += body;
}

}  // namespace

std::string UnifiedDiff(std::string_view before, std::string_view after, std::string_view beforeName,
                        std::string_view afterName) {
    if (before == after) return "";
    std::string diff = "--- ";
    diff.append(beforeName).append("\n+++ ").append(afterName).append("\n");
    const std::vector<Step> steps = Compare(SplitLines(before), SplitLines(after));
    const auto changed = [](const Step& step) { return step.kind != kSame; };
    Place place;
    std::size_t done = 0;
    for (;;) {
        const auto next =
            std::find_if(steps.begin() + static_cast<std::ptrdiff_t>(done), steps.end(), changed);
        if (next == steps.end()) return diff;
        const auto change = static_cast<std::size_t>(next - steps.begin());
        const std::size_t first = std::max(done, change - std::min(change, kContext));
        for (; done < first; ++done)
            place.Pass(steps[done]);
        // Changes that share a line of context stand in one hunk.
        std::size_t end = change + 1;
        for (std::size_t i = end; i < steps.size() && i <= end + 2 * kContext; ++i) {
            if (changed(steps[i])) end = i + 1;
        }
        end = std::min(end + kContext, steps.size());
        AppendHunk(steps, first, end, place, diff);
        done = end;
    }
}

}  // namespace fabula::text
