#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/numbers.h"
#include "interchange/shared/job_status.h"
#include "store/adventure.h"

namespace fabula::interchange {

/// Told at the begin of an import that ends with one.
inline constexpr const char* kLookForFlags = "Look for a User Flag Analysis at end of Status";

/// Tells an author which flags an imported game uses, and by which conditions and actions, and marks these
/// flags as used. Built-in flags are not told. Flags from 1000 up are all built in and are not
/// counted.
class FlagAnalysis {
  public:
    /// Takes the user flags of the adventure as they are now.
    FlagAnalysis(store::Adventure& adventure, const condacts::Catalogue& catalogue);

    /// Counts the flags of one condition or action, "NAME P1 P2". RAMLOAD does not count: its flag is the
    /// end of a range.
    void CheckForFlags(std::string_view condAct);

    /// Writes the analysis into the status, adds the flag records that are missing below the highest flag
    /// used, and marks the used ones in their descriptions.
    void PrintFlagAnal(store::Adventure& adventure, JobStatus& status) const;

  private:
    struct FlagUser {
        std::string name;
        bool first = false;   ///< its first parameter is a flag
        bool second = false;  ///< its second parameter is one
    };

    void Count(std::size_t user, std::string_view token);
    bool IsUserFlag(condacts::FlagNumber flag) const;

    std::vector<FlagUser> users_;
    std::set<condacts::FlagNumber> userFlags_;
    condacts::FlagNumber highestRecord_{-1};
    std::map<condacts::FlagNumber, std::set<std::size_t>> uses_;  ///< by flag, the users that name it
};

}  // namespace fabula::interchange
