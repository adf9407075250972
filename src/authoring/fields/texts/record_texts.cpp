#include "authoring/fields/texts/record_texts.h"

#include <string>

#include "authoring/fields/location_names.h"
#include "authoring/fields/texts/brief_text.h"
#include "store/new_flag.h"
#include "store/schema/record_fields.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::PreparedQuery;
using store::TableNum;

std::vector<ListItem> Load(Adventure& adventure, TableNum table) {
    PreparedQuery rows = adventure.Prepare(table, store::KeyAndText(table), "", store::KeyField(table));
    std::vector<ListItem> items;
    for (bool more = rows.First({}); more; more = rows.Next())
        items.push_back({static_cast<int>(rows.Number(0)), BriefText(rows.Text(1))});
    return items;
}

std::vector<ListItem> LoadFlags(Adventure& adventure) {
    PreparedQuery rows = adventure.Prepare(TableNum::Flags, "flgnum, flgdesc, flguse", "", "flgnum");
    std::vector<ListItem> items;
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const std::string_view use = rows.Text(2) == store::kUnknownFlagUse ? "" : rows.Text(2);
        items.push_back({static_cast<int>(rows.Number(0)), BriefText(rows.Text(1), use)});
    }
    return items;
}

}  // namespace

const std::vector<ListItem>& RecordTexts::Of(condacts::ParamKind kind) const {
    static const std::vector<ListItem> kNone;
    switch (kind) {
        case condacts::ParamKind::Location:
            return locations;
        case condacts::ParamKind::Message:
            return messages;
        case condacts::ParamKind::Object:
            return objects;
        case condacts::ParamKind::Process:
            return processes;
        case condacts::ParamKind::SystemMessage:
            return systemMessages;
        case condacts::ParamKind::Flag:
            return flags;
        case condacts::ParamKind::Word:
        case condacts::ParamKind::Value:
        case condacts::ParamKind::None:
            break;
    }
    return kNone;
}

RecordTexts LoadRecordTexts(Adventure& adventure) {
    const store::ReadTransaction reading(adventure);
    return {.locations = LocationNames(adventure),
            .messages = Load(adventure, TableNum::Messages),
            .objects = Load(adventure, TableNum::Objects),
            .processes = Load(adventure, TableNum::ProcDesc),
            .systemMessages = Load(adventure, TableNum::SystemMessages),
            .flags = LoadFlags(adventure)};
}

}  // namespace fabula::authoring
