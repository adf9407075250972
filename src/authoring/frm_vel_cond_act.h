#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/cond_act_help.h"
#include "authoring/controls.h"
#include "authoring/entries.h"
#include "authoring/record_screen.h"

namespace fabula::authoring {

/// The field of one parameter of the condition or action that is being put together.
struct ParameterField {
    std::string label;  ///< "Param1", or what the parameter is: "Location"
    bool enabled = false;
    std::vector<Completion> items;
    std::string text;
};

/// The screen of an entry of a process table. A new entry that goes before another begins with its process
/// and words; any other new one with the process in view and two words "_".
class frmVelCondAct : public RecordScreen {
  public:
    frmVelCondAct(Session& session, const ScreenRequest& request);

    std::string lblRecKey;  ///< "Record Key: 12"
    std::string txtType;    ///< the number of the process table
    DropList cboWord1;      ///< the verb, by `vocindex`
    DropList cboWord2;      ///< the noun
    ComboBox cboCA;         ///< the condition or action that is being put together
    ParameterField cboParam1;
    ParameterField cboParam2;
    std::string txtAllCAs;  ///< the line of the entry

    bool LeaveTxtType();
    /// Opens the parameters of what `cboCA` names, or adds it at once when it has none. An empty `cboCA`
    /// closes them.
    bool LeaveCboCA();
    bool LeaveCboParam1();
    bool LeaveCboParam2();
    /// Puts the line into capitals and checks it.
    bool LeaveTxtAllCAs();

    /// Adds what was put together to the line.
    bool cmdAdd();

    /// True when the screen can close: the entry is stored, with what was put together and not added yet.
    bool cmdUpdate();

    const CondActHelp& Help() const { return help_; }

    static constexpr std::string_view kCaption = "Process Table Editor";
    static constexpr std::string_view kHelpLine =
        "Type your Conditions/Actions directly into the above fields and then click the Add to "
        "Conditions/Actions button. They will be checked for validity.";

  private:
    struct VocabularyWord {
        int index;
        condacts::Word word;
    };

    void ReadWords();
    void ReadEntry(int canum);
    void Propose(const ScreenRequest& request);
    void Choose(DropList& list, std::string_view spelling, int number, condacts::WordType preferred) const;
    int NextProcess() const;
    bool ConfirmsProcess(int process);
    const condacts::CondAct* ChosenCondAct() const;
    void OpenParameters(const condacts::CondAct* condAct);
    std::string PutTogether() const;
    bool Check(std::string_view control, std::string_view condAct);
    bool AddPending();
    void Append(std::string_view condAct);
    void AddDescription(int process);
    void StoreWord(store::Cursor& record, const DropList& list, std::string_view wordField,
                   std::string_view numberField) const;
    void Store();

    CondActHelp help_;
    std::vector<VocabularyWord> words_;  ///< those that an entry may stand with
    std::string openedType_;
    std::string openedFor_;                ///< the name whose parameters are open; "" for none
    std::optional<int> confirmedProcess_;  ///< that the author agreed to create
};

}  // namespace fabula::authoring
