#include "interchange/export_fields.h"

namespace fabula::interchange {

std::vector<ExportField> ExportFields(store::Adventure& adventure, int tableNumber) {
    std::vector<ExportField> fields;
    const std::string table = "tablenum=" + std::to_string(tableNumber);
    for (const char* which : {" and export=1", " and export>1"}) {
        store::PreparedQuery rows =
            adventure.Prepare(store::TableNum::Tables, "fieldname, fieldtype, export", table + which);
        for (bool more = rows.First({}); more; more = rows.Next()) {
            fields.push_back({std::string(rows.Text(0)), std::string(rows.Text(1)),
                              static_cast<ExportUse>(rows.Number(2))});
        }
    }
    return fields;
}

std::string ExportVersion(store::Adventure& adventure) {
    store::PreparedQuery system = adventure.Prepare(store::TableNum::System, "sysexportversion", "");
    return system.First({}) ? std::string(system.Text(0)) : std::string();
}

}  // namespace fabula::interchange
