#include "upgrades/upgrade.h"

#include <algorithm>

#include "store/file/file_forms.h"
#include "store/schema/schema_change.h"
#include "store/setup.h"
#include "upgrades/flag_corrections.h"
#include "upgrades/step.h"

namespace fabula::upgrades {
namespace {

using store::Adventure;
using store::Ages;
using store::OpenMode;

std::string ListOf(const std::vector<const Step*>& steps) {
    std::string list;
    for (const Step* step : steps)
        list += std::string(step->text) + "\n";
    return list;
}

/// Runs the steps of a group that are needed. The tests come first; what an earlier step of the group makes
/// necessary is done too. Gives the steps that ran.
std::vector<const Step*> RunGroup(Work& work, Group group, UpgradeHost& host) {
    std::vector<const Step*> needed;
    for (const Step& step : group) {
        if (IsNeeded(work, step)) needed.push_back(&step);
    }
    if (needed.empty()) return needed;
    std::vector<const Step*> ran;
    host.BeginSteps(ListOf(needed));
    for (const Step& step : group) {
        if (!IsNeeded(work, step)) continue;
        if (std::ranges::find(needed, &step) == needed.end()) {
            needed.push_back(&step);
            host.BeginSteps(ListOf(needed));
        }
        step.effect(work, step);
        ran.push_back(&step);
        work.Forget();
        host.Pump();
    }
    host.EndSteps();
    return ran;
}

std::vector<const Step*> RunAll(Work& work, UpgradeHost& host) {
    std::vector<const Step*> ran;
    for (const Group group : Groups()) {
        const auto steps = RunGroup(work, group, host);
        ran.insert(ran.end(), steps.begin(), steps.end());
    }
    return ran;
}

enum class Need { Nothing, Reports, Changes };

/// What the file as it is needs. Steps that only later ones make necessary do not matter here.
Need NeedOf(Work& work) {
    const store::ReadTransaction reading(work.adventure);
    Need need = Need::Nothing;
    for (const Group group : Groups()) {
        for (const Step& step : group) {
            if (step.reportsOnly && need == Need::Reports) continue;
            if (!IsNeeded(work, step)) continue;
            if (!step.reportsOnly) return Need::Changes;
            need = Need::Reports;
        }
    }
    return need;
}

/// Does everything that the adventure needs, as one transaction.
std::vector<const Step*> Upgrade(Work& work, UpgradeHost& host) {
    store::Transaction whole(work.adventure);
    work.Forget();
    std::vector<const Step*> ran = RunAll(work, host);
    store::SchemaChange(work.adventure).Finish();
    whole.Commit();
    work.adventure.ReadSettings();
    return ran;
}

bool TypeIsUnknown(const Adventure& adventure) {
    return adventure.AdventureTypeLower().empty() || adventure.AdventureTypeLower() == "unknwn";
}

void AskForType(Work& work, UpgradeHost& host) {
    if (!TypeIsUnknown(work.adventure)) return;
    const store::AdventureSetup own(work.adventure);
    work.chosen = host.ChooseType({std::string(store::NameOf(own.Type())), own.Graphics(), own.CharSets()});
}

void ShowReports(Work& work, UpgradeHost& host) {
    for (const Report& report : work.reports) {
        if (report.kind != Report::Kind::FlagChange)
            host.Show(report);
        else if (host.ShowFlagChange(report))
            CloseFlagMove(work.adventure);
    }
}

bool IsThere(const std::filesystem::path& defaultData) {
    std::error_code error;  // what can't be looked at can't be read either
    return std::filesystem::is_regular_file(defaultData, error);
}

/// A file of the present form that says to be of an earlier program is numbered anew.
void NumberFile(Adventure& adventure) {
    if (store::SchemaChange(adventure).FileNumber() == store::kLatestStep) return;
    store::Transaction step(adventure);
    store::SchemaChange(adventure).Finish();
    step.Commit();
}

}  // namespace

std::unique_ptr<Adventure> OpenUpgraded(const std::filesystem::path& file,
                                        const std::filesystem::path& defaultData, UpgradeHost& host) {
    if (!IsThere(defaultData)) return Adventure::OpenForChange(file);
    auto adventure = Adventure::OpenForChange(file, Ages::Any);
    Defaults defaults(defaultData);
    Work work(*adventure, defaults);
    const Need need = NeedOf(work);
    if (need == Need::Changes) {
        host.BeforeChange(*adventure);
        AskForType(work, host);
        work.newIfid = [&host] { return host.NewIfid(); };
        Upgrade(work, host);
    } else {
        NumberFile(*adventure);
        if (need == Need::Reports) RunAll(work, host);
    }
    ShowReports(work, host);
    return adventure;
}

std::unique_ptr<Adventure> OpenForReading(const std::filesystem::path& file,
                                          const std::filesystem::path& defaultData,
                                          const std::function<void(std::string_view)>& tell) {
    if (!IsThere(defaultData)) return Adventure::Open(file, OpenMode::ReadOnly);
    auto adventure = Adventure::Open(file, OpenMode::ReadOnly, Ages::Any);
    Defaults defaults(defaultData);
    Work look(*adventure, defaults);
    if (NeedOf(look) != Need::Changes) return adventure;
    tell(file.filename().string() +
         " was made by an older version of Fabula; an upgraded copy in memory is used, and the file "
         "stays as it is.");
    auto copy = adventure->CopyInMemory();
    Work work(*copy, defaults);
    UpgradeHost silent;
    Upgrade(work, silent);
    copy->ForbidChanges();
    return copy;
}

Outlook LookAhead(const std::filesystem::path& file, const std::filesystem::path& defaultData) {
    const auto copy = Adventure::Open(file, OpenMode::ReadOnly, Ages::Any)->CopyInMemory();
    Defaults defaults(defaultData);
    Work work(*copy, defaults);
    UpgradeHost silent;
    Outlook outlook;
    for (const Step* step : Upgrade(work, silent))
        outlook.steps.emplace_back(step->text);
    outlook.reports = work.reports;
    return outlook;
}

}  // namespace fabula::upgrades
