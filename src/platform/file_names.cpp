#include "platform/file_names.h"

#include <cstdint>
#include <cstdio>
#include <system_error>

namespace fabula::platform {
namespace {

/// FNV-1a, which is written down somewhere: std::hash may change with the library.
std::uint64_t HashOf(std::string_view text) {
    std::uint64_t hash = 14695981039346656037ULL;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    return hash;
}

}  // namespace

std::string SafeFileName(std::string_view name) {
    constexpr std::string_view kForbidden = "/\\:*?\"<>|";
    std::string safe;
    for (const char c : name.substr(0, kLongestFileName)) {
        const bool control = static_cast<unsigned char>(c) < 32 || c == 127;
        safe += control || kForbidden.find(c) != std::string_view::npos ? '_' : c;
    }
    safe.erase(0, safe.find_first_not_of(" ."));
    safe.erase(safe.find_last_not_of(" .") + 1);
    return safe.empty() ? "Untitled" : safe;
}

std::string PlaceCode(const std::filesystem::path& file) {
    std::error_code error;
    auto place = std::filesystem::canonical(file, error);
    if (error) place = file;
    char code[20];
    std::snprintf(code, sizeof code, "%016llx", static_cast<unsigned long long>(HashOf(place.string())));
    return code;
}

}  // namespace fabula::platform
