#include "qt/qt_events.h"

#include <QCoreApplication>

namespace fabula::qt {
namespace {

constexpr qint64 kMilliseconds = 40;

}  // namespace

void QtEvents::Pump() {
    if (sinceLast_.elapsed() < kMilliseconds) return;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    sinceLast_.restart();
}

}  // namespace fabula::qt
