#include "qt/qt_events.h"

#include <QCoreApplication>

namespace fabula::qt {
namespace {

/// Often enough to look alive, and seldom enough to cost nothing.
constexpr qint64 kMilliseconds = 40;

}  // namespace

void QtEvents::Pump() {
    if (sinceLast_.elapsed() < kMilliseconds) return;
    QCoreApplication::processEvents(taken_);
    sinceLast_.restart();
}

}  // namespace fabula::qt
