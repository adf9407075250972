#pragma once

#include "authoring/desk/main_screen.h"
#include "upgrades/upgrade.h"

namespace fabula::authoring {

/// The upgrade of a file that the main window opens: its boxes, its reports, and the copy that is made
/// before the file is changed.
class Upgrading final : public upgrades::UpgradeHost {
  public:
    Upgrading(const IdeHost& host, const IdePaths& paths, const MainScreen::UpgradeBoxes& boxes)
        : host_(host), paths_(paths), boxes_(boxes) {}
    /// Takes away the box of steps of which one failed.
    ~Upgrading() override { EndSteps(); }

    void BeginSteps(std::string_view list) override;
    void EndSteps() override;
    void Pump() override { host_.events.Pump(); }
    void BeforeChange(store::Adventure& adventure) override { BackUp(adventure); }
    upgrades::ChosenType ChooseType(const upgrades::ChosenType& proposal) override;
    void Show(const upgrades::Report& report) override;
    bool ShowFlagChange(const upgrades::Report& report) override;

    /// Makes the backup copy of this opening, once.
    void BackUp(store::Adventure& adventure);

  private:
    const IdeHost& host_;
    const IdePaths& paths_;
    const MainScreen::UpgradeBoxes& boxes_;
    bool backedUp_ = false;
    bool showsSteps_ = false;
};

}  // namespace fabula::authoring
