#include "ide/dialogs/jobs/decompile_dialog.h"

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
#include "ide/editors/edit_controls.h"
#include "qt/fitting_size.h"
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
    : JobDialog({"DecompileScreen", qt::Translated(DecompileScreen::kTitle), "frmunmarlovel.html",
                 NewButton(tr("&Run"), "run")},
                parent),
      screen_(screen),
      passL_(new QCheckBox(tr("With the option -&L"))),
      progress_(new QLabel) {
    AddOptions();
    AddFiles();
    AddStatus(
        tr("Status"),
        tr("The listing that the program writes is read by File, Import. What the program tells stands "
           "here."),
        kStatusLines);
    AddProgress();
    AddEnd();
    resize(qt::FittingSize(*this, kDecompileSize));
    screen_.changed = [this] { Show(); };
    Show();
    options_[0]->setFocus();
}

DecompileDialog::~DecompileDialog() {
    screen_.changed = [] {};
}

void DecompileDialog::AddOptions() {
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
    Form().addRow(tr("Program:"), group);
}

void DecompileDialog::AddFiles() {
    programs_ = {AddFileRow(Form(), "unMarloProgram", tr("Un&Marlo is:"), "findUnMarlo"),
                 AddFileRow(Form(), "unVelProgram", tr("UnV&els is:"), "findUnVel")};
    input_ = AddFileRow(Form(), "input", tr("&Game file:"), "chooseInput");
    output_ = AddFileRow(Form(), "output", tr("L&isting:"), "chooseOutput");
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

void DecompileDialog::AddProgress() {
    progress_->setObjectName("progress");
    progress_->setAccessibleDescription(tr("Progress"));
    progress_->setTextFormat(Qt::PlainText);
    Bar().setTextVisible(false);
    Column().addWidget(progress_);
}

void DecompileDialog::ReadFields() {
    for (std::size_t i = 0; i < programs_.size(); ++i)
        screen_.programs[i] = qt::FromQt(programs_[i].field->text());
    screen_.input = qt::FromQt(input_.field->text());
    screen_.output = qt::FromQt(output_.field->text());
}

void DecompileDialog::Start() {
    const bool done = screen_.Run();
    Show();
    (done ? ExitButton() : StartButton()).setFocus();
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
    StartButton().setEnabled(!running);
    ShowRunning(running);
    progress_->setText(qt::Translated(screen_.ProgressLine()));
    // How long a program will take is not known.
    Bar().setRange(0, running ? 0 : 1);
    const QString status = qt::Translated(screen_.Status());
    if (Status().toPlainText() == status) return;
    Status().setPlainText(status);
    Status().moveCursor(QTextCursor::End);
}

}  // namespace fabula::ide
