#include "ide/window/job_events.h"

#include <QCoreApplication>

namespace fabula::ide {
namespace {

/// Often enough to look alive, and seldom enough to cost nothing.
constexpr qint64 kMilliseconds = 40;

}  // namespace

void JobEvents::Pump() {
    if (sinceLast_.elapsed() < kMilliseconds) return;
    QCoreApplication::processEvents();
    sinceLast_.restart();
}

}  // namespace fabula::ide
