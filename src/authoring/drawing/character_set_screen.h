#pragma once

#include <optional>
#include <string>
#include <vector>

#include "authoring/entries/entries.h"
#include "pictures/characters/character_sets.h"

namespace fabula::authoring {

/// The picture of a whole character set, from which a character is opened.
class CharacterSetScreen {
  public:
    /// Shows the set that the author stands on when that is in the table of characters, and else set 0.
    explicit CharacterSetScreen(ScreenContext& context);

    /// The sets of the adventure, as "3 - Runes", in order; the one that is shown.
    const std::vector<int>& Sets() const { return sets_; }
    std::string NameOf(int set) const;
    int Set() const { return set_; }
    void Show(int set);

    /// The characters of the set in order, and the one that is chosen among them.
    const std::vector<pictures::Character>& Characters() const { return characters_; }
    std::size_t Chosen() const { return chosen_; }
    void Choose(std::size_t character);

    /// The colours of the adventure, as palette numbers.
    int Ink() const { return ink_; }
    int Paper() const { return paper_; }

    /// The editor of the chosen character; nullopt, and told, when it can't be edited.
    std::optional<ScreenRequest> Open();
    /// To be called when that editor has closed.
    void Read();

    /// Asks for a font of 8 by 8 and takes its characters for those of the set that may be edited, as one
    /// change. Characters that the font lacks stay. Gives whether any was taken. Throws fabula::Error when
    /// the file can't be read or is no such font.
    bool TakeFont();

  private:
    ScreenContext& context_;
    pictures::CharacterSets all_;
    std::vector<int> sets_;
    std::vector<pictures::Character> characters_;
    int set_ = 0;
    std::size_t chosen_ = 0;
    int ink_ = 0;
    int paper_ = 7;
};

}  // namespace fabula::authoring
