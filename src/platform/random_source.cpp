#include "platform/random_source.h"

namespace fabula::platform {

int SeededRandom::UpTo(int n) {
    // Rejection instead of std::uniform_int_distribution, whose numbers differ between standard libraries.
    const auto range = static_cast<std::uint32_t>(n);
    const std::uint32_t limit = UINT32_MAX - UINT32_MAX % range;
    std::uint32_t drawn = static_cast<std::uint32_t>(engine_());
    while (drawn >= limit)
        drawn = static_cast<std::uint32_t>(engine_());
    return static_cast<int>(drawn % range) + 1;
}

std::uint32_t UnpredictableSeed() {
    return std::random_device{}();
}

}  // namespace fabula::platform
