#pragma once

#include <string>
#include <string_view>

#include "condacts/language/catalogue.h"
#include "condacts/words.h"
#include "store/query/cursor.h"

namespace fabula::interchange {

/// Makes the texts that stand beside numeric fields ("exits" beside "numericexits") from the numbers. A
/// number without a word gives the empty word.
class CompanionTexts {
  public:
    CompanionTexts(const condacts::Catalogue& catalogue, const condacts::WordIndex& words)
        : catalogue_(catalogue), words_(words) {}

    /// Whether a field has a companion; case is ignored.
    static bool Knows(std::string_view numericField);

    /// Sets the companion of `numericField` in the record that `record` stands on. A value without a text
    /// of its own (attributes above 3, a type of word above 7) leaves the companion as it is.
    void Make(store::Cursor& record, std::string_view numericField) const;

    std::string ExitsText(std::string_view numericExits) const;

  private:
    const condacts::Catalogue& catalogue_;
    const condacts::WordIndex& words_;
};

}  // namespace fabula::interchange
