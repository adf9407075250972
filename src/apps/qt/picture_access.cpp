#include "qt/picture_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QString>
#include <QWidget>

namespace fabula::qt {
namespace {

constexpr const char* kIsPicture = "isPicture";

QAccessibleInterface* Describe(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || !widget->property(kIsPicture).toBool()) return nullptr;
    return new QAccessibleWidget(widget, QAccessible::Graphic);  // Qt deletes it
}

}  // namespace

void ActAsPicture(QWidget& widget) {
    widget.setProperty(kIsPicture, true);
    QAccessible::installFactory(Describe);
}

void TellAsDescription(QWidget& widget, const QString& text) {
    if (text == widget.accessibleDescription()) return;
    widget.setAccessibleDescription(text);
    QAccessibleEvent changed(&widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

}  // namespace fabula::qt
