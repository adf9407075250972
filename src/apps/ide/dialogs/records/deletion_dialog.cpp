#include "ide/dialogs/records/deletion_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "ide/dialogs/help_pages.h"
#include "ide/editors/edit_controls.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kSize(640, 360);

QLabel* NewSentence(const std::string& text, const char* name) {
    auto* label = new qt::WrappedLabel(qt::Translated(text));
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

DeletionDialog::DeletionDialog(const authoring::DeletionUses& uses, QWidget* parent)
    : ColumnDialog({"DeletionDialog", tr("Delete"), kUsesPage}, parent),
      uses_(uses),
      list_(new QListWidget) {
    resize(qt::FittingSize(*this, kSize));
    list_->setObjectName("deletionUses");
    list_->setAccessibleName(tr("Uses of what is to be deleted"));
    list_->setUniformItemSizes(true);
    for (const authoring::JumpLine& line : uses.Lines())
        list_->addItem(qt::ToQt(line.text));
    list_->setCurrentRow(0);
    auto* remove = NewButton(tr("&Delete..."), "goOn");
    auto* go = NewButton(tr("&Go There"), "goThere");
    go->setDefault(true);
    auto* cancel = NewButton(tr("Cancel"), "cancel");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {go, remove, cancel})
        buttons->addWidget(button);
    Column().addWidget(NewSentence(uses.Title(), "deletionTitle"));
    Column().addWidget(NewSentence(uses.Summary(), "deletionSummary"));
    Column().addWidget(list_, 1);
    Column().addLayout(buttons);
    connect(remove, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(go, &QPushButton::clicked, this, [this] { Go(); });
    connect(list_, &QListWidget::itemActivated, this, [this] { Go(); });
    list_->setFocus();
}

void DeletionDialog::Go() {
    const int row = list_->currentRow();
    if (row < 0) return;
    goTo_ = uses_.Lines()[static_cast<std::size_t>(row)].jump;
    reject();
}

}  // namespace fabula::ide
