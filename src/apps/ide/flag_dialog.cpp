#include "ide/flag_dialog.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include "qt/strings.h"

namespace fabula::ide {

FlagDialog::FlagDialog(authoring::frmFlags& screen, QWidget* parent)
    : RecordDialog(screen, QString("Flag %1").arg(screen.Key().key), "frmflags.html", parent),
      screen_(screen),
      type_(NewDropList(screen.cboFlgType)),
      use_(NewDropList(screen.cboFlgUse)),
      description_(NewTextEdit(screen.txtFlgDesc)) {
    AddControl("&Type:", type_, "cboFlgType");
    AddControl("U&se:", use_, "cboFlgUse");
    AddControl("&Description:", description_, "txtFlgDesc");
    CheckOnLeave(type_, [this] { return screen_.LeaveCboFlgType(); });
    CheckOnLeave(use_, [this] { return screen_.LeaveCboFlgUse(); });
    CheckOnLeave(description_, [this] { return screen_.LeaveTxtFlgDesc(); });
}

void FlagDialog::Read() {
    screen_.cboFlgType.index = type_->currentIndex();
    screen_.cboFlgUse.index = use_->currentIndex();
    screen_.txtFlgDesc = qt::FromQt(description_->toPlainText());
}

}  // namespace fabula::ide
