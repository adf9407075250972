#include "ide/dialogs/tables/sort_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/dialogs/help_pages.h"
#include "ide/dialogs/update_and_exit.h"
#include "ide/editors/edit_controls.h"
#include "ide/editors/layout.h"
#include "platform/error.h"
#include "qt/help/help_request.h"
#include "qt/look/wrapped_label.h"
#include "qt/strings.h"

namespace fabula::ide {

SortDialog::SortDialog(authoring::SortScreen& screen, platform::Dialogs& dialogs, QWidget* parent)
    : ColumnDialog({"OpenSort", qt::Translated(screen.Caption()), kMainWindowPage}, parent),
      screen_(screen),
      dialogs_(dialogs),
      lines_(new QGridLayout) {
    lines_->setColumnStretch(1, 1);
    lines_->setHorizontalSpacing(8);

    auto* told = new qt::WrappedLabel(tr("The adventure keeps this order. The first field counts most."));
    auto* buttons = new QHBoxLayout;
    auto* plain = NewButton(tr("&Own Order"), "plain");
    plain->setToolTip(tr("The order that such a table has at first"));
    buttons->addWidget(plain);
    const auto [update, exit] = AddUpdateAndExit(*buttons);

    // Before the buttons join the dialog, so that the keyboard comes to the lines first.
    ShowLevels();
    Column().setSpacing(12);
    Column().addWidget(told);
    Column().addLayout(lines_);
    Column().addStretch();
    Column().addLayout(buttons);
    shown_.front().field->setFocus();

    connect(plain, &QPushButton::clicked, this, [this] {
        screen_.OwnOrder();
        ShowLevels();
    });
    connect(update, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
        connect(shortcut, &QShortcut::activated, this, [this] { ClickUpdate(); });
    }
}

void SortDialog::AddLine() {
    const int row = static_cast<int>(shown_.size());
    const QString name = row == 0 ? tr("&Sort by") : tr("Then by");
    Line line{new QComboBox, new QComboBox};
    line.field->setObjectName(QString("field%1").arg(row + 1));
    line.field->setAccessibleName(QString(name).remove('&'));
    line.field->addItem(tr("(none)"));
    for (const authoring::SortField& field : screen_.Fields())
        line.field->addItem(qt::Translated(field.title));
    line.direction->setObjectName(QString("direction%1").arg(row + 1));
    line.direction->setAccessibleName(tr("Direction of line %1").arg(row + 1));
    line.direction->setAccessibleDescription(line.direction->accessibleName());  // no label tells it
    line.direction->addItems({tr("Ascending"), tr("Descending")});
    auto* label = new QLabel(name);
    label->setBuddy(line.field);
    lines_->addWidget(label, row, 0);
    lines_->addWidget(line.field, row, 1);
    lines_->addWidget(line.direction, row, 2);
    connect(line.field, &QComboBox::currentIndexChanged, line.direction,
            [direction = line.direction](int index) { direction->setEnabled(index > 0); });
    shown_.push_back(line);
}

void SortDialog::ShowLevels() {
    screen_.levels.resize(std::max(screen_.levels.size(), shown_.size()));
    while (shown_.size() < screen_.levels.size())
        AddLine();
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const authoring::SortLevel& level = screen_.levels[i];
        shown_[i].field->setCurrentIndex(level.field ? static_cast<int>(*level.field) + 1 : 0);
        shown_[i].direction->setCurrentIndex(level.down ? 1 : 0);
        shown_[i].direction->setEnabled(level.field.has_value());
    }
}

void SortDialog::ReadLevels() {
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const int field = shown_[i].field->currentIndex() - 1;
        screen_.levels[i].field = field < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(field));
        screen_.levels[i].down = shown_[i].direction->currentIndex() == 1;
    }
}

void SortDialog::ClickUpdate() {
    ReadLevels();
    try {
        if (screen_.Update()) accept();
    } catch (const Error& error) {
        dialogs_.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
