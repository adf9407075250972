#include "ide/dialogs/jobs/verify_dialog.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "ide/dialogs/jobs/status_button.h"
#include "ide/editors/layout.h"
#include "ide/printing/paper_output.h"
#include "platform/error.h"
#include "qt/fitting_size.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kVerifySize(640, 420);

}  // namespace

VerifyDialog::VerifyDialog(authoring::VerifyScreen& verify, platform::Dialogs& dialogs, QWidget* parent)
    : ColumnDialog({"VerifyScreen", qt::Translated(verify.Title()), "frmverify.html"}, parent),
      verify_(verify),
      dialogs_(dialogs),
      lines_(new QListWidget),
      progress_(new QLabel),
      goToButton_(new QPushButton(tr("&Go to Entry"))),
      print_(NewStatusButton(tr("&Print"),
                             {[this] { return verify_.Status(); }, [this] { verify_.SaveStatus(dialogs_); },
                              [this] { PrintText(verify_.Status(), verify_.Title(), dialogs_, this); }})) {
    lines_->setObjectName("status");
    lines_->setAccessibleName(tr("Status"));
    lines_->setWordWrap(true);
    lines_->setSpacing(1);
    lines_->setAlternatingRowColors(true);
    progress_->setObjectName("progress");
    progress_->setAccessibleDescription(tr("Progress"));
    progress_->setTextFormat(Qt::PlainText);
    goToButton_->setObjectName("goTo");
    goToButton_->setAutoDefault(false);
    goToButton_->setEnabled(false);
    auto* ok = new QPushButton(tr("OK"));
    ok->setObjectName("ok");
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(print_);
    buttons->addWidget(goToButton_);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    Column().setSpacing(10);
    Column().addWidget(progress_);
    Column().addWidget(lines_, 1);
    Column().addLayout(buttons);
    resize(qt::FittingSize(*this, kVerifySize));

    QObject::connect(ok, &QPushButton::clicked, this, [this] { Leave(); });
    QObject::connect(goToButton_, &QPushButton::clicked, this, [this] { GoTo(lines_->currentItem()); });
    QObject::connect(lines_, &QListWidget::itemActivated, this,
                     [this](const QListWidgetItem* line) { GoTo(line); });
    QObject::connect(lines_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* line) {
        goToButton_->setEnabled(goTo && line && authoring::VerifyScreen::EntryOf(qt::FromQt(line->text())));
    });
    verify_.changed = [this] { ShowStatus(); };
    lines_->setFocus();
}

VerifyDialog::~VerifyDialog() {
    verify_.changed = [] {};
}

void VerifyDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (begun_) return;
    begun_ = true;
    goToButton_->setVisible(static_cast<bool>(goTo));
    ShowStatus();
    // The window is drawn before the check begins.
    QTimer::singleShot(0, this, [this] { Run(); });
}

void VerifyDialog::Run() {
    try {
        verify_.Run();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
    ShowEnd();
    if (leaving_ || (closeWhenPassed_ && verify_.Passed())) accept();
}

void VerifyDialog::ShowStatus() {
    const std::string& status = verify_.Status();
    if (status.size() < shown_) {
        lines_->clear();
        shown_ = 0;
    }
    for (std::size_t end; (end = status.find('\n', shown_)) != std::string::npos; shown_ = end + 1)
        lines_->addItem(qt::Translated(std::string_view(status).substr(shown_, end - shown_)));
    const QString step = qt::Translated(verify_.ProgressLine()).trimmed();
    progress_->setText(step.isEmpty() ? tr("Checking...") : tr("Checking... %1").arg(step));
    print_->setEnabled(verify_.Finished());
}

void VerifyDialog::ShowEnd() {
    progress_->setText(verify_.Passed() ? tr("The adventure has passed.")
                                        : tr("The adventure has not passed."));
    print_->setEnabled(true);
    // The first entry at fault is at hand; without one the end is.
    for (int row = 0; row < lines_->count(); ++row) {
        if (authoring::VerifyScreen::EntryOf(qt::FromQt(lines_->item(row)->text())))
            return lines_->setCurrentRow(row);
    }
    lines_->scrollToBottom();
}

/// A check that runs is ended first; the window closes when it has.
void VerifyDialog::Leave() {
    verify_.Ok();
    leaving_ = true;
    if (!verify_.Running()) accept();
}

void VerifyDialog::reject() {
    Leave();
}

void VerifyDialog::GoTo(const QListWidgetItem* line) {
    if (!goTo || !line || verify_.Running()) return;
    const auto entry = authoring::VerifyScreen::EntryOf(qt::FromQt(line->text()));
    if (!entry) return;
    accept();
    goTo(*entry);
}

}  // namespace fabula::ide
