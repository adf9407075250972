#include "ide/dialogs/jobs/restore_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/dialogs/help_pages.h"
#include "ide/editors/layout.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kRestoreSize(560, 440);

}  // namespace

RestoreDialog::RestoreDialog(const authoring::RestoreScreen& screen, QWidget* parent)
    : ColumnDialog({"restore", qt::Translated(authoring::RestoreScreen::kTitle), kMainWindowPage}, parent),
      screen_(screen),
      copies_(new QTableWidget),
      comparison_(new QPlainTextEdit) {
    setProperty(qt::kHelpAnchor, "restore");
    copies_->setObjectName("copies");
    copies_->setAccessibleName(tr("Backup copies"));
    copies_->setColumnCount(2);
    copies_->setHorizontalHeaderLabels({tr("Made"), tr("Size")});
    copies_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    copies_->verticalHeader()->hide();
    copies_->setSelectionBehavior(QAbstractItemView::SelectRows);
    copies_->setSelectionMode(QAbstractItemView::SingleSelection);
    copies_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    copies_->setTabKeyNavigation(false);
    copies_->setRowCount(static_cast<int>(screen.Copies().size()));
    for (int row = 0; row < copies_->rowCount(); ++row) {
        const auto copy = static_cast<std::size_t>(row);
        copies_->setItem(row, 0, new QTableWidgetItem(qt::ToQt(screen.MadeOf(copy))));
        copies_->setItem(row, 1, new QTableWidgetItem(qt::ToQt(screen.SizeOf(copy))));
    }
    comparison_->setObjectName("comparison");
    comparison_->setReadOnly(true);
    comparison_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    comparison_->setTabChangesFocus(true);
    auto* caption = new QLabel(tr("&What differs from the adventure as it is"));
    caption->setBuddy(comparison_);
    comparison_->setAccessibleName(caption->text().remove('&'));
    auto* buttons = new QDialogButtonBox;
    auto* restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    restore->setObjectName("accept");
    restore->setDefault(true);
    buttons->addButton(tr("Exit"), QDialogButtonBox::RejectRole)->setObjectName("exit");

    Column().setSpacing(10);
    Column().addWidget(copies_, 2);
    Column().addWidget(caption);
    Column().addWidget(comparison_, 1);
    Column().addWidget(buttons);
    resize(qt::FittingSize(*this, kRestoreSize));
    connect(copies_, &QTableWidget::currentCellChanged, this, [this] { ShowComparison(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    copies_->setCurrentCell(0, 0);
    copies_->setFocus();
}

std::size_t RestoreDialog::Chosen() const {
    return static_cast<std::size_t>(std::max(copies_->currentRow(), 0));
}

void RestoreDialog::ShowComparison() {
    comparison_->setPlainText(qt::Translated(screen_.ComparisonOf(Chosen())));
}

}  // namespace fabula::ide
