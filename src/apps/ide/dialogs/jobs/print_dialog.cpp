#include "ide/dialogs/jobs/print_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ide/dialogs/jobs/keypad_dialog.h"
#include "ide/editors/edit_controls.h"
#include "ide/editors/layout.h"
#include "listings/pages/outputs.h"
#include "platform/error.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

using listings::PrintScreen;

void Fill(QComboBox& list, const authoring::DropList& items) {
    list.clear();
    for (const authoring::ListItem& item : items.items)
        list.addItem(qt::Translated(item.text));
    list.setCurrentIndex(items.index);
}

}  // namespace

PrintDialog::PrintDialog(PrintScreen& screen, const PrintServices& services, QWidget* parent)
    : ColumnDialog({"PrintScreen", qt::Translated(screen.Title()), "frmprint.html"}, parent),
      screen_(screen),
      services_(services),
      status_(new QLabel) {
    Column().setSpacing(6);
    auto* form = new QFormLayout;
    form->setVerticalSpacing(6);
    AddForm(*form);
    if (screen.HasSpecial()) AddSpecial(*form);
    Column().addLayout(form);
    AddComplete(Column());
    status_->setObjectName("status");
    status_->setAccessibleDescription(tr("Status"));
    Column().addWidget(status_);
    Column().addStretch();
    AddButtons(Column());
    ShowState();
    if (form_->count() > 1) {
        form_->setFocus();
    } else if (detail_) {
        detail_->setFocus();
    } else {
        complete_->setFocus();
    }
}

QComboBox* PrintDialog::NewList(const QString& name, const char* objectName) {
    auto* list = new QComboBox;
    list->setObjectName(objectName);
    list->setAccessibleName(QString(name).remove('&').remove(':'));
    return list;
}

void PrintDialog::AddForm(QFormLayout& form) {
    form_ = NewList(tr("&Listing:"), "form");
    Fill(*form_, screen_.form);
    if (form_->count() > 1) {
        form.addRow(tr("&Listing:"), form_);
    } else {
        form_->setParent(this);
        form_->hide();
    }
    connect(form_, &QComboBox::currentIndexChanged, this, [this] { ShowState(); });
    if (screen_.HasDetail()) {
        detail_ = NewList(tr("&Detail:"), "detail");
        detail_->addItems({tr("Verbose"), tr("Non-Verbose")});
        detail_->setCurrentIndex(screen_.verbose ? 0 : 1);
        form.addRow(tr("&Detail:"), detail_);
    }
    range_ = new QLineEdit;
    range_->setObjectName("range");
    range_->setPlaceholderText(qt::Translated(PrintScreen::kRangeHint));
    rangeLabel_ = new QLabel;
    rangeLabel_->setBuddy(range_);
    form.addRow(rangeLabel_, range_);
}

void PrintDialog::AddSpecial(QFormLayout& form) {
    special_ = new QCheckBox(tr("&Special Listing"));
    special_->setObjectName("special");
    form.addRow(special_);
    wordType_ = NewList(tr("&Type of Verb:"), "wordType");
    verb_ = NewList(tr("&Verb:"), "verb");
    noun_ = NewList(tr("&Noun:"), "noun");
    Fill(*wordType_, screen_.wordType);
    Fill(*noun_, screen_.noun);
    form.addRow(tr("&Type of Verb:"), wordType_);
    form.addRow(tr("&Verb:"), verb_);
    form.addRow(tr("&Noun:"), noun_);
    connect(special_, &QCheckBox::toggled, this, [this](bool on) {
        screen_.ClickSpecial(on);
        ShowState();
    });
    connect(wordType_, &QComboBox::currentIndexChanged, this, [this] { ShowVerbs(); });
}

void PrintDialog::AddComplete(QVBoxLayout& column) {
    complete_ = new QCheckBox(tr("Print the &complete Adventure"));
    complete_->setObjectName("complete");
    column.addWidget(complete_);
    const auto add = [this](QBoxLayout& to, const QString& text, const char* name) {
        auto* button = new QRadioButton(text);
        button->setObjectName(name);
        to.addWidget(button);
        completeForms_.push_back(button);
    };
    add(column, tr("&Brief of Loc, Mess, Obj, Sys Mess, && Flags"), "completeBrief");
    auto* whole = new QHBoxLayout;
    add(*whole, tr("V&erbose"), "completeVerbose");
    add(*whole, tr("N&on-Verbose"), "completeNonVerbose");
    column.addLayout(whole);
    completeForms_[static_cast<std::size_t>(screen_.completeForm)]->setChecked(true);
    connect(complete_, &QCheckBox::toggled, this, [this] { ShowState(); });
}

void PrintDialog::AddButtons(QVBoxLayout& column) {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    const auto add = [&](const QString& text, const char* name) {
        auto* button = NewButton(text, name);
        buttons->addWidget(button);
        return button;
    };
    buttons->addStretch();
    auto* print = add(tr("&Print"), "print");
    print->setDefault(true);
    connect(print, &QPushButton::clicked, this, [this] { ClickPrint(); });
    if (screen_.For() == PrintScreen::Purpose::Print) {
        auto* save = add(tr("Save &As..."), "save");
        save->setToolTip(tr("Save the listing as a PDF file, a web page or a text"));
        connect(save, &QPushButton::clicked, this, [this] { ClickSave(); });
    }
    auto* exit = add(tr("Exit"), "exit");
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    column.addLayout(buttons);
}

void PrintDialog::Read() {
    screen_.form.index = form_->currentIndex();
    if (detail_) screen_.verbose = detail_->currentIndex() == 0;
    screen_.range = qt::FromQt(range_->text());
    screen_.complete = complete_->isChecked();
    for (std::size_t i = 0; i < completeForms_.size(); ++i) {
        if (completeForms_[i]->isChecked())
            screen_.completeForm = static_cast<PrintScreen::CompleteForm>(i);
    }
    if (!special_) return;
    screen_.verb.index = verb_->currentIndex();
    screen_.noun.index = noun_->currentIndex();
}

/// Shows what the choices so far leave open.
void PrintDialog::ShowState() {
    Read();
    const bool table = !screen_.complete;
    const bool hasRange = screen_.HasRange();
    rangeLabel_->setText(qt::Translated(screen_.RangeLabel()));
    range_->setAccessibleName(qt::Translated(screen_.RangeLabel()).remove(':'));
    rangeLabel_->setVisible(hasRange);
    range_->setVisible(hasRange);
    range_->setEnabled(table);
    form_->setEnabled(table);
    if (detail_) detail_->setEnabled(table);
    for (QRadioButton* const button : completeForms_)
        button->setEnabled(!table);
    if (!special_) return;
    special_->setEnabled(table);
    for (QComboBox* const list : {wordType_, verb_, noun_})
        list->setEnabled(table && special_->isChecked());
}

void PrintDialog::ShowVerbs() {
    Guarded([this] {
        screen_.ChooseWordType(wordType_->currentIndex());
        return true;
    });
    Fill(*verb_, screen_.verb);
}

bool PrintDialog::AskKeypad() {
    KeypadDialog keypad(services_.dialogs, this);
    if (keypad.exec() != QDialog::Accepted) return false;
    screen_.templateName = keypad.TemplateName();
    return true;
}

std::optional<listings::PrintJob> PrintDialog::Check() {
    Read();
    const bool preview = screen_.For() == PrintScreen::Purpose::Preview;
    if (screen_.HasKeypad() && !screen_.complete && !preview && !AskKeypad()) return std::nullopt;
    return screen_.Check();
}

void PrintDialog::ClickPrint() {
    Guarded([this] {
        job_ = Check();
        if (!job_) return false;
        if (screen_.For() == PrintScreen::Purpose::Preview) {
            accept();
            return true;
        }
        status_->setText(tr("Printing"));
        status_->repaint();
        const listings::Paper paper =
            listings::PaperListing(*job_->report, job_->request, services_.adventure);
        const bool printed = services_.print(paper, qt::ToQt(job_->title), this);
        if (printed) accept();
        return printed;
    });
    status_->clear();
}

void PrintDialog::ClickSave() {
    Guarded([this] {
        const auto job = Check();
        if (!job) return false;
        const auto& adventure = services_.adventure.CurrentFile();
        const auto file = services_.dialogs.ChooseFile(
            {.title = "Save the Listing",
             .filter = "PDF files (*.pdf)|*.pdf|Web pages (*.html)|*.html|Text files (*.txt)|*.txt",
             .extension = "pdf",
             .forWriting = true,
             .start = adventure.parent_path() / (adventure.stem().string() + "-listing.pdf")});
        if (!file) return false;
        WriteListing(*file, *job, services_.adventure);
        saved_ = *file;
        accept();
        return true;
    });
}

bool PrintDialog::Guarded(const std::function<bool()>& work) {
    try {
        return work();
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
        return false;
    }
}

}  // namespace fabula::ide
