#include "authoring/screens/flag_screen.h"

#include "authoring/fields/texts/text_field.h"
#include "store/new_flag.h"

namespace fabula::authoring {
namespace {

std::vector<ListItem> Types() {
    return {{0, std::string(store::kSystemFlagType)}, {1, std::string(store::kUserFlagType)}};
}

std::vector<ListItem> Uses() {
    return {{0, std::string(store::kUnknownFlagUse)},
            {1, "Counter"},
            {2, "Location"},
            {3, "Object"},
            {4, "Score"},
            {5, "Setting"},
            {6, "Switch"},
            {7, "Timer"},
            {8, "Word"},
            {9, "Work"}};
}

}  // namespace

FlagScreen::FlagScreen(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, store::TableNum::Flags, key, "flag"), type{Types()}, use{Uses()} {
    ReadRecord();
}

void FlagScreen::GoTo(int key) {
    SetKey(key);
    ReadRecord();
}

void FlagScreen::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    type.ChooseText(std::string(record.Text("flgtype")));
    use.ChooseText(std::string(record.Text("flguse")));
    description = ToEdited(record.Text("flgdesc"));
    opened_ = Typed();
}

bool FlagScreen::LeaveType() {
    if (type.Chosen() != nullptr) return true;
    return RefuseField("type", "Must choose a value for Type");
}

bool FlagScreen::LeaveUse() {
    const ListItem* chosen = use.Chosen();
    // The quote in the title stands there on purpose.
    if (chosen == nullptr) return RefuseField("use", "Must choose a Value for Use", "Error'");
    if (chosen->text != store::kUnknownFlagUse) return true;
    return RefuseField("use", "Cannot use Unknown as a Usage");
}

bool FlagScreen::LeaveDescription() {
    return CheckText("description", description, false);
}

std::vector<std::string> FlagScreen::Typed() const {
    return {std::to_string(type.index), std::to_string(use.index), description};
}

bool FlagScreen::UpdateFields() {
    if (!Changed()) return true;
    if (!LeaveType() || !LeaveUse() || !LeaveDescription()) return false;
    Change change(context_.document, ChangeName());
    store::Cursor& record = RecordToStore();
    record.SetField("flgtype", type.Chosen()->text);
    record.SetField("flguse", use.Chosen()->text);
    record.SetField("flgdesc", ToStored(description));
    record.Update();
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
