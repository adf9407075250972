#include "references/condact_access.h"

#include <algorithm>

namespace fabula::references {
namespace {

constexpr CondActAccess kAccesses[] = {
    {"SWAP", Access::Both, Access::Both},
    {"COPYOO", Access::Reads, Access::Sets},
    {"COPYOF", Access::Reads, Access::Sets, Kind::Location, 2},
    {"COPYFO", Access::Reads, Access::Sets, Kind::Location},
    {"WEIGH", Access::Reads, Access::Sets, std::nullopt, 2},
    {"PLUS", Access::Both, Access::Names, std::nullopt, 1},
    {"MINUS", Access::Both, Access::Names, std::nullopt, 1},
    {"ADD", Access::Reads, Access::Both, std::nullopt, 2},
    {"SUB", Access::Reads, Access::Both, std::nullopt, 2},
    {"COPYFF", Access::Reads, Access::Sets, std::nullopt, 2},
    {"RANDOM", Access::Sets, Access::Names, std::nullopt, 1},
    {"WEIGHT", Access::Sets, Access::Names, std::nullopt, 1},
    {"MOVE", Access::Both, Access::Names, Kind::Location, 1},
    {"PRINT", Access::Reads},
    {"RAMLOAD", Access::Names},
    {"AUTODEC", Access::Both, Access::Names, std::nullopt, 1},
    {"AUTOINC", Access::Both, Access::Names, std::nullopt, 1},
    {"MESF", Access::Reads, Access::Names, Kind::Message},
    {"MESSGF", Access::Reads, Access::Names, Kind::Message},
    {"SYSMSGF", Access::Reads, Access::Names, Kind::SystemMessage},
};

}  // namespace

const CondActAccess* FindCondActAccess(std::string_view name) {
    const auto* found = std::find_if(std::begin(kAccesses), std::end(kAccesses),
                                     [&](const CondActAccess& entry) { return entry.name == name; });
    return found == std::end(kAccesses) ? nullptr : found;
}

}  // namespace fabula::references
