#pragma once

#include "upgrades/upgrade.h"

namespace fabula::cli {

/// A report on standard error, its title before it.
void TellReport(const upgrades::Report& report);

/// An upgrade at the command line: the steps and the reports go to standard error, the file as it was to
/// the user's backup copies. Without that copy nothing is upgraded: BeforeChange throws fabula::Error.
class UpgradeTerminal final : public upgrades::UpgradeHost {
  public:
    void BeginSteps(std::string_view list) override;
    void BeforeChange(store::Adventure& adventure) override;
    void Show(const upgrades::Report& report) override { TellReport(report); }
    bool ShowFlagChange(const upgrades::Report& report) override;

  private:
    std::string shown_;  ///< of the group that runs
};

}  // namespace fabula::cli
