#pragma once

#include <vector>

#include "pictures/picture_book.h"

namespace fabula::listings {

/// The pictures `wanted` and all that they call, those that these call included, each once and in the order
/// in which they are found. A picture that is called and does not exist is among them.
std::vector<int> PicturesNeeded(const pictures::PictureBook& book, const std::vector<int>& wanted);

}  // namespace fabula::listings
