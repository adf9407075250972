#pragma once

#include <string>
#include <vector>

#include "pictures/files/image.h"

namespace fabula::listings {

/// A picture in signs of the Braille block, eight dots a sign in two columns and four rows: dark points are
/// dots, colours between are mixed. An image that is larger than the dots of its place is made smaller.
/// `lines` lines of `columns` signs each.
std::vector<std::u32string> DotPicture(const pictures::Image& image, int columns, int lines);

}  // namespace fabula::listings
