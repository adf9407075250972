#pragma once

#include "pictures/characters/glyph.h"

namespace fabula::pictures {

/// What can be done to a character as a whole.

/// Moved by one pixel; what leaves on one side comes in on the other.
Glyph ShiftLeft(const Glyph& glyph);
Glyph ShiftRight(const Glyph& glyph);
Glyph ShiftUp(const Glyph& glyph);
Glyph ShiftDown(const Glyph& glyph);

/// Turned by a quarter, clockwise.
Glyph Rotate(const Glyph& glyph);
/// Left and right exchanged; top and bottom exchanged.
Glyph MirrorSideways(const Glyph& glyph);
Glyph MirrorUpsideDown(const Glyph& glyph);
/// Set pixels clear and clear ones set.
Glyph Invert(const Glyph& glyph);

/// With the pixel at a column and a row, 0 to 7 each, set or clear.
Glyph WithPixel(Glyph glyph, int column, int row, bool set);

}  // namespace fabula::pictures
