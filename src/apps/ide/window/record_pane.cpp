#include "ide/window/record_pane.h"

#include <QAbstractButton>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kUsualSize(420, 300);

/// The letters behind Alt belong to the menus of the window that the dialog stands in now.
void DropMnemonics(const QWidget& dialog) {
    for (auto* label : dialog.findChildren<QLabel*>()) {
        // The buddy stays: a screen reader tells it by its label.
        if (label->buddy()) label->setText(label->text().remove('&'));
    }
    for (auto* button : dialog.findChildren<QAbstractButton*>())
        button->setText(button->text().remove('&'));
}

}  // namespace

RecordPane::RecordPane(Events events, QWidget* parent) : QWidget(parent), events_(std::move(events)) {
    setObjectName("RecordPane");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

RecordPane::~RecordPane() = default;

QSize RecordPane::sizeHint() const {
    return kUsualSize;
}

void RecordPane::Show(const std::optional<authoring::ScreenRequest>& request,
                      authoring::ScreenContext* context) {
    record_.reset();
    request_ = request;
    context_ = context;
    if (request_) {
        try {
            record_ = OpenRecord(*request_, *context_);
        } catch (const Error& error) {
            context_->dialogs.Tell(error.what(), "Error");
        }
    }
    setVisible(record_ != nullptr);
    if (record_) Settle();
}

/// Makes the dialog a part of this window.
void RecordPane::Settle() {
    QDialog& dialog = record_->Dialog();
    dialog.setSizeGripEnabled(false);
    dialog.setParent(this, Qt::Widget);
    // Whatever does not fit is cut, or scrolls.
    dialog.setMinimumSize(1, 1);
    layout()->addWidget(&dialog);
    record_->Editor().StandBeside();
    dialog.show();
    if (auto* exit = dialog.findChild<QPushButton*>("exit")) exit->hide();
    DropMnemonics(dialog);
    for (auto* shortcut : dialog.findChildren<QShortcut*>())
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    dialog.installEventFilter(this);
    connect(&dialog, &QDialog::accepted, this, [this] { Finished(); });
}

bool RecordPane::Enter() {
    if (!record_) return false;
    const QDialog& dialog = record_->Dialog();
    for (QWidget* each = dialog.nextInFocusChain(); each != &dialog; each = each->nextInFocusChain()) {
        if (!dialog.isAncestorOf(each) || !each->isVisible() || !each->isEnabled()) continue;
        if (!(each->focusPolicy() & Qt::TabFocus)) continue;
        each->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

bool RecordPane::Leave() {
    if (leaving_) return false;
    if (!record_ || !record_->Editor().HasChanges()) return true;
    leaving_ = true;
    accepted_ = false;
    record_->Editor().Store();
    leaving_ = false;
    if (!accepted_) return false;
    record_.reset();
    events_.stored(*request_);
    return true;
}

/// The dialog is still at work when it tells this.
void RecordPane::Finished() {
    accepted_ = true;
    if (leaving_) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            record_.reset();
            events_.stored(*request_);
            events_.left();
        },
        Qt::QueuedConnection);
}

bool RecordPane::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return false;
    // Once the dialog is no longer at work: it may have to go.
    QMetaObject::invokeMethod(
        this, [this] { Escape(); }, Qt::QueuedConnection);
    return true;
}

void RecordPane::Escape() {
    if (!record_ || record_->Editor().CloseList()) return;
    if (!record_->Editor().HasChanges()) return events_.left();
    Show(std::optional(*request_), context_);
    Enter();
}

}  // namespace fabula::ide
