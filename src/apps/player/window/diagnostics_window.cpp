#include "player/window/diagnostics_window.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::player {

DiagnosticsWindow::DiagnosticsWindow(engine::Engine& engine, std::function<void()> help, QWidget* parent)
    : QDialog(parent),
      debug_(engine),
      help_(std::move(help)),
      input_(new QLineEdit),
      result_(new QLabel),
      follow_(new QCheckBox(tr("&Follow the game"))) {
    setWindowTitle(qt::Translated(engine::Diagnostics::kCaption));
    setObjectName("diagnostics");
    setProperty(qt::kHelpPage, "frmdebug.html");
    input_->setObjectName("request");
    input_->setAccessibleName(tr("Request"));
    input_->setPlaceholderText(tr("F38, O3, S, C, =5 or H"));
    input_->setToolTip(tr("F38 or O3 views a flag or an object, S sets it, C clears it, =5 changes it."));
    result_->setObjectName("result");
    result_->setTextFormat(Qt::PlainText);
    result_->setWordWrap(true);
    result_->setAccessibleName(tr("Result"));
    follow_->setChecked(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* act = buttons->addButton(tr("&Do It"), QDialogButtonBox::ActionRole);
    // Enter in the input does it; a default button would do it once more.
    for (QAbstractButton* button : buttons->buttons())
        qobject_cast<QPushButton*>(button)->setAutoDefault(false);
    QObject::connect(input_, &QLineEdit::returnPressed, this, [this] { DoIt(); });
    QObject::connect(act, &QPushButton::clicked, this, [this] { DoIt(); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    for (QWidget* line : {static_cast<QWidget*>(input_), static_cast<QWidget*>(result_),
                          static_cast<QWidget*>(follow_), static_cast<QWidget*>(buttons)})
        column->addWidget(line);
    resize(320, sizeHint().height());
    DisplayVariable();
    input_->setFocus();
}

void DiagnosticsWindow::DisplayVariable() {
    result_->setText(qt::Translated(debug_.DisplayVariable()));
}

void DiagnosticsWindow::Follow() {
    if (follow_->isChecked()) DisplayVariable();
}

void DiagnosticsWindow::DoIt() {
    const engine::Diagnostics::Answer answer = debug_.DoIt(qt::FromQt(input_->text().trimmed()));
    input_->selectAll();
    if (!answer.refusal.empty()) return result_->setText(qt::Translated(answer.refusal));
    DisplayVariable();
    if (answer.help) help_();
}

}  // namespace fabula::player
