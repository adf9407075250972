#include "authoring/batch/batch_work.h"

#include "authoring/fields/picture_choice.h"
#include "store/game_path.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {

const BatchChange::Field* BatchChange::Find(std::string_view field) const {
    for (const Field& each : changed_) {
        if (text::EqualsNoCase(each.name, field)) return &each;
    }
    return nullptr;
}

std::optional<std::string> BatchChange::Text(std::string_view field) const {
    const Field* found = Find(field);
    return found ? std::optional(found->entry->value) : std::nullopt;
}

std::optional<std::string> BatchChange::Words(std::string_view field) const {
    const Field* found = Find(field);
    return found ? std::optional(text::ReplaceAll(found->entry->value, "\n", " ")) : std::nullopt;
}

bool BatchChange::Refuse(std::string_view field, std::string_view message) const {
    const Field* found = Find(field);
    const std::int64_t line = found ? found->entry->line : record_.line;
    status_.AddFault(message, {file_, line, found ? found->entry->text : record_.text});
    return false;
}

bool BatchChange::RefuseAt(BatchDialogs& dialogs, std::string_view control,
                           std::initializer_list<ControlField> fields) const {
    const std::string told = dialogs.TakeTold();
    for (const ControlField& each : fields) {
        if (each.control == control) return Refuse(each.field, told);
    }
    return Refuse("", told);
}

bool CheckPictureFile(BatchWork& work, const BatchChange& change, std::string_view field) {
    const auto name = change.Text(field);
    if (!name || text::TrimBlanks(*name).empty()) return true;
    switch (store::FindGameFile(work.Adventure().GameDir(), *name).fault) {
        case store::GamePath::Fault::Outside:
            return change.Refuse(field, kPictureOutside);
        case store::GamePath::Fault::Missing:
            return change.Refuse(field, "There is no picture " + *name + " in the game's folder.");
        case store::GamePath::Fault::None:
            break;
    }
    return true;
}

}  // namespace fabula::authoring
