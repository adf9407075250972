#pragma once

#include <compare>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "authoring/fields/texts/record_texts.h"
#include "condacts/language/catalogue.h"
#include "condacts/language/facts.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// By what the entries of process tables stand together.
enum class Grouping { None, Verb, Place, Object };

/// The group of an entry: those of lower `order` stand first, and those of the same one by their titles.
struct EntryGroup {
    int order = 0;
    std::string title;

    friend auto operator<=>(const EntryGroup&, const EntryGroup&) = default;
};

/// Tells to which group an entry belongs. Making it reads the adventure as it is then; the answers read
/// nothing. Each entry belongs to one group:
/// - by verb, to its verb; entries for any verb and for none come first;
/// - by place, to that of its first AT; entries without one come last;
/// - by object, to the first that its conditions and actions name, or else to the one object that its noun
///   stands for; entries that touch none come last.
class EntryGroups {
  public:
    /// `grouping` is not None.
    EntryGroups(store::Adventure& adventure, Grouping grouping);

    EntryGroup Of(std::string_view verb, std::string_view noun, std::string_view condacts) const;

  private:
    EntryGroup OfVerb(std::string_view verb) const;
    EntryGroup OfNumber(std::optional<int> number, condacts::ParamKind kind,
                        std::string_view without) const;
    std::optional<int> PlaceIn(std::string_view condacts) const;
    std::optional<int> ObjectIn(std::string_view noun, std::string_view condacts) const;

    Grouping grouping_;
    condacts::Catalogue catalogue_;
    condacts::Dialect dialect_;
    RecordTexts texts_;
    std::map<std::string, std::optional<int>> objectOfNoun_;  ///< nullopt: several have this noun
};

}  // namespace fabula::authoring
