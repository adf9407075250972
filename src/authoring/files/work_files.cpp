#include "authoring/files/work_files.h"

#include <chrono>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <fnmatch.h>
#include <sys/stat.h>

#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

constexpr std::int64_t kSecondsADay = 24 * 60 * 60;

/// Seconds of local time since a fixed moment.
std::int64_t SecondsOf(const platform::DateTime& time) {
    using namespace std::chrono;
    const sys_days day = year(time.year) / month(static_cast<unsigned>(time.month)) /
                         std::chrono::day(static_cast<unsigned>(time.day));
    return std::int64_t{day.time_since_epoch().count()} * kSecondsADay + time.hour * 3600 +
           time.minute * 60 + time.second;
}

/// When a plain file was last written, as `SecondsOf` counts; nullopt for anything else, links included.
std::optional<std::int64_t> WrittenAt(const std::filesystem::path& file) {
    struct stat facts {};
    if (lstat(file.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return std::nullopt;
    std::tm local{};
    localtime_r(&facts.st_mtime, &local);
    return SecondsOf(
        {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec});
}

/// Whether a pattern, in small letters, fits the whole name. ".*" at its end also fits a name without an
/// extension.
bool Fits(std::string pattern, const std::string& name) {
    if (pattern.ends_with("*.*")) pattern.resize(pattern.size() - 2);
    return fnmatch(pattern.c_str(), name.c_str(), FNM_NOESCAPE) == 0;
}

struct CleanUpRow {
    std::string_view pattern;
    std::int64_t days;
};

std::vector<CleanUpRow> RowsOf(std::string_view list) {
    const auto pieces = text::Split(list, ",");
    std::vector<CleanUpRow> rows;
    for (std::size_t i = 0; i + 1 < pieces.size(); i += 2) {
        if (const auto days = text::WholeNumber(pieces[i + 1])) rows.push_back({pieces[i], *days});
    }
    return rows;
}

bool IsOld(const std::filesystem::path& file, std::int64_t now, const std::vector<CleanUpRow>& rows) {
    const auto written = WrittenAt(file);
    if (!written) return false;
    const std::int64_t days = (now - *written) / kSecondsADay;
    const std::string name = text::LowerCase(file.filename().string());
    for (const CleanUpRow& row : rows) {
        if (Fits(std::string(row.pattern), name) && days > row.days) return true;
    }
    return false;
}

}  // namespace

int DeleteOldWorkFiles(const std::filesystem::path& folder, const platform::Clock& clock,
                       std::string_view list) {
    const std::string lowered = text::LowerCase(list);
    const auto rows = RowsOf(lowered);
    const std::int64_t now = SecondsOf(clock.Now());
    std::error_code error;  // a folder that can't be read has nothing to delete
    std::vector<std::filesystem::path> old;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (IsOld(entry->path(), now, rows)) old.push_back(entry->path());
    }
    int deleted = 0;
    for (const auto& file : old) {
        if (std::filesystem::remove(file, error)) ++deleted;
    }
    return deleted;
}

}  // namespace fabula::authoring
