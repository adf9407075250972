#include "store/new_flag.h"

#include "store/filter/filter.h"
#include "store/query/cursor.h"

namespace fabula::store {
namespace {

std::string OfFlagType(std::string_view type) {
    return "flgtype=" + QuoteText(type);
}

}  // namespace

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

std::string OfUserFlags() {
    return OfFlagType(kUserFlagType);
}

std::string OfEditableUserFlags() {
    return "flgmod>0 and " + OfUserFlags();
}

std::string SystemFlag(std::int64_t number) {
    return OfFlagType(kSystemFlagType) + " and flgnum=" + std::to_string(number);
}

}  // namespace fabula::store
