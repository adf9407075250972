#include "authoring/desk/upgrading.h"

#include "authoring/files/backups.h"

namespace fabula::authoring {

void Upgrading::BeginSteps(std::string_view list) {
    showsSteps_ = true;
    boxes_.steps(list);
}

void Upgrading::EndSteps() {
    if (!showsSteps_) return;
    showsSteps_ = false;
    boxes_.steps("");
}

upgrades::ChosenType Upgrading::ChooseType(const upgrades::ChosenType& proposal) {
    store::AdventureSetup setup;
    setup.ChooseGraphics(proposal.graphics);
    setup.ChooseCharSets(proposal.charSets);
    setup.ChooseType(store::AdventureKindFrom(proposal.type).value_or(store::AdventureKind::Fabula));
    boxes_.chooseType(setup);
    return {std::string(store::NameOf(setup.Type())), setup.Graphics(), setup.CharSets()};
}

void Upgrading::Show(const upgrades::Report& report) {
    if (report.kind == upgrades::Report::Kind::Notice)
        host_.dialogs.Tell(report.text, report.title);
    else
        host_.dialogs.Report(report.text, report.title);
}

bool Upgrading::ShowFlagChange(const upgrades::Report& report) {
    return !host_.dialogs.ProceedFromReport(report.text, report.title);
}

void Upgrading::BackUp(store::Adventure& adventure) {
    if (backedUp_ || paths_.state.empty()) return;
    backedUp_ = true;
    Backups backups(paths_.state / "backups", host_.clock);
    BackUpAtOpening(backups, adventure, host_.dialogs);
}

}  // namespace fabula::authoring
