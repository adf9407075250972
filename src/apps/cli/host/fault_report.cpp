#include "cli/host/fault_report.h"

#include "cli/json.h"

namespace fabula::cli {
namespace {

Json JsonOfFault(const interchange::Fault& fault) {
    Json object = Json::object();
    if (fault.place) {
        object["file"] = fault.place->file.string();
        object["line"] = fault.place->line;
        object["column"] = fault.place->column;
    }
    if (!fault.entry.empty()) object["entry"] = fault.entry;
    object["message"] = fault.message;
    return object;
}

}  // namespace

std::string CountOf(const std::vector<interchange::Fault>& faults) {
    return std::to_string(faults.size()) + (faults.size() == 1 ? " fault." : " faults.");
}

void AddJsonFlag(CLI::App& verb, bool& json) {
    verb.add_flag("--json", json, "Tell the faults on standard output as a JSON array");
}

void PrintAsJson(const std::vector<interchange::Fault>& faults) {
    Json list = Json::array();
    for (const interchange::Fault& fault : faults)
        list.push_back(JsonOfFault(fault));
    PrintList(list);
}

}  // namespace fabula::cli
