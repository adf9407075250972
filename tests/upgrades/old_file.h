#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "store/adventure.h"
#include "store/setup.h"
#include "support/games/template_adventure.h"
#include "upgrades/upgrade.h"

namespace fabula::test {

/// The default data of the project.
std::filesystem::path DefaultDataFile();

/// A fresh adventure of a kind with some records of every table that an author fills.
void MakeGame(const std::filesystem::path& file, store::AdventureKind kind = store::AdventureKind::Fabula);

/// The same game as it was before a step of the chain and all behind it.
void MakeGameBefore(const std::filesystem::path& file, store::AdventureKind kind, int step);

/// Makes the file one from before a step of the chain: what the step adds is gone.
void TakeBack(const std::filesystem::path& file, int step);

/// Everything that a file holds, by table: a line for each record, in order, with every field and its
/// value. The keys of `Tables`, which only number its rows, are left out.
using Contents = std::map<std::string, std::vector<std::string>>;
Contents ContentsOf(store::Adventure& adventure);
Contents ContentsOf(const std::filesystem::path& file);

/// Keeps what it is told, and answers as a test says.
class RecordingHost final : public upgrades::UpgradeHost {
  public:
    void BeginSteps(std::string_view list) override { lists.emplace_back(list); }
    void EndSteps() override { ++ended; }
    void BeforeChange(store::Adventure&) override { ++changes; }
    upgrades::ChosenType ChooseType(const upgrades::ChosenType& proposal) override {
        proposals.push_back(proposal);
        return answer.value_or(proposal);
    }
    std::string NewIfid() override { return kTestIfid; }
    void Show(const upgrades::Report& report) override { reports.push_back(report); }
    bool ShowFlagChange(const upgrades::Report& report) override {
        reports.push_back(report);
        return cancels;
    }

    std::vector<std::string> lists;  ///< of steps, as they were shown
    int ended = 0;
    int changes = 0;  ///< how often a file was about to be changed
    std::vector<upgrades::ChosenType> proposals;
    std::optional<upgrades::ChosenType> answer;
    std::vector<upgrades::Report> reports;
    bool cancels = false;
};

}  // namespace fabula::test
