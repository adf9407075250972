#include "store/game_path.h"

#include <algorithm>
#include <string>

#include "text/encoding/utf8.h"

namespace fabula::store {

namespace fs = std::filesystem;

namespace {

GamePath Outside() {
    return {{}, GamePath::Fault::Outside};
}
GamePath Missing() {
    return {{}, GamePath::Fault::Missing};
}

/// The path in this system's form; empty when it is not relative.
fs::path Relative(std::string_view stored) {
    std::string text(stored);
    std::replace(text.begin(), text.end(), '\\', '/');
    const bool drive = text.size() >= 2 && text[1] == ':';
    if (drive || text.find('\0') != std::string::npos || fs::path(text).is_absolute()) return {};
    return fs::path(text).lexically_normal();
}

/// The entry of `folder` called `name`, or else one that differs from it in case.
fs::path Entry(const fs::path& folder, const fs::path& name) {
    std::error_code error;
    if (fs::exists(folder / name, error)) return folder / name;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (text::EqualsNoCase(entry.path().filename().string(), name.string())) return entry.path();
    }
    return {};
}

bool IsBelow(const fs::path& folder, const fs::path& file) {
    return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

}  // namespace

GamePath FindGameFile(const fs::path& folder, std::string_view stored) {
    const fs::path relative = Relative(stored);
    if (relative.empty() || *relative.begin() == "..") return Outside();
    std::error_code error;
    const fs::path root = fs::canonical(folder, error);
    if (error) return Missing();
    fs::path file = root;
    for (const fs::path& name : relative) {
        file = Entry(file, name);
        if (file.empty()) return Missing();
    }
    file = fs::canonical(file, error);
    if (error) return Missing();
    if (!IsBelow(root, file)) return Outside();
    if (!fs::is_regular_file(file, error)) return Missing();
    return {file, GamePath::Fault::None};
}

std::optional<std::string> PathInGame(const fs::path& folder, const fs::path& file) {
    std::error_code error;
    const fs::path root = fs::canonical(folder, error);
    if (error) return std::nullopt;
    if (fs::is_symlink(file, error) && !fs::exists(file, error)) return std::nullopt;
    const fs::path real = fs::weakly_canonical(fs::absolute(file), error);
    if (error || !IsBelow(root, real)) return std::nullopt;
    return real.lexically_relative(root).generic_string();
}

}  // namespace fabula::store
