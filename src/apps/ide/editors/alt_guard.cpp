#include "ide/editors/alt_guard.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace fabula::ide {

AltGuard::AltGuard(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool AltGuard::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    // Characters of the third level of a keyboard may come with Ctrl and Alt together.
    const bool isLetter = !key->text().isEmpty() && key->text().at(0).isPrint();
    if (!isLetter || (key->modifiers() & ~Qt::ShiftModifier) != Qt::AltModifier) return false;
    const auto* list = qobject_cast<QComboBox*>(receiver);
    const bool isTypedInto = (list != nullptr && list->isEditable()) ||
                             qobject_cast<QLineEdit*>(receiver) != nullptr ||
                             qobject_cast<QPlainTextEdit*>(receiver) != nullptr;
    if (!isTypedInto) return false;
    event->ignore();
    return true;
}

}  // namespace fabula::ide
