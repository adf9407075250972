#include "qt/help/help_request.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

#include "qt/help/help_anchors.h"

namespace fabula::qt {

HelpTopic TopicOf(const QWidget* control) {
    HelpTopic topic;
    QStringList controls;
    const auto name = [&controls](const QString& each) {
        if (!each.isEmpty()) controls << each;
    };
    for (const QWidget* each = control; each; each = each->parentWidget()) {
        name(each->property(kHelpAnchor).toString());
        name(each->objectName());
        topic.page = each->property(kHelpPage).toString();
        if (!topic.page.isEmpty()) break;
    }
    for (const QString& each : controls)
        topic.anchors << AnchorOf(topic.page, each);
    return topic;
}

HelpRequest::HelpRequest(Show show) : show_(std::move(show)) {
    qApp->installEventFilter(this);
}

bool HelpRequest::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
    const auto* control = static_cast<QWidget*>(receiver);
    // A list that is open under a field has the keys, but it is the field that is asked about.
    show_(TopicOf(control->focusProxy() ? control->focusProxy() : control));
    return true;
}

}  // namespace fabula::qt
