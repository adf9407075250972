#include "ide/dialogs/jobs/job_dialog.h"

#include <QFormLayout>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "ide/editors/edit_controls.h"

namespace fabula::ide {

JobDialog::JobDialog(const JobWindow& window, QWidget* parent)
    : ColumnDialog({window.name, window.title, window.helpPage}, parent),
      form_(new QFormLayout),
      status_(new QPlainTextEdit),
      bar_(new QProgressBar),
      start_(window.start),
      exit_(NewButton(tr("E&xit"), "exit")) {
    Column().setSpacing(10);
    form_->setHorizontalSpacing(16);
    form_->setVerticalSpacing(8);
    Column().addLayout(form_);
    start_->setDefault(true);
    connect(start_, &QPushButton::clicked, this, [this] { Start(); });
    connect(exit_, &QPushButton::clicked, this, [this] { reject(); });
}

void JobDialog::AddStatus(const QString& name, const QString& hint, int lines) {
    status_->setObjectName("status");
    status_->setAccessibleName(name);
    status_->setReadOnly(true);
    status_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    status_->setTabChangesFocus(true);
    status_->setPlaceholderText(hint);
    status_->setMinimumHeight(fontMetrics().lineSpacing() * lines);
    Column().addWidget(status_, 1);
}

void JobDialog::AddEnd(QPushButton* other) {
    bar_->setObjectName("progressBar");
    bar_->setAccessibleName(tr("Progress"));
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 6, 0, 0);
    row->setSpacing(8);
    if (other != nullptr) row->addWidget(other);
    row->addStretch(1);
    row->addWidget(start_);
    row->addWidget(exit_);
    Column().addWidget(bar_);
    Column().addWidget(buttons);
}

void JobDialog::ShowRunning(bool running) {
    exit_->setText(running ? tr("&Cancel") : tr("E&xit"));
    exit_->setAccessibleName(PlainLabel(exit_->text()));
}

void JobDialog::reject() {
    if (Running()) return Cancel();
    QDialog::reject();
}

}  // namespace fabula::ide
