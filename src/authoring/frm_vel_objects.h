#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/controls.h"
#include "authoring/record_screen.h"

namespace fabula::authoring {

/// The options for where an object is at first.
enum class InitialPlace { NotCreated, Worn, Carried, InRoom };

/// The screen of an object.
class frmVelObjects : public RecordScreen {
  public:
    frmVelObjects(Session& session, ScreenKey key);

    std::string txtObjDesc;  ///< with "\n" for line ends
    DropList cboObjWord;     ///< nouns and reserved words, by number
    DropList cboAdjective;   ///< adjectives and reserved words
    std::optional<InitialPlace> optInitiaLloc;
    ComboBox cboInRoom;  ///< the locations; `text` is a number
    bool chkContainer = false;
    bool chkWearRemove = false;
    std::string txtWeight;

    /// False in adventures of type Marlo, which have neither weights nor adjectives nor attributes: their
    /// controls are off, and what the record holds of them stays.
    bool HasAttributes() const { return !IsMarlo(); }

    bool LeaveTxtObjDesc();
    bool LeaveOptInitiaLloc();
    bool LeaveCboInRoom();
    /// Checks that the object can be a container, which `chkContainer` loses when it can't.
    bool ClickChkContainer();
    bool LeaveTxtWeight();

    /// True when the screen can close: what was changed is stored.
    bool cmdUpdate();

    static constexpr int kHeaviest = 63;

  private:
    void ReadRecord();
    void ReadPlace(int place);
    bool CheckContainer();
    int Place() const;
    std::vector<std::string> Typed() const;
    void StoreWord(store::Cursor& record, const DropList& list, int wordType, const char* wordField,
                   const char* numberField) const;
    void StorePlace(store::Cursor& record) const;
    void StoreAttributes(store::Cursor& record) const;

    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
