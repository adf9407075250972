#include "store/new_flag.h"

#include "store/cursor.h"

namespace fabula::store {

std::vector<std::pair<std::string, text::Value>> FieldsOfNewFlag(std::int64_t number,
                                                                 std::string description) {
    return {
        {"flgnum", number},
        {"flgtype", std::string(kUserFlagType)},
        {"flguse", std::string(kUnknownFlagUse)},
        {"flgmod", kEditableFlag},
        {"flgdesc", std::move(description)},
        {"flgchg", std::int64_t{1}},
    };
}

void FillNewFlag(Cursor& flag, std::int64_t number, std::string description) {
    for (const auto& [field, value] : FieldsOfNewFlag(number, std::move(description)))
        flag.SetField(field, value);
}

std::string SystemFlag(std::int64_t number) {
    return "flgtype='System' and flgnum=" + std::to_string(number);
}

}  // namespace fabula::store
