#include "condacts/process_filters.h"

#include "condacts/limits.h"

namespace fabula::condacts {

std::string BehindFixedProcesses(std::string_view field) {
    return std::string(field).append(">").append(std::to_string(limit::kLastFixedProcess.value));
}

}  // namespace fabula::condacts
