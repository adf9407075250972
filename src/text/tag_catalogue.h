#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::text {

/// What the description markup needs of one row of the adventure's table of codes.
struct CodeRow {
    int codenum = 0;
    std::string
        fabulaTag;  ///< the tag's name in lower case, with the slash of a closing tag; empty for no tag
    int fabulaTagParam = 0;
    std::string fabulaTagVal;
    std::string fontName;  ///< empty for no font
};

/// Whether a tag takes a value: the numbers of `FabulaTagParam`.
enum class TagParam { kNone = 0, kRequired = 1, kOptional = 2 };

/// The tags that descriptions may use, and what their values may refer to.
class TagCatalogue {
  public:
    /// `characterSets` holds the numbers of the sets when the adventure writes through character sets, and
    /// nothing when it writes through fonts.
    explicit TagCatalogue(std::vector<CodeRow> rows,
                          std::optional<std::set<int>> characterSets = std::nullopt);

    /// The row of a tag, by its name in any case; null when there is no such tag.
    const CodeRow* FindTag(std::string_view name) const;

    /// True when `number` is a character set, or the number of a font where there are no character sets.
    bool HasCharacterSet(std::int64_t number) const;

    /// True when there is a row with this `codenum`, of whatever use.
    bool HasCode(std::int64_t number) const;

  private:
    std::vector<CodeRow> rows_;
    std::optional<std::set<int>> characterSets_;
};

}  // namespace fabula::text
