#pragma once

#include <span>

namespace fabula::qt {

/// The sentences of the libraries that stand in the sources as plain strings, with "%1", "%2" ... for
/// values. `scripts/sentences.py` makes the list when the program is built.
std::span<const char* const> Sentences();

}  // namespace fabula::qt
