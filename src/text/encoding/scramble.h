#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/random_source.h"

namespace fabula::text {

// The reversible hiding of text at rest, as in the lines of the default data. It keeps nothing secret from
// anybody who looks for it; it only keeps readers from stumbling over texts. The two substitution tables
// belong to the files written with them: to change a table is to make those files unreadable.

/// The tiers of ScrambleText, numbered as files number them. Mode 4 is its overload with a Shift.
enum class ScrambleMode {
    kEncode = 0,
    kDecode = 1,
    kEncodeC = 2,
    kDecodeC = 3,
    kDecodeShifted = 5,
};

/// What mode 4 draws for each text.
struct Shift {
    int amount = 1;                ///< 1 to 15
    bool lowerCaseLetter = false;  ///< whether the letter that tells the amount is a small one
};

/// Draws the amount, and takes the letter's case from the clock: a small letter in odd seconds.
Shift DrawShift(platform::RandomSource& random, const platform::Clock& clock);

/// Modes 0 to 3 replace each character from 32 to 126 by its partner in the first table (0, 1) or the
/// second (2, 3) and keep all others. Mode 5 undoes mode 4; a text that mode 4 did not write gives a text
/// without meaning.
std::string ScrambleText(std::string_view text, ScrambleMode mode);

/// Mode 4: lowers every character by the shift, puts the letter of the shift in front, and encodes the
/// whole by mode 0. The empty text stays empty. Numbers of characters wrap around the end of Unicode, so
/// that every text comes back. Throws std::invalid_argument for an amount outside 1 to 15.
std::string ScrambleText(std::string_view text, Shift shift);

}  // namespace fabula::text
