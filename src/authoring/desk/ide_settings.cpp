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

int NumberOf(const platform::Settings& settings, std::string_view key) {
    return text::HexToValue(settings.Get(startup::kSection, key));
}

void SetNumber(platform::Settings& settings, std::string_view key, int number) {
    settings.Set(startup::kSection, key, std::to_string(number));
}

}  // namespace

LastView ReadLastView(const platform::Settings& settings) {
    LastView last;
    const auto table = static_cast<store::TableNum>(NumberOf(settings, startup::kCurrentSet));
    const store::TableEntry* const entry = store::FindTable(table);
    if (!entry || entry->number != table) return last;
    last.view.table = table;
    if (table == store::TableNum::ProcessTables)
        last.view.process = std::clamp(NumberOf(settings, startup::kCurrentESNum), 0, kOtherProcesses);
    last.key = NumberOf(settings, kCurrentEntry);
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
