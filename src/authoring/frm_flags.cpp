#include "authoring/frm_flags.h"

#include "authoring/text_field.h"

namespace fabula::authoring {
namespace {

constexpr const char* kUnknown = "Unknown";

std::vector<ListItem> Types() {
    return {{0, "System"}, {1, "User"}};
}

std::vector<ListItem> Uses() {
    return {{0, kUnknown},  {1, "Counter"}, {2, "Location"}, {3, "Object"}, {4, "Score"},
            {5, "Setting"}, {6, "Switch"},  {7, "Timer"},    {8, "Word"},   {9, "Work"}};
}

}  // namespace

frmFlags::frmFlags(Session& session, ScreenKey key)
    : RecordScreen(session, store::TableNum::Flags, key, "flag"), cboFlgType{Types()}, cboFlgUse{Uses()} {
    const store::Cursor& record = OpenRecord();
    cboFlgType.ChooseText(std::string(record.Text("flgtype")));
    cboFlgUse.ChooseText(std::string(record.Text("flguse")));
    txtFlgDesc = ToEdited(record.Text("flgdesc"));
    opened_ = Typed();
}

bool frmFlags::LeaveCboFlgType() {
    if (cboFlgType.Chosen() != nullptr) return true;
    return RefuseField("cboFlgType", "Must choose a value for Type");
}

bool frmFlags::LeaveCboFlgUse() {
    const ListItem* use = cboFlgUse.Chosen();
    // The quote in the title is the system's own.
    if (use == nullptr) return RefuseField("cboFlgUse", "Must choose a Value for Use", "Error'");
    if (use->text != kUnknown) return true;
    return RefuseField("cboFlgUse", "Cannot use Unknown as a Usage");
}

bool frmFlags::LeaveTxtFlgDesc() {
    return CheckText("txtFlgDesc", txtFlgDesc, false);
}

std::vector<std::string> frmFlags::Typed() const {
    return {std::to_string(cboFlgType.index), std::to_string(cboFlgUse.index), txtFlgDesc};
}

bool frmFlags::cmdUpdate() {
    if (Typed() == opened_) return true;
    if (!LeaveCboFlgType() || !LeaveCboFlgUse() || !LeaveTxtFlgDesc()) return false;
    Change change(session_.document, ChangeName());
    store::Cursor& record = RecordToStore();
    record.SetField("flgtype", cboFlgType.Chosen()->text);
    record.SetField("flguse", cboFlgUse.Chosen()->text);
    record.SetField("flgdesc", ToStored(txtFlgDesc));
    record.Update();
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
