#pragma once

#include <initializer_list>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "text/value.h"

namespace fabula::text {

/// A number that does not fit its directive, where no width gives room for asterisks. It comes from data,
/// so the caller has to expect it; all other wrong uses of FormatText are programming errors and throw
/// std::invalid_argument.
class FormatRangeError : public std::range_error {
  public:
    using std::range_error::range_error;
};

/// Formats one line of a listing, an export or the default data.
///
/// `format` is split at "!" into tokens. An empty token adds nothing; one that does not begin with "%" is
/// added as it stands. The others are directives: a letter in either case, and behind it a width, which is
/// a number, or "*" to take the number from `values`, or nothing. A width of 0, below 0, beyond 32,767 or
/// that is no number counts as none, and the value takes the room it needs. Directives take `values` one
/// after the other, the width of a "*" first.
///
///     %a  text, filled with blanks behind it or cut to its first characters; null is empty, numbers are as
///     in ToText %r  text, filled with blanks in front or cut to its last characters %s  whole number
///     within 16 bits, blanks in front %z  the same with zeros in front, which come before a minus sign %n
///     whole number within 32 bits; the width is not used %d  the present date and time as "05-Mar-2001
///     14:07:09"; with a "%" at the token's end, that of a value %i  the same for the time alone,
///     "14:07:09" %c  the token's last character, as often as the width before it says: "%c30-"; without a
///     width never %t  blanks up to the column before the width's, counting the whole result from 1; where
///     the result is already
///         longer, a line end and the blanks of a new line up to there
///     %e  !      %f  form feed      %l  line end "\r\n"      %p  %      %q  "
///
/// Any other letter adds nothing. A %s or %z that is longer than its width becomes asterisks, and so does a
/// number beyond the bits of its directive when there is a width; without one, FormatRangeError. A number
/// may come as text or as a floating number, which is rounded. A date that is not in the form of Value is
/// shown as it stands.
///
/// `clock` is needed for %d and %i without a value only. Widths count code points. Throws
/// std::invalid_argument when values or the clock are missing, and for a value that is no number where one
/// is needed, null included.
std::string FormatText(std::string_view format, std::span<const Value> values,
                       const platform::Clock* clock = nullptr);
std::string FormatText(std::string_view format, std::initializer_list<Value> values,
                       const platform::Clock* clock = nullptr);

}  // namespace fabula::text
