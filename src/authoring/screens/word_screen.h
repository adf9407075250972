#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/screens/record_screen.h"
#include "condacts/limits.h"
#include "condacts/words.h"

namespace fabula::authoring {

/// The screen of a word.
class WordScreen final : public RecordScreen {
  public:
    /// A new word takes the context's `nextWord` for its key.
    WordScreen(ScreenContext& context, ScreenKey key);
    /// Goes on to another record. For a screen in which nothing was typed, while the adventure is as it was
    /// when the screen was made. Throws Error when the record is not there.
    void GoTo(int key);

    std::string word;
    std::string number;
    std::optional<condacts::WordType> type;  ///< any but kReserved

    /// What stands beside the word: how the numbers are used in the adventure's type.
    std::string_view Help() const;
    /// False in adventures of type Marlo: every word is a noun, and the options are not shown.
    bool ChoosesType() const { return !IsMarlo(); }
    /// The number of a word that is there already is shown only; its spelling can be corrected, and what
    /// names it follows.
    bool EditsNumber() const { return Key().isNew; }
    /// The longest word of the adventure's type, in characters.
    std::size_t LongestWord() const;

    /// Chooses a type and, for a new word, proposes its next number.
    void ClickType(condacts::WordType type);
    /// Puts the word in upper case and cuts it to its longest.
    bool LeaveWord();
    bool LeaveNumber();

    static constexpr int kLowestNumber = condacts::limit::kLowestWord;
    static constexpr int kHighestNumber = condacts::limit::kHighestWord;

  protected:
    bool FieldsChanged() const override { return Typed() != opened_; }
    bool UpdateFields() override;

  private:
    void ReadRecord();
    condacts::WordNumber NextNumber(condacts::WordType type) const;
    std::vector<condacts::Word> SameSpelling() const;
    bool CheckClash(condacts::WordNumber typed);
    std::vector<std::string> Typed() const;
    void Store(Change& change);

    condacts::WordType typeBefore_ = condacts::kVerb;
    std::string spelledBefore_;        ///< of a word that is there already
    std::vector<std::string> opened_;  ///< what `Typed` gave at first
};

}  // namespace fabula::authoring
