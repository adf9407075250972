#pragma once

#include <string>
#include <vector>

#include "authoring/fields/controls.h"
#include "authoring/screens/record_screen.h"

namespace fabula::authoring {

/// The screen of what a flag is used for. Flags are not added here: the key is that of a record.
class FlagScreen final : public RecordScreen {
  public:
    FlagScreen(ScreenContext& context, ScreenKey key);
    /// Goes on to another record. For a screen in which nothing was typed, while the adventure is as it was
    /// when the screen was made. Throws Error when the record is not there.
    void GoTo(int key);

    DropList type;
    DropList use;
    std::string description;  ///< with "\n" for line ends

    bool LeaveType();
    bool LeaveUse();
    bool LeaveDescription();

  protected:
    bool FieldsChanged() const override { return Typed() != opened_; }
    bool UpdateFields() override;

  private:
    void ReadRecord();
    std::vector<std::string> Typed() const;

    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
