// What the timers do when the machine is late, and in which order they come.
#include "platform/TimerWheel.h"

#include <gtest/gtest.h>

#include <vector>

namespace prismfall {
namespace {

using namespace std::chrono_literals;

std::vector<Timer> TakeAll(TimerWheel& wheel, Nanoseconds now) {
    std::vector<Timer> taken;
    while (const auto timer = wheel.TakeDue(now)) {
        taken.push_back(*timer);
        wheel.Finish(*timer);
    }
    return taken;
}

TEST(TimerWheelTest, LateTicksAreSkippedAndTheRhythmStays) {
    struct Case {
        Nanoseconds firstLook;
        Nanoseconds nextDue;
    };
    for (const Case& c : {Case{10ms, 20ms}, Case{19ms, 20ms}, Case{20ms, 30ms}, Case{57ms, 60ms}}) {
        TimerWheel wheel;
        wheel.SetInterval(Timer::LineExtender, 10, 0ms);
        wheel.Start(Timer::LineExtender, 0ms);
        EXPECT_EQ(TakeAll(wheel, 9999us).size(), 0U);
        EXPECT_EQ(TakeAll(wheel, c.firstLook).size(), 1U);
        EXPECT_EQ(wheel.NextDue(), c.nextDue);
    }
}

TEST(TimerWheelTest, EarlierComesFirstAndTiesGoByTheTimersOrder) {
    TimerWheel wheel;
    for (const Timer timer : {Timer::TimerPlayIntro, Timer::TimerMulti, Timer::LineCreator, Timer::LineDeleter}) {
        wheel.SetInterval(timer, timer == Timer::TimerMulti ? 9 : 10, 0ms);
        wheel.Start(timer, 0ms);
    }
    EXPECT_EQ(TakeAll(wheel, 10ms),
              (std::vector{Timer::TimerMulti, Timer::LineDeleter, Timer::LineCreator, Timer::TimerPlayIntro}));
}

TEST(TimerWheelTest, ATimerDoesNotTickWithinItsOwnTick) {
    TimerWheel wheel;
    wheel.SetInterval(Timer::TimerA, 10, 0ms);
    wheel.Start(Timer::TimerA, 0ms);
    ASSERT_EQ(wheel.TakeDue(10ms), Timer::TimerA);
    EXPECT_EQ(wheel.NextDue(), std::nullopt);
    EXPECT_EQ(wheel.TakeDue(25ms), std::nullopt);
    wheel.Finish(Timer::TimerA);
    EXPECT_EQ(TakeAll(wheel, 25ms).size(), 1U);
    EXPECT_EQ(wheel.NextDue(), 30ms);
}

TEST(TimerWheelTest, OnlyAnotherIntervalRestartsAndZeroNeverTicks) {
    TimerWheel wheel;
    wheel.SetInterval(Timer::LineCreator, 10, 0ms);
    wheel.Start(Timer::LineCreator, 0ms);
    wheel.SetInterval(Timer::LineCreator, 10, 4ms);
    wheel.Start(Timer::LineCreator, 4ms);
    EXPECT_EQ(wheel.NextDue(), 10ms);
    wheel.SetInterval(Timer::LineCreator, 8, 4ms);
    EXPECT_EQ(wheel.NextDue(), 12ms);
    wheel.SetInterval(Timer::LineCreator, 0, 5ms);
    EXPECT_EQ(wheel.NextDue(), std::nullopt);
    wheel.SetInterval(Timer::LineCreator, 8, 6ms);
    EXPECT_EQ(wheel.NextDue(), 14ms);
    wheel.Stop(Timer::LineCreator);
    EXPECT_EQ(TakeAll(wheel, 1s).size(), 0U);
}

}  // namespace
}  // namespace prismfall
