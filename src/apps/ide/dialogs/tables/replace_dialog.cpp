#include "ide/dialogs/tables/replace_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ide/dialogs/help_pages.h"
#include "ide/editors/layout.h"
#include "qt/fitting_size.h"
#include "qt/help/help_request.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kReplaceSize(860, 520);
constexpr int kPlaceWidth = 220;
constexpr int kFoundWidth = 290;

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

}  // namespace

ReplaceDialog::ReplaceDialog(authoring::ReplaceScreen& screen, QWidget* parent)
    : ColumnDialog({"ReplaceDialog", qt::Translated(authoring::ReplaceScreen::kCaption), kMainWindowPage},
                   parent),
      screen_(screen),
      what_(Named(new QLineEdit, "what")),
      with_(Named(new QLineEdit, "with")),
      scope_(Named(new QComboBox, "scope")),
      matchCase_(Named(new QCheckBox(tr("Match &case")), "matchCase")),
      wholeWords_(Named(new QCheckBox(tr("&Whole words")), "wholeWords")),
      expression_(Named(new QCheckBox(tr("Regular e&xpression")), "expression")),
      found_(Named(new QTreeWidget, "found")),
      status_(Named(new QLabel, "replaceStatus")),
      replace_(Named(new QPushButton(tr("&Replace")), "replace")) {
    resize(qt::FittingSize(*this, kReplaceSize));
    MakeLines(Column());
    MakeList(Column());
    what_->setFocus();
}

void ReplaceDialog::MakeLines(QVBoxLayout& layout) {
    scope_->addItem(tr("everywhere"));
    for (const std::string& name : authoring::ReplaceScreen::Scopes())
        scope_->addItem(qt::Translated(name));
    auto* find = Named(new QPushButton(tr("&Find")), "find");
    find->setDefault(true);
    auto* form = new QFormLayout;
    form->addRow(tr("Fin&d what:"), what_);
    form->addRow(tr("Replace wi&th:"), with_);
    form->addRow(tr("&In:"), scope_);
    auto* ticks = new QHBoxLayout;
    for (QCheckBox* box : {matchCase_, wholeWords_, expression_})
        ticks->addWidget(box);
    ticks->addStretch();
    ticks->addWidget(find);
    layout.addLayout(form);
    layout.addLayout(ticks);
    connect(find, &QPushButton::clicked, this, [this] { Find(); });
    for (const QLineEdit* line : {what_, with_})
        connect(line, &QLineEdit::textChanged, this, [this] { Forget(); });
    for (const QCheckBox* box : {matchCase_, wholeWords_, expression_})
        connect(box, &QCheckBox::toggled, this, [this] { Forget(); });
    connect(scope_, &QComboBox::currentIndexChanged, this, [this] { Forget(); });
}

void ReplaceDialog::MakeList(QVBoxLayout& layout) {
    found_->setHeaderLabels({tr("Place"), tr("Found"), tr("Replaced")});
    found_->setAccessibleName(tr("Places that were found"));
    found_->setRootIsDecorated(false);
    found_->setUniformRowHeights(true);
    found_->setColumnWidth(0, kPlaceWidth);
    found_->setColumnWidth(1, kFoundWidth);
    status_->setTextFormat(Qt::PlainText);
    replace_->setEnabled(false);
    replace_->setAutoDefault(false);
    auto* exit = Named(new QPushButton(tr("Exit")), "exit");
    exit->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(status_, 1);
    buttons->addWidget(replace_);
    buttons->addWidget(exit);
    layout.addWidget(found_, 1);
    layout.addLayout(buttons);
    connect(replace_, &QPushButton::clicked, this, [this] { Replace(); });
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    connect(found_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const auto row = static_cast<std::size_t>(found_->indexOfTopLevelItem(item));
        goTo_ = &screen_.Hits()[row];
        accept();
    });
}

void ReplaceDialog::Find() {
    screen_.wanted.text = qt::FromQt(what_->text());
    screen_.wanted.replacement = qt::FromQt(with_->text());
    screen_.wanted.matchCase = matchCase_->isChecked();
    screen_.wanted.wholeWords = wholeWords_->isChecked();
    screen_.wanted.expression = expression_->isChecked();
    // The list shows the scopes translated, behind everywhere.
    const int scope = scope_->currentIndex();
    screen_.scope =
        scope == 0 ? "" : authoring::ReplaceScreen::Scopes()[static_cast<std::size_t>(scope - 1)];
    if (screen_.Find()) return ShowFound();
    what_->setFocus();
}

/// What is replaced is what the list shows: once something else is wanted it shows nothing.
void ReplaceDialog::Forget() {
    if (screen_.Hits().empty()) return;
    screen_.Forget();
    ShowFound();
}

void ReplaceDialog::Replace() {
    for (int row = 0; row < found_->topLevelItemCount(); ++row)
        screen_.Hits()[static_cast<std::size_t>(row)].ticked =
            found_->topLevelItem(row)->checkState(0) == Qt::Checked;
    if (screen_.Replace()) ShowFound();
}

void ReplaceDialog::ShowFound() {
    found_->clear();
    bool any = false;
    for (const authoring::ReplaceScreen::Found& found : screen_.Hits()) {
        const bool fits = found.hit.refusal.empty();
        auto* item = new QTreeWidgetItem(
            found_,
            {qt::ToQt(found.place), qt::ToQt(found.hit.Shown()),
             fits ? qt::ToQt(found.hit.Preview()) : tr("left out: ") + qt::Translated(found.hit.refusal)});
        item->setCheckState(0, found.ticked ? Qt::Checked : Qt::Unchecked);
        if (!fits) item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
        any = any || fits;
    }
    replace_->setEnabled(any);
    status_->setText(qt::Translated(screen_.Status()));
    if (found_->topLevelItemCount() > 0) found_->setCurrentItem(found_->topLevelItem(0));
}

}  // namespace fabula::ide
