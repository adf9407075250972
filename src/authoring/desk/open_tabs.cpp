#include "authoring/desk/open_tabs.h"

#include <algorithm>
#include <utility>

#include "store/schema/table_catalogue.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

// A line of the stored form: what the constants below number, parted by tabs, and behind that the titles of
// the folded groups.
enum Column { kShown, kTable, kProcess, kKey, kRecord, kDown, kGrouping, kSortField, kFilter, kFirstTitle };

constexpr char kMark = '\\';

/// Line ends and tabs part the stored form.
std::string Masked(std::string_view text) {
    std::string masked;
    for (const char c : text) {
        if (c == '\t') {
            masked += "\\t";
        } else if (c == '\n') {
            masked += "\\n";
        } else if (c == kMark) {
            masked += "\\\\";
        } else {
            masked += c;
        }
    }
    return masked;
}

std::string Unmasked(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != kMark || at + 1 == text.size()) {
            plain += text[at];
            continue;
        }
        const char meant = text[++at];
        plain += meant == 't' ? '\t' : meant == 'n' ? '\n' : meant;
    }
    return plain;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

std::string LineOf(const OpenTab& tab, bool shown) {
    const PlaceInView& place = tab.place;
    std::string line = shown ? "1" : "0";
    for (const int number : {static_cast<int>(place.view.table), place.view.process})
        line.append("\t").append(std::to_string(number));
    line.append("\t").append(place.key ? std::to_string(*place.key) : std::string());
    for (const int number : {static_cast<int>(tab.record), static_cast<int>(place.sortsDown),
                             static_cast<int>(place.grouping)})
        line.append("\t").append(std::to_string(number));
    line.append("\t").append(Masked(place.sortField)).append("\t").append(Masked(place.filter));
    for (const std::string& title : place.folded)
        line.append("\t").append(Masked(title));
    return line;
}

std::optional<OpenTab> TabIn(const std::vector<std::string_view>& parts) {
    if (parts.size() < kFirstTitle) return std::nullopt;
    const auto table = text::SmallNumber(parts[kTable]);
    const auto process = text::SmallNumber(parts[kProcess]);
    const auto grouping = text::SmallNumber(parts[kGrouping]);
    if (!table || !process || !grouping) return std::nullopt;
    const auto known = static_cast<store::TableNum>(*table);
    const store::TableEntry* const entry = store::FindTable(known);
    if (!entry || entry->number != known) return std::nullopt;
    if (*process < 0 || *process > kOtherProcesses) return std::nullopt;
    if (*grouping < 0 || *grouping > static_cast<int>(Grouping::Object)) return std::nullopt;
    OpenTab tab;
    tab.place.view = {known, known == store::TableNum::ProcessTables ? *process : 0};
    tab.place.key = text::SmallNumber(parts[kKey]);
    tab.place.sortsDown = parts[kDown] == "1";
    tab.place.grouping = static_cast<Grouping>(*grouping);
    tab.place.sortField = Unmasked(parts[kSortField]);
    tab.place.filter = Unmasked(parts[kFilter]);
    for (std::size_t part = kFirstTitle; part < parts.size(); ++part)
        tab.place.folded.insert(Unmasked(parts[part]));
    tab.record = parts[kRecord] == "1";
    return tab;
}

}  // namespace

bool OpenTabs::Open(OpenTab tab) {
    if (tabs_.size() >= kMostTabs) return false;
    ++current_;
    tabs_.insert(tabs_.begin() + current_, std::move(tab));
    return true;
}

void OpenTabs::GoTo(int tab) {
    if (tab >= 0 && tab < Count()) current_ = tab;
}

int OpenTabs::Beside(int steps) const {
    return ((current_ + steps) % Count() + Count()) % Count();
}

bool OpenTabs::Close(int tab) {
    if (Count() == 1 || tab < 0 || tab >= Count()) return false;
    tabs_.erase(tabs_.begin() + tab);
    if (tab < current_ || current_ == Count()) --current_;
    return true;
}

void OpenTabs::Move(int from, int to) {
    if (from < 0 || to < 0 || from >= Count() || to >= Count() || from == to) return;
    OpenTab moved = std::move(tabs_[static_cast<std::size_t>(from)]);
    tabs_.erase(tabs_.begin() + from);
    tabs_.insert(tabs_.begin() + to, std::move(moved));
    if (current_ == from) {
        current_ = to;
    } else if (from < current_ && current_ <= to) {
        --current_;
    } else if (to <= current_ && current_ < from) {
        ++current_;
    }
}

std::string OpenTabs::Stored() const {
    std::string stored;
    for (int tab = 0; tab < Count(); ++tab) {
        if (tab > 0) stored += '\n';
        stored += LineOf(tabs_[static_cast<std::size_t>(tab)], tab == current_);
    }
    return stored;
}

OpenTabs OpenTabs::From(std::string_view stored) {
    OpenTabs tabs;
    tabs.tabs_.clear();
    for (const std::string_view line : Split(stored, '\n')) {
        const std::vector<std::string_view> parts = Split(line, '\t');
        auto tab = TabIn(parts);
        if (!tab || tabs.tabs_.size() == kMostTabs) continue;
        if (parts[kShown] == "1") tabs.current_ = tabs.Count();
        tabs.tabs_.push_back(std::move(*tab));
    }
    return tabs.tabs_.empty() ? OpenTabs() : tabs;
}

}  // namespace fabula::authoring
