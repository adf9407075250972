#include "ide/dialogs/records/flag_dialog.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include "qt/strings.h"

namespace fabula::ide {

FlagDialog::FlagDialog(authoring::FlagScreen& screen, QWidget* parent)
    : RecordDialog(screen, {}, "frmflags.html", parent),
      screen_(screen),
      type_(NewChoice(screen.type)),
      use_(NewChoice(screen.use)),
      description_(NewTextEdit(screen.description)) {
    AddControl(tr("&Type:"), type_, "type");
    AddControl(tr("U&se:"), use_, "use");
    AddControl(tr("&Description:"), description_, "description");
    CheckOnLeave(type_, [this] { return screen_.LeaveType(); });
    CheckOnLeave(use_, [this] { return screen_.LeaveUse(); });
    CheckOnLeave(description_, [this] { return screen_.LeaveDescription(); });
    ShowRecord();
}

void FlagDialog::ShowOpened() {
    setWindowTitle(tr("Flag %1").arg(screen_.Key().key));
    type_->setCurrentIndex(screen_.type.index);
    use_->setCurrentIndex(screen_.use.index);
    description_->setPlainText(qt::ToQt(screen_.description));
}

void FlagDialog::Read() {
    screen_.type.index = type_->currentIndex();
    screen_.use.index = use_->currentIndex();
    screen_.description = qt::FromQt(TextIn(*description_));
}

}  // namespace fabula::ide
