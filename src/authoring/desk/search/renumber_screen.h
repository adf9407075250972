#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/screen_context.h"
#include "references/renumber.h"

namespace fabula::authoring {

/// The screen that gives a record another number, or swaps it with the one that has it. What would change
/// is shown before, and done as one change.
class RenumberScreen {
  public:
    /// On a record of a table whose records are named by number (`CanRenumber`).
    RenumberScreen(ScreenContext& context, store::TableNum table, int key);
    RenumberScreen(const RenumberScreen&) = delete;
    RenumberScreen& operator=(const RenumberScreen&) = delete;

    static bool CanRenumber(store::TableNum table);

    std::string number;  ///< the new one, as it is typed; at first the lowest free one

    /// "message 7"
    const std::string& Name() const { return name_; }
    /// What the number would do, a line each: the changes, then the warnings; or why it can't be.
    std::vector<std::string> Preview();
    /// Does it. False when it is refused; the author is told.
    bool Update();
    /// The record's number now.
    int Key() const { return target_.number; }

    static constexpr std::string_view kCaption = "Change Number";

  private:
    references::RenumberPlan Plan() const;
    bool Store();

    ScreenContext& context_;
    references::Target target_;
    std::string name_;
};

}  // namespace fabula::authoring
