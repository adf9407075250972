#include "ide/dialogs/jobs/interchange_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include "ide/dialogs/jobs/file_row.h"
#include "ide/dialogs/jobs/status_button.h"
#include "ide/dialogs/jobs/verify_dialog.h"
#include "ide/dialogs/option_focus.h"
#include "ide/dialogs/records/new_locations_dialog.h"
#include "ide/editors/edit_controls.h"
#include "ide/printing/paper_output.h"
#include "qt/fitting_size.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

using authoring::InterchangeScreen;
using authoring::JobMode;

constexpr QSize kInterchangeSize(620, 540);
constexpr int kSmallestStatusLines = 1;

QString TextOfField(const interchange::FileKind& kind) {
    return qt::ToQt(kind.name) + ": " + qt::Translated(kind.about);
}

}  // namespace

InterchangeDialog::InterchangeDialog(InterchangeScreen& screen, platform::Dialogs& dialogs, QWidget* parent)
    : JobDialog({"InterchangeScreen", qt::Translated(screen.Title()), "frmsrcimport.html",
                 NewButton(qt::Translated(screen.MainButton()), "start")},
                parent),
      screen_(screen),
      dialogs_(dialogs),
      print_(NewStatusButton(qt::Translated(InterchangeScreen::kPrintButton),
                             {[this] { return screen_.Status(); }, [this] { screen_.SaveStatus(); },
                              [this] { PrintText(screen_.Status(), screen_.Title(), dialogs_, this); }})) {
    AddKinds();
    source_ =
        AddFile("source", screen.Mode() == JobMode::Export ? tr("&Target file:") : tr("&Source file:"),
                "chooseSource", &InterchangeScreen::ChooseSource);
    if (screen.Mode() == JobMode::Import)
        database_ =
            AddFile("database", tr("&Database:"), "chooseDatabase", &InterchangeScreen::ChooseDatabase);
    if (screen.Mode() == JobMode::Import) AddEncodings();
    if (screen.Mode() == JobMode::LoadGraphic) AddRecords();
    AddStatusWithCaption();
    StartButton().setToolTip(qt::Translated(screen.WhyNot()));
    AddEnd(print_);
    resize(qt::FittingSize(*this, kInterchangeSize));

    screen_.changed = [this] { Show(); };
    screen_.showVerify = [this](authoring::VerifyScreen& verify) {
        VerifyDialog window(verify, dialogs_, this);
        window.CloseWhenPassed();
        window.exec();
    };
    screen_.showNewLocations = [this](authoring::NewLocationsScreen& places) {
        NewLocationsDialog(places, dialogs_, this).exec();
    };
    Show();
    source_->setFocus();
}

InterchangeDialog::~InterchangeDialog() {
    screen_.changed = [] {};
    screen_.showVerify = [](authoring::VerifyScreen& verify) { verify.Run(); };
    screen_.showNewLocations = [](authoring::NewLocationsScreen&) {};
}

void InterchangeDialog::AddKinds() {
    // Buttons that share a parent are one group.
    auto* group = new QWidget;
    group->setObjectName("kind");
    group->setAccessibleName(tr("Kind"));
    auto* list = new QVBoxLayout(group);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(2);
    for (std::size_t i = 0; i < screen_.Kinds().size(); ++i) {
        const interchange::FileKind& kind = *screen_.Kinds()[i];
        auto* button = new QRadioButton(TextOfField(kind));
        button->setObjectName("kind" + qt::ToQt(kind.name));
        button->setAccessibleName(button->text());
        button->setChecked(screen_.ChosenKind() == i);
        TabToChosen(*button);
        QObject::connect(button, &QRadioButton::clicked, this, [this, i] {
            screen_.ChooseKind(i);
            Show();
        });
        list->addWidget(button);
        kinds_.push_back(button);
    }
    Form().addRow(tr("Kind:"), group);
}

void InterchangeDialog::AddEncodings() {
    auto* list = new QComboBox;
    list->setObjectName("encoding");
    list->setAccessibleName(tr("Letters"));
    for (const auto& option : InterchangeScreen::Encodings())
        list->addItem(qt::Translated(option.name));
    auto* caption = new QLabel(tr("&Letters:"));
    caption->setBuddy(list);
    Form().addRow(caption, list);
    inputs_.push_back(list);
    QObject::connect(list, &QComboBox::currentIndexChanged, this, [this](int chosen) {
        screen_.encoding = InterchangeScreen::Encodings()[static_cast<std::size_t>(chosen)].encoding;
    });
}

QLineEdit* InterchangeDialog::AddFile(const char* name, const QString& label, const char* buttonName,
                                      void (InterchangeScreen::*choose)()) {
    const FileRow row = AddFileRow(Form(), name, label, buttonName);
    inputs_.push_back(row.field);
    inputs_.push_back(row.button);
    QObject::connect(row.field, &QLineEdit::textEdited, this, [this] { ReadFields(); });
    QObject::connect(row.button, &QPushButton::clicked, this, [this, choose] {
        ReadFields();
        std::invoke(choose, screen_);
    });
    return row.field;
}

void InterchangeDialog::AddRecords() {
    records_ = new QLineEdit;
    records_->setObjectName("records");
    records_->setAccessibleName(tr("Pictures of the listing"));
    records_->setPlaceholderText(tr("Their numbers, as in 3,7-9"));
    auto* caption = new QLabel(tr("Pict&ures:"));
    caption->setBuddy(records_);
    Form().addRow(caption, records_);
    inputs_.push_back(records_);
    QObject::connect(records_, &QLineEdit::textEdited, this, [this] { ReadFields(); });
}

void InterchangeDialog::AddStatusWithCaption() {
    auto* caption = new QLabel(qt::Translated(screen_.StatusCaption()));
    caption->setObjectName("statusCaption");
    caption->setBuddy(&Status());
    Column().addSpacing(6);
    Column().addWidget(caption);
    AddStatus(qt::Translated(screen_.StatusCaption()), qt::Translated(screen_.WhyNot()),
              kSmallestStatusLines);
}

void InterchangeDialog::ReadFields() {
    screen_.source = qt::FromQt(source_->text());
    if (database_) screen_.database = qt::FromQt(database_->text());
    if (records_) screen_.records = qt::FromQt(records_->text());
}

void InterchangeDialog::Start() {
    ReadFields();
    const bool done = screen_.RunJob();
    Show();
    if (done) {
        ExitButton().setFocus();
    } else if (StartButton().isEnabled()) {
        source_->setFocus();
    }
}

void InterchangeDialog::Show() {
    const bool running = screen_.Running();
    for (std::size_t i = 0; i < kinds_.size(); ++i) {
        kinds_[i]->setEnabled(!running);
        if (i == screen_.ChosenKind()) kinds_[i]->setChecked(true);
    }
    for (QWidget* input : inputs_)
        input->setEnabled(!running);
    const auto showText = [](QLineEdit* field, const std::string& text) {
        if (field && field->text() != qt::ToQt(text)) field->setText(qt::ToQt(text));
    };
    showText(source_, screen_.source);
    showText(database_, screen_.database);
    StartButton().setEnabled(screen_.CanRun());
    print_->setEnabled(screen_.CanPrint());
    ShowRunning(running);
    ShowStatus();
    ShowBar(running);
}

void InterchangeDialog::ShowBar(bool running) {
    // Without an end the bar only tells that there is work.
    const bool knowsEnd = !running || screen_.BarMaximum() > 0;
    Bar().setRange(0, knowsEnd ? 100 : 0);
    if (knowsEnd) {
        const bool finished = !running && !screen_.CanRun() && screen_.CanPrint();
        const auto percent = screen_.BarMaximum() > 0
                                 ? std::min<std::int64_t>(100, screen_.Bar() * 100 / screen_.BarMaximum())
                                 : 0;
        Bar().setValue(finished ? 100 : static_cast<int>(percent));
    }
}

void InterchangeDialog::ShowStatus() {
    const std::string& text = screen_.Status();
    if (text.size() < shown_) {
        Status().clear();
        shown_ = 0;
    }
    if (text.size() == shown_) return;
    Status().moveCursor(QTextCursor::End);
    Status().insertPlainText(qt::Translated(std::string_view(text).substr(shown_)));
    Status().moveCursor(QTextCursor::End);
    shown_ = text.size();
}

}  // namespace fabula::ide
