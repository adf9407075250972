#include "terminal/unified_diff.h"

#include <algorithm>
#include <vector>

#include <dtl/dtl.hpp>

namespace fabula::terminal {
namespace {

constexpr std::size_t kContext = 3;

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

char KindOf(dtl::edit_t type) {
    if (type == dtl::SES_COMMON) return kSame;
    return type == dtl::SES_ADD ? kAdded : kRemoved;
}

/// All lines of the difference in order: the shortest way from one list of lines to the other.
std::vector<Step> Compare(const Lines& before, const Lines& after) {
    constexpr bool kRemovedLinesFirst = true;
    dtl::Diff<std::string_view, Lines> search(before, after, kRemovedLinesFirst);
    search.compose();
    std::vector<Step> steps;
    for (const auto& [line, place] : search.getSes().getSequence())
        steps.push_back({KindOf(place.type), line});
    return steps;
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

}  // namespace fabula::terminal
