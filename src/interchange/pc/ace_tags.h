#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "store/adventure.h"

namespace fabula::interchange {

/// The tags of ACE sources and those of Fabula, as the adventure's `codes` pair them.
class AceTags {
  public:
    explicit AceTags(store::Adventure& adventure);

    /// A text of a source with Fabula's tags: "<COLOR=bright red>" becomes "<ink=10>". Tags that
    /// `codes` does not pair stay as they are.
    std::string ConvertACETags(std::string_view text) const;

    /// The other way. Only tags that ConvertACETags would bring back are turned.
    std::string ToACETags(std::string_view text) const;

  private:
    struct Partner {
        std::string name;
        bool isColour = false;
    };
    using Partners = std::unordered_map<std::string, Partner>;

    Partners fromAce_;
    Partners toAce_;
};

/// The number of a colour from 0 to 15 by its name, case ignored; -1 for any other text.
int ConvertACEColors(std::string_view name);

}  // namespace fabula::interchange
