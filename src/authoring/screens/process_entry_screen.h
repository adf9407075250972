#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/entries/entries.h"
#include "authoring/fields/cond_act_help.h"
#include "authoring/fields/controls.h"
#include "authoring/screens/record_screen.h"
#include "condacts/numbers.h"

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
class ProcessEntryScreen final : public RecordScreen {
  public:
    ProcessEntryScreen(ScreenContext& context, const ScreenRequest& request);
    /// Goes on to another record. For a screen in which nothing was typed, while the adventure is as it was
    /// when the screen was made. Throws Error when the record is not there.
    void GoTo(int key);

    std::string recordKey;  ///< "Record Key: 12"
    std::string process;    ///< the number of the process table
    DropList verb;          ///< the verb, by `vocindex`
    DropList noun;          ///< the noun
    ComboBox condAct;       ///< the condition or action that is being put together
    ParameterField parameter1;
    ParameterField parameter2;
    std::string line;  ///< the line of the entry

    bool LeaveProcess();
    /// Opens the parameters of what `condAct` names, or adds it at once when it has none. An empty
    /// `condAct` closes them.
    bool LeaveCondAct();
    bool LeaveParameter1();
    bool LeaveParameter2();
    /// Puts numbers in place of names that were typed, puts the line into capitals and checks it.
    bool LeaveLine();

    /// A message that a name of the line is to be: from now on the line may print it, and Update adds it
    /// if it does. The number that it will have; nullopt when it is refused.
    std::optional<condacts::MessageNumber> AddMessage(const std::string& text);

    /// The record that a token of the line, or of the fields above it, names: at a place in bytes.
    std::optional<NamedRecord> NamedInLine(std::size_t cursor) const;
    std::optional<NamedRecord> NamedByParameter(std::size_t place) const;
    std::optional<NamedRecord> NamedByWord(const DropList& list) const;

    /// Adds what was put together to the line.
    bool Add();

    const CondActHelp& Help() const { return help_; }

    static constexpr std::string_view kCaption = "Process Table Editor";
    static constexpr std::string_view kHelpLine =
        "Type your Conditions/Actions directly into the above fields and then click the Add to "
        "Conditions/Actions button. They will be checked for validity.";

  protected:
    /// A condition or action whose parameters are still empty was only looked at.
    bool FieldsChanged() const override { return Typed() != opened_; }
    /// True when the screen can close: the entry is stored, with what was put together and not added yet.
    bool UpdateFields() override;

  private:
    void ReadRecord();
    struct VocabularyWord {
        int index;
        condacts::Word word;
    };

    std::vector<std::string> Typed() const;
    void NoteOpened();
    void ReadWords();
    void ReadEntry(int canum);
    void Propose(const ScreenRequest& request);
    void Choose(DropList& list, std::string_view spelling, condacts::WordNumber number,
                condacts::WordType preferred) const;
    condacts::ProcessNumber NextProcess() const;
    bool ConfirmsProcess(condacts::ProcessNumber process);
    const condacts::CondAct* ChosenCondAct() const;
    void OpenParameters(const condacts::CondAct* condAct);
    std::string PutTogether() const;
    bool Check(std::string_view control, std::string_view condAct);
    bool AddPending();
    std::optional<condacts::MessageNumber> NextMessage() const;
    bool TakeNames();
    std::optional<std::string> NumberOf(const TypedName& name);
    bool Prints(condacts::MessageNumber message) const;
    void StoreNewMessages();
    void Append(std::string_view condAct);
    void AddDescription(condacts::ProcessNumber process);
    void StoreWord(store::Cursor& record, const DropList& list, std::string_view wordField,
                   std::string_view numberField) const;
    void Store(Change& change);

    CondActHelp help_;
    std::vector<ListItem> newMessages_;  ///< to be added, as far as the line prints them
    std::vector<VocabularyWord> words_;  ///< those that an entry may stand with
    std::vector<std::string> opened_;    ///< what `Typed` gave at first
    std::string openedType_;
    std::string openedFor_;  ///< the name whose parameters are open; "" for none
    /// That the author agreed to create.
    std::optional<condacts::ProcessNumber> confirmedProcess_;
};

}  // namespace fabula::authoring
