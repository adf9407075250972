#pragma once

#include <map>
#include <string_view>

#include "pictures/characters/glyph.h"

namespace fabula::pictures {

/// Reads a font in the Bitmap Distribution Format, whose cells must be 8 by 8 pixels: its characters by
/// their numbers, those without one left out. A character may be smaller than its cell and stands in it
/// where the font says. Throws fabula::Error, naming `fileName` and the line, for a font of another size
/// and for a file that is none.
std::map<int, Glyph> ReadBdfFont(std::string_view text, std::string_view fileName);

}  // namespace fabula::pictures
