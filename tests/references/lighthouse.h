#pragma once

#include <memory>

#include "store/adventure.h"

namespace fabula::test {

/// The lighthouse of the examples, as a copy in memory that a test may change.
std::unique_ptr<store::Adventure> Lighthouse();

}  // namespace fabula::test
