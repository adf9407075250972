#pragma once

#include <string>

#include "platform/settings.h"

class QSettings;

namespace fabula::qt {

/// The settings as the platform keeps them; sections are their groups.
class QtSettings final : public platform::Settings {
  public:
    explicit QtSettings(QSettings& store) : store_(store) {}

    std::string Get(std::string_view section, std::string_view key,
                    std::string_view fallback = "") const override;
    void Set(std::string_view section, std::string_view key, std::string_view value) override;
    void Clear(std::string_view section) override;

  private:
    QSettings& store_;
};

/// A sentence when settings that are made now are lost with the program, since their file can't be written;
/// else "".
std::string WhyNotKept(const QSettings& store);

}  // namespace fabula::qt
