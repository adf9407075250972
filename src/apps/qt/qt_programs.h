#pragma once

#include "platform/programs.h"

namespace fabula::qt {

/// Programs of the system, run by Qt.
class QtPrograms : public platform::Programs {
  public:
    platform::ProgramEnd Run(const platform::ProgramCall& call,
                             const std::function<bool()>& goesOn) override;
    bool ShowText(const std::filesystem::path& file) override;
};

}  // namespace fabula::qt
