#include "ide/dialog_checks.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QPixmap>

#include "qt/strings.h"
#include "qt/theme.h"

namespace fabula::test {

std::vector<std::string> WidgetsWithoutName(const QWidget& window) {
    std::vector<std::string> nameless;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || qobject_cast<QMenu*>(widget)) continue;
        const QAccessibleInterface* access = QAccessible::queryAccessibleInterface(widget);
        if (access && !access->text(QAccessible::Name).isEmpty()) continue;
        nameless.push_back(std::string(widget->metaObject()->className()) + " " +
                           qt::FromQt(widget->objectName()));
    }
    return nameless;
}

void GrabInBothThemes(QWidget& window, const char* name) {
    const QString folder = qEnvironmentVariable("FABULA_GRABS");
    for (const qt::Theme theme : {qt::Theme::Light, qt::Theme::Dark}) {
        qt::ApplyTheme(theme);
        QApplication::processEvents();
        const QPixmap picture = window.grab();
        if (folder.isEmpty()) continue;
        picture.save(folder + "/" + name + "-" + QString::fromUtf8(qt::NameOf(theme)) + ".png");
    }
    qt::ApplyTheme(qt::Theme::System);
}

}  // namespace fabula::test
