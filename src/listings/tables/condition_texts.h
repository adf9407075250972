#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/fields/texts/record_texts.h"
#include "condacts/language/catalogue.h"
#include "condacts/words.h"
#include "listings/pages/page.h"
#include "store/adventure.h"

namespace fabula::listings {

/// A parameter of a condition or action as a listing shows it: special places and words as words, all
/// others as numbers.
struct ShownParameter {
    std::string text;
    std::optional<Place> names = std::nullopt;  ///< the record that it names
    std::string tells = {};                     ///< the beginning of that record's text
};

/// A condition or action as a listing shows it. A word that is none becomes a fault: the name is what is
/// said of it, and what stands behind it in the entry follows as it stands.
struct ShownCondAct {
    std::string name;
    std::vector<ShownParameter> parameters = {};
    bool fault = false;
    bool isAction = false;

    /// Name and parameters with a blank between two.
    std::string Text() const;
};

/// Lays out the lines of process entries for listings.
class ConditionTexts {
  public:
    /// `tells` for what the records that are named say. Throws fabula::Error when the adventure can't be
    /// read.
    ConditionTexts(store::Adventure& adventure, bool tells);

    /// What an entry consists of, from its text form.
    std::vector<ShownCondAct> Shown(std::string_view condActs) const;

  private:
    ShownParameter Parameter(const condacts::CondAct& condAct, std::size_t index,
                             std::string_view stored) const;

    condacts::Catalogue catalogue_;
    condacts::WordIndex words_;
    authoring::RecordTexts texts_;
};

}  // namespace fabula::listings
