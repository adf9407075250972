#include "ide/dialogs/jobs/package_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ide/editors/edit_controls.h"
#include "ide/editors/layout.h"
#include "ide/editors/text_edit.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {

using packages::PackageScreen;

namespace {

constexpr int kLettersOfTheList = 70;
constexpr int kFewestLinesOfTheReadMe = 2;

QPushButton* AddButton(QHBoxLayout& row, const QString& text, const char* name) {
    auto* button = NewButton(text, name);
    row.addWidget(button);
    return button;
}

QCheckBox* NewBox(std::string_view text, const char* name) {
    auto* box = new QCheckBox(qt::Translated(text));
    box->setObjectName(name);
    box->setAccessibleName(box->text().simplified());
    return box;
}

}  // namespace

PackageDialog::PackageDialog(PackageScreen& screen, QWidget* parent)
    : ColumnDialog({"package", qt::Translated(PackageScreen::kTitle), "frmpackage.html"}, parent),
      screen_(screen),
      version_(new QLineEdit(qt::ToQt(screen.version))),
      engine_(NewBox(PackageScreen::kIncludeEngine, "includeEngine")),
      files_(new QTableWidget(0, 2)),
      readMe_(new TextEdit),
      look_(NewBox(PackageScreen::kLookAtReadMe, "lookAtReadMe")) {
    Column().setSpacing(10);
    auto* form = new QFormLayout;
    version_->setObjectName("version");
    version_->setAccessibleName(tr("Version"));
    form->addRow(tr("&Version:"), version_);
    Column().addLayout(form);
    AddList(Column());
    AddReadMe(Column());
    AddButtons(Column());
    Show();
    const int width = fontMetrics().averageCharWidth() * kLettersOfTheList;
    resize(qt::FittingSize(*this, {width, sizeHint().height()}));
    version_->setFocus();
}

void PackageDialog::AddList(QVBoxLayout& layout) {
    files_->setObjectName("files");
    files_->setAccessibleName(tr("Files of the package"));
    files_->setHorizontalHeaderLabels({tr("Type"), tr("Name")});
    files_->horizontalHeader()->setStretchLastSection(true);
    files_->verticalHeader()->hide();
    files_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    files_->setSelectionBehavior(QAbstractItemView::SelectRows);
    files_->setSelectionMode(QAbstractItemView::SingleSelection);
    files_->setTabKeyNavigation(false);
    layout.addWidget(files_, 2);
    auto* row = new QHBoxLayout;
    auto* add = AddButton(*row, tr("&Add Files..."), "addFiles");
    auto* remove = AddButton(*row, tr("&Delete"), "delete");
    row->addStretch(1);
    row->addWidget(engine_);
    layout.addLayout(row);
    connect(add, &QPushButton::clicked, this, [this] {
        screen_.AddFile();
        Show();
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        if (files_->currentRow() < 0) return;
        screen_.DeleteFile(static_cast<std::size_t>(files_->currentRow()));
        Show();
    });
    connect(engine_, &QCheckBox::toggled, this, [this](bool on) {
        screen_.ClickIncludeEngine(on);
        Show();
    });
}

void PackageDialog::AddReadMe(QVBoxLayout& layout) {
    auto* label = new qt::WrappedLabel(qt::Translated(PackageScreen::kLabel));
    label->setBuddy(readMe_);
    layout.addWidget(label);
    readMe_->setObjectName("readMe");
    readMe_->setAccessibleName(tr("What is added to the ReadMe"));
    readMe_->setTabChangesFocus(true);
    readMe_->setMinimumHeight(fontMetrics().lineSpacing() * kFewestLinesOfTheReadMe);
    layout.addWidget(readMe_, 1);
    auto* row = new QHBoxLayout;
    auto* browse = AddButton(*row, tr("&Browse for Readme..."), "browse");
    row->addStretch(1);
    row->addWidget(look_);
    layout.addLayout(row);
    connect(browse, &QPushButton::clicked, this, [this] {
        Read();
        screen_.BrowseForReadMe();
        Show();
    });
}

void PackageDialog::AddButtons(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    auto* pack = AddButton(*row, tr("&Package"), "pack");
    pack->setDefault(true);
    auto* exit = AddButton(*row, tr("E&xit"), "exit");
    layout.addLayout(row);
    connect(pack, &QPushButton::clicked, this, [this] {
        Read();
        if (screen_.Package()) accept();
    });
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
}

void PackageDialog::Read() {
    screen_.version = qt::FromQt(version_->text());
    screen_.readMeText = qt::FromQt(TextIn(*readMe_));
    screen_.lookAtReadMe = look_->isChecked();
}

void PackageDialog::Show() {
    const int current = files_->currentRow();
    files_->setRowCount(static_cast<int>(screen_.Rows().size()));
    int line = 0;
    for (const packages::PackageRow& row : screen_.Rows()) {
        files_->setItem(line, 0, new QTableWidgetItem(qt::ToQt(row.type)));
        files_->setItem(line, 1, new QTableWidgetItem(qt::ToQt(row.name)));
        ++line;
    }
    if (line > 0) files_->setCurrentCell(std::clamp(current, 0, line - 1), 0);
    const QSignalBlocker quiet(engine_);
    engine_->setChecked(screen_.IncludesEngine());
    if (qt::FromQt(TextIn(*readMe_)) != screen_.readMeText)
        readMe_->setPlainText(qt::ToQt(screen_.readMeText));
}

}  // namespace fabula::ide
