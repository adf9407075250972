#include "platform/clock.h"

#include <ctime>

namespace fabula::platform {

DateTime SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace fabula::platform
