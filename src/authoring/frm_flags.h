#pragma once

#include <string>
#include <vector>

#include "authoring/controls.h"
#include "authoring/record_screen.h"

namespace fabula::authoring {

/// The screen of what a flag is used for. Flags are not added here: the key is that of a record.
class frmFlags : public RecordScreen {
  public:
    frmFlags(Session& session, ScreenKey key);

    DropList cboFlgType;
    DropList cboFlgUse;
    std::string txtFlgDesc;  ///< with "\n" for line ends

    bool LeaveCboFlgType();
    bool LeaveCboFlgUse();
    bool LeaveTxtFlgDesc();

    /// True when the screen can close: what was changed is stored.
    bool cmdUpdate();

  private:
    std::vector<std::string> Typed() const;

    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
