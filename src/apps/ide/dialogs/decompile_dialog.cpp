#include "ide/dialogs/decompile_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ide/dialogs/option_focus.h"
#include "ide/editors/layout.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

using authoring::Decompiler;
using authoring::DecompileScreen;

constexpr QSize kDecompileSize(620, 520);
constexpr int kStatusLines = 3;
constexpr Decompiler kDecompilers[] = {Decompiler::UnMarlo, Decompiler::UnVel};

}  // namespace

DecompileDialog::DecompileDialog(DecompileScreen& screen, QWidget* parent)
    : QDialog(parent),
      screen_(screen),
      passL_(new QCheckBox(tr("With the option -&L"))),
      status_(new QPlainTextEdit),
      progress_(new QLabel),
      bar_(new QProgressBar),
      run_(new QPushButton(tr("&Run"))),
      exit_(new QPushButton) {
    setObjectName("DecompileScreen");
    setWindowTitle(qt::Translated(DecompileScreen::kTitle));
    setProperty("helpPage", "frmunmarlovel.html");
    setWindowModality(Qt::WindowModal);  // the help can be read beside it
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    column->setSpacing(10);
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(8);
    AddOptions(*form);
    AddFiles(*form);
    column->addLayout(form);
    MakeStatus();
    column->addWidget(status_, 1);
    column->addWidget(progress_);
    column->addWidget(bar_);
    column->addWidget(MakeButtons());
    resize(kDecompileSize);
    screen_.changed = [this] { Show(); };
    Show();
    options_[0]->setFocus();
}

DecompileDialog::~DecompileDialog() {
    screen_.changed = [] {};
}

void DecompileDialog::AddOptions(QFormLayout& form) {
    // Buttons that share a parent are one group.
    auto* group = new QWidget;
    group->setObjectName("program");
    group->setAccessibleName(tr("Program"));
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(24);
    for (const Decompiler decompiler : kDecompilers) {
        const auto i = static_cast<std::size_t>(decompiler);
        auto* button = new QRadioButton(qt::Translated(DecompileScreen::kOptions[i]));
        button->setObjectName(i == 0 ? "unMarlo" : "unVel");
        button->setAccessibleName(button->text().remove('&'));
        QObject::connect(button, &QRadioButton::clicked, this, [this, decompiler] {
            screen_.chosen = decompiler;
            Show();
        });
        row->addWidget(button);
        options_[i] = button;
    }
    row->addWidget(passL_);
    row->addStretch(1);
    passL_->setObjectName("passL");
    passL_->setAccessibleName(tr("With the option -L"));
    form.addRow(tr("Program:"), group);
}

void DecompileDialog::AddFiles(QFormLayout& form) {
    programs_ = {AddFileRow(form, "unMarloProgram", tr("Un&Marlo is:"), "findUnMarlo"),
                 AddFileRow(form, "unVelProgram", tr("UnV&els is:"), "findUnVel")};
    input_ = AddFileRow(form, "input", tr("&Game file:"), "chooseInput");
    output_ = AddFileRow(form, "output", tr("L&isting:"), "chooseOutput");
    const auto connectRow = [this](const FileRow& row, const std::function<void()>& choose) {
        QObject::connect(row.field, &QLineEdit::textEdited, this, [this] { ReadFields(); });
        QObject::connect(row.button, &QPushButton::clicked, this, choose);
    };
    for (const Decompiler decompiler : kDecompilers)
        connectRow(programs_[static_cast<std::size_t>(decompiler)],
                   [this, decompiler] { screen_.FindProgram(decompiler); });
    connectRow(input_, [this] { screen_.ChooseInput(); });
    connectRow(output_, [this] { screen_.ChooseOutput(); });
    QObject::connect(passL_, &QCheckBox::clicked, this, [this](bool on) { screen_.passL = on; });
}

void DecompileDialog::MakeStatus() {
    status_->setObjectName("status");
    status_->setAccessibleName(tr("Status"));
    status_->setReadOnly(true);
    status_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    status_->setTabChangesFocus(true);
    status_->setPlaceholderText(
        tr("The listing that the program writes is read by File, Import. What the program tells stands "
           "here."));
    status_->setMinimumHeight(fontMetrics().lineSpacing() * kStatusLines);
    progress_->setObjectName("progress");
    progress_->setAccessibleDescription(tr("Progress"));
    progress_->setTextFormat(Qt::PlainText);
    bar_->setObjectName("barProgress");
    bar_->setAccessibleName(tr("Progress"));
    bar_->setTextVisible(false);
}

QWidget* DecompileDialog::MakeButtons() {
    run_->setObjectName("run");
    run_->setAccessibleName(tr("Run"));
    run_->setDefault(true);
    exit_->setObjectName("exit");
    exit_->setAutoDefault(false);
    QObject::connect(run_, &QPushButton::clicked, this, [this] { Run(); });
    QObject::connect(exit_, &QPushButton::clicked, this, [this] { reject(); });
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 6, 0, 0);
    row->setSpacing(8);
    row->addStretch(1);
    row->addWidget(run_);
    row->addWidget(exit_);
    return buttons;
}

void DecompileDialog::ReadFields() {
    for (std::size_t i = 0; i < programs_.size(); ++i)
        screen_.programs[i] = qt::FromQt(programs_[i].field->text());
    screen_.input = qt::FromQt(input_.field->text());
    screen_.output = qt::FromQt(output_.field->text());
}

void DecompileDialog::Run() {
    const bool done = screen_.Run();
    Show();
    (done ? exit_ : run_)->setFocus();
}

void DecompileDialog::reject() {
    if (screen_.Running()) return screen_.Cancel();
    QDialog::reject();
}

void DecompileDialog::Show() {
    const bool running = screen_.Running();
    for (const Decompiler decompiler : kDecompilers) {
        const auto i = static_cast<std::size_t>(decompiler);
        options_[i]->setChecked(screen_.chosen == decompiler);
        options_[i]->setEnabled(!running);
        programs_[i].SetEnabled(!running);
        programs_[i].Show(qt::ToQt(screen_.programs[i]));
        TabToChosen(*options_[i]);
    }
    input_.SetEnabled(!running);
    input_.Show(qt::ToQt(screen_.input));
    output_.SetEnabled(!running);
    output_.Show(qt::ToQt(screen_.output));
    passL_->setEnabled(!running && screen_.chosen == Decompiler::UnMarlo);
    run_->setEnabled(!running);
    exit_->setText(running ? tr("&Cancel") : tr("E&xit"));
    exit_->setAccessibleName(exit_->text().remove('&'));
    progress_->setText(qt::Translated(screen_.ProgressLine()));
    // How long a program will take is not known.
    bar_->setRange(0, running ? 0 : 1);
    const QString status = qt::Translated(screen_.Status());
    if (status_->toPlainText() == status) return;
    status_->setPlainText(status);
    status_->moveCursor(QTextCursor::End);
}

}  // namespace fabula::ide
