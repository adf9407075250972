#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace fabula::platform {

/// The user's settings of the application "Fabula": texts by section and key. Names are compared as they
/// are written.
class Settings {
  public:
    virtual ~Settings() = default;

    /// The value, or `fallback` when there is none.
    virtual std::string Get(std::string_view section, std::string_view key,
                            std::string_view fallback = "") const = 0;
    virtual void Set(std::string_view section, std::string_view key, std::string_view value) = 0;
    /// Removes a whole section.
    virtual void Clear(std::string_view section) = 0;
};

/// Settings that last as long as the object. For tests.
class MemorySettings final : public Settings {
  public:
    std::string Get(std::string_view section, std::string_view key,
                    std::string_view fallback = "") const override;
    void Set(std::string_view section, std::string_view key, std::string_view value) override;
    void Clear(std::string_view section) override;

  private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace fabula::platform
