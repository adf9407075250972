#include "ide/window/grid/tab_strip.h"

#include <QMouseEvent>

namespace fabula::ide {

TabStrip::TabStrip(Events events, QWidget* parent) : QTabBar(parent), events_(std::move(events)) {
    setObjectName("TabStrip");
    setAccessibleName(tr("Open tables and records"));
    setTabsClosable(true);
    setMovable(true);
    setExpanding(false);
    setDrawBase(false);
    setElideMode(Qt::ElideRight);
    setUsesScrollButtons(true);
    hide();
    // The tabs are filled anew by what happens, once the strip has done its own work.
    const auto later = [this](std::function<void()> work) {
        if (!showing_) QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
    };
    QObject::connect(this, &QTabBar::currentChanged, this,
                     [this, later](int tab) { later([this, tab] { events_.chosen(tab); }); });
    QObject::connect(this, &QTabBar::tabCloseRequested, this,
                     [this, later](int tab) { later([this, tab] { events_.closed(tab); }); });
    QObject::connect(this, &QTabBar::tabMoved, this, [this](int from, int to) {
        if (!showing_) events_.moved(from, to);
    });
}

void TabStrip::Show(const QStringList& titles, int current) {
    showing_ = true;
    while (count() > titles.size())
        removeTab(count() - 1);
    for (int tab = 0; tab < titles.size(); ++tab) {
        QString title = titles[tab];
        if (tab == count()) addTab(QString());
        setTabText(tab, title.replace('&', "&&"));
        setAccessibleTabName(tab, titles[tab]);
    }
    setCurrentIndex(current);
    setVisible(titles.size() > 1);
    showing_ = false;
}

void TabStrip::mouseReleaseEvent(QMouseEvent* event) {
    const int tab = tabAt(event->pos());
    if (event->button() == Qt::MiddleButton && tab >= 0) tabCloseRequested(tab);
    QTabBar::mouseReleaseEvent(event);
}

}  // namespace fabula::ide
