#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/adventure.h"
#include "store/ifid.h"
#include "upgrades/report.h"
#include "upgrades/work.h"

namespace fabula::upgrades {

// A file may be of any age: each opening runs one chain of steps that brings it up to the present tables
// and fields and mends its records. Every step tests the file, so that a present one passes unchanged.

/// What an upgrade tells and asks its program. The defaults tell nothing and take what the file says.
class UpgradeHost {
  public:
    virtual ~UpgradeHost() = default;

    /// The steps of a group are about to run, a line for each; until EndSteps a box shows them. Comes
    /// again with further lines when a step makes others necessary.
    virtual void BeginSteps(std::string_view) {}
    virtual void EndSteps() {}
    /// Called after each step.
    virtual void Pump() {}

    /// The file, still as it was, is about to be changed: the moment for a backup copy.
    virtual void BeforeChange(store::Adventure&) {}

    /// The type of the adventure is not known. `proposal` is what follows from the file.
    virtual ChosenType ChooseType(const ChosenType& proposal) { return proposal; }

    /// A name for an adventure that has none.
    virtual std::string NewIfid() { return store::NewIfid(); }

    /// What has to be told, when the file is upgraded.
    virtual void Show(const Report&) {}
    /// The list of rules that use the flags that were moved; true when the author has dealt with it and
    /// does not want to see it again.
    virtual bool ShowFlagChange(const Report&) { return false; }
};

/// Opens an adventure to be worked on, as Adventure::OpenForChange does, and upgrades it with the default
/// data `defaultData`: either every step that it needs is done, or, when an Error is thrown, the file is as
/// it was. Throws store::OpenError for a file that is refused. Where the default data is not there only
/// files of the present form can be opened, and nothing is mended.
std::unique_ptr<store::Adventure> OpenUpgraded(const std::filesystem::path& file,
                                               const std::filesystem::path& defaultData, UpgradeHost& host);

/// Opens an adventure for reading. One that needs an upgrade is upgraded in memory, after `tell` was given
/// one sentence about it; its file stays as it is. Default data that is not there is taken as above.
std::unique_ptr<store::Adventure> OpenForReading(const std::filesystem::path& file,
                                                 const std::filesystem::path& defaultData,
                                                 const std::function<void(std::string_view)>& tell);

/// The steps that an opening would do, "1 - Add of ...", and what it would report. The file stays as it is.
struct Outlook {
    std::vector<std::string> steps;
    std::vector<Report> reports;
};
Outlook LookAhead(const std::filesystem::path& file, const std::filesystem::path& defaultData);

}  // namespace fabula::upgrades
