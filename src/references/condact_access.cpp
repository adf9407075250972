#include "references/condact_access.h"

#include <algorithm>

namespace fabula::references {
namespace {

constexpr CondActAccess kAccesses[] = {
    {"SWAP", Access::Both, Access::Both},
    {"COPYOO", Access::Reads, Access::Sets},
    {"COPYOF", Access::Reads, Access::Sets, Kind::Location, 2, Flow::Measures},
    {"COPYFO", Access::Reads, Access::Sets, Kind::Location},
    {"WEIGH", Access::Reads, Access::Sets, std::nullopt, 2, Flow::Measures},
    {"PLUS", Access::Both, Access::Names, std::nullopt, 1, Flow::Counts},
    {"MINUS", Access::Both, Access::Names, std::nullopt, 1, Flow::Counts},
    {"ADD", Access::Reads, Access::Both, std::nullopt, 2, Flow::Counts},
    {"SUB", Access::Reads, Access::Both, std::nullopt, 2, Flow::Counts},
    {"COPYFF", Access::Reads, Access::Sets, std::nullopt, 2, Flow::Copies},
    {"SAME", Access::Reads, Access::Reads, std::nullopt, 0, Flow::Compares},
    {"NOTSAME", Access::Reads, Access::Reads, std::nullopt, 0, Flow::Compares},
    {"RANDOM", Access::Sets, Access::Names, std::nullopt, 1, Flow::Counts},
    {"WEIGHT", Access::Sets, Access::Names, std::nullopt, 1, Flow::Measures},
    {"MOVE", Access::Both, Access::Names, Kind::Location, 1, Flow::Walks},
    {"PRINT", Access::Reads},
    {"RAMLOAD", Access::Names},
    {"AUTODEC", Access::Both, Access::Names, std::nullopt, 1, Flow::Counts},
    {"AUTOINC", Access::Both, Access::Names, std::nullopt, 1, Flow::Counts},
    {"MESF", Access::Reads, Access::Names, Kind::Message},
    {"MESSGF", Access::Reads, Access::Names, Kind::Message},
    {"SYSMSGF", Access::Reads, Access::Names, Kind::SystemMessage},
};

constexpr std::string_view kEndsTable[] = {"DONE", "NOTDONE", "OK", "DESC", "RESET", "END"};

}  // namespace

const CondActAccess* FindCondActAccess(std::string_view name) {
    const auto* found = std::find_if(std::begin(kAccesses), std::end(kAccesses),
                                     [&](const CondActAccess& entry) { return entry.name == name; });
    return found == std::end(kAccesses) ? nullptr : found;
}

Flow FlowOf(std::string_view name) {
    const CondActAccess* const access = FindCondActAccess(name);
    return access == nullptr ? Flow::None : access->flow;
}

bool EndsTable(std::string_view name) {
    return std::find(std::begin(kEndsTable), std::end(kEndsTable), name) != std::end(kEndsTable);
}

}  // namespace fabula::references
