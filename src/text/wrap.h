#pragma once

#include <string>
#include <string_view>

namespace fabula::text {

/// Breaks a text, without the blanks at its ends, into lines for a plain-text listing; each line, the last
/// too, ends in kLineEnd. A carriage return (with the line feed behind it, if any) is a line end, if it
/// comes before the line is full.
///
/// Nothing but those carriage returns is lost: the blank at which a line breaks stays at its end. `width`
/// columns are meant for what shows, so a line has `width` + 1 with that blank. A word reaches to the next
/// blank, whatever stands in between; one that fits into no line is cut where the line is full, with what
/// the line already holds counted in. The last word is never cut.
///
/// Lines after a break begin with `hang` blanks; the first one and those after a carriage return don't.
/// Throws std::invalid_argument unless 0 <= `hang` < `width`.
std::string WrapText(std::string_view text, int width, int hang = 0);

}  // namespace fabula::text
