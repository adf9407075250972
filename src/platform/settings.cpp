#include "platform/settings.h"

namespace fabula::platform {

std::string MemorySettings::Get(std::string_view section, std::string_view key,
                                std::string_view fallback) const {
    const auto found = values_.find({std::string(section), std::string(key)});
    return found == values_.end() ? std::string(fallback) : found->second;
}

void MemorySettings::Set(std::string_view section, std::string_view key, std::string_view value) {
    values_[{std::string(section), std::string(key)}] = value;
}

void MemorySettings::Clear(std::string_view section) {
    std::erase_if(values_, [&](const auto& entry) { return entry.first.first == section; });
}

}  // namespace fabula::platform
