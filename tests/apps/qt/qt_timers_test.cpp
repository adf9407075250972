#include "qt/qt_timers.h"

#include <QEventLoop>

#include <gtest/gtest.h>

namespace fabula::qt {
namespace {

using std::chrono::milliseconds;

TEST(QtTimers, CallsOnceFromTheEventLoop) {
    QtTimers timers;
    QEventLoop loop;
    int calls = 0;
    timers.Start(milliseconds(0), [&] { ++calls; });
    timers.Start(milliseconds(1), [&] { loop.quit(); });
    EXPECT_EQ(calls, 0);
    loop.exec();
    EXPECT_EQ(calls, 1);
}

TEST(QtTimers, AStoppedTimerIsNotCalled) {
    QtTimers timers;
    QEventLoop loop;
    int calls = 0;
    const int stopped = timers.Start(milliseconds(0), [&] { ++calls; });
    timers.Start(milliseconds(1), [&] { loop.quit(); });
    timers.Stop(stopped);
    loop.exec();
    EXPECT_EQ(calls, 0);
}

TEST(QtTimers, AnActionMayStartAndStopTimers) {
    QtTimers timers;
    QEventLoop loop;
    int first = 0;
    first = timers.Start(milliseconds(0), [&] {
        timers.Stop(first);
        timers.Start(milliseconds(0), [&] { loop.quit(); });
    });
    EXPECT_EQ(loop.exec(), 0);
}

}  // namespace
}  // namespace fabula::qt
