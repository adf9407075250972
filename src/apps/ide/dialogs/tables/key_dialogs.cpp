#include "ide/dialogs/tables/key_dialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "platform/error.h"
#include "qt/fitting_size.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kKeysSize(620, 360);
constexpr int kKeysSpacing = 12;
constexpr const char* kKeysPage = "frmkeychange.html";

QLabel* Note(std::string_view text) {
    auto* note = new qt::WrappedLabel(qt::Translated(text));
    note->setObjectName("explanation");
    note->setVisible(!text.empty());
    return note;
}

/// The two buttons of a dialog; the first is the default.
QDialogButtonBox* Buttons(QDialog& dialog, const QString& accept, const char* name) {
    auto* box = new QDialogButtonBox;
    auto* button = box->addButton(accept, QDialogButtonBox::AcceptRole);
    button->setObjectName(name);
    button->setDefault(true);
    box->addButton(qt::Translated("Exit"), QDialogButtonBox::RejectRole)->setObjectName("exit");
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return box;
}

}  // namespace

KeySelectDialog::KeySelectDialog(authoring::KeySelectScreen& screen, QWidget* parent)
    : ColumnDialog({"keySelect", qt::Translated(authoring::KeySelectScreen::kTitle), kKeysPage}, parent),
      screen_(screen),
      table_(new QComboBox),
      explanation_(Note("")) {
    Column().setSpacing(kKeysSpacing);
    auto* form = new QFormLayout;
    table_->setObjectName("table");
    table_->addItem("");
    for (const std::string& table : screen.Tables())
        table_->addItem(qt::Translated(table));
    form->addRow(tr("&Table"), table_);
    key_ = AddLine(*form, "key", tr("&Key"));
    process_ = AddLine(*form, "process", tr("&Process table"));
    w1_ = AddLine(*form, "w1", tr("&Verb"));
    w2_ = AddLine(*form, "w2", tr("&Noun"));
    auto* buttons = Buttons(*this, tr("&Select"), "select");
    Column().addLayout(form);
    Column().addWidget(explanation_);
    Column().addStretch();
    Column().addWidget(buttons);
    connect(table_, &QComboBox::currentIndexChanged, this, [this] { ShowTable(); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Select(); });
    ShowTable();
}

QLineEdit* KeySelectDialog::AddLine(QFormLayout& form, const char* name, const QString& label) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    form.addRow(label, line);
    return line;
}

void KeySelectDialog::ShowTable() {
    // The list shows the tables translated, behind none.
    const int table = table_->currentIndex();
    screen_.table = table == 0 ? "" : screen_.Tables()[static_cast<std::size_t>(table - 1)];
    const bool words = screen_.TakesWords();
    key_->setEnabled(!words);
    for (QLineEdit* line : {process_, w1_, w2_})
        line->setEnabled(words);
    explanation_->setText(qt::Translated(screen_.Explanation()));
    explanation_->setVisible(words);
}

void KeySelectDialog::Select() {
    screen_.key = qt::FromQt(key_->text());
    screen_.process = qt::FromQt(process_->text());
    screen_.w1 = qt::FromQt(w1_->text());
    screen_.w2 = qt::FromQt(w2_->text());
    selection_ = screen_.Select();
    if (selection_) accept();
}

KeyChangeDialog::KeyChangeDialog(authoring::KeyChangeScreen& screen, platform::Dialogs& dialogs,
                                 QWidget* parent)
    : ColumnDialog({"keyChange", qt::Translated(authoring::KeyChangeScreen::kTitle), kKeysPage}, parent),
      screen_(screen),
      dialogs_(dialogs),
      rows_(new QTableWidget) {
    Column().setSpacing(kKeysSpacing);
    rows_->setObjectName("rows");
    rows_->setAccessibleName(tr("Records"));
    rows_->setTabKeyNavigation(false);
    rows_->setColumnCount(2);
    rows_->setHorizontalHeaderLabels(
        {qt::Translated(screen.KeyName()), qt::Translated(screen.ShownName())});
    rows_->horizontalHeader()->setStretchLastSection(true);
    rows_->verticalHeader()->hide();
    auto* buttons = Buttons(*this, tr("&Finish"), "finish");
    Column().addWidget(Note(screen.Instruction()));
    Column().addWidget(rows_);
    Column().addWidget(buttons);
    resize(qt::FittingSize(*this, kKeysSize));
    ShowRows();
    connect(rows_, &QTableWidget::cellChanged, this, [this](int row, int) { Leave(row); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Finish(); });
}

/// A cell that is being edited is left when its table goes, and there is nobody to check it then.
KeyChangeDialog::~KeyChangeDialog() {
    rows_->disconnect(this);
}

void KeyChangeDialog::ShowRows() {
    showing_ = true;
    rows_->setRowCount(static_cast<int>(screen_.Rows().size()));
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const auto& shown = screen_.Rows()[static_cast<std::size_t>(row)];
        rows_->setItem(row, 0, new QTableWidgetItem(qt::ToQt(shown.key)));
        auto* text = new QTableWidgetItem(qt::ToQt(shown.shown));
        text->setFlags(text->flags() & ~Qt::ItemIsEditable);
        rows_->setItem(row, 1, text);
    }
    showing_ = false;
}

void KeyChangeDialog::Leave(int row) {
    if (showing_) return;
    screen_.SetKey(static_cast<std::size_t>(row), qt::FromQt(rows_->item(row, 0)->text()));
    ShowRows();
}

void KeyChangeDialog::Finish() {
    try {
        if (screen_.Finish()) accept();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
