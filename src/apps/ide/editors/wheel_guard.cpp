#include "ide/editors/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

namespace fabula::ide {

WheelGuard::WheelGuard(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::Wheel) return false;
    // An open list is a window of its own, which gets the wheel itself.
    const bool isList = qobject_cast<QComboBox*>(receiver) != nullptr;
    const bool isNumber = qobject_cast<QAbstractSpinBox*>(receiver) || qobject_cast<QSlider*>(receiver);
    const bool isIdle = isNumber && !static_cast<QWidget*>(receiver)->hasFocus();
    if (!isList && !isIdle) return false;
    event->ignore();
    return true;
}

}  // namespace fabula::ide
