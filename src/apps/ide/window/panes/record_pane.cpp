#include "ide/window/panes/record_pane.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "ide/dialogs/leaving.h"
#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kPaneSize(420, 300);

/// The letters behind Alt belong to the menus of the window that the dialog stands in now.
void DropMnemonics(const QWidget& dialog) {
    for (auto* label : dialog.findChildren<QLabel*>()) {
        // The buddy stays: a screen reader tells it by its label.
        if (label->buddy()) label->setText(label->text().remove('&'));
    }
    for (auto* button : dialog.findChildren<QAbstractButton*>())
        button->setText(button->text().remove('&'));
}

/// The place of the cursor in a field in which text is typed, else 0.
int CursorIn(const QWidget* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field)) return line->cursorPosition();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(field)) return text->textCursor().position();
    return 0;
}

void PutCursor(QWidget* field, int place) {
    if (auto* line = qobject_cast<QLineEdit*>(field)) line->setCursorPosition(place);
    if (auto* text = qobject_cast<QPlainTextEdit*>(field)) {
        QTextCursor cursor = text->textCursor();
        cursor.setPosition(std::min(place, static_cast<int>(text->toPlainText().size())));
        text->setTextCursor(cursor);
    }
}

}  // namespace

RecordPane::RecordPane(Events events, QWidget* parent) : QWidget(parent), events_(std::move(events)) {
    setObjectName("RecordPane");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        if (now && isAncestorOf(now)) isTouched_ = true;
    });
}

RecordPane::~RecordPane() = default;

QSize RecordPane::sizeHint() const {
    return kPaneSize;
}

void RecordPane::Show(const std::optional<authoring::ScreenRequest>& request,
                      authoring::ScreenContext* context, bool keepsRoom) {
    const bool goesOn = GoesOnTo(request);
    if (!goesOn) record_.reset();
    request_ = request;
    context_ = context;
    if (request_) {
        try {
            goesOn ? record_->GoTo(request_->key.key) : Make();
        } catch (const Error& error) {
            record_.reset();
            context_->dialogs.Tell(error.what(), "Error");
        }
    }
    setVisible(record_ != nullptr || (keepsRoom && isVisible()));
}

/// What somebody has touched may hold more than fields: a list that was begun, a check that is to come.
bool RecordPane::GoesOnTo(const std::optional<authoring::ScreenRequest>& request) const {
    if (!record_ || !request || isOutdated_ || isTouched_) return false;
    return request->screen == request_->screen && request->table == request_->table &&
           !record_->Editor().HasChanges();
}

void RecordPane::Make() {
    record_ = OpenRecord(*request_, *context_);
    isOutdated_ = false;
    isTouched_ = false;
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

std::optional<authoring::NamedRecord> RecordPane::NamedAtCursor() const {
    if (!record_ || !isAncestorOf(QApplication::focusWidget())) return std::nullopt;
    return record_->Editor().NamedAtCursor();
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

bool RecordPane::Store() {
    const QWidget* const field = window()->focusWidget();
    const bool inside = field && isAncestorOf(field);
    const QString name = inside ? field->objectName() : QString();
    const int cursor = CursorIn(field);
    if (!Leave()) return false;
    auto* const again = inside && record_ ? record_->Dialog().findChild<QWidget*>(name) : nullptr;
    if (!again) return true;
    again->setFocus();
    PutCursor(again, cursor);
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
    if (!MayClose(true, context_->dialogs, [this] { record_->Editor().Store(); })) return;
    Show(std::optional(*request_), context_);
    Enter();
}

}  // namespace fabula::ide
