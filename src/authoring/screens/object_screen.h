#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "authoring/screens/record_screen.h"
#include "condacts/limits.h"
#include "condacts/numbers.h"
#include "condacts/words.h"

namespace fabula::authoring {

/// The options for where an object is at first.
enum class InitialPlace { NotCreated, Worn, Carried, InRoom };

/// The screen of an object.
class ObjectScreen final : public RecordScreen {
  public:
    ObjectScreen(ScreenContext& context, ScreenKey key);
    /// Goes on to another record. For a screen in which nothing was typed, while the adventure is as it was
    /// when the screen was made. Throws Error when the record is not there.
    void GoTo(int key);

    std::string description;  ///< with "\n" for line ends
    DropList noun;            ///< nouns and reserved words, by number
    std::string newNoun;      ///< in place of one of them: a word that is made with the object; "" for none
    DropList adjective;       ///< adjectives and reserved words
    std::optional<InitialPlace> initialPlace;
    ComboBox room;  ///< the locations; `text` is a number
    bool container = false;
    bool wearable = false;
    std::string weight;

    /// False in adventures of type Marlo, which have neither weights nor adjectives nor attributes: their
    /// controls are off, and what the record holds of them stays.
    bool HasAttributes() const { return !IsMarlo(); }

    /// Proposes a noun for a new object while its description is typed for the first time, as long as the
    /// author chooses none: the last of its words that is a noun already, or else its last word, which is
    /// made.
    void ProposeNoun();
    bool LeaveDescription();
    /// The noun that Update makes while `newNoun` holds it, and could make else, since the description
    /// names it; "" when the object has a noun that is there.
    std::string OfferedNoun() const;
    /// Whether the offered noun is to be made. Without it the object has none.
    void ClickMakeNoun(bool make);
    /// Checks a noun that is not there: Update makes it.
    bool LeaveNoun();
    bool LeaveInitialPlace();
    bool LeaveRoom();
    /// Checks that the object can be a container, which `container` loses when it can't. Where the location
    /// of its number is missing, which holds what is in it, Update makes it after a question.
    bool ClickContainer();
    /// Which location holds what is in a container; "" while the object is none.
    std::string Inside() const;
    bool LeaveWeight();

    static constexpr int kHeaviest = condacts::limit::kHeaviestObject;

  protected:
    bool FieldsChanged() const override { return Typed() != opened_; }
    bool UpdateFields() override;

  private:
    void ReadRecord();
    void ReadPlace(condacts::PlaceNumber place);
    std::string AsNoun(std::string_view typed) const;
    std::string ChosenNoun() const;
    std::size_t LongestWord() const;
    bool CheckContainer();
    bool MakesInside();
    void StoreNewNoun(store::Cursor& record);
    void StoreInside();
    condacts::PlaceNumber Place() const;
    std::vector<std::string> Typed() const;
    void StoreWord(store::Cursor& record, const DropList& list, condacts::WordType wordType,
                   const char* wordField, const char* numberField) const;
    void StorePlace(store::Cursor& record) const;
    void StoreAttributes(store::Cursor& record) const;

    std::string proposedNoun_;         ///< which the author may have put back
    bool hasProposed_ = false;         ///< for good: the description was left
    bool makesInside_ = false;         ///< the author wants the location of the container to be made
    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
