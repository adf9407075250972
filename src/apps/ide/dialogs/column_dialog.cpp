#include "ide/dialogs/column_dialog.h"

#include <QVBoxLayout>

#include "ide/editors/layout.h"
#include "qt/help/help_request.h"

namespace fabula::ide {

ColumnDialog::ColumnDialog(const DialogHead& head, QWidget* parent)
    : QDialog(parent), column_(new QVBoxLayout(this)) {
    setObjectName(head.name);
    setWindowTitle(head.title);
    setProperty(qt::kHelpPage, head.helpPage);
    setWindowModality(Qt::WindowModal);
    column_->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
}

}  // namespace fabula::ide
