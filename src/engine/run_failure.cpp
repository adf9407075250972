#include "engine/run_failure.h"

namespace fabula::engine {

void FailRange(const std::string& what, long long value) {
    throw RunFailure(what + " can't hold " + std::to_string(value));
}

void FailMissing(const char* kind, int number) {
    throw RunFailure(std::string(kind) + " " + std::to_string(number) + " does not exist");
}

}  // namespace fabula::engine
