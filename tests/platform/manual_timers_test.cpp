#include "support/doubles/manual_timers.h"

#include <string>

#include <gtest/gtest.h>

namespace fabula::platform {
namespace {

using std::chrono::milliseconds;

TEST(ManualTimers, CallsWhatIsDueInTheOrderOfItsTime) {
    ManualTimers timers;
    std::string called;
    timers.Start(milliseconds(20), [&] { called += "b"; });
    timers.Start(milliseconds(10), [&] { called += "a"; });
    timers.Start(milliseconds(30), [&] { called += "c"; });
    timers.Advance(milliseconds(20));
    EXPECT_EQ(called, "ab");
}

TEST(ManualTimers, CallsWhatWasStartedOnTheWayWhenItsTimeHasCome) {
    ManualTimers timers;
    std::string called;
    timers.Start(milliseconds(10), [&] {
        called += "a";
        timers.Start(milliseconds(10), [&] { called += "b"; });
        timers.Start(milliseconds(11), [&] { called += "c"; });
    });
    timers.Advance(milliseconds(20));
    EXPECT_EQ(called, "ab");
}

TEST(ManualTimers, AStoppedTimerIsNotCalled) {
    ManualTimers timers;
    bool called = false;
    timers.Stop(timers.Start(milliseconds(10), [&] { called = true; }));
    timers.Advance(milliseconds(10));
    EXPECT_FALSE(called);
}

TEST(Alarm, StartedAgainIsDueOnceAfterTheNewTime) {
    ManualTimers timers;
    int calls = 0;
    Alarm alarm(timers, [&] { ++calls; });
    alarm.Start(milliseconds(10));
    timers.Advance(milliseconds(9));
    alarm.Start(milliseconds(10));
    timers.Advance(milliseconds(9));
    EXPECT_EQ(calls, 0);
    timers.Advance(milliseconds(100));
    EXPECT_EQ(calls, 1);
}

TEST(Alarm, EndsWithItsOwner) {
    ManualTimers timers;
    int calls = 0;
    {
        Alarm alarm(timers, [&] { ++calls; });
        alarm.Start(milliseconds(10));
    }
    timers.Advance(milliseconds(10));
    EXPECT_EQ(calls, 0);
}

}  // namespace
}  // namespace fabula::platform
