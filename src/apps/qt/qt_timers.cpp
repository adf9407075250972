#include "qt/qt_timers.h"

#include <QTimer>

namespace fabula::qt {

QtTimers::QtTimers() = default;
QtTimers::~QtTimers() = default;

int QtTimers::Start(std::chrono::milliseconds delay, Action action) {
    const int number = ++last_;
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout, [this, number, action = std::move(action)] {
        const auto fired = running_.find(number);
        if (fired == running_.end()) return;
        // The timer is calling this: it can't be deleted before the call is over.
        fired->second.release()->deleteLater();
        running_.erase(fired);
        const Action due = action;
        due();
    });
    timer->start(delay);
    running_.emplace(number, std::move(timer));
    return number;
}

void QtTimers::Stop(int timer) {
    const auto found = running_.find(timer);
    if (found == running_.end()) return;
    found->second->stop();
    running_.erase(found);
}

}  // namespace fabula::qt
