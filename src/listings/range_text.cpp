#include "listings/range_text.h"

#include <algorithm>
#include <optional>
#include <set>

#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::listings {
namespace {

using store::TableNum;

/// Built-in flags that every table has, and the most that it holds beside them.
constexpr std::int64_t kFixedEntries = 60;
constexpr std::int64_t kHighestEntry = 255;

constexpr std::string_view kAll = "ALL";

/// The messages that differ from table to table. What stands before them is the number at fault.
struct Messages {
    std::string_view empty;
    std::string_view tooManyDashes;
    std::string_view outside;       ///< of a number
    std::string_view startOutside;  ///< of the start of a range
    std::string_view endOutside;
};
constexpr Messages kProcessMessages = {
    "No Process Tables specified to print", "too many dashes in a row",
    " is outside range of Process Tables",  " is outside range of Process Tables",
    " is outside range of Process Tables",
};
// The blanks are as they have always been.
constexpr Messages kPictureMessages = {
    "No records specified for Listing",    "Too many dashes in a row",
    " is outside range of Graphics Table", " is outside range of  Graphics table",
    " is outside range of Graphics Table",
};

constexpr Messages kWordTypeMessages = {
    "",
    "too many dashes in a row",
    " is outside range of Word Types",
    " is outside range of Word Types",
    " is outside range of Word Types",
};

RangeCheck Fault(std::string message) {
    return {{}, std::move(message)};
}

/// The number of an item: digits and nothing else.
std::optional<std::int64_t> NumberOf(std::string_view item) {
    const bool digits = std::ranges::all_of(item, [](char c) { return c >= '0' && c <= '9'; });
    if (item.empty() || !digits) return std::nullopt;
    return text::WholeNumber(item);
}

/// The items of a range, checked one after the other.
class Items {
  public:
    /// `existing` are the numbers that have records; it outlives the items.
    Items(const Messages& messages, const std::set<int>& existing)
        : messages_(messages), existing_(existing), highest_(existing.empty() ? -1 : *existing.rbegin()) {}

    RangeCheck Check(std::string_view list) {
        for (const std::string_view item : text::Split(list, ",")) {
            const int dashes = text::CountOccurrences(item, "-");
            if (dashes > 1) return Fault(std::string(messages_.tooManyDashes));
            std::string fault = dashes == 0 ? AddNumber(item) : AddRange(item);
            if (!fault.empty()) return Fault(std::move(fault));
        }
        return std::move(check_);
    }

  private:
    std::string AddNumber(std::string_view item) {
        const auto number = NumberOf(item);
        if (!number) return std::string(item) + " is not numeric";
        if (*number > highest_) return std::to_string(*number) + std::string(messages_.outside);
        Take(*number, *number);
        return "";
    }

    /// An end that is left out is the highest number.
    std::string AddRange(std::string_view item) {
        const std::string first = text::GetField(0, "-", item);
        const std::string last = text::GetField(1, "-", item);
        const auto from = NumberOf(first);
        if (!from) return first + " is not numeric";
        const auto to = last.empty() ? highest_ : NumberOf(last);
        if (!to) return last + " is not numeric";
        if (*from > *to) return "Beginning range > ending range in " + std::string(item);
        if (*from > highest_) return std::to_string(*from) + std::string(messages_.startOutside);
        if (*to > highest_) return std::to_string(*to) + std::string(messages_.endOutside);
        Take(*from, *to);
        return "";
    }

    /// Takes what exists of a range, each number once.
    void Take(std::int64_t from, std::int64_t to) {
        for (auto it = existing_.lower_bound(static_cast<int>(from)); it != existing_.end() && *it <= to;
             ++it) {
            if (taken_.insert(*it).second) check_.numbers.push_back(*it);
        }
    }

    const Messages& messages_;
    const std::set<int>& existing_;
    std::int64_t highest_;
    std::set<int> taken_;
    RangeCheck check_;
};

bool HasWrongMarks(std::string_view text) {
    return text.find_first_of(".:;") != std::string_view::npos;
}

constexpr std::string_view kWrongMarks = "Periods, Colons, or SemiColons not allowed";

/// The numbers from 0 up in a field of a table.
std::set<int> NumbersIn(store::Adventure& adventure, TableNum table, const std::string& field) {
    store::PreparedQuery rows = adventure.Prepare(table, field, field + ">=0", field);
    std::set<int> numbers;
    for (bool more = rows.First({}); more; more = rows.Next())
        numbers.insert(numbers.end(), static_cast<int>(rows.Number(0)));
    return numbers;
}

RangeCheck CheckProcesses(const std::string& text, store::Adventure& adventure, bool special) {
    if (text.empty()) return Fault(std::string(kProcessMessages.empty));
    const std::set<int> tables = NumbersIn(adventure, TableNum::ProcessTables, "estype");
    const bool all = text::EqualsNoCase(text, kAll);
    if (all && tables.empty()) return {};
    const std::string list = all ? "0-" + std::to_string(*tables.rbegin()) : text;
    if (HasWrongMarks(list)) return Fault(std::string(kWrongMarks));
    if (special && list.find_first_of("-,") != std::string::npos)
        return Fault("Cannot print more than one table when Special Listing is checked");
    return Items(kProcessMessages, tables).Check(list);
}

RangeCheck CheckPictures(const std::string& text, store::Adventure& adventure) {
    if (text.empty()) return Fault(std::string(kPictureMessages.empty));
    if (text::EqualsNoCase(text, kAll)) return Fault("Sorry, you can't do all of them.");
    if (HasWrongMarks(text)) return Fault(std::string(kWrongMarks));
    const std::set<int> pictures = NumbersIn(adventure, TableNum::Pictures, "locnum");
    return Items(kPictureMessages, pictures).Check(text);
}

RangeCheck CheckWordTypes(const std::string& text, store::Adventure& adventure) {
    if (HasWrongMarks(text)) return Fault(std::string(kWrongMarks));
    const std::set<int> types = NumbersIn(adventure, TableNum::Vocabulary, "voctypen");
    const bool all = text.empty() || text::EqualsNoCase(text, kAll);
    if (all) return {{types.begin(), types.end()}, ""};
    return Items(kWordTypeMessages, types).Check(text);
}

RangeCheck CheckExtraEntries(const std::string& text) {
    if (text.empty()) return {};
    const auto number = NumberOf(text);
    if (!number) return Fault(text + " is not numeric");
    if (*number > kHighestEntry - kFixedEntries)
        return Fault(text + " extra entries would take it out of the table");
    return {{static_cast<int>(*number)}, ""};
}

}  // namespace

RangeCheck ValidateRange(std::string_view typed, TableNum table, store::Adventure& adventure,
                         bool special) {
    const std::string text = text::StrEdit(typed, "collapse");
    switch (table) {
        case TableNum::ProcessTables:
            return CheckProcesses(text, adventure, special);
        case TableNum::Flags:
            return CheckExtraEntries(text);
        case TableNum::Vocabulary:
            return CheckWordTypes(text, adventure);
        case TableNum::Pictures:
            return CheckPictures(text, adventure);
        default:
            return {};
    }
}

}  // namespace fabula::listings
