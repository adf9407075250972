#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "store/schema/schema.h"
#include "text/value.h"

namespace fabula::store {

/// A filter, field list or order that is not well formed, or that does not fit its table. `what()` says
/// where and what was expected: "at 9: expected a value after '='".
class FilterError : public std::runtime_error {
  public:
    FilterError(std::size_t position, const std::string& expected);
    /// The place of the fault, in characters counted from 1.
    std::size_t Position() const { return position_; }

  private:
    std::size_t position_;
};

/// One node of a filter's tree.
///
/// The language: comparisons of a field with a number, a quoted text ('it''s') or another field by = <> < >
/// <= >=; `like` with % (or *) for any run of characters; a truth field standing alone; `and`, `or`,
/// parentheses. A truth field may be compared with true and false. Words of the language and names of
/// fields ignore case, and so do comparisons of text. A comparison with a null value is false.
struct FilterNode {
    enum class Kind : std::uint8_t { And, Or, Compare, Like, Truth };
    enum class Comparison : std::uint8_t { Equal, NotEqual, Less, Greater, LessEqual, GreaterEqual };

    /// One side of a comparison: a field, a constant, or the value still to come of a "?".
    struct Operand {
        enum class Kind : std::uint8_t { Field, Constant, Parameter };
        Kind kind = Kind::Constant;
        std::size_t field = 0;  ///< index in the schema
        text::Value constant;
    };

    Kind kind = Kind::Compare;
    Comparison comparison = Comparison::Equal;
    Operand left;
    Operand right;
    std::vector<FilterNode> children;  ///< of And and Or: two or more
};

/// Whether a filter may hold "?" in place of values.
enum class Parameters { Refused, Allowed };

/// The longest filter that is read, in bytes, its most comparisons, and the deepest nesting of parentheses.
inline constexpr std::size_t kLongestFilter = 65536;
inline constexpr int kMostComparisons = 500;
inline constexpr int kDeepestFilter = 100;

/// Parses a filter and checks it against the fields of its table. Throws FilterError.
FilterNode ParseFilter(std::string_view filter, const TableSchema& schema,
                       Parameters parameters = Parameters::Refused);

/// The filter as a condition of the store's query language. Every constant becomes a "?" and its value is
/// appended to `values`; for a "?" of the filter itself a null is appended. Nothing of a value stands in
/// the text.
void AppendSql(const FilterNode& node, const TableSchema& schema, std::string& sql,
               std::vector<text::Value>& values);

/// Gives the value of a field (by index in the schema) of the record at hand.
class FieldSource {
  public:
    virtual ~FieldSource() = default;
    virtual text::Value ValueOf(std::size_t field) const = 0;
};

/// Whether a record matches. The same answer as the store gives for `AppendSql`'s condition.
bool Matches(const FilterNode& node, const FieldSource& record);

/// Whether `text` matches a pattern of `like`, case ignored.
bool MatchesLike(std::string_view text, std::string_view pattern);

/// `text` as a quoted constant of a filter, quotes in it doubled: 'it''s'. Every filter that holds a text
/// from elsewhere is built with this.
std::string QuoteText(std::string_view text);

}  // namespace fabula::store
