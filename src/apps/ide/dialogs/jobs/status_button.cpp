#include "ide/dialogs/jobs/status_button.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QPushButton>

#include "qt/strings.h"

namespace fabula::ide {

QPushButton* NewStatusButton(const QString& caption, const StatusActions& actions) {
    auto* button = new QPushButton(caption);
    button->setObjectName("print");
    button->setAccessibleName(QString(caption).remove('&'));
    button->setAutoDefault(false);
    auto* menu = new QMenu(button);
    menu->setToolTipsVisible(true);
    auto* print = menu->addAction(qt::Translated("&Print..."));
    print->setObjectName("printStatus");
    QObject::connect(print, &QAction::triggered, button, [actions] { actions.print(); });
    auto* copy = menu->addAction(qt::Translated("&Copy to Clipboard"));
    copy->setObjectName("copyStatus");
    QObject::connect(copy, &QAction::triggered, button,
                     [actions] { QApplication::clipboard()->setText(qt::ToQt(actions.text())); });
    auto* save = menu->addAction(qt::Translated("&Save to File..."));
    save->setObjectName("saveStatus");
    QObject::connect(save, &QAction::triggered, button, [actions] { actions.save(); });
    button->setMenu(menu);
    // The arrow of the menu takes room that the text does not know of.
    button->setMinimumWidth(button->sizeHint().width() + button->fontMetrics().averageCharWidth() * 2);
    return button;
}

}  // namespace fabula::ide
