#pragma once

#include <cstdlib>

namespace fabula::test {

/// How often a test does what it does at random: `usual` times, or as often as the environment variable
/// asks for (docs/testing.md lists them).
inline int Trials(const char* variable, int usual) {
    const char* asked = std::getenv(variable);
    return asked == nullptr ? usual : std::atoi(asked);
}

}  // namespace fabula::test
