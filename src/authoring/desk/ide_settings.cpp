#include "authoring/desk/ide_settings.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "authoring/files/start_up.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

constexpr std::string_view kCurrentEntry = "CurrentEntry";
constexpr std::string_view kTraceMode = "TraceMode";
constexpr std::string_view kRecentSection = "MRUFiles";
constexpr std::string_view kUsesColumn = "UsesColumn";
constexpr std::string_view kTabsSection = "OpenTabs";

int SettingNumber(const platform::Settings& settings, std::string_view key) {
    return text::HexToValue(settings.Get(startup::kSection, key));
}

void SetNumber(platform::Settings& settings, std::string_view key, int number) {
    settings.Set(startup::kSection, key, std::to_string(number));
}

/// What is kept of a file, as the settings hold it by position: "File1", "Tabs1", "Groups1".
struct KeptText {
    std::string file;
    std::string tabs;
    std::string groups;
};

std::vector<KeptText> ReadKeptTexts(const platform::Settings& settings) {
    std::vector<KeptText> kept;
    for (std::size_t place = 1; place <= platform::RecentFiles::kMostFiles; ++place) {
        const std::string number = std::to_string(place);
        KeptText each{settings.Get(kTabsSection, "File" + number),
                      settings.Get(kTabsSection, "Tabs" + number),
                      settings.Get(kTabsSection, "Groups" + number)};
        if (!each.file.empty()) kept.push_back(std::move(each));
    }
    return kept;
}

/// The groupings have the form of tabs.
std::string GroupsOf(const std::vector<PlaceInView>& places) {
    std::string stored;
    for (const PlaceInView& place : places) {
        OpenTabs one;
        one.Shown().place = {.view = place.view, .grouping = place.grouping, .folded = place.folded};
        if (place.grouping != Grouping::None) stored += (stored.empty() ? "" : "\n") + one.Stored();
    }
    return stored;
}

}  // namespace

KeptDesk ReadKeptDesk(const platform::Settings& settings, const std::filesystem::path& file) {
    KeptDesk desk;
    for (const KeptText& kept : ReadKeptTexts(settings)) {
        if (kept.file != file.string()) continue;
        desk.tabs = OpenTabs::From(kept.tabs);
        if (kept.groups.empty()) break;
        const OpenTabs groups = OpenTabs::From(kept.groups);
        for (const OpenTab& tab : groups.All())
            desk.places.push_back(tab.place);
        break;
    }
    return desk;
}

void WriteKeptDesk(platform::Settings& settings, const std::filesystem::path& file, const KeptDesk& desk) {
    std::vector<KeptText> kept = ReadKeptTexts(settings);
    std::erase_if(kept, [&](const KeptText& each) { return each.file == file.string(); });
    kept.insert(kept.begin(), {file.string(), desk.tabs.Stored(), GroupsOf(desk.places)});
    if (kept.size() > platform::RecentFiles::kMostFiles) kept.resize(platform::RecentFiles::kMostFiles);
    settings.Clear(kTabsSection);
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        settings.Set(kTabsSection, "File" + number, kept[i].file);
        settings.Set(kTabsSection, "Tabs" + number, kept[i].tabs);
        settings.Set(kTabsSection, "Groups" + number, kept[i].groups);
    }
}

bool UsesColumn(const platform::Settings& settings) {
    return settings.Get(startup::kSection, kUsesColumn) == "1";
}

void SetUsesColumn(platform::Settings& settings, bool on) {
    settings.Set(startup::kSection, kUsesColumn, on ? "1" : "0");
}

LastView ReadLastView(const platform::Settings& settings) {
    LastView last;
    const auto table = static_cast<store::TableNum>(SettingNumber(settings, startup::kCurrentSet));
    const store::TableEntry* const entry = store::FindTable(table);
    if (!entry || entry->number != table) return last;
    last.view.table = table;
    if (table == store::TableNum::ProcessTables)
        last.view.process = std::clamp(SettingNumber(settings, startup::kCurrentESNum), 0, kOtherProcesses);
    last.key = SettingNumber(settings, kCurrentEntry);
    return last;
}

void WriteLastView(platform::Settings& settings, const LastView& last) {
    SetNumber(settings, startup::kCurrentSet, static_cast<int>(last.view.table));
    if (last.view.table == store::TableNum::ProcessTables)
        SetNumber(settings, startup::kCurrentESNum, last.view.process);
    SetNumber(settings, kCurrentEntry, last.key);
}

platform::RecentFiles ReadRecentFiles(const platform::Settings& settings) {
    std::vector<std::filesystem::path> files;
    for (std::size_t place = 1; place <= platform::RecentFiles::kMostFiles; ++place) {
        const std::string file = settings.Get(kRecentSection, std::to_string(place));
        if (!file.empty()) files.emplace_back(file);
    }
    return platform::RecentFiles(files);
}

void WriteRecentFiles(platform::Settings& settings, const platform::RecentFiles& recent) {
    settings.Clear(kRecentSection);
    for (std::size_t i = 0; i < recent.Files().size(); ++i)
        settings.Set(kRecentSection, std::to_string(i + 1), recent.Files()[i].string());
}

bool TraceMode(const platform::Settings& settings) {
    return settings.Get(startup::kSection, kTraceMode) == "1";
}

void SetTraceMode(platform::Settings& settings, bool on) {
    settings.Set(startup::kSection, kTraceMode, on ? "1" : "0");
}

}  // namespace fabula::authoring
