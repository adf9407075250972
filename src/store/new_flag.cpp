#include "store/new_flag.h"

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

}  // namespace fabula::store
