#include "ide/editors/leave_check.h"

#include <QFocusEvent>
#include <QWidget>

namespace fabula::ide {

LeaveCheck::LeaveCheck(QWidget& control, std::function<void()> left)
    : QObject(&control), control_(control), left_(std::move(left)) {
    control.installEventFilter(this);
}

bool LeaveCheck::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::FocusOut) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return false;
    // Where the focus goes is known only after the event.
    QMetaObject::invokeMethod(
        this, [this] { LookWhereItWent(); }, Qt::QueuedConnection);
    return false;
}

void LeaveCheck::LookWhereItWent() {
    const QWidget* now = control_.window()->focusWidget();
    if (!control_.isVisible() || !now || now == &control_) return;
    if (now->objectName() == "update" || now->objectName() == "exit") return;
    left_();
}

}  // namespace fabula::ide
