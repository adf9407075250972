#include "ide/dialogs/tables/renumber_dialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "ide/dialogs/help_pages.h"
#include "ide/dialogs/update_and_exit.h"
#include "ide/editors/layout.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kRenumberSize(640, 400);

}  // namespace

RenumberDialog::RenumberDialog(authoring::RenumberScreen& screen, QWidget* parent)
    : ColumnDialog({"RenumberDialog", qt::Translated(authoring::RenumberScreen::kCaption), kMainWindowPage},
                   parent),
      screen_(screen),
      number_(new QLineEdit),
      changes_(new QListWidget) {
    resize(qt::FittingSize(*this, kRenumberSize));
    number_->setObjectName("number");
    number_->setText(qt::ToQt(screen.number));
    number_->selectAll();
    changes_->setObjectName("changes");
    changes_->setAccessibleName(tr("What changes"));
    auto* form = new QFormLayout;
    form->addRow(tr("&New number of %1:").arg(qt::Translated(screen.Name())), number_);
    auto* row = new QHBoxLayout;
    const auto [update, exit] = AddUpdateAndExit(*row);
    Column().addLayout(form);
    Column().addWidget(changes_);
    Column().addLayout(row);
    connect(number_, &QLineEdit::textChanged, this, [this] { ShowPreview(); });
    connect(update, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    ShowPreview();
}

void RenumberDialog::ShowPreview() {
    screen_.number = qt::FromQt(number_->text());
    changes_->clear();
    for (const std::string& line : screen_.Preview())
        changes_->addItem(qt::Translated(line));
}

void RenumberDialog::ClickUpdate() {
    if (screen_.Update()) return accept();
    number_->setFocus();
}

}  // namespace fabula::ide
