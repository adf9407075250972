#include "ide/dialogs/screen_dialog.h"

#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ide/dialogs/leaving.h"
#include "ide/editors/comment_edit.h"
#include "ide/editors/layout.h"
#include "ide/editors/leave_check.h"
#include "platform/error.h"
#include "qt/fitting_size.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

/// Turns to the page that a control stands on, and scrolls to it.
void BringIntoView(QWidget* control) {
    for (QWidget* above = control->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(above)) {
            for (int page = 0; page < tabs->count(); ++page) {
                if (tabs->widget(page)->isAncestorOf(control)) tabs->setCurrentIndex(page);
            }
        }
    }
    for (QWidget* above = control->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto* scroll = qobject_cast<QScrollArea*>(above)) scroll->ensureWidgetVisible(control);
    }
}

}  // namespace

ScreenDialog::ScreenDialog(authoring::EditScreen& screen, const QString& title, const char* helpPage,
                           QWidget* parent)
    : ColumnDialog({"", title, helpPage}, parent), edited_(screen), buttons_(new QHBoxLayout) {
    setSizeGripEnabled(true);
    // Contents that scroll do so from edge to edge.
    Column().setContentsMargins(0, 0, 0, 0);
    Column().addLayout(buttons_);
    buttons_->setContentsMargins(kDialogMargin, 0, kDialogMargin, kDialogMargin);
    buttons_->setSpacing(8);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this);
        connect(shortcut, &QShortcut::activated, this, [this] { ClickUpdate(); });
    }
}

void ScreenDialog::SetContents(QWidget* contents) {
    Column().insertWidget(0, contents, 1);
}

void ScreenDialog::setVisible(bool visible) {
    if (visible && !placed_) {
        placed_ = true;
        // Made last, they come last for the keyboard too.
        AddComment();
        AddButtons();
        if (isWindow()) {
            resize(qt::FittingSize(*this, sizeHint()));
            FocusFirst();
        }
    }
    QDialog::setVisible(visible);
}

void ScreenDialog::reject() {
    Read();
    if (MayClose(edited_.Changed(), edited_.Dialogs(), [this] { ClickUpdate(); })) QDialog::reject();
}

void ScreenDialog::ShowRecord() {
    ShowOpened();
    Show();
    if (comment_ != nullptr) comment_->Show();
    for (const auto* scroll : findChildren<QScrollArea*>())
        scroll->verticalScrollBar()->setValue(0);
}

bool ScreenDialog::HasChanges() {
    Read();
    return edited_.Changed();
}

/// Above the buttons, where the screen has a record.
void ScreenDialog::AddComment() {
    authoring::RecordComment* comment = edited_.Comment();
    if (comment == nullptr) return;
    comment_ = new CommentEdit(*comment, *this);
    comment_->setContentsMargins(kDialogMargin, 0, kDialogMargin, kDialogMargin / 2);
    Column().insertWidget(Column().indexOf(buttons_), comment_);
}

void ScreenDialog::AddButtons() {
    ends_ = AddUpdateAndExit(*buttons_);
    connect(ends_.update, &QPushButton::clicked, this, [this] { ClickUpdate(); });
    connect(ends_.exit, &QPushButton::clicked, this, [this] { reject(); });
}

void ScreenDialog::FocusFirst() {
    if (focusWidget()) return;
    for (QWidget* each = nextInFocusChain(); each != this; each = each->nextInFocusChain()) {
        if (each->isEnabled() && (each->focusPolicy() & Qt::TabFocus)) return each->setFocus();
    }
}

QSize ScreenDialog::SizeFor(const QSize& contents) const {
    const int comment = comment_ == nullptr ? 0 : comment_->sizeHint().height();
    const QSize whole(contents.width(),
                      contents.height() + comment + buttons_->sizeHint().height() + kDialogMargin);
    return whole.boundedTo(screen()->availableSize() * 9 / 10);
}

void ScreenDialog::CheckOnLeave(QWidget* control, std::function<bool()> check) {
    new LeaveCheck(*control, [this, check = std::move(check)] {
        // The update that is under way has told of it.
        if (atWork_) return;
        Read();
        const bool passed = Guarded(check);
        Show();
        if (!passed) FocusRefused();
    });
}

bool ScreenDialog::Guarded(const std::function<bool()>& work) {
    const QScopedValueRollback atWork(atWork_, true);
    try {
        return work();
    } catch (const Error& error) {
        edited_.Dialogs().Tell(error.what(), "Error");
        return false;
    }
}

void ScreenDialog::FocusRefused() {
    auto* control = findChild<QWidget*>(qt::ToQt(edited_.Refused()));
    if (control == nullptr) return;
    BringIntoView(control);
    control->setFocus();
}

void ScreenDialog::ClickUpdate() {
    // A question that is not answered yet may have taken the keyboard from the window.
    if (atWork_) return;
    Read();
    bool failed = false;
    const bool stored = Guarded([this, &failed] {
        failed = true;
        const bool done = Update();
        failed = false;
        return done;
    });
    if (stored) return accept();
    Show();
    if (!failed) FocusRefused();
}

}  // namespace fabula::ide
