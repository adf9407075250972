#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/controls.h"
#include "authoring/screens/record_screen.h"

namespace fabula::authoring {

/// The options for where an object is at first.
enum class InitialPlace { NotCreated, Worn, Carried, InRoom };

/// The screen of an object.
class ObjectScreen final : public RecordScreen {
  public:
    ObjectScreen(ScreenContext& context, ScreenKey key);

    std::string description;  ///< with "\n" for line ends
    DropList noun;            ///< nouns and reserved words, by number
    DropList adjective;       ///< adjectives and reserved words
    std::optional<InitialPlace> initialPlace;
    ComboBox room;  ///< the locations; `text` is a number
    bool container = false;
    bool wearable = false;
    std::string weight;

    /// False in adventures of type Marlo, which have neither weights nor adjectives nor attributes: their
    /// controls are off, and what the record holds of them stays.
    bool HasAttributes() const { return !IsMarlo(); }

    bool LeaveDescription();
    bool LeaveInitialPlace();
    bool LeaveRoom();
    /// Checks that the object can be a container, which `container` loses when it can't.
    bool ClickContainer();
    bool LeaveWeight();

    static constexpr int kHeaviest = 63;

  protected:
    bool FieldsChanged() const override { return Typed() != opened_; }
    bool UpdateFields() override;

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
