#include "ide/drawing/set_files_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/editors/edit_controls.h"
#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::CharacterSetFiles;

SetFilesDialog::SetFilesDialog(CharacterSetFiles& screen, platform::Dialogs& dialogs, QWidget* parent)
    : ColumnDialog({"", qt::Translated(screen.Title()), "charactersetfiles.html"}, parent),
      screen_(screen),
      dialogs_(dialogs),
      sets_(new QListWidget) {
    sets_->setObjectName("Sets");
    sets_->setAccessibleName(qt::Translated(screen.Label()));
    const bool several = screen.GetPurpose() == CharacterSetFiles::Purpose::Save;
    sets_->setSelectionMode(several ? QAbstractItemView::ExtendedSelection
                                    : QAbstractItemView::SingleSelection);
    for (const std::string& line : screen.Lines())
        sets_->addItem(qt::ToQt(line));
    auto* label = new QLabel(qt::Translated(screen.Label()));
    auto* run = new QPushButton(qt::Translated(screen.Button()));
    run->setObjectName("Run");
    run->setDefault(true);
    auto* exit = NewButton(tr("Exit"), "exit");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(run);
    buttons->addWidget(exit);
    Column().addWidget(label);
    Column().addWidget(sets_, 1);
    Column().addLayout(buttons);
    connect(run, &QPushButton::clicked, this, [this] { Run(); });
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    sets_->setFocus();
}

void SetFilesDialog::Run() {
    screen_.selected.clear();
    for (const QListWidgetItem* item : sets_->selectedItems())
        screen_.selected.push_back(static_cast<std::size_t>(sets_->row(item)));
    std::ranges::sort(screen_.selected);
    try {
        if (screen_.Run()) accept();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
